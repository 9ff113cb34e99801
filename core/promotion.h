#pragma once
// The logic of the promotion form. The choice lives only in the boxes'
// background colours, as the form shows it.

#include <cstdint>

namespace Coronacion {

inline constexpr uint32_t ColorElegido = 0x80ff80;
inline constexpr uint32_t ColorNoElegido = 32768;
// Boxes 1..4: queen, rook, knight, bishop.
inline uint32_t ColorCaja[5];

// Form activation: queen selected, coordinates flipped for the view.
void Activar();
// A click on box 1..4.
void Elegir(int indice);
// The button: the chosen piece goes on the board and into PiezaCoronacion.
void Aceptar();
// The code of box 1..4 for the colour of the pawn (1 white, 7 black).
int32_t CodigoCaja(int indice, int32_t peon);

} // namespace Coronacion
