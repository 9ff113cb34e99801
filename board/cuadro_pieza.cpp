#include "board/cuadro_pieza.h"

#include <QMouseEvent>
#include <QPainter>

namespace qa {

namespace {
constexpr int kMargen = 2;
}

CuadroPieza::CuadroPieza(int valor, int lado, QWidget* parent) : QWidget(parent), valor_(valor) {
    setFixedSize(lado + 2 * kMargen, lado + 2 * kMargen);
    setCursor(Qt::PointingHandCursor);
}

void CuadroPieza::PonerImagen(const QImage& img) {
    imagen_ = img;
    update();
}

void CuadroPieza::PonerMarcado(bool marcado) {
    marcado_ = marcado;
    update();
}

void CuadroPieza::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.drawImage(kMargen, kMargen, imagen_);
    if (!marcado_) return;
    p.setPen(QPen(QColor(30, 90, 220), 2));
    p.drawRect(rect().adjusted(1, 1, -1, -1));
}

void CuadroPieza::mousePressEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton) emit Pulsado(valor_);
}

} // namespace qa
