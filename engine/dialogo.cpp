// The engine session: the commands at start and what each line an engine writes does.

#include "engine/motores_interno.h"

namespace qa {

using namespace motor;

// Black's engine is set up first; White's is told to go last.
void Motores::Impl::Saludar() {
    for (int m = 2; m >= 1; --m) {
        Enviar(m, std::string("xboard") + kCrLf + "protover 2" + kCrLf + "new" + kCrLf);
        Enviar(m, std::string("random") + kCrLf + "ics -" + kCrLf + e.NivelMotor + kCrLf);
        Enviar(m, std::string("post") + kCrLf + "easy" + (m == 1 ? std::string(kCrLf) + "go" : ""));
    }
}

void Motores::Impl::LeerLineaMotor(const std::string& texto, int m) {
    EstadoLinea estado;
    estado.motorBlancas = MotorBlancas;
    estado.motorNegras = MotorNegras;
    estado.enroquePendiente = e.EnroquePendiente;
    estado.peticionPendiente = e.PeticionPendiente;
    estado.sinJugadas = Jugadas::List[1].empty();
    const LineaMotor l = LeerLinea(texto, estado);
    switch (l.clase) {
    case ClaseLinea::Ignorada:
        return;
    case ClaseLinea::RechazoNivel:
        Enviar(m, "level 0 15 0");
        return;
    case ClaseLinea::RechazoGrave:
        Aviso(dialogos().Mensaje(90) + " " + l.linea, kIconoStop);
        Terminar();
        e.PeticionPendiente = false;
        timer1.Habilitar(false);
        return;
    case ClaseLinea::RechazoPeticion:
        e.PeticionPendiente = false;
        timer1.Habilitar(false);
        if (DosMotores())
            Aviso(dialogos().Mensaje(89) + kCrLf + l.clave);
        else
            Aviso(89);
        return;
    case ClaseLinea::Movimiento:
        RamaMovimiento(l, m);
        return;
    case ClaseLinea::Caracteristicas:
        // Engine 2's features go to engine 1, which hears its own last command again.
        e.ComandoMotor[m] = l.texto;
        EnviarMotor(1);
        return;
    case ClaseLinea::OfertaTablas:
        OfertaTablas(m);
        return;
    case ClaseLinea::Tablas:
        PararRelojes();
        Aviso(95);
        Terminar();
        return;
    case ClaseLinea::Pista:
        if (DosMotores()) return;
        for (int i = 1; i <= 2; ++i)
            if (e.ComandoMotor[i] == "hint") e.ComandoMotor[i].clear();
        e.PeticionPendiente = false;
        timer1.Habilitar(false);
        Aviso(l.texto);
        return;
    case ClaseLinea::Resultado:
        PararRelojes();
        if (l.tablas) Aviso(95);
        if (l.rendicion) {
            MotorRendido(m);
            return;
        }
        Terminar();
        return;
    case ClaseLinea::Rendicion:
        MotorRendido(m);
        return;
    case ClaseLinea::Otra:
        if (e.EnroquePendiente) {
            e.EnroquePendiente = false;
            timer2.Habilitar(false);
        } else if (e.PeticionPendiente) {
            e.PeticionPendiente = false;
            timer1.Habilitar(false);
        } else {
            const Pensamiento p = LeerPensamiento(l.linea);
            for (int caja = 1; caja <= 5; ++caja)
                if (p[static_cast<std::size_t>(caja)])
                    cpu.PonerTexto(caja, *p[static_cast<std::size_t>(caja)]);
        }
        return;
    }
}

void Motores::DatoRecibido(int motor, const std::string& texto) {
    if (motor != 1 && motor != 2) return;
    impl_->LeerLineaMotor(texto, motor);
}

} // namespace qa
