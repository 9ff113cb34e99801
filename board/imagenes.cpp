#include "board/imagenes.h"

#include <QSvgRenderer>

// The pictures are linked into a static library: their registration has to be asked for.
static void IniciarRecursos() {
    static const bool hecho = [] {
        Q_INIT_RESOURCE(piezas);
        return true;
    }();
    (void)hecho;
}

namespace qa {

const char* const NombresFichas[13] = {"",       "peonb", "torreb", "caballob", "alfilb",
                                       "damab",  "reyb",  "peonn",  "torren",   "caballon",
                                       "alfiln", "daman", "reyn"};

bool JuegoFichas::Completo() const {
    for (int i = 1; i <= 12; ++i)
        if (fichas[i].isNull() || mascaras[i].isNull()) return false;
    return !claro.isNull() && !oscuro.isNull();
}

namespace {

QImage Dibujar(const QString& nombre, int lado) {
    IniciarRecursos();
    QImage img(lado, lado, QImage::Format_ARGB32);
    img.fill(Qt::transparent);
    QSvgRenderer svg(QStringLiteral(":/piezas/%1.svg").arg(nombre));
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    svg.render(&p, QRectF(0, 0, lado, lado));
    return img;
}

// Anything more than a little opaque belongs to the piece: the outlines are black, so the
// edge pixels blend towards black rather than leave a light fringe on dark squares.
constexpr int kOpaco = 96;

void Separar(const QImage& dibujo, QImage& ficha, QImage& mascara) {
    const int w = dibujo.width(), h = dibujo.height();
    ficha = QImage(w, h, QImage::Format_RGB32);
    mascara = QImage(w, h, QImage::Format_RGB32);
    for (int y = 0; y < h; ++y) {
        const QRgb* s = reinterpret_cast<const QRgb*>(dibujo.constScanLine(y));
        QRgb* f = reinterpret_cast<QRgb*>(ficha.scanLine(y));
        QRgb* m = reinterpret_cast<QRgb*>(mascara.scanLine(y));
        for (int x = 0; x < w; ++x) {
            const bool dentro = qAlpha(s[x]) >= kOpaco;
            f[x] = dentro ? (s[x] | 0xff000000u) : 0xff000000u;
            m[x] = dentro ? 0xff000000u : 0xffffffffu;
        }
    }
}

QImage Cuadro(const QString& nombre, int lado) {
    return Dibujar(nombre, lado).convertToFormat(QImage::Format_RGB32);
}

} // namespace

JuegoFichas FichasIncorporadas(int lado) {
    JuegoFichas j;
    if (lado < 1) return j;
    for (int i = 1; i <= 12; ++i)
        Separar(Dibujar(QString::fromLatin1(NombresFichas[i]), lado), j.fichas[i], j.mascaras[i]);
    j.claro = Cuadro(QStringLiteral("cuadrob"), lado);
    j.oscuro = Cuadro(QStringLiteral("cuadron"), lado);
    return j;
}

JuegoFichas Escalar(const JuegoFichas& fuente, int lado) {
    JuegoFichas j;
    if (lado < 1) return j;
    auto escalar = [lado](const QImage& img) {
        if (img.isNull()) return QImage();
        return img.scaled(lado, lado, Qt::IgnoreAspectRatio, Qt::FastTransformation)
            .convertToFormat(QImage::Format_RGB32);
    };
    for (int i = 1; i <= 12; ++i) {
        j.fichas[i] = escalar(fuente.fichas[i]);
        j.mascaras[i] = escalar(fuente.mascaras[i]);
    }
    j.claro = escalar(fuente.claro);
    j.oscuro = escalar(fuente.oscuro);
    return j;
}

void PintarFicha(QPainter& p, const JuegoFichas& juego, int codigo, int x, int y) {
    if (codigo < 1 || codigo > 12) return;
    const auto modo = p.compositionMode();
    p.setCompositionMode(QPainter::RasterOp_SourceAndDestination);
    p.drawImage(x, y, juego.mascaras[codigo]);
    p.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
    p.drawImage(x, y, juego.fichas[codigo]);
    p.setCompositionMode(modo);
}

} // namespace qa
