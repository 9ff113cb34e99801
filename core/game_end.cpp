#include "core/game_end.h"

#include "core/environment.h"
#include "core/game_state.h"
#include "core/peer.h"
#include "platform/mensajes.h"

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
        if (ColorJugador == "Blancas") red().SumaDePartidas(ganaBlanco ? kGanada : kPerdida);
        if (ColorJugador == "Negras") red().SumaDePartidas(ganaBlanco ? kPerdida : kGanada);
    }
    TerminarPartida();
    dialogos().Sonar(4);
    MovimientoAnulado();
    VariablesCero();
    if (motor().CpuVisible()) motor().DetenerTimersCpu();
    MostrarAviso(ganaBlanco ? 1 : 2);
}

// No sound and no engine timers stopped here, unlike mate.
void FinPorAhogado() {
    if (TipoPartida == "R") red().SumaDePartidas(kTablas);
    TerminarPartida();
    MovimientoAnulado();
    VariablesCero();
    MostrarAviso(3);
}

} // namespace Variables
