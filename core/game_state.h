#pragma once
// The one game, in shared state. Every rule routine reads and writes these
// variables; callers hand a move over through Origen/Destino and read the
// verdict back from MovimientoValido and the flags.

#include "core/lista_textos.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Variables {

// Piece codes: 0 empty, 1..6 white pawn, rook, knight, bishop, queen, king; 7..12 black.
enum Pieza : int32_t {
    Vacia = 0,
    PeonB = 1,
    TorreB,
    CaballoB,
    AlfilB,
    DamaB,
    ReyB,
    PeonN = 7,
    TorreN,
    CaballoN,
    AlfilN,
    DamaN,
    ReyN,
};
inline bool EsBlanca(int32_t p) {
    return p >= 1 && p <= 6;
}
inline bool EsNegra(int32_t p) {
    return p >= 7 && p <= 12;
}
inline bool EnCasilla(int32_t c) {
    return c >= 1 && c <= 8;
}

// Board, addressed [column][row]; index 0 exists and stays 0 in Tablero.
inline int32_t Tablero[9][9];
inline int32_t TableroCopia[9][9];

// The move under examination.
inline std::string Origen, Destino;
inline int32_t ColOrigen, FilaOrigen, ColDestino, FilaDestino;
inline int32_t FichaMovida, FichaDestino;
inline bool MovimientoValido, SoloProbar;
inline int32_t FilaRaton, ColRaton;

// En passant.
inline bool AlPasoPosible;
inline int32_t AlPasoCasilla;
inline std::string AlPasoTexto;
inline bool AlPasoCaduca;

// Castling rights: true means the right is gone.
inline bool TorreA1Movida, TorreH1Movida, TorreA8Movida, TorreH8Movida;
inline bool DerechosBlancas[3], DerechosNegras[3]; // indexed 1 and 2
inline int32_t TipoEnroque;
inline bool EnroqueIntento;

// Side to move and move numbers.
inline int16_t Turno;
inline bool Conectado;
inline bool MedioTurno;
inline int32_t NumeroJugada;

// Results of the check tests.
inline bool Ataque, Jaque, Mate, Ahogado;
inline int32_t ReyCol, ReyFila;
inline int32_t FichaGuardada;
inline std::string Atacantes, CasillaJaque, JaqueDescubierto, Capturadores;
inline bool BuscandoCaptura, CasillaCoincide;
inline bool OtraPieza;
inline std::string OtraCol, OtraFila;

// Promotion.
inline int32_t PiezaCoronacion, FichaComidaCoronacion;

// Notation and replay.
inline std::string Notacion, NotacionTraducida;
inline ListaTextos LineasPartida; // 1-based: element 0 unused
inline int32_t LineaActual;
inline int32_t ColorInicio;
inline bool Cargando, Retrocediendo, DesdePosicion, EditandoTablero;
inline std::string TipoPartida, ColorJugador;
inline std::string AlPasoFen;

// Engines that play a colour; only read here to decide who moves next.
inline bool MotorBlancas, MotorNegras;
// A drag that was called off while its move was under way.
inline bool ArrastreCancelado;

// The reset a game starts with; board, Turno and the en passant right survive it.
void VariablesCero();
// The initial position on Tablero; touches nothing else.
void PonerFichas();
// Clears the per-move state after every handled move, legal or not.
void MovimientoAnulado();
// Writes 0 on the 64 squares.
void LimpiarTablero();
// Whether a game file is under replay (its first line is not empty).
bool ReproduciendoPartida();

// The leading number of a text, as the old records and fields are read; 0 when none.
int32_t ValorTexto(const std::string& texto);

// Everything back to the state of a freshly started program (tests, fuzzing).
void RestablecerTodo();

} // namespace Variables
