#pragma once
// Turns arbitrary bytes into a network session in one of its states (no connection, connected,
// a rated game as either colour, a game arriving) and a run of received texts, each with the
// timer ticks, completed sends, answers and commands that come between them. Aborts if the
// send queue ever leaves its 40 places.

#include <cstddef>
#include <cstdint>

void EjecutarEntradaRed(const uint8_t* datos, size_t tam);
