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

// The variables, declared from their one list.
#define CASILLAS(n) inline int32_t n[9][9];
#define TEXTO(n) inline std::string n;
#define ENTERO(tipo, n) inline tipo n;
#define BANDERA(n) inline bool n;
#define PAR(n) inline bool n[3];
#define LINEAS(n) inline ListaTextos n;
#include "core/game_state_list.h"

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

// The leading digits of a text as a number, as undo records and square texts are read; 0 when none.
int32_t ValorTexto(const std::string& texto);

// Everything back to the state of a freshly started program (tests, fuzzing).
void RestablecerTodo();

} // namespace Variables
