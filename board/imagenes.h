#pragma once
// The pictures the board is painted from: twelve pieces with their masks and the two squares.
// A mask is black in the piece's shape and white outside; a piece picture is black outside its
// shape, so a piece goes down as mask AND then piece XOR and keeps the square behind it.
#include <QImage>
#include <QPainter>
#include <QString>

namespace qa {

struct JuegoFichas {
    QImage fichas[13];   // by piece code 1..12
    QImage mascaras[13]; // by piece code 1..12
    QImage claro, oscuro;
    bool Completo() const;
};

// The file names of the pictures, by piece code: "peonb" .. "reyn"; masks add "f".
extern const char* const NombresFichas[13];

// Our own set, drawn from its vector pictures at `lado` pixels a square.
JuegoFichas FichasIncorporadas(int lado);
// The whole set stretched to `lado` pixels, pixel by pixel (no smoothing).
JuegoFichas Escalar(const JuegoFichas& fuente, int lado);
// The masked pair of transfers, its top left corner at `x`, `y`.
void PintarFicha(QPainter& p, const JuegoFichas& juego, int codigo, int x, int y);

} // namespace qa
