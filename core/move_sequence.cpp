#include "core/move_sequence.h"

#include "core/environment.h"
#include "core/game_end.h"
#include "core/game_state.h"
#include "core/move_filter.h"

namespace Variables {

bool NoEsContraria(int col, int fila) {
    if (!EnCasilla(col) || !EnCasilla(fila)) return true;
    const int32_t p = Tablero[col][fila];
    if (Turno == 1 && EsNegra(p)) return false;
    if (Turno == 2 && EsBlanca(p)) return false;
    return true;
}

bool EsFichaPropia(int col, int fila) {
    if (!EnCasilla(col) || !EnCasilla(fila)) return false;
    const int32_t p = Tablero[col][fila];
    return (Turno == 1 && EsBlanca(p)) || (Turno == 2 && EsNegra(p));
}

bool FichaElegible(int32_t codigo) {
    if (codigo < 1 || codigo > 12) return false;
    if (!Conectado) return true;
    return (Turno == 2 && EsNegra(codigo)) || (Turno == 1 && EsBlanca(codigo));
}

void SubComoFicha(const std::string& casilla) {
    if (casilla.size() < 2) return;
    const int col = casilla[0] - '0', fila = casilla[1] - '0';
    if (AlPasoPosible) {
        CancelarAlPaso();
        if (EnCasilla(ColDestino) && EnCasilla(FilaOrigen)) Tablero[ColDestino][FilaOrigen] = 0;
    }
    if (EnCasilla(col) && EnCasilla(fila)) dibujo().QuitarFichaAlPaso(col, fila);
}

void RematarJugada(void (*entreMedias)()) {
    if (TipoEnroque != 0) InvertirMovimiento();
    dibujo().DibujarMovimiento();
    dialogos().Sonar(3);
    if (entreMedias) entreMedias();
    if (Mate) FinPorMate();
    if (Ahogado) FinPorAhogado();
    MovimientoAnulado();
}

} // namespace Variables
