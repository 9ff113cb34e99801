#include "board/partida_local.h"

#include "board/pic_buffer.h"

#include "core/game_state.h"
#include "core/local_move.h"

namespace qa {

void PartidaLocal(PicBuffer& tablero) {
    using namespace Variables;
    NuevaPartidaLocal();
    MovimientoAnulado();
    TipoPartida = "A";
    tablero.QuitaMarco();
    tablero.RedibujarTablero();
}

} // namespace qa
