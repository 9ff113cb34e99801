#pragma once
// SetTableroF: the position set-up. While it is open the board places and removes pieces
// instead of moving them; accept starts a game from the position built.
#include <QDialog>

class QCheckBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace qa {

class PicBuffer;

// One of the ten pictures of the palette.
class PiezaPaleta : public QWidget {
    Q_OBJECT
public:
    PiezaPaleta(int codigo, QWidget* parent);
    int Codigo() const { return codigo_; }
    void PonerImagen(const QImage& img) { imagen_ = img, update(); }

signals:
    void Elegida(int codigo);

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;

private:
    int codigo_;
    QImage imagen_;
};

class SetTableroF : public QDialog {
    Q_OBJECT
public:
    SetTableroF(PicBuffer& tablero, QWidget* parent = nullptr);

    // Draws the palette from the pictures in force (after a skin change too).
    void PaintImagenesSet();
    PiezaPaleta* Picture1(int i) const { return paleta_[i]; } // 0 to 9

    QCheckBox* Check[6] = {}; // 1..4 castling, 5 en passant
    QLineEdit* Text1;
    QRadioButton* Option1;
    QRadioButton* Option2;
    QPushButton* Command[5] = {}; // 1 start position, 2 clear, 3 accept, 4 cancel

protected:
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
    PiezaPaleta* paleta_[10] = {};
};

} // namespace qa
