#include "board/vista_tablero.h"

#include "board/apariencia.h"
#include "board/colores.h"

#include "core/environment.h"
#include "core/game_state.h"
#include "platform/mensajes.h"
#include "platform/texto.h"

#include <QCoreApplication>
#include <QPainter>
#include <algorithm>

namespace qa {

namespace {
// Room for the rank numbers on the left and the file letters below.
constexpr int kIzquierda = 22, kArriba = 10, kDerecha = 10, kAbajo = 24;
} // namespace

VistaTablero::VistaTablero(QWidget* parent)
    : QWidget(parent), pic_(new PicBuffer(this)),
      carpeta_(QCoreApplication::applicationDirPath() + QStringLiteral("/apariencias")) {
    for (int i = 0; i < 8; ++i) {
        letras_[i] = new QLabel(this);
        numeros_[i] = new QLabel(this);
        for (QLabel* l : {letras_[i], numeros_[i]}) l->setAlignment(Qt::AlignCenter);
    }
    pic_->move(kIzquierda, kArriba);
    timer1_.setSingleShot(true);
    timer1_.setInterval(30);
    connect(&timer1_, &QTimer::timeout, this, &VistaTablero::Redimensionar);
    Redimensionar();
}

QSize VistaTablero::TamanoSkin() const {
    const JuegoFichas* s = pic_->Skin();
    return s ? s->oscuro.size() : QSize();
}

void VistaTablero::PonerNombreBase(const QString& nombre) {
    if (EsNombreBase(apariencia_)) apariencia_ = nombre;
    nombreBase_ = nombre;
}

QStringList VistaTablero::ActualizarSkins() const {
    return qa::ActualizarSkins(nombreBase_, carpeta_);
}

void VistaTablero::PonerTamano(int tamano, bool cambio) {
    // A setting out of all reason must not ask for a picture the size of a wall.
    tamano_ = std::clamp(tamano, 8, 400);
    if (cambio) cambioTamano_ = true;
    pic_->MarcoActivo = false;
    timer1_.start();
}

QString VistaTablero::TamanoEnter(const QString& texto) {
    const int v = std::clamp(texto.toInt(), 30, 100);
    if (v != pic_->AltoCasilla) cambioTamano_ = true;
    PonerTamano(v, false);
    return QString::number(v);
}

QString VistaTablero::TamanoMas(const QString& texto) {
    int v = texto.toInt();
    if (v > 99) return QStringLiteral("100");
    PonerTamano(std::max(v, 29) + 1);
    return QString::number(tamano_);
}

QString VistaTablero::TamanoMenos(const QString& texto) {
    int v = texto.toInt();
    if (v < 31) return QStringLiteral("30");
    PonerTamano(std::min(v, 101) - 1);
    return QString::number(tamano_);
}

void VistaTablero::Redimensionar() {
    timer1_.stop();
    if (cambioTamano_) {
        pic_->Marco(0, 0, 0, 0);
        pic_->MarcoActivo = false;
        cambioTamano_ = false;
    }
    pic_->ResiceImagenes(tamano_);
    pic_->Resice();
    Colocar();
    LetrasNumeros();
    pic_->PaintTablero();
    pic_->AnchoCasilla = pic_->R().oscuro.width();
    pic_->AltoCasilla = pic_->R().oscuro.height();
    pic_->PaintFichasResice();
    PintarFormularios(1);
    emit ImagenesCambiadas();
}

void VistaTablero::Colocar() {
    const QSize tablero = pic_->size();
    const QSize total(tablero.width() + kIzquierda + kDerecha, tablero.height() + kArriba + kAbajo);
    if (total != size()) {
        setFixedSize(total);
        emit TamanoCambiado(total);
    }
    update();
}

void VistaTablero::LetrasNumeros() {
    for (int i = 0; i < 8; ++i) {
        letras_[i]->setVisible(coordenadas_);
        numeros_[i]->setVisible(coordenadas_);
    }
    if (!coordenadas_) return;
    const int w = pic_->width() / 8, h = pic_->height() / 8;
    for (int i = 0; i < 8; ++i) {
        const int letra = pic_->invertido ? 7 - i : i;
        const int numero = pic_->invertido ? i + 1 : 8 - i;
        letras_[i]->setText(QString(QChar('a' + letra)));
        numeros_[i]->setText(QString::number(numero));
        letras_[i]->setGeometry(kIzquierda + i * w, kArriba + pic_->height() + 3, w, kAbajo - 5);
        numeros_[i]->setGeometry(0, kArriba + i * h, kIzquierda - 3, h);
    }
}

void VistaTablero::changeEvent(QEvent* e) {
    if (e->type() == QEvent::LanguageChange) PonerNombreBase(qa::NombreBase());
    QWidget::changeEvent(e);
}

void VistaTablero::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setPen(QPen(Qt::black, 2));
    p.drawRect(QRect(pic_->pos() - QPoint(2, 2), pic_->size() + QSize(3, 3)));
}

void VistaTablero::PonerInvertido(bool invertido) {
    pic_->Invertir(invertido);
    LetrasNumeros();
}

void VistaTablero::PonerPointClick(bool pointClick) {
    pic_->pointClick = pointClick;
    Variables::MovimientoAnulado();
}

void VistaTablero::PonerMarcos(bool marcos) {
    pic_->marcos = marcos;
    if (!marcos) pic_->QuitaMarco();
}

void VistaTablero::PonerCoordenadas(bool coordenadas) {
    coordenadas_ = coordenadas;
    LetrasNumeros();
}

void VistaTablero::PonerLineas(bool lineas) {
    pic_->lineas = lineas;
    pic_->PaintTablero();
    pic_->PaintFichas();
}

bool VistaTablero::PonerApariencia(const QString& nombre) {
    if (EsNombreBase(nombre)) {
        pic_->PonerSkin(nullptr);
        apariencia_ = nombreBase_;
        cambioTamano_ = false;
        timer1_.start();
        return true;
    }
    auto skin = std::make_shared<JuegoFichas>();
    if (!Skins(RutaSkin(carpeta_, nombre), *skin)) {
        // Never a half-painted board: back on our own set before the message is up.
        pic_->PonerSkin(nullptr);
        apariencia_ = nombreBase_;
        Redimensionar();
        emit AparienciaCambiada(nombreBase_);
        MostrarAviso(25);
        return false;
    }
    pic_->PonerSkin(std::move(skin));
    apariencia_ = QString::fromStdString(Minusculas(nombre.toStdString()));
    timer1_.start();
    return true;
}

} // namespace qa
