// The board while a position is set up: pieces from the palette go down, the right button
// takes them off, and a king can be moved but never removed.
#include "board/estado_set.h"
#include "board/pic_buffer.h"

#include "core/game_state.h"

namespace qa {

using namespace Variables;

void PicBuffer::MouseDownSet(Qt::MouseButton boton) {
    const auto [c, f] = Convertir(ColRaton, FilaRaton);
    int32_t& casilla = Tablero[c][f];
    const bool rey = casilla == ReyB || casilla == ReyN;
    if (rey) {
        if (boton != Qt::LeftButton) return;
        if (!rey_.visible) {
            CasillaSet = {char('0' + c), char('0' + f)};
            MarcarCasilla(ColRaton, FilaRaton);
        } else {
            CasillaSet.clear();
            rey_.visible = false;
            update();
        }
        return;
    }
    if (rey_.visible && casilla == 0 && boton == Qt::LeftButton) {
        if (CasillaSet.size() == 2) {
            const int cv = CasillaSet[0] - '0', fv = CasillaSet[1] - '0';
            if (EnCasilla(cv) && EnCasilla(fv)) {
                casilla = Tablero[cv][fv];
                Tablero[cv][fv] = 0;
            }
        }
        rey_.visible = false;
        RedibujarTablero();
        return;
    }
    if (boton == Qt::LeftButton && FichaSet != 0) {
        casilla = FichaSet;
        RedibujarTablero();
    } else if (boton == Qt::RightButton) {
        casilla = 0;
        RedibujarTablero();
    }
}

} // namespace qa
