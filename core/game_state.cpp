#include "core/game_state.h"

#include "core/environment.h"
#include "core/move_list.h"

#include <cstring>

namespace Variables {

void LimpiarTablero() {
    for (int c = 1; c <= 8; ++c)
        for (int f = 1; f <= 8; ++f) Tablero[c][f] = 0;
}

void PonerFichas() {
    LimpiarTablero();
    for (int c = 1; c <= 8; ++c) {
        Tablero[c][2] = PeonB;
        Tablero[c][7] = PeonN;
    }
    static constexpr int32_t blancas[9] = {0, 2, 3, 4, 5, 6, 4, 3, 2};
    static constexpr int32_t negras[9] = {0, 8, 9, 10, 11, 12, 10, 9, 8};
    for (int c = 1; c <= 8; ++c) {
        Tablero[c][1] = blancas[c];
        Tablero[c][8] = negras[c];
    }
}

void VariablesCero() {
    FilaRaton = ColRaton = 0;
    MedioTurno = false;
    NumeroJugada = 0;
    MovimientoValido = false;
    AlPasoTexto.clear();
    TipoEnroque = 0;
    EnroqueIntento = false;
    ColOrigen = ColDestino = FilaOrigen = FilaDestino = FichaMovida = FichaDestino = 0;
    AlPasoCaduca = false;
    Origen.clear();
    Destino.clear();
    TorreA1Movida = TorreH1Movida = TorreA8Movida = TorreH8Movida = false;
    Ataque = Jaque = Mate = Ahogado = false;
    PiezaCoronacion = FichaComidaCoronacion = 0;
    Atacantes.clear();
    dibujo().MarcadorVisible(false);
    AlPasoFen.clear();
}

void MovimientoAnulado() {
    dibujo().MarcadorVisible(false);
    ColRaton = FilaRaton = 0;
    EnroqueIntento = false;
    TipoEnroque = 0;
    MovimientoValido = false;
    AlPasoTexto.clear();
    PiezaCoronacion = FichaComidaCoronacion = 0;
    Atacantes.clear();
    ColOrigen = FilaOrigen = ColDestino = FilaDestino = FichaMovida = FichaDestino = 0;
    AlPasoCaduca = false;
    Origen.clear();
    Destino.clear();
    Ataque = Jaque = Mate = Ahogado = false;
}

int32_t ValorTexto(const std::string& texto) {
    int32_t v = 0;
    for (char ch : texto) {
        if (ch < '0' || ch > '9' || v > 100000) break; // large enough for any code, never overflows
        v = v * 10 + (ch - '0');
    }
    return v;
}

bool ReproduciendoPartida() {
    return LineasPartida.size() > 1 && !LineasPartida[1].empty();
}

void RestablecerTodo() {
#define CASILLAS(n) std::memset(n, 0, sizeof n);
#define TEXTO(n) n.clear();
#define ENTERO(tipo, n) n = 0;
#define BANDERA(n) n = false;
#define PAR(n) n[0] = n[1] = n[2] = false;
#define LINEAS(n) n.assign(1, std::string());
#include "core/game_state_list.h"
    Jugadas::Vaciar();
}

} // namespace Variables
