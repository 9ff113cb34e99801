#pragma once
// A small board of its own: the EPD browser's picture and the PGN browser's
// thumbnail. Paints 64 piece codes, rows 8 down to 1, with the pieces and
// squares of a skin.
#include "board/imagenes.h"

#include <QWidget>
#include <array>
#include <cstdint>

namespace qa {

class TableroMini : public QWidget {
    Q_OBJECT
public:
    explicit TableroMini(QWidget* padre = nullptr);
    void PonerCasillas(const std::array<int32_t, 64>& casillas);
    // The position of Tablero as it stands.
    void CopiarTablero();
    // The skin's pictures, at any size: they are scaled to the squares.
    void PonerJuego(const JuegoFichas& juego);
    QSize sizeHint() const override { return {200, 200}; }

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    std::array<int32_t, 64> casillas_{};
    JuegoFichas fuente_, escalado_;
    int lado_ = 0;
};

} // namespace qa
