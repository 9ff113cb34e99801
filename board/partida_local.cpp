#include "board/partida_local.h"

#include "board/pic_buffer.h"

#include "core/environment.h"
#include "core/game_state.h"
#include "core/local_move.h"

namespace qa {

void PartidaLocal(PicBuffer& tablero) {
    using namespace Variables;
    // Whatever came before, a game from a position or a replayed file, leaves nothing behind:
    // clocks at zero, no game kind, no colour, nothing loading.
    entorno().ReiniciarRelojes();
    DesdePosicion = false;
    tablero.QuitaMarco();
    tablero.MarcadorVisible(false);
    TipoPartida.clear();
    ColorJugador.clear();
    LineasPartida.assign(2, std::string());
    Cargando = EditandoTablero = false;
    NuevaPartidaLocal();
    MovimientoAnulado();
    tablero.RedibujarTablero();
}

} // namespace qa
