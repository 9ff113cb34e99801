#pragma once
// Positions as one text line in the manner of FEN. The castling letters are
// our own: upper case speaks of Black's rooks, lower case of
// White's, and "K" is the a-rook. Two copies of the program agree on it.

#include <array>
#include <cstdint>
#include <string>

namespace Variables {

inline std::string TextoFen;    // the last line written
inline std::string PosicionFen; // the position AbrirEpd opens

// Row 8 to row 1, column 1 to 8 within a row; piece codes as digits.
using CasillasFen = std::array<std::string, 64>;

void EscribirFen();
// True if the line was accepted. A refused castling field has already
// changed ColorInicio and the rook flags, as it always has.
bool LeerFen(const std::string& linea);
std::string FichaTexto(int32_t codigo);
// A line for White with no move in it, so that Black's first move of a position takes Black's
// place in the move list.
void JugadaVaciaBlancas();
// The game emptied for a position that a line will set: move lists, per-move state, clocks and
// the stored game's lines; the castling flags set, so that the line's own field decides.
void VaciarParaPosicion();
// Opens PosicionFen as a new local (or network) game. Returns LeerFen's
// answer, which the opening itself does not look at.
bool AbrirEpd();

} // namespace Variables
