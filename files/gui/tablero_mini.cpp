#include "files/gui/tablero_mini.h"

#include "core/game_state.h"

#include <QPainter>

namespace qa {

TableroMini::TableroMini(QWidget* padre) : QWidget(padre) {
    setMinimumSize(96, 96);
}

void TableroMini::PonerCasillas(const std::array<int32_t, 64>& casillas) {
    casillas_ = casillas;
    update();
}

void TableroMini::CopiarTablero() {
    for (int k = 0; k < 64; ++k)
        casillas_[static_cast<size_t>(k)] = Variables::Tablero[k % 8 + 1][8 - k / 8];
    update();
}

void TableroMini::PonerJuego(const JuegoFichas& juego) {
    fuente_ = juego;
    lado_ = 0;
    update();
}

void TableroMini::resizeEvent(QResizeEvent*) {
    lado_ = 0; // the pictures follow the squares at the next paint
}

void TableroMini::paintEvent(QPaintEvent*) {
    const int lado = std::max(8, std::min(width(), height()) / 8);
    if (lado != lado_) {
        escalado_ = fuente_.Completo() ? Escalar(fuente_, lado) : FichasIncorporadas(lado);
        lado_ = lado;
    }
    QPainter p(this);
    for (int k = 0; k < 64; ++k) {
        const int x = (k % 8) * lado, y = (k / 8) * lado;
        const bool claro = (k % 8 + k / 8) % 2 == 0;
        const QImage& casilla = claro ? escalado_.claro : escalado_.oscuro;
        if (casilla.isNull())
            p.fillRect(x, y, lado, lado, claro ? QColor(240, 217, 181) : QColor(181, 136, 99));
        else
            p.drawImage(QRect(x, y, lado, lado), casilla);
        PintarFicha(p, escalado_, casillas_[static_cast<size_t>(k)], x, y);
    }
}

} // namespace qa
