#pragma once
// The one door through which every move reaches the board. It takes no
// arguments and returns nothing: Origen, Destino, SoloProbar and
// PiezaCoronacion go in, MovimientoValido and the flags come out.

#include <cstdint>

namespace Variables {

void FiltroMovimiento();
void ReglasPieza();
void ReglaCaballo(int32_t primero, int32_t ultimo);
void ReglaAlfil(int32_t primero, int32_t ultimo);
void ReglaTorre(int32_t primero, int32_t ultimo);
void ReglaRey(int32_t primero, int32_t ultimo);
void AplicarMovimiento();
void CancelarAlPaso();
// Check, then mate or stalemate, for the move as it stands.
void VeredictoRival();
// Flips the four coordinates when the board is shown from Black's side.
void InvertirMovimiento();

} // namespace Variables
