#pragma once
// The program's side of the game core's doors, but for the board's picture (installed with the
// board) and the lists (installed with the file browsers): the boxes and sounds, the peer and the
// engine.
namespace qa {

void InstalarEntornoPrograma();

} // namespace qa
