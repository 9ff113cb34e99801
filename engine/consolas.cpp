// The engine session: its consoles, the lists of engines, the state cleared between games.

#include "engine/motores_interno.h"

#include "engine/descubrimiento.h"
#include "language/idioma.h"
#include "platform/programa.h"
#include "platform/ruta.h"

namespace qa {

using namespace motor;

Motores::Motores(EntornoCpu& cpu, Temporizador& timer1, Temporizador& timer2, Temporizador& timer3,
                 Temporizador& timer4, Temporizador& timer5)
    : impl_(std::make_unique<Impl>(*this, cpu, timer1, timer2, timer3, timer4, timer5)) {
    Impl& i = *impl_;
    timer1.Intervalo(1000);
    timer2.Intervalo(2000);
    timer3.Intervalo(1000);
    timer4.Intervalo(1);
    timer5.Intervalo(1);
    timer1.alVencer = [&i] { i.Timer1(); };
    timer2.alVencer = [&i] { i.Timer2(); };
    timer3.alVencer = [&i] { i.Timer3(); };
    timer4.alVencer = [&i] { i.TickReloj(1); };
    timer5.alVencer = [&i] { i.TickReloj(2); };
    e_.NombresMotor = {TextoSinMotor};
    e_.RutasMotor = {std::string()};
}

Motores::~Motores() {
    for (Temporizador* t :
         {&impl_->timer1, &impl_->timer2, &impl_->timer3, &impl_->timer4, &impl_->timer5}) {
        t->Habilitar(false);
        t->alVencer = nullptr;
    }
}

bool Motores::CpuVisible() {
    return impl_->cpu.Visible();
}

void Motores::ActualizarCPU() {
    Impl& i = *impl_;
    e_.NombresMotor = {TextoSinMotor};
    e_.RutasMotor = {std::string()};
    i.cpu.LlenarListas(e_.NombresMotor);
    const auto encontrados =
        BuscarMotores(RutaReal(DirectorioPrograma + "Motor\\"), [&i] { i.cpu.Ceder(); });
    std::vector<std::string> nombres{TextoSinMotor}, rutas{std::string()};
    for (const auto& m : encontrados) {
        nombres.push_back(m.nombre);
        rutas.push_back(m.ruta);
    }
    e_.NombresMotor = nombres;
    e_.RutasMotor = rutas;
    i.cpu.LlenarListas(nombres);
}

std::string Motores::Impl::NombreLista(int lista) {
    const int i = cpu.IndiceLista(lista);
    if (i < 0 || i >= static_cast<int>(e.NombresMotor.size())) return {};
    return e.NombresMotor[static_cast<std::size_t>(i)];
}

bool Motores::Impl::Nombra(int i) const {
    return i >= 1 && i < static_cast<int>(e.RutasMotor.size()) &&
           e.NombresMotor[static_cast<std::size_t>(i)] != TextoSinMotor;
}

void Motores::Impl::EnviarMotor(int motor) {
    if (!Corre(motor)) return;
    cpu.Ceder();
    e.RespuestaMotor[motor] = "...";
    // The yield may have replaced or dropped the console: take the one there is now.
    if (consola[motor]) consola[motor]->Enviar(e.ComandoMotor[motor]);
    cpu.Ceder();
}

void Motores::Impl::Enviar(int motor, const std::string& comando) {
    e.ComandoMotor[motor] = comando;
    EnviarMotor(motor);
}

void Motores::Impl::ArrancarMotor(int motor) {
    e.RespuestaMotor[motor].clear();
    e.ComandoMotor[motor].clear();
    if (!Corre(motor)) return;
    const int ok = consola[motor] ? consola[motor]->Ejecutar(e.RutaMotor[motor]) : 0;
    // The game goes on against nothing: the flag stays.
    if (ok == 0) Aviso(88, kIconoStop);
}

// A new console for the engine the list shows, started; none for a person.
bool Motores::Impl::Lanzar(int motor) {
    const int i = cpu.IndiceLista(motor);
    if (!Nombra(i)) return false;
    consola[motor] = &cpu.NuevaConsola(motor);
    CmdTerminar(motor);
    e.RutaMotor[motor] = e.RutasMotor[static_cast<std::size_t>(i)];
    (motor == 1 ? MotorBlancas : MotorNegras) = true;
    ArrancarMotor(motor);
    return true;
}

void Motores::Impl::CmdTerminar(int motor) {
    if (Corre(motor)) {
        e.CerrandoMotor = true;
        if (consola[motor]) consola[motor]->Enviar("exit");
        if (consola[motor]) consola[motor]->Enviar("quit");
        cpu.Ceder();
        if (consola[motor]) consola[motor]->Terminar();
        cpu.Ceder();
    }
    e.CerrandoMotor = false;
}

void Motores::Impl::DescargarDLL() {
    consola[1] = consola[2] = nullptr;
    cpu.SoltarConsolas();
}

void Motores::Impl::VariableCPUCero(bool relojes) {
    e.MovimientoCPU.clear();
    e.PeticionPendiente = e.EnroquePendiente = false;
    for (int caja = 1; caja <= 5; ++caja) cpu.PonerTexto(caja, "");
    PararRelojes();
    if (relojes) {
        cpu.PonerTexto(6, "00:00");
        cpu.PonerTexto(7, "00:00");
    }
    for (int m = 1; m <= 2; ++m) {
        e.RutaMotor[m].clear();
        e.ComandoMotor[m].clear();
        e.RespuestaMotor[m].clear();
    }
    MotorBlancas = MotorNegras = false;
}

// Both engines stopped and the engine state cleared: the common end of a game.
void Motores::Impl::Terminar() {
    CmdTerminar(1);
    CmdTerminar(2);
    VariableCPUCero();
    Turno = 0;
}

void Motores::ErrorRecibido(int /*motor*/, const std::string& texto) {
    Impl& i = *impl_;
    if (e_.CerrandoMotor) return;
    if (e_.ParandoMotores && Tiene(texto, "6")) return;
    Aviso("[ERROR] " + texto, kIconoStop);
    i.DescargarDLL();
    i.Terminar();
}

void Motores::CerrarFormulario() {
    Impl& i = *impl_;
    i.Terminar();
    TipoPartida.clear();
    i.DescargarDLL();
    if (i.cpu.Visible()) listas().MostrarVentanas();
}

void Motores::CerrarPrograma() {
    Impl& i = *impl_;
    if (i.cpu.Visible()) {
        i.Terminar();
        TipoPartida.clear();
    }
    i.DescargarDLL();
}

} // namespace qa
