#include "core/clocks.h"

#include "core/environment.h"
#include "core/game_state.h"

namespace Variables {

namespace {

std::string DosCifras(int32_t n) {
    return (n >= 0 && n < 10 ? "0" : "") + std::to_string(n);
}

} // namespace

std::string TextoTiempo(int32_t minutos, int32_t segundos) {
    return DosCifras(minutos) + ":" + DosCifras(segundos);
}

void PrintTimerB() {
    dialogos().PonerTextoReloj(1, TextoTiempo(MinutosBlancas, SegundosBlancas));
}

void PrintTimerN() {
    dialogos().PonerTextoReloj(2, TextoTiempo(MinutosNegras, SegundosNegras));
}

void RelojesCero() {
    MinutosBlancas = SegundosBlancas = MinutosNegras = SegundosNegras = 0;
    PrintTimerB();
    PrintTimerN();
}

} // namespace Variables
