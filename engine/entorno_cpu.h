#pragma once
// What the engine play logic needs from its holder (the engine form of the program, or the
// console tool): the two consoles, the form's visible pieces, the levels dialog as it stands,
// the wall clock and the yield to pending events. Every call is pure virtual: a holder that
// forgets one does not compile.

#include "engine/consola.h"

#include <cstdint>
#include <string>
#include <vector>

namespace qa {

class EntornoCpu {
public:
    virtual ~EntornoCpu() = default;

    // Engine 1 (White) or 2 (Black) gets a fresh console in place of the one before, which is
    // ended with no report. The reference stays valid until the next NuevaConsola for that
    // engine or SoltarConsolas, and the object itself until the event loop runs free again
    // (it may be dropped inside one of its own reports).
    virtual ConsolaMotor& NuevaConsola(int motor) = 0;
    // Both consoles dropped: their programs end and nothing of them is reported any more.
    virtual void SoltarConsolas() = 0;

    // Runs the events that wait: engine lines, timer ticks, clicks. It may re-enter the logic.
    virtual void Ceder() = 0;

    // The engine form is on screen.
    virtual bool Visible() = 0;

    // Both lists (White's engine, Black's engine) refilled with these entries, entry 0 current.
    virtual void LlenarListas(const std::vector<std::string>& entradas) = 0;
    // The entry chosen in list 1 (White) or 2 (Black); 0 is the entry for no engine.
    virtual int IndiceLista(int lista) = 0;

    // Text boxes 1 to 5 (the engine's thinking: depth, score, time, nodes, variation) and 6, 7
    // (White's and Black's clock).
    virtual void PonerTexto(int caja, const std::string& texto) = 0;
    // Clock box 6 or 7 lit (the clock that runs) or grey.
    virtual void RelojEncendido(int caja, bool encendido) = 0;

    // The board-reversed menu entry set to `marcada` and its command run.
    virtual void MarcarInvertirTablero(bool marcada) = 0;
    // The next move draws its last-move frames again (after a take-back).
    virtual void QuitarMarcoActivo() = 0;
    // A clean board for a game at this machine: the start position, no marks, clocks at zero,
    // no game kind, no colour.
    virtual void Player2() = 0;

    // The levels dialog as it stands, accepted or not: the option on (0 depth, 1 time per move,
    // 2 time control), value boxes 1 (seconds per move), 2 (depth), 3 (minutes) and the moves
    // of the time control.
    virtual int OpcionNivel() = 0;
    virtual std::string TextoNivel(int caja) = 0;
    virtual std::string JugadasNivel() = 0;

    // Milliseconds of the wall-clock time of day: the clocks count the changes of its second.
    virtual int64_t MilisegundosDelDia() = 0;
};

} // namespace qa
