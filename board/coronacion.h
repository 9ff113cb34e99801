#pragma once
// The promotion form: four pieces of the pawn's colour, the queen chosen at first. The choice
// is kept only in the boxes' colours, as the core reads it.
#include <QDialog>

class QPushButton;

#include "board/cuadro_pieza.h"

namespace qa {

class PicBuffer;

class Coronacion : public QDialog {
    Q_OBJECT
public:
    Coronacion(PicBuffer& tablero, QWidget* parent = nullptr);
    CuadroPieza* PiezaSelec(int indice) const { return cajas_[indice]; }
    QPushButton* Command1() const { return boton_; }

protected:
    void showEvent(QShowEvent* e) override;

private:
    void Dibujar();
    void Aceptar();

    PicBuffer& tablero_;
    CuadroPieza* cajas_[5] = {};
    QPushButton* boton_;
    bool activada_ = false;
};

} // namespace qa
