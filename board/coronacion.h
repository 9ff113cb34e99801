#pragma once
// The promotion form: four pieces of the pawn's colour, the queen chosen at first. The choice
// is kept only in the boxes' colours, as the core reads it.
#include <QDialog>

class QPushButton;

namespace qa {

class PicBuffer;

class CajaCoronacion : public QWidget {
    Q_OBJECT
public:
    CajaCoronacion(int indice, QWidget* parent);
    void PonerImagen(const QImage& img) { imagen_ = img, update(); }

signals:
    void Elegida(int indice);

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;

private:
    int indice_;
    QImage imagen_;
};

class Coronacion : public QDialog {
    Q_OBJECT
public:
    Coronacion(PicBuffer& tablero, QWidget* parent = nullptr);
    CajaCoronacion* PiezaSelec(int indice) const { return cajas_[indice]; }
    QPushButton* Command1() const { return boton_; }

protected:
    void showEvent(QShowEvent* e) override;

private:
    void Dibujar();
    void Aceptar();

    PicBuffer& tablero_;
    CajaCoronacion* cajas_[5] = {};
    QPushButton* boton_;
    bool activada_ = false;
};

} // namespace qa
