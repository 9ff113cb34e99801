#pragma once
// Turns arbitrary bytes into a game file and runs it through every reader
// of the game files: the PGN scanner and browser with a chosen search tag,
// the token classifier, ComFicha on each token, the EPD list and the .qtr
// replay. Aborts if the board's outer row or column is ever written or a
// square holds a code that is no piece.

#include <cstddef>
#include <cstdint>

void EjecutarEntradaPgn(const uint8_t* datos, size_t tam);
