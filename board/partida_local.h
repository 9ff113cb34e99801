#pragma once
// A new game for two people at this board: the start position, White to move, the move list
// and the last-move frames empty, the clocks at zero and no game kind until one is played.
namespace qa {

class PicBuffer;
void PartidaLocal(PicBuffer& tablero);

} // namespace qa
