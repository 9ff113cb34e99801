// Speed of the move filter: whole moves while replaying a long game, and
// test-only calls as under a dragged piece sweeping the board.
#include "core/environment.h"
#include "core/game_state.h"
#include "core/local_move.h"
#include "core/move_filter.h"
#include "core/move_list.h"

#include <benchmark/benchmark.h>
#include <cstring>
#include <random>
#include <string>
#include <vector>

using namespace Variables;

namespace {

std::string Sq(int c, int f) {
    return std::to_string(c) + std::to_string(f);
}

bool Probar(const std::string& o, const std::string& d) {
    int32_t copia[9][9];
    std::memcpy(copia, Tablero, sizeof copia); // a probed en passant takes the victim off
    const bool legal = ProbarJugada(o, d);
    std::memcpy(Tablero, copia, sizeof copia);
    return legal;
}

void NuevaPartida() {
    RestablecerTodo();
    NuevaPartidaLocal();
}

// A long legal game, chosen at random among the moves the filter allows.
const std::vector<std::string>& PartidaLarga() {
    static const std::vector<std::string> jugadas = [] {
        std::vector<std::string> j;
        std::mt19937 azar(7);
        NuevaPartida();
        while (j.size() < 200 && Turno != 0) {
            std::vector<std::string> legales;
            for (int c = 1; c <= 8; ++c)
                for (int f = 1; f <= 8; ++f) {
                    if (!EsFichaPropia(c, f)) continue;
                    for (int c2 = 1; c2 <= 8; ++c2)
                        for (int f2 = 1; f2 <= 8; ++f2)
                            if (Probar(Sq(c, f), Sq(c2, f2)))
                                legales.push_back(Sq(c, f) + Sq(c2, f2));
                }
            if (legales.empty()) break;
            const std::string m = legales[azar() % legales.size()];
            if (SoltarFicha(m.substr(0, 2), m.substr(2, 2), 0).tipo != Respuesta::Legal) continue;
            j.push_back(m);
        }
        return j;
    }();
    return jugadas;
}

void BM_ReplayLongGame(benchmark::State& state) {
    const auto& jugadas = PartidaLarga();
    int64_t movidas = 0;
    for (auto _ : state) {
        NuevaPartida();
        for (const auto& m : jugadas) SoltarFicha(m.substr(0, 2), m.substr(2, 2), 0);
        movidas += static_cast<int64_t>(jugadas.size());
    }
    state.counters["moves/s"] =
        benchmark::Counter(static_cast<double>(movidas), benchmark::Counter::kIsRate);
    state.counters["plies"] = static_cast<double>(jugadas.size());
}
BENCHMARK(BM_ReplayLongGame)->Unit(benchmark::kMillisecond);

// A queen in the middle game under the mouse, swept over all 64 squares.
void BM_ProbeSweep64(benchmark::State& state) {
    NuevaPartida();
    for (const char* m : {"5254", "5755", "7163", "2836", "6134", "6853", "4142", "7866"})
        SoltarFicha(std::string(m, 2), std::string(m + 2, 2), 0);
    int64_t llamadas = 0;
    for (auto _ : state) {
        for (int c = 1; c <= 8; ++c)
            for (int f = 1; f <= 8; ++f) benchmark::DoNotOptimize(Probar("42", Sq(c, f)));
        llamadas += 64;
    }
    state.counters["probes/s"] =
        benchmark::Counter(static_cast<double>(llamadas), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_ProbeSweep64)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
