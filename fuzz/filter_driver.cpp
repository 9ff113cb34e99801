#include "fuzz/filter_driver.h"
#include "fuzz/lector_bytes.h"

#include "core/game_state.h"
#include "core/local_move.h"
#include "core/move_list.h"
#include "core/recorder.h"
#include "core/takeback.h"

#include <cstdlib>
#include <string>

using namespace Variables;

namespace {

// Mostly real squares, sometimes anything at all.
std::string Casilla(Lector& l) {
    uint8_t b = l.Byte();
    if (b < 224) return std::string(1, char('1' + (b & 7))) + char('1' + ((b >> 3) & 7));
    std::string s;
    for (int n = b & 3; n > 0; --n) s += static_cast<char>(l.Byte());
    return s;
}

void ComprobarBordes() {
    for (int i = 0; i <= 8; ++i)
        if (Tablero[0][i] != 0 || Tablero[i][0] != 0) std::abort();
}

} // namespace

void EjecutarEntradaFiltro(const uint8_t* datos, size_t tam) {
    static EntornoRegistro entorno;
    InstalarRegistro(&entorno);
    RestablecerTodo();
    entorno = EntornoRegistro();
    Lector l(datos, tam);

    const uint8_t modo = l.Byte();
    entorno.invertido = modo & 2;
    entorno.listaPgnVisible = modo & 4;
    entorno.pointClick = modo & 8;
    Conectado = modo & 16;
    VariablesCero();
    if (modo & 1) {
        for (int c = 1; c <= 8; ++c)
            for (int f = 1; f <= 8; ++f) {
                uint8_t b = l.Byte() % 16;
                Tablero[c][f] = b <= 12 ? b : 0;
            }
        const uint8_t r = l.Byte();
        TorreA1Movida = r & 1;
        TorreH1Movida = r & 2;
        TorreA8Movida = r & 4;
        TorreH8Movida = r & 8;
        AlPasoPosible = r & 16;
        AlPasoCasilla = l.Byte() % 100;
        AlPasoFen = (r & 32) ? std::string(1, char('a' + (r & 7))) + ((r & 64) ? '6' : '3') : "";
    } else {
        PonerFichas();
    }
    Turno = static_cast<int16_t>(1 + (modo >> 5) % 2);

    for (int pasos = 0; l.Queda() && pasos < 400; ++pasos) {
        switch (l.Byte() % 8) {
        case 0:
        case 1:
        case 2: { // a drop on the board
            std::string o = Casilla(l), d = Casilla(l);
            int32_t pieza = l.Byte() % 16;
            if (pieza > 12) pieza = 0;
            SoltarFicha(o, d, pieza);
            break;
        }
        case 3: // a probe under a dragged piece
            Origen = Casilla(l);
            ProbarDestino(Casilla(l));
            if (l.Byte() & 1) MovimientoAnulado();
            break;
        case 4:
            RetrocesoFuncion();
            break;
        case 5: { // a damaged undo record
            std::string r;
            for (int n = l.Byte() % 9; n > 0; --n) r += "0123456789txepc-"[l.Byte() % 16];
            Jugadas::List1.push_back(r);
            RetrocesoFuncion();
            break;
        }
        case 6:
            entorno.eleccionCoronacion = static_cast<int>(l.Byte() % 6) - 1;
            break;
        case 7:
            if (Turno == 0) Turno = static_cast<int16_t>(1 + l.Byte() % 2);
            break;
        }
        ComprobarBordes();
    }
    InstalarRegistro(nullptr);
}
