#pragma once
// ComFicha: one move in short algebraic notation, read by fixed character
// positions, turned into squares from the board as it stands and played
// through the move filter. Accepted moves go to ListaPgn::PgnJugadas.

#include <cstdint>
#include <string>

namespace Variables {

inline bool FallaPgn; // a move could not be played: the replay stops

// color: 1 White, 2 Black.
void ComFicha(const std::string& jugada, int color);
// Another square holding pieza, other than (col, fila) in column or row; the last found.
void PgnCandidata(int col, int fila, int32_t pieza);
// The king of the colour next to the destination, and the move played.
void MoverRey(int col, int fila, int color);

} // namespace Variables
