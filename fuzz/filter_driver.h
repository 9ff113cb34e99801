#pragma once
// Turns arbitrary bytes into a board, rights and a run of moves, probes,
// take-backs and odd square texts, all through the real entry points.
// Aborts if the board's outer row or column is ever written.

#include <cstddef>
#include <cstdint>

void EjecutarEntradaFiltro(const uint8_t* datos, size_t tam);
