#include "shell/splash.h"

#include "language/idioma.h"
#include "platform/descarga.h"
#include "shell/actualizar.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>
#include <QUrl>

namespace qa {

namespace {
constexpr int kAncho = 338;
constexpr int kAlto = 259;
} // namespace

Splash::Splash(QWidget* padre)
    : QWidget(padre, Qt::Tool | Qt::FramelessWindowHint), descarga_(new Descarga(this)) {
    setObjectName("Splash");
    setFixedSize(kAncho, kAlto);
    for (int i = 1; i <= 6; ++i) {
        etiquetas_[i] = new QLabel(this);
        etiquetas_[i]->setObjectName(QString("Label%1").arg(i));
        etiquetas_[i]->hide();
    }
    QFont titulo = font();
    titulo.setPointSize(15);
    titulo.setBold(true);
    etiquetas_[1]->setFont(titulo);
    etiquetas_[2]->move(14, 200);
    for (int i : {3, 4, 5, 6}) etiquetas_[i]->setStyleSheet("color: #f4f0e0");
    etiquetas_[1]->setStyleSheet("color: #ffffff");
    etiquetas_[2]->setStyleSheet("color: #f4f0e0");
    etiquetas_[3]->move(14, 180);
    etiquetas_[5]->move(24, 197);
    etiquetas_[4]->move(14, 218);
    etiquetas_[6]->move(24, 235);
    const QString enlace("<a style='color:#f4f0e0' href='%1'>%2</a>");
    etiquetas_[5]->setText(enlace.arg(kDireccionWeb, kDireccionWeb));
    etiquetas_[6]->setText(
        enlace.arg(QString("mailto:") + kCorreo + "?subject=Quintarena:", kCorreo));
    for (int i : {5, 6}) {
        etiquetas_[i]->adjustSize();
        // Errors of the desktop's own opening are not ours to report.
        connect(etiquetas_[i], &QLabel::linkActivated, this,
                [](const QString& url) { QDesktopServices::openUrl(QUrl(url)); });
    }
    Lsize(etiquetas_[1], QString("Quintarena") + " versión " + kVersionIdioma + " para Windows",
          kAncho - 8);
    etiquetas_[1]->move((kAncho - etiquetas_[1]->width()) / 2, 146);
    Lsize(etiquetas_[2], "Espere por favor mientras Quintarena se carga.", kAncho - 18);
    connect(descarga_, &Descarga::Completada, this, &FinActualizacion);
    connect(descarga_, &Descarga::Fallida, this, &FalloActualizacion);
}

void Splash::AplicarIdioma() {
    etiquetas_[3]->setText(QString::fromStdString(Mensajes[61]));
    etiquetas_[4]->setText(QString::fromStdString(Mensajes[62]));
    etiquetas_[3]->adjustSize();
    etiquetas_[4]->adjustSize();
}

void Splash::Lsize(QLabel* etiqueta, const QString& texto, int limite) {
    etiqueta->setText(texto);
    etiqueta->adjustSize();
    QFont f = etiqueta->font();
    while (etiqueta->width() > limite && f.pointSize() > 1) {
        f.setPointSize(f.pointSize() - 1);
        etiqueta->setFont(f);
        etiqueta->adjustSize();
    }
    etiqueta->show();
}

void Splash::Estado(const QString& texto) {
    Lsize(etiquetas_[2], texto, 319);
    repaint();
}

bool Splash::EstadoVisible() const {
    return !etiquetas_[2]->isHidden();
}

void Splash::Tshow() {
    etiquetas_[2]->hide();
    for (int i : {3, 4, 5, 6}) etiquetas_[i]->show();
}

void Splash::paintEvent(QPaintEvent*) {
    QPainter p(this);
    QLinearGradient fondo(0, 0, 0, kAlto);
    fondo.setColorAt(0, QColor(34, 70, 52));
    fondo.setColorAt(1, QColor(12, 28, 22));
    p.fillRect(rect(), fondo);
    // A corner of a board, fading into the picture.
    const int lado = 22;
    for (int f = 0; f < 6; ++f)
        for (int c = 0; c < 15; ++c) {
            QColor color = (f + c) % 2 ? QColor(181, 136, 99) : QColor(240, 217, 181);
            color.setAlpha(200 - f * 30);
            p.fillRect(c * lado + 4, 4 + f * lado, lado, lado, color);
        }
    p.setPen(QColor(200, 170, 90));
    p.drawRect(rect().adjusted(0, 0, -1, -1));
}

void Splash::mousePressEvent(QMouseEvent*) {
    hide();
}

void Splash::changeEvent(QEvent* e) {
    QWidget::changeEvent(e);
    if (e->type() == QEvent::ActivationChange && !isActiveWindow() && isVisible() &&
        !EstadoVisible())
        hide();
}

void Splash::closeEvent(QCloseEvent* e) {
    e->ignore();
    hide();
}

} // namespace qa
