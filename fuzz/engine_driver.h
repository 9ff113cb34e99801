#pragma once
// Turns arbitrary bytes into an engine game: the engines chosen, the level, then a run of lines
// from either engine (answered at once or while the logic yields), console failures, timer
// ticks, toolbar commands, the person's moves and answers. Aborts if an engine's console is
// left running once neither engine plays.

#include <cstddef>
#include <cstdint>

void EjecutarEntradaMotor(const uint8_t* datos, size_t tam);
