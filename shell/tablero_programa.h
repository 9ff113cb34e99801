#pragma once
// The board's place in the program: the view in the board form, the move list in the Jugadas
// panel, the game core's door to both, and the menu commands that act on the board.

namespace qa {

// Sets the hooks; the view itself is made when the board form loads its pictures.
void InstalarTablero();

} // namespace qa
