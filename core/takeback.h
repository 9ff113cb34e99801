#pragma once
// Take-back reads the last undo record of the move list; there is no other
// history of positions.

namespace Variables {

void RetrocesoFuncion();
void BorrarUltimaJugada();

} // namespace Variables
