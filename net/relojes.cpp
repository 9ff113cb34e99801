// The clocks of a rated game.

#include "net/sesion_interna.h"

namespace qa {

namespace {

// A counter a peer has set to anything steps down without wrapping.
void Menos1(int32_t& v) {
    if (v > INT32_MIN) --v;
}

} // namespace

void SesionRed::Impl::PrintReloj(int lado) {
    const int otro = 3 - lado;
    const int32_t minutos = lado == 1 ? MinutosBlancas : MinutosNegras;
    const int32_t segundos = lado == 1 ? SegundosBlancas : SegundosNegras;
    if (segundos != 0 && !vista.RelojBlanco(lado)) vista.ColorReloj(lado, true);
    if (segundos != 0 && vista.RelojBlanco(otro)) vista.ColorReloj(otro, false);
    if (minutos == 0 && segundos == 0) {
        vista.ColorReloj(1, false);
        vista.ColorReloj(2, false);
    }
    if (lado == 1)
        PrintTimerB();
    else
        PrintTimerN();
}

void SesionRed::Impl::TickReloj(int lado) {
    Temporizador& timer = lado == 1 ? t.relojBlancas : t.relojNegras;
    int32_t& minutos = lado == 1 ? MinutosBlancas : MinutosNegras;
    int32_t& segundos = lado == 1 ? SegundosBlancas : SegundosNegras;
    int& ultimo = lado == 1 ? ultimoSegundoBlancas : ultimoSegundoNegras;
    if (TipoPartida.empty()) {
        timer.Habilitar(false);
        vista.ColorReloj(1, false);
        vista.ColorReloj(2, false);
        return;
    }
    // A clock counts changes of the wall clock's second; the tick only looks for them.
    const int segundo = hora.Segundo();
    if (segundo == ultimo) return;
    ultimo = segundo;
    if (minutos != 0 && segundos == 0) {
        Menos1(minutos);
        segundos = 60;
    }
    if (minutos == 0 && segundos == 0) {
        PrintReloj(lado);
        timer.Habilitar(false);
        const std::string perdedor = lado == 1 ? "Blancas" : "Negras";
        const std::string ganador = lado == 1 ? "Negras" : "Blancas";
        if (TipoPartida == "R") {
            if (ColorJugador == perdedor) s.SumaDePartidas(kPerdida);
            if (ColorJugador == ganador) s.SumaDePartidas(kGanada);
        }
        if (ColorJugador == perdedor) {
            Avisar(29);
        } else if (ColorJugador == ganador) {
            dialogos().Sonar(5);
            Avisar(30);
        }
        TerminarPartida();
        return;
    }
    Menos1(segundos);
    PrintReloj(lado);
}

void SesionRed::TickRelojBlancas() {
    p_->TickReloj(1);
}

void SesionRed::TickRelojNegras() {
    p_->TickReloj(2);
}

} // namespace qa
