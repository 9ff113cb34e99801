#include "core/promotion.h"

#include "core/environment.h"
#include "core/game_state.h"
#include "core/move_filter.h"

namespace Coronacion {

using namespace Variables;

int32_t CodigoCaja(int indice, int32_t peon) {
    static constexpr int32_t blancas[5] = {0, 5, 2, 3, 4};
    if (indice < 1 || indice > 4) return 0;
    return peon == PeonN ? blancas[indice] + 6 : blancas[indice];
}

void Activar() {
    for (int i = 1; i <= 4; ++i) ColorCaja[i] = ColorNoElegido;
    ColorCaja[1] = ColorElegido;
    InvertirMovimiento();
    dibujo().MarcadorVisible(false);
}

void Elegir(int indice) {
    if (indice < 1 || indice > 4) return;
    for (int i = 1; i <= 4; ++i) ColorCaja[i] = ColorNoElegido;
    ColorCaja[indice] = ColorElegido;
}

void Aceptar() {
    if (FichaMovida == PeonB)
        for (int i = 1; i <= 4; ++i)
            if (ColorCaja[i] == ColorElegido) FichaMovida = CodigoCaja(i, PeonB);
    if (FichaMovida == PeonN)
        for (int i = 1; i <= 4; ++i)
            if (ColorCaja[i] == ColorElegido) FichaMovida = CodigoCaja(i, PeonN);
    PiezaCoronacion = FichaMovida;
    InvertirMovimiento();
    if (!EnCasilla(ColOrigen) || !EnCasilla(FilaOrigen) || !EnCasilla(ColDestino) ||
        !EnCasilla(FilaDestino))
        return;
    Tablero[ColOrigen][FilaOrigen] = 0;
    if (Tablero[ColDestino][FilaDestino] != 0)
        FichaComidaCoronacion = Tablero[ColDestino][FilaDestino];
    Tablero[ColDestino][FilaDestino] = FichaMovida;
}

} // namespace Coronacion
