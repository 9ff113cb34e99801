#pragma once
// A person's move on this board: the piece dropped on a square, by the mouse, the console tool
// or a test. One sequence for all: the filter, the repair after a refused en passant capture,
// and the finish that passes the turn, tells the peer or the engine, and ends the game.

#include "core/move_sequence.h"

#include <cstdint>
#include <string>

namespace Variables {

// What the hand that drops the piece draws around the sequence; the console and the tests have
// no picture and pass none.
class Mano {
public:
    virtual ~Mano() = default;
    virtual void AntesDelFiltro() = 0;
    virtual void TrasFiltro() = 0; // before the en passant repair
    virtual void Rehusada() = 0;   // before the move's state is cleared
    virtual void Aceptada() = 0;   // before the finish
    virtual void Terminada() = 0;  // after the finish
};

struct Respuesta {
    enum Tipo { Ignorada, Rehusada, Legal } tipo = Ignorada;
    bool jaque = false, mate = false, ahogado = false;
};

// A new game for two people at one machine: the reset, the move texts
// emptied, the initial position, White to move.
void NuevaPartidaLocal();

// The piece held in Origen dropped on `destino`.
Respuesta Soltar(const std::string& destino, Mano* mano);
// A piece picked up from `origen` as the board picks it up, and dropped on `destino`;
// `pieza` is PiezaCoronacion, 0 to ask.
Respuesta SoltarFicha(const std::string& origen, const std::string& destino, int32_t pieza);

} // namespace Variables
