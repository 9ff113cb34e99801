// The mouse on the board: dragging a piece, or clicking the piece and then its square.
#include "board/pic_buffer.h"

#include "core/game_state.h"
#include "core/local_move.h"
#include "core/move_filter.h"

#include <QMouseEvent>
#include <cmath>

namespace qa {

using namespace Variables;

namespace {

enum Cursor { Normal = 0, Mano = 99, Prohibido = 12, ArrastreMano = -1, ArrastreStop = -2 };

// One band after another; the last one includes its upper end.
int Banda(int v, int tam) {
    if (tam <= 0) return 0;
    for (int k = 1; k <= 8; ++k)
        if (v >= (k - 1) * tam && (v < k * tam || (k == 8 && v == 8 * tam))) return k;
    return 0;
}

std::string Digitos(int col, int fila) {
    return {char('0' + col), char('0' + fila)};
}

} // namespace

int PicBuffer::Columna(int x) const {
    return Banda(x, AnchoCasilla);
}

int PicBuffer::Fila(int y) const {
    const int b = Banda(y, AltoCasilla);
    return b == 0 ? 0 : 9 - b;
}

void PicBuffer::PonerCursor(int forma) {
    switch (forma) {
    case Mano:
        setCursor(Qt::OpenHandCursor);
        break;
    case Prohibido:
    case ArrastreStop:
        setCursor(Qt::ForbiddenCursor);
        break;
    case ArrastreMano:
        setCursor(Qt::ClosedHandCursor);
        break;
    default:
        setCursor(Qt::ArrowCursor);
        break;
    }
}

// The drag's drawing around the drop: the piece under the cursor goes back before the filter,
// since a castling rook is drawn from inside it; a refusal puts the whole picture back.
class PicBuffer::ManoArrastre final : public Mano {
public:
    explicit ManoArrastre(PicBuffer& p) : p_(p) {}
    void AntesDelFiltro() override { p_.RestaurarArrastre(); }
    void TrasFiltro() override {
        if (MovimientoValido && TipoEnroque == 0) {
            InvertirMovimiento();
            p_.RestaurarArrastre();
        }
    }
    void Rehusada() override { p_.DevolverTablero(); }
    void Aceptada() override {}
    void Terminada() override { p_.EncogerTemporales(); }

private:
    PicBuffer& p_;
};

// The click's drawing: the piece leaves its square only once the move is accepted, and it is
// drawn before the finish, which then must not draw it again.
class PicBuffer::ManoClic final : public Mano {
public:
    explicit ManoClic(PicBuffer& p) : p_(p) {}
    void AntesDelFiltro() override {}
    void TrasFiltro() override {}
    void Rehusada() override {}
    void Aceptada() override {
        p_.CuadroDesdeFondo(ColRaton, FilaRaton);
        p_.update();
        InvertirMovimiento();
        p_.DibujarMovimiento();
        p_.boardTemp_[1] = p_.buffer_.copy();
        p_.dibujoHecho_ = true;
    }
    void Terminada() override {
        p_.dibujoHecho_ = false;
        p_.EncogerTemporales();
    }

private:
    PicBuffer& p_;
};

bool PicBuffer::Probar(int col, int fila) {
    return ProbarDestino(Digitos(col, fila));
}

void PicBuffer::DevolverTablero() {
    if (boardTemp_[0].size() == buffer_.size()) buffer_ = boardTemp_[0].copy();
    EncogerTemporales();
    update();
}

void PicBuffer::Anular() {
    DevolverTablero();
    MovimientoAnulado();
}

void PicBuffer::MouseDown(Qt::MouseButton boton, int x, int y) {
    if (Cargando) return;
    ColRaton = Columna(x);
    FilaRaton = Fila(y);
    if (ColRaton == 0 || FilaRaton == 0) return;
    if (EditandoTablero) {
        MouseDownSet(boton);
        return;
    }
    if (boton != Qt::LeftButton || Turno == 0) return;
    if (pointClick)
        Clic();
    else
        InicioArrastre(x, y);
}

void PicBuffer::InicioArrastre(int x, int y) {
    const auto [c, f] = Convertir(ColRaton, FilaRaton);
    if (!Conectado && !NoEsContraria(c, f)) return;
    boardTemp_[0] = buffer_.copy();
    if (!Origen.empty()) return;
    if (!FichaElegible(Tablero[c][f])) return;
    FichaMovida = Tablero[c][f];
    CuadroDesdeFondo(ColRaton, FilaRaton);
    update();
    boardTemp_[1] = buffer_.copy();
    Origen = Digitos(c, f);
    ArrastreCancelado = false;
    arrastrando_ = true;
    DragOver(x, y, false); // the piece is under the cursor from the first moment
}

void PicBuffer::DragOver(int x, int y, bool fuera) {
    if (!arrastrando_) return;
    if (fuera || !rect().contains(x, y)) {
        // Leaving the board ends the move: the piece is back at once.
        arrastrando_ = false;
        PonerCursor(Normal);
        Anular();
        return;
    }
    ColRaton = Columna(x);
    FilaRaton = Fila(y);
    if (boardTemp_[1].size() == buffer_.size()) buffer_ = boardTemp_[1].copy();
    const double medioAncho = AnchoCasilla / 2.0, medioAlto = AltoCasilla / 2.0;
    {
        QPainter p(&buffer_);
        PintarFicha(p, r_, FichaMovida, static_cast<int>(std::lround(x - medioAncho)),
                    static_cast<int>(std::lround(y - medioAlto)));
    }
    update();
    const auto [c, f] = Convertir(ColRaton, FilaRaton);
    const bool legal = !pointClick && !Origen.empty() && Probar(c, f);
    PonerCursor(legal || Digitos(c, f) == Origen.substr(0, 2) ? ArrastreMano : ArrastreStop);
}

void PicBuffer::DragDrop(int x, int y) {
    if (!arrastrando_) return;
    arrastrando_ = false;
    PonerCursor(Normal);
    if (Turno == 0 || pointClick) return;
    ColRaton = Columna(x);
    FilaRaton = Fila(y);
    if (ColRaton == 0 || FilaRaton == 0) {
        Anular();
        return;
    }
    const auto [c, f] = Convertir(ColRaton, FilaRaton);
    if (Digitos(c, f) == Origen.substr(0, 2)) {
        Anular();
        return;
    }
    if (Origen.empty()) return;
    ManoArrastre mano(*this);
    Soltar(Digitos(c, f), &mano);
}

void PicBuffer::CancelarArrastre() {
    if (!arrastrando_) return;
    arrastrando_ = false;
    PonerCursor(Normal);
    Anular();
}

void PicBuffer::SoltarSeleccion() {
    marcador_.visible = false;
    PonerCursor(Normal);
    update();
}

void PicBuffer::MarcarCasilla(int col, int fila) {
    if (EditandoTablero) {
        rey_ = {true, QPoint(col, fila)};
    } else if (marcador_.visible) {
        marcador_.visible = false;
    } else {
        marcador_ = {true, QPoint(col, fila)};
    }
    update();
}

void PicBuffer::Clic() {
    const auto [c, f] = Convertir(ColRaton, FilaRaton);
    const bool origenVacio = Origen.empty();
    if (!Conectado && origenVacio && !NoEsContraria(c, f)) return;
    boardTemp_[0] = buffer_.copy();
    if (origenVacio && FichaElegible(Tablero[c][f])) {
        FichaMovida = Tablero[c][f];
        MarcarCasilla(ColRaton, FilaRaton);
    }
    if (!marcador_.visible || origenVacio) {
        if (marcador_.visible) Origen = Digitos(c, f);
        return;
    }
    ManoClic mano(*this);
    Soltar(Digitos(c, f), &mano);
}

void PicBuffer::MouseMove(Qt::MouseButtons botones, int x, int y) {
    if (EditandoTablero || !Destino.empty() || botones != Qt::NoButton || Cargando) return;
    ColRaton = Columna(x);
    FilaRaton = Fila(y);
    if (ColRaton == 0 || FilaRaton == 0) return;
    const auto [c, f] = Convertir(ColRaton, FilaRaton);
    if (pointClick && !Origen.empty()) {
        if (Probar(c, f))
            PonerCursor(Mano);
        else
            PonerCursor(Digitos(c, f) == Origen.substr(0, 2) ? Mano : Prohibido);
    } else {
        PonerCursor(EsFichaPropia(c, f) ? Mano : Normal);
    }
    ColRaton = FilaRaton = 0;
}

void PicBuffer::mousePressEvent(QMouseEvent* e) {
    const QPoint p = e->position().toPoint();
    MouseDown(e->button(), p.x(), p.y());
}

void PicBuffer::mouseMoveEvent(QMouseEvent* e) {
    const QPoint p = e->position().toPoint();
    if (arrastrando_)
        DragOver(p.x(), p.y(), !rect().contains(p));
    else
        MouseMove(e->buttons(), p.x(), p.y());
}

void PicBuffer::mouseReleaseEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton || !arrastrando_) return;
    const QPoint p = e->position().toPoint();
    DragDrop(p.x(), p.y());
}

void PicBuffer::leaveEvent(QEvent* e) {
    QWidget::leaveEvent(e);
    // A drag whose release went elsewhere must not hang on to the piece.
    if (arrastrando_) DragOver(-1, -1, true);
}

} // namespace qa
