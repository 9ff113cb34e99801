#include "shell/barra_estado.h"

#include "core/game_state.h"
#include "language/idioma.h"
#include "shell/enlaces.h"
#include "shell/formularios.h"
#include "shell/mdi.h"

#include <QDate>
#include <QPainter>
#include <algorithm>

namespace qa {

namespace {

void Caja(QPainter& p, const QRect& r) {
    p.setPen(QColor(128, 128, 128));
    p.drawLine(r.topLeft(), r.topRight());
    p.drawLine(r.topLeft(), r.bottomLeft());
    p.setPen(Qt::white);
    p.drawLine(r.bottomLeft(), r.bottomRight());
    p.drawLine(r.topRight(), r.bottomRight());
}

void IconoReloj(QPainter& p, QPoint o) {
    p.setPen(QPen(QColor(40, 40, 40), 1.2));
    p.setBrush(QColor(250, 250, 235));
    p.drawEllipse(QRect(o, QSize(14, 14)));
    p.drawLine(o + QPoint(7, 7), o + QPoint(7, 3));
    p.drawLine(o + QPoint(7, 7), o + QPoint(10, 8));
}

void IconoFecha(QPainter& p, QPoint o) {
    p.setPen(QColor(40, 40, 40));
    p.setBrush(Qt::white);
    p.drawRect(QRect(o + QPoint(1, 2), QSize(13, 12)));
    p.fillRect(QRect(o + QPoint(1, 2), QSize(14, 4)), QColor(190, 40, 40));
}

void IconoConexion(QPainter& p, QPoint o, bool conectado) {
    p.setPen(QColor(40, 40, 40));
    p.setBrush(conectado ? QColor(40, 170, 60) : QColor(200, 50, 40));
    p.drawEllipse(QRect(o + QPoint(2, 2), QSize(11, 11)));
}

} // namespace

BarraEstado::BarraEstado() {
    setObjectName("StatusBar");
    setFixedHeight(24); // never taller, whatever the font
}

QString BarraEstado::TextoHora(QTime hora) {
    return QString("%1:%2").arg(hora.hour()).arg(hora.minute(), 2, 10, QChar('0'));
}

QString BarraEstado::TextoFecha(QDate fecha) {
    return fecha.toString("dd/MM/yyyy");
}

QString BarraEstado::TextoConexion() {
    const bool conectado = Variables::Conectado;
    std::string t = conectado ? Mensajes[39] : Mensajes[41];
    t += " ";
    if (Enlace().NombreRemoto) t += Enlace().NombreRemoto();
    return QString::fromStdString(t);
}

void BarraEstado::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing, false);
    const int alto = height() - 2;
    QRect hora(2, 1, 61, alto - 1);
    const QString dia = TextoFecha(QDate::currentDate());
    QRect fecha(hora.right() + 5, 1, std::max(70, fontMetrics().horizontalAdvance(dia) + 28),
                alto - 1);
    QRect conexion(fecha.right() + 5, 1, width() - 1 - (fecha.right() + 5) - 1, alto - 1);
    const bool conectado = Variables::Conectado;

    Caja(p, hora);
    IconoReloj(p, hora.topLeft() + QPoint(4, (alto - 14) / 2));
    Caja(p, fecha);
    IconoFecha(p, fecha.topLeft() + QPoint(4, (alto - 16) / 2));
    Caja(p, conexion);
    IconoConexion(p, conexion.topLeft() + QPoint(4, (alto - 16) / 2), conectado);

    p.setPen(palette().color(QPalette::WindowText));
    const int texto = Qt::AlignVCenter | Qt::AlignLeft;
    p.drawText(hora.adjusted(22, 0, -2, 0), texto, TextoHora(QTime::currentTime()));
    p.drawText(fecha.adjusted(22, 0, -2, 0), texto, dia);
    p.drawText(conexion.adjusted(22, 0, -2, 0), texto, TextoConexion());
}

void DibujarEstado() {
    if (Forms().mdi) Forms().mdi->StatusBar()->update();
}

} // namespace qa
