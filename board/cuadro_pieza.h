#pragma once
// A small picture box with one piece in it that says when it is clicked: the four boxes of the
// promotion form and the ten of the set-up palette.
#include <QImage>
#include <QWidget>

namespace qa {

class CuadroPieza : public QWidget {
    Q_OBJECT
public:
    CuadroPieza(int valor, int lado, QWidget* parent);
    int Valor() const { return valor_; }
    void PonerImagen(const QImage& img);
    void PonerMarcado(bool marcado);

signals:
    void Pulsado(int valor);

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;

private:
    int valor_;
    bool marcado_ = false;
    QImage imagen_;
};

} // namespace qa
