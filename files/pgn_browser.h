#pragma once
// The logic of the PGN browser: loading the chosen game, stepping through
// it, automatic replay, and the tag dialog of a PGN save. The form calls
// these from its list, buttons, keys and timers, and shows the state of
// ListaPgn.

#include <cstdint>
#include <string>

namespace Variables {

inline bool AutoPlay;                 // the automatic replay timer runs
inline bool BotonesNavegacion = true; // Command1 elements 1 to 4 enabled

// A click on entry i of Eventos: true if the form's Timer is to run (10 ms).
bool ElegirPartidaPgn(int32_t i);
// The Timer: reads the chosen game, replays it to its end, shows the end.
void CargarPartidaPgn();
void AvanzarPgn();
void RetrocederPgn();
void IrInicioPgn();
void IrFinalPgn();
// Button 5: true if automatic replay is now on.
bool AlternarAutoPlay();
// Command1 element 1 to 5, with the rook flags cleared first.
void PulsarBotonPgn(int elemento);
// Keys of PgnMovimientos: 37 to 40; true if consumed.
bool TeclaPgn(int codigo);
// A click on row fila of PgnMovimientos: the game from the start to that row.
void IrAFilaPgn(int32_t fila);
// The entry i of PgnJugadas through the filter, with its en passant work.
bool JugarEntradaPgn(size_t i);

} // namespace Variables
