#include "core/local_move.h"

#include "core/environment.h"
#include "core/game_end.h"
#include "core/game_state.h"
#include "core/move_filter.h"
#include "core/move_list.h"

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

void ReparacionAlPaso() {
    if (AlPasoTexto.empty()) return;
    if (!MovimientoValido) {
        if (!EnCasilla(ColDestino) || !EnCasilla(FilaOrigen)) return;
        if (Turno == 2) Tablero[ColDestino][FilaOrigen] = PeonB;
        if (Turno == 1) Tablero[ColDestino][FilaOrigen] = TorreB;
        return;
    }
    SubComoFicha(AlPasoTexto);
}

void SubComoFicha(const std::string& casilla) {
    if (casilla.size() < 2) return;
    const int col = casilla[0] - '0', fila = casilla[1] - '0';
    if (AlPasoPosible) {
        CancelarAlPaso();
        if (EnCasilla(ColDestino) && EnCasilla(FilaOrigen)) Tablero[ColDestino][FilaOrigen] = 0;
    }
    if (EnCasilla(col) && EnCasilla(fila)) entorno().QuitarFichaAlPaso(col, fila);
}

void FinComun() {
    if (TipoEnroque != 0) InvertirMovimiento();
    entorno().DibujarMovimiento();
    entorno().Sonar(3);
    if (Conectado && entorno().TableroInvertido() && Origen.size() >= 2 && Destino.size() >= 2) {
        ColOrigen = Origen[0] - '0';
        FilaOrigen = Origen[1] - '0';
        ColDestino = Destino[0] - '0';
        FilaDestino = Destino[1] - '0';
    }
    if (Conectado) {
        Turno = 0;
        entorno().EnviarMensaje("Movimiento " + std::to_string(ColOrigen) +
                                std::to_string(FilaOrigen) + std::to_string(ColDestino) +
                                std::to_string(FilaDestino) + std::to_string(PiezaCoronacion));
    }
    if (ArrastreCancelado) ArrastreCancelado = MovimientoValido = false;
    if (!Conectado) {
        if (!MotorBlancas && !MotorNegras && Turno != 0) {
            if (EsBlanca(FichaMovida)) Turno = 2;
            if (EsNegra(FichaMovida)) Turno = 1;
        }
        if (MotorBlancas != MotorNegras) {
            Turno = 0;
            entorno().GenerarMovimiento();
        }
    }
    if (Mate) FinPorMate();
    if (Ahogado) FinPorAhogado();
    MovimientoAnulado();
}

void NuevaPartidaLocal() {
    // Nothing of what came before, a game from a position or a replayed file, stays: clocks
    // shown at zero, no game kind or colour, nothing loading.
    entorno().PonerTextoReloj(1, "00:00");
    entorno().PonerTextoReloj(2, "00:00");
    DesdePosicion = false;
    TipoPartida.clear();
    ColorJugador.clear();
    LineasPartida.assign(2, std::string());
    Cargando = EditandoTablero = false;
    VariablesCero();
    Jugadas::Vaciar();
    PonerFichas();
    Turno = 1;
}

Respuesta SoltarFicha(const std::string& origen, const std::string& destino, int32_t pieza) {
    Respuesta r;
    if (Turno == 0) return r;
    r.tipo = Respuesta::Rehusada;
    // Picking up: a piece must stand there, and not one of the side not to move.
    const bool legible =
        origen.size() >= 2 && EnCasilla(origen[0] - '0') && EnCasilla(origen[1] - '0');
    if (legible) {
        const int c = origen[0] - '0', f = origen[1] - '0';
        if (!Conectado && !NoEsContraria(c, f)) return r;
        if (Tablero[c][f] < 1 || Tablero[c][f] > 12) return r;
    }
    Origen = origen;
    Destino = destino;
    if (Origen.substr(0, 2) == Destino.substr(0, 2)) { // dropped where it was picked up
        MovimientoAnulado();
        return r;
    }
    PiezaCoronacion = pieza;
    ArrastreCancelado = false;
    FiltroMovimiento();
    r.jaque = Jaque;
    r.mate = Mate;
    r.ahogado = Ahogado;
    ReparacionAlPaso();
    if (!MovimientoValido) {
        MovimientoAnulado();
        r.jaque = r.mate = r.ahogado = false;
        return r;
    }
    r.tipo = Respuesta::Legal;
    FinComun();
    return r;
}

} // namespace Variables
