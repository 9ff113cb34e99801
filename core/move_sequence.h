#pragma once
// The steps every move sequence shares: the board's drop (core/local_move.h), and the peer's and
// the engine's moves, which keep their own order around these steps: who may pick up what, the
// probe without moving, the removal of a pawn taken en passant, and the finish of a legal move.

#include "core/game_state.h"
#include "core/move_filter.h"

#include <cstdint>
#include <string>

namespace Variables {

// False if the square holds a piece of the side not to move.
bool NoEsContraria(int col, int fila);
// True if the square holds a piece of the side to move.
bool EsFichaPropia(int col, int fila);
// A piece that may be picked up: any at one machine; over the network only one of the colour
// whose turn it is, the player's own.
bool FichaElegible(int32_t codigo);

// The filter in test-only mode: may the piece held in Origen go to `destino`? Origen stays held
// and MovimientoValido keeps the answer, as under a dragged piece. Inline: a dragged piece and
// a search for legal moves ask it for every square.
inline bool ProbarDestino(const std::string& destino) {
    SoloProbar = true;
    Destino = destino;
    FiltroMovimiento();
    Destino.clear();
    SoloProbar = false;
    return MovimientoValido;
}
// The same for a move with nothing held; the move's state is cleared afterwards.
inline bool ProbarJugada(const std::string& origen, const std::string& destino) {
    Origen = origen;
    const bool legal = ProbarDestino(destino);
    MovimientoAnulado();
    return legal;
}

// An accepted en passant capture: the victim's square is cleared on the board and the picture.
void SubComoFicha(const std::string& casilla);

// The finish of a legal move: the repaint and the sound, then `entreMedias` (where the board
// passes the turn and tells the peer or the engine), then the mate and stalemate endings and
// MovimientoAnulado.
void RematarJugada(void (*entreMedias)() = nullptr);

} // namespace Variables
