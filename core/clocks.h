#pragma once
// The two clocks' counters (MinutosBlancas and the rest, in game_state.h) on their captions.

#include <cstdint>
#include <string>

namespace Variables {

// A clock as its caption shows it: "05:09", minutes of 100 and more in full.
std::string TextoTiempo(int32_t minutos, int32_t segundos);
// Shows the counters on White's (B) or Black's (N) clock; called wherever a counter is written.
void PrintTimerB();
void PrintTimerN();
// The four counters to 0 and both clocks shown.
void RelojesCero();

} // namespace Variables
