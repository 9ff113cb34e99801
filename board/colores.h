#pragma once
// The colour scheme of the forms: a bevelled frame in a base colour, or the flat system look.
#include <QColor>
#include <QImage>
#include <cstdint>
#include <string>

class QWidget;

namespace qa {

// The base colour and the kind of background of every form; the settings and the colour dialog
// set them. Any 32-bit value may stand here: painting clips each component to 0..255.
inline std::int32_t ColorR = 30, ColorG = 40, ColorB = 55;
inline int Fondo = 1; // 1 coloured with a bevel, 2 the system colours

// The key Color, "r:g:b", read one character at a time as it always has been: a ":" moves to
// the next of the three numbers, any other character is added to the current one's digits,
// and one that makes no 32-bit number leaves it as it was. Fields not given are 0.
void LeerColor(const std::string& texto);

// A form joins one of the groups its background is painted with (1 board and clock, 2 move
// list, options and new game, 3 chat, connection, promotion, address, 4 ranking, 7 engines,
// 9 EPD, levels and set-up). Unregistered when it is destroyed.
void RegistrarFormulario(QWidget* formulario, int grupo);
// Code 0 paints every registered form, any other code its group.
void PintarFormularios(int codigo);

void FondoBiselado(int ancho, int alto, QWidget* formulario);
void FondoPlano(int ancho, int alto, QWidget* formulario);
void ColorearControles(QWidget* formulario);
// The six-line bevel from the base colour inwards, on `picture`.
void Bisel(int x1, int y1, int x2, int y2, QImage& picture);
// The colour inside the bevel, and of the controls: base plus 200 while Fondo is 1.
QColor ColorInterior();

} // namespace qa
