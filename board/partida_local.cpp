#include "board/partida_local.h"

#include "board/pic_buffer.h"

#include "core/game_state.h"
#include "core/local_move.h"

namespace qa {

void PartidaLocal(PicBuffer& tablero) {
    using namespace Variables;
    tablero.QuitaMarco();
    tablero.MarcadorVisible(false);
    NuevaPartidaLocal();
    MovimientoAnulado();
    tablero.RedibujarTablero();
}

} // namespace qa
