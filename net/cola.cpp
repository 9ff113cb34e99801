// The send queue and its pump: one message per completed send, pings, times and moves first.

#include "net/sesion_interna.h"

namespace qa {

void SesionRed::EnviarMensaje(const std::string& texto) {
    Impl& d = *p_;
    if (!Conectado) return;
    // A full queue drops the message: a peer that stops reading cannot make it grow.
    if (d.cuenta >= kCola) return;
    if (d.cuenta < 0) d.cuenta = 0;
    ++d.cuenta;
    d.cola[static_cast<size_t>(d.cuenta)] = texto;
    d.t.bomba.Habilitar(true);
}

void SesionRed::AlCompletarEnvio() {
    Impl& d = *p_;
    d.pingEnCurso = false;
    if (d.relojTrasRetroceso) {
        d.CambiarRelojes();
        d.relojTrasRetroceso = false;
    }
    if (d.relojTrasMovimiento) {
        d.CambiarRelojes();
        d.relojTrasMovimiento = false;
        // The mover tells its own time left.
        if (!d.t.relojNegras.Habilitado())
            EnviarMensaje(wire::TextoTime(MinutosNegras, SegundosNegras));
        if (!d.t.relojBlancas.Habilitado())
            EnviarMensaje(wire::TextoTime(MinutosBlancas, SegundosBlancas));
    }
    d.envioEnCurso = false;
}

void SesionRed::TickBomba() {
    Impl& d = *p_;
    if (!Conectado) {
        d.VaciarCola();
        d.cuenta = 0;
        d.t.bomba.Habilitar(false);
        return;
    }
    if (d.envioEnCurso) return;
    d.PrioridadCola();
    d.envioEnCurso = true;
    if (TipoPartida == "R") {
        if (d.cola[1].starts_with("Movimiento")) d.relojTrasMovimiento = true;
        if (d.cola[1].starts_with("RetrocesoAceptado")) d.relojTrasRetroceso = true;
    }
    d.EnviarSocket(d.cola[1]);
    if (d.cola[1] == wire::kPing) {
        d.pingContador = d.hora.Contador();
        d.pingInicio = d.hora.SegundosDelDia();
        d.pingEnCurso = true;
    }
    for (size_t i = 1; i <= kCola && !d.cola[i].empty(); ++i) d.cola[i] = d.cola[i + 1];
    if (!d.cola[1].empty()) {
        if (d.cuenta > 0) --d.cuenta;
        return;
    }
    d.cuenta = 0;
    d.t.bomba.Habilitar(false);
}

} // namespace qa
