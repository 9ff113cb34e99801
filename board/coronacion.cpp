#include "board/coronacion.h"

#include "board/colores.h"
#include "board/pic_buffer.h"
#include "board/textos.h"

#include "core/game_state.h"
#include "core/promotion.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace qa {

namespace {
constexpr int kLado = 40;
}

Coronacion::Coronacion(PicBuffer& tablero, QWidget* parent) : QDialog(parent), tablero_(tablero) {
    setWindowTitle(TextoForma("Coronacion", "Titulo", "Promotion"));
    auto* frame1 = new QGroupBox(this);
    auto* fila = new QHBoxLayout(frame1);
    for (int i = 1; i <= 4; ++i) {
        cajas_[i] = new CuadroPieza(i, kLado, frame1);
        fila->addWidget(cajas_[i]);
        connect(cajas_[i], &CuadroPieza::Pulsado, this, [this](int indice) {
            ::Coronacion::Elegir(indice);
            Dibujar();
        });
    }
    boton_ = new QPushButton(TextoForma("Botones", "Aceptar", "OK"), this);
    boton_->setDefault(true);
    connect(boton_, &QPushButton::clicked, this, &Coronacion::Aceptar);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(frame1);
    columna->addWidget(boton_, 0, Qt::AlignHCenter);
    columna->setSizeConstraint(QLayout::SetFixedSize);
    RegistrarFormulario(this, 3);
}

void Coronacion::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    if (activada_) return;
    activada_ = true;
    ::Coronacion::Activar();
    Dibujar();
    tablero_.RestaurarArrastre();
    boton_->setFocus();
}

void Coronacion::Dibujar() {
    const JuegoFichas juego =
        tablero_.Skin() ? Escalar(*tablero_.Skin(), kLado) : FichasIncorporadas(kLado);
    const int32_t peon =
        Variables::FichaMovida >= Variables::PeonN ? Variables::PeonN : Variables::PeonB;
    for (int i = 1; i <= 4; ++i) {
        QImage img(kLado, kLado, QImage::Format_RGB32);
        img.fill(QColor::fromRgb(::Coronacion::ColorCaja[i]));
        QPainter p(&img);
        PintarFicha(p, juego, ::Coronacion::CodigoCaja(i, peon), 0, 0);
        p.end();
        cajas_[i]->PonerImagen(img);
    }
}

void Coronacion::Aceptar() {
    ::Coronacion::Aceptar();
    accept();
}

} // namespace qa
