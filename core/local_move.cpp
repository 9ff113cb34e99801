#include "core/local_move.h"

#include "core/clocks.h"
#include "core/environment.h"
#include "core/game_state.h"
#include "core/move_filter.h"
#include "core/move_list.h"
#include "core/peer.h"

namespace Variables {

namespace {

// A refused en passant capture puts a piece back, by the mover's colour: a white rook where a
// black pawn stood, on purpose. An accepted one clears the victim's square.
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

// Between the sound and the endings: the turn passes to the peer, the engine or the other
// person at this board.
void PasarTurno() {
    if (Conectado && dibujo().TableroInvertido() && Origen.size() >= 2 && Destino.size() >= 2) {
        // The drawing has left the squares in screen terms.
        ColOrigen = Origen[0] - '0';
        FilaOrigen = Origen[1] - '0';
        ColDestino = Destino[0] - '0';
        FilaDestino = Destino[1] - '0';
    }
    if (Conectado) {
        Turno = 0;
        red().EnviarMovimiento(ColOrigen, FilaOrigen, ColDestino, FilaDestino, PiezaCoronacion);
    }
    if (ArrastreCancelado) ArrastreCancelado = MovimientoValido = false;
    if (!Conectado) {
        if (!MotorBlancas && !MotorNegras && Turno != 0) {
            if (EsBlanca(FichaMovida)) Turno = 2;
            if (EsNegra(FichaMovida)) Turno = 1;
        }
        if (MotorBlancas != MotorNegras) {
            Turno = 0;
            motor().GenerarMovimiento();
        }
    }
}

} // namespace

void NuevaPartidaLocal() {
    // Nothing of what came before, a game from a position or a replayed file, stays: clocks
    // at zero, no game kind or colour, nothing loading.
    RelojesCero();
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

Respuesta Soltar(const std::string& destino, Mano* mano) {
    Respuesta r;
    r.tipo = Respuesta::Rehusada;
    Destino = destino;
    if (mano) mano->AntesDelFiltro();
    FiltroMovimiento();
    if (mano) mano->TrasFiltro();
    ReparacionAlPaso();
    if (!MovimientoValido) {
        if (mano) mano->Rehusada();
        MovimientoAnulado();
        return r;
    }
    r = {Respuesta::Legal, Jaque, Mate, Ahogado};
    if (mano) mano->Aceptada();
    RematarJugada(PasarTurno);
    if (mano) mano->Terminada();
    return r;
}

Respuesta SoltarFicha(const std::string& origen, const std::string& destino, int32_t pieza) {
    if (Turno == 0) return {};
    const bool legible =
        origen.size() >= 2 && EnCasilla(origen[0] - '0') && EnCasilla(origen[1] - '0');
    if (legible) {
        const int c = origen[0] - '0', f = origen[1] - '0';
        if ((!Conectado && !NoEsContraria(c, f)) || !FichaElegible(Tablero[c][f]))
            return {Respuesta::Rehusada};
    }
    Origen = origen;
    if (Origen.substr(0, 2) == destino.substr(0, 2)) { // dropped where it was picked up
        MovimientoAnulado();
        return {Respuesta::Rehusada};
    }
    PiezaCoronacion = pieza;
    ArrastreCancelado = false;
    return Soltar(destino, nullptr);
}

} // namespace Variables
