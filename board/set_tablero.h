#pragma once
// SetTableroF: the position set-up. While it is open the board places and removes pieces
// instead of moving them; accept starts a game from the position built.
#include "board/cuadro_pieza.h"

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace qa {

class PicBuffer;

class SetTableroF : public QDialog {
    Q_OBJECT
public:
    SetTableroF(PicBuffer& tablero, QWidget* parent = nullptr);

    // Draws the palette from the pictures in force (after a skin change too).
    void PaintImagenesSet();
    CuadroPieza* Picture1(int i) const { return paleta_[i]; } // 0 to 9

    QCheckBox* Check[6] = {}; // 1..4 castling, 5 en passant
    QLineEdit* Text1;
    QRadioButton* Option1;
    QRadioButton* Option2;
    QPushButton* Command[5] = {}; // 1 start position, 2 clear, 3 accept, 4 cancel

protected:
    void changeEvent(QEvent* e) override;
    void showEvent(QShowEvent* e) override;
    void hideEvent(QHideEvent* e) override;

private:
    void PosicionInicial();
    void Vaciar();
    void Aceptar();
    void Cancelar();
    void CastilloCero();
    void AlPaso();

    PicBuffer& tablero_;
    CuadroPieza* paleta_[10] = {};
};

} // namespace qa
