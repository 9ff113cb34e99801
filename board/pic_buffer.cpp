#include "board/pic_buffer.h"

#include "core/environment.h"
#include "core/game_state.h"
#include "core/move_list.h"

#include <QPaintEvent>

namespace qa {

using namespace Variables;

PicBuffer::PicBuffer(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    EncogerTemporales();
}

QPoint PicBuffer::Esquina(int col, int fila) const {
    return {(col - 1) * AnchoCasilla, (8 - fila) * AltoCasilla};
}

std::pair<int, int> PicBuffer::Convertir(int col, int fila) const {
    if (invertido) return {9 - col, 9 - fila};
    return {col, fila};
}

void PicBuffer::ResiceImagenes(int tamano) {
    r_ = skin_ ? Escalar(*skin_, tamano) : FichasIncorporadas(tamano);
}

void PicBuffer::Resice() {
    const int w = r_.oscuro.width(), h = r_.oscuro.height();
    setFixedSize(8 * w, 8 * h);
    buffer_ = QImage(8 * w, 8 * h, QImage::Format_RGB32);
    buffer_.fill(Qt::white);
    fondo_ = buffer_;
}

void PicBuffer::PaintTablero() {
    if (buffer_.isNull() || r_.oscuro.isNull()) return;
    buffer_.fill(Qt::white);
    const int w = r_.oscuro.width(), h = r_.oscuro.height();
    QPainter p(&buffer_);
    // The top left square is a light one, and each row starts with the other colour.
    for (int fila = 0; fila < 8; ++fila)
        for (int col = 0; col < 8; ++col)
            p.drawImage(col * w, fila * h, (col + fila) % 2 == 0 ? r_.claro : r_.oscuro);
    if (lineas) {
        p.setPen(Qt::black);
        for (int k = 1; k <= 7; ++k) {
            p.drawLine(k * w, 0, k * w, 8 * h);
            p.drawLine(0, k * h, 8 * w, k * h);
        }
    }
    p.end();
    fondo_ = buffer_.copy();
    update();
}

void PicBuffer::PintarPieza(int codigo, int col, int fila) {
    if (!EnCasilla(col) || !EnCasilla(fila) || buffer_.isNull()) return;
    const QPoint e = Esquina(col, fila);
    QPainter p(&buffer_);
    PintarFicha(p, r_, codigo, e.x(), e.y());
}

void PicBuffer::CuadroDesdeFondo(int col, int fila) {
    if (!EnCasilla(col) || !EnCasilla(fila) || buffer_.isNull()) return;
    const QPoint e = Esquina(col, fila);
    QPainter p(&buffer_);
    p.drawImage(e, fondo_, QRect(e, QSize(AnchoCasilla, AltoCasilla)));
}

void PicBuffer::PaintFichas() {
    for (int fila = 1; fila <= 8; ++fila)
        for (int col = 1; col <= 8; ++col) {
            const int32_t codigo = Tablero[col][fila];
            if (codigo < 1 || codigo > 12) continue;
            const auto [c, f] = Convertir(col, fila);
            PintarPieza(codigo, c, f);
        }
    update();
}

void PicBuffer::PaintFichasResice() {
    // The move being held keeps its fields: the repaint borrows them square by square.
    const int32_t guardados[5] = {FichaMovida, ColDestino, FilaDestino, ColOrigen, FilaOrigen};
    RedibujoCompleto = true;
    for (int fila = 1; fila <= 8; ++fila)
        for (int col = 1; col <= 8; ++col) {
            if (Tablero[col][fila] == 0) continue;
            FichaMovida = Tablero[col][fila];
            InvertirCasilla(col, fila);
            MarcoActivo = true;
            DibujarMovimiento();
        }
    RedibujoCompleto = false;
    FichaMovida = guardados[0];
    ColDestino = guardados[1];
    FilaDestino = guardados[2];
    ColOrigen = guardados[3];
    FilaOrigen = guardados[4];
}

void PicBuffer::IdibujoFicha(int col, int fila) {
    InvertirCasilla(col, fila);
    DibujarMovimiento();
}

void PicBuffer::DibujarMovimiento() {
    if (!RedibujoCompleto) {
        CuadroDesdeFondo(ColOrigen, FilaOrigen);
        CuadroDesdeFondo(ColDestino, FilaDestino);
    }
    PintarPieza(FichaMovida, ColDestino, FilaDestino);
    update();
    if (!MarcoActivo) Marco(ColOrigen, FilaOrigen, ColDestino, FilaDestino);
    MarcoActivo = false;
}

void PicBuffer::DibujarMovimientoPedido() {
    if (dibujoHecho_) {
        dibujoHecho_ = false;
        return;
    }
    DibujarMovimiento();
}

void PicBuffer::Marco(int colOrigen, int filaOrigen, int colDestino, int filaDestino) {
    if (!marcos || Cargando) return;
    if (listas().ListaPgnVisible() || Jugadas::List1.empty() || MarcoActivo) return;
    // The frames are kept as squares, so with zeros (after a resize) they already stand right.
    if (colOrigen == 0 && filaOrigen == 0 && colDestino == 0 && filaDestino == 0) return;
    if (!EnCasilla(colOrigen) || !EnCasilla(filaOrigen) || !EnCasilla(colDestino) ||
        !EnCasilla(filaDestino))
        return;
    MarcoActivo = true;
    marco_[0] = {colOrigen, filaOrigen};
    marco_[1] = {colDestino, filaDestino};
    marcoVisible_ = true;
    update();
}

void PicBuffer::QuitaMarco() {
    marcoVisible_ = false;
    marco_[0] = marco_[1] = QPoint();
    update();
}

void PicBuffer::Invertir(bool invertir) {
    invertido = invertir;
    RedibujoCompleto = true;
    PaintTablero();
    const int32_t guardados[3] = {FichaMovida, ColDestino, FilaDestino};
    for (int fila = 1; fila <= 8; ++fila)
        for (int col = 1; col <= 8; ++col) {
            if (Tablero[col][fila] == 0) continue;
            FichaMovida = Tablero[col][fila];
            MarcoActivo = true;
            IdibujoFicha(col, fila);
        }
    FichaMovida = guardados[0];
    ColDestino = guardados[1];
    FilaDestino = guardados[2];
    for (QPoint* q : {&marco_[0], &marco_[1], &marcador_.casilla, &rey_.casilla})
        if (!q->isNull()) *q = QPoint(9 - q->x(), 9 - q->y());
    RedibujoCompleto = false;
    MarcoActivo = false;
    update();
}

void PicBuffer::InvertirCasilla(int col, int fila) {
    const auto [c, f] = Convertir(col, fila);
    ColDestino = c;
    FilaDestino = f;
}

void PicBuffer::MarcadorVisible(bool visible) {
    if (marcador_.visible == visible) return;
    marcador_.visible = visible;
    update();
}

void PicBuffer::QuitarFichaAlPaso(int col, int fila) {
    const auto [c, f] = Convertir(col, fila);
    CuadroDesdeFondo(c, f);
    update();
}

void PicBuffer::RedibujarTorreEnroque() {
    // The filter has moved the rook on the board; its squares are board squares here.
    const auto [co, fo] = Convertir(ColOrigen, FilaOrigen);
    const auto [cd, fd] = Convertir(ColDestino, FilaDestino);
    CuadroDesdeFondo(co, fo);
    CuadroDesdeFondo(cd, fd);
    PintarPieza(FichaMovida, cd, fd);
    update();
}

void PicBuffer::RedibujarTablero() {
    if (fondo_.isNull()) return;
    buffer_ = fondo_.copy();
    PaintFichas();
    // While a file loads its notice stays over whatever the loading draws.
    if (!Cargando) aviso_.clear();
    PintarAviso();
}

void PicBuffer::AvisoCargando(const QString& texto) {
    aviso_ = texto;
    if (fondo_.isNull()) return;
    buffer_ = fondo_.copy();
    PintarAviso();
}

void PicBuffer::PintarAviso() {
    if (aviso_.isEmpty()) return;
    QPainter p(&buffer_);
    QFont letra = font();
    letra.setPointSize(16);
    p.setFont(letra);
    p.setPen(Qt::black);
    p.drawText(buffer_.rect(), Qt::AlignCenter, aviso_);
    p.end();
    update();
}

void PicBuffer::RestaurarArrastre() {
    // Between moves BoardTemp is shrunk, and then there is nothing to restore.
    if (boardTemp_[1].size() != buffer_.size()) return;
    buffer_ = boardTemp_[1].copy();
    update();
}

void PicBuffer::EncogerTemporales() {
    for (QImage& t : boardTemp_) {
        t = QImage(10, 10, QImage::Format_RGB32);
        t.fill(Qt::white);
    }
}

void PicBuffer::paintEvent(QPaintEvent* e) {
    QPainter p(this);
    p.drawImage(e->rect(), buffer_, e->rect());
    const QSize lado(AnchoCasilla - 1, AltoCasilla - 1);
    auto hueco = [&](QPoint casilla, const QColor& color, int grueso) {
        p.setPen(QPen(color, grueso));
        p.setBrush(Qt::NoBrush);
        const int m = grueso / 2;
        p.drawRect(QRect(Esquina(casilla.x(), casilla.y()), lado).adjusted(m, m, -m, -m));
    };
    if (marcoVisible_) {
        hueco(marco_[0], QColor(230, 150, 20), 2);
        hueco(marco_[1], QColor(230, 150, 20), 2);
    }
    if (marcador_.visible) hueco(marcador_.casilla, QColor(30, 90, 220), 3);
    if (rey_.visible) hueco(rey_.casilla, QColor(200, 30, 30), 3);
}

} // namespace qa
