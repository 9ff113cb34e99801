#pragma once
// The program's side of the game core's doors, but for the board's picture (installed with the
// board), the lists (installed with the file browsers), the engine (installed with the engine
// form) and the peer (installed with network play, shell/red_programa.h): the boxes and sounds.
namespace qa {

void InstalarEntornoPrograma();

} // namespace qa
