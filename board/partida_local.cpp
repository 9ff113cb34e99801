#include "board/partida_local.h"

#include "board/pic_buffer.h"

#include "core/game_state.h"
#include "core/move_list.h"

namespace qa {

void PartidaLocal(PicBuffer& tablero) {
    using namespace Variables;
    Jugadas::Vaciar();
    PonerFichas();
    VariablesCero();
    MovimientoAnulado();
    TipoPartida = "A";
    Turno = 1;
    tablero.QuitaMarco();
    tablero.RedibujarTablero();
}

} // namespace qa
