#include "core/game_end.h"

#include "core/environment.h"
#include "core/game_state.h"

namespace Variables {

namespace {
constexpr int kPerdida = 1, kGanada = 2, kTablas = 3;

void TerminarPartida() {
    TipoPartida.clear();
    Turno = 0;
    ColorJugador.clear();
}
} // namespace

void FinPorMate() {
    const bool ganaBlanco = EsBlanca(FichaMovida);
    if (TipoPartida == "R") {
        if (ColorJugador == "Blancas") entorno().SumaDePartidas(ganaBlanco ? kGanada : kPerdida);
        if (ColorJugador == "Negras") entorno().SumaDePartidas(ganaBlanco ? kPerdida : kGanada);
    }
    TerminarPartida();
    entorno().Sonar(4);
    MovimientoAnulado();
    VariablesCero();
    if (entorno().CpuVisible()) entorno().DetenerTimersCpu();
    entorno().MostrarMensaje("Quintarena", ganaBlanco ? "1" : "2", 64, 0, 0);
}

// No sound and no engine timers stopped here, unlike mate.
void FinPorAhogado() {
    if (TipoPartida == "R") entorno().SumaDePartidas(kTablas);
    TerminarPartida();
    MovimientoAnulado();
    VariablesCero();
    entorno().MostrarMensaje("Quintarena", "3", 64, 0, 0);
}

} // namespace Variables
