#pragma once
// What the board does around the filter when a person moves a piece, apart
// from drawing: who may pick up what, the repair after a refused en passant
// capture, and the common finish that passes the turn or ends the game.

#include <cstdint>
#include <string>

namespace Variables {

// False if the square holds a piece of the side not to move.
bool NoEsContraria(int col, int fila);
// True if the square holds a piece of the side to move.
bool EsFichaPropia(int col, int fila);
// After the filter: a refused en passant capture puts a piece back, by the
// mover's colour (a white rook where a black pawn stood: kept as it is);
// an accepted one clears the victim's square.
void ReparacionAlPaso();
void SubComoFicha(const std::string& casilla);
// The finish of an accepted move, from the redraw on.
void FinComun();

struct Respuesta {
    enum Tipo { Ignorada, Rehusada, Legal } tipo = Ignorada;
    bool jaque = false, mate = false, ahogado = false;
};
// A new game for two people at one machine: the reset, the move texts
// emptied, the initial position, White to move.
void NuevaPartidaLocal();

// A piece dropped from one square on another in a local game: pick-up rules,
// the filter, the repair and the common finish, as the board does it.
Respuesta SoltarFicha(const std::string& origen, const std::string& destino, int32_t pieza);

} // namespace Variables
