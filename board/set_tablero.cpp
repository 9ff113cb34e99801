#include "board/set_tablero.h"

#include "board/colores.h"
#include "board/estado_set.h"
#include "board/pic_buffer.h"
#include "board/textos.h"

#include "core/clocks.h"
#include "core/environment.h"
#include "core/game_state.h"
#include "core/move_list.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>

namespace qa {

using namespace Variables;

namespace {
constexpr int kLado = 40;
// White pawn to queen, then Black's: the kings are moved on the board, never placed.
constexpr int kPaleta[10] = {1, 2, 3, 4, 5, 7, 8, 9, 10, 11};
} // namespace

SetTableroF::SetTableroF(PicBuffer& tablero, QWidget* parent) : QDialog(parent), tablero_(tablero) {
    Rotular(this, "SetTablero", "Titulo", "Set up position");
    auto* rejilla = new QGridLayout(this);
    auto* paleta = new QGridLayout();
    for (int i = 0; i < 10; ++i) {
        paleta_[i] = new CuadroPieza(kPaleta[i], kLado, this);
        paleta->addWidget(paleta_[i], i / 5, i % 5);
        connect(paleta_[i], &CuadroPieza::Pulsado, this, [this](int codigo) {
            FichaSet = codigo;
            for (CuadroPieza* p : paleta_) p->PonerMarcado(p->Valor() == FichaSet);
        });
    }
    rejilla->addLayout(paleta, 0, 0, 1, 2);

    auto* frame1 = new QGroupBox(this);
    Rotular(frame1, "SetTablero", "Frame1", "Side to move");
    auto* turno = new QVBoxLayout(frame1);
    Option1 = new QRadioButton(frame1);
    Option2 = new QRadioButton(frame1);
    Rotular(Option1, "SetTablero", "Option1", "White to move");
    Rotular(Option2, "SetTablero", "Option2", "Black to move");
    Option1->setChecked(true);
    turno->addWidget(Option1);
    turno->addWidget(Option2);
    rejilla->addWidget(frame1, 1, 0);

    auto* frame2 = new QGroupBox(this);
    Rotular(frame2, "SetTablero", "Frame2", "Castling and en passant");
    auto* derechos = new QGridLayout(frame2);
    const char* defectos[6] = {nullptr,     "White O-O",   "White O-O-O",
                               "Black O-O", "Black O-O-O", "En passant on:"};
    const char* claves[6] = {nullptr, "Check1", "Check2", "Check3", "Check4", "Check5"};
    for (int i = 1; i <= 5; ++i) {
        Check[i] = new QCheckBox(frame2);
        Rotular(Check[i], "SetTablero", claves[i], defectos[i]);
        derechos->addWidget(Check[i], i - 1, 0);
    }
    Text1 = new QLineEdit(frame2);
    Text1->setMaxLength(2);
    Text1->setFixedWidth(40);
    Text1->setEnabled(false);
    Text1->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("^[a-hA-H][36]?$")), Text1));
    derechos->addWidget(Text1, 4, 1);
    connect(Check[5], &QCheckBox::toggled, this, [this](bool on) {
        Text1->setEnabled(on);
        if (on) Text1->setFocus();
    });
    rejilla->addWidget(frame2, 1, 1);

    const char* botones[5][3] = {{},
                                 {"SetTablero", "1", "Starting position"},
                                 {"SetTablero", "2", "Clear board"},
                                 {"Botones", "Aceptar", "OK"},
                                 {"Botones", "Cancelar", "Cancel"}};
    for (int i = 1; i <= 4; ++i) {
        Command[i] = new QPushButton(this);
        Rotular(Command[i], botones[i][0], botones[i][1], botones[i][2]);
        rejilla->addWidget(Command[i], 2 + (i - 1) / 2, (i - 1) % 2);
    }
    connect(Command[1], &QPushButton::clicked, this, &SetTableroF::PosicionInicial);
    connect(Command[2], &QPushButton::clicked, this, &SetTableroF::Vaciar);
    connect(Command[3], &QPushButton::clicked, this, &SetTableroF::Aceptar);
    connect(Command[4], &QPushButton::clicked, this, &SetTableroF::Cancelar);
    rejilla->setSizeConstraint(QLayout::SetFixedSize);
    RegistrarFormulario(this, 9);
    PaintImagenesSet();
}

void SetTableroF::PaintImagenesSet() {
    const JuegoFichas juego =
        tablero_.Skin() ? Escalar(*tablero_.Skin(), kLado) : FichasIncorporadas(kLado);
    for (CuadroPieza* p : paleta_) {
        QImage img(kLado, kLado, QImage::Format_RGB32);
        img.fill(palette().color(QPalette::Button));
        QPainter pintor(&img);
        PintarFicha(pintor, juego, p->Valor(), 0, 0);
        pintor.end();
        p->PonerImagen(img);
    }
}

void SetTableroF::changeEvent(QEvent* e) {
    if (e->type() == QEvent::LanguageChange) Rotulos(this);
    QDialog::changeEvent(e);
}

void SetTableroF::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    EditandoTablero = true;
}

void SetTableroF::hideEvent(QHideEvent* e) {
    QDialog::hideEvent(e);
    EditandoTablero = false;
    tablero_.OcultarRey();
    tablero_.RedibujarTablero();
}

void SetTableroF::CastilloCero() {
    for (int i = 1; i <= 4; ++i) Check[i]->setChecked(false);
}

void SetTableroF::PosicionInicial() {
    PonerFichas();
    tablero_.RedibujarTablero();
    CastilloCero();
}

void SetTableroF::Vaciar() {
    LimpiarTablero();
    Tablero[5][1] = ReyB;
    Tablero[5][8] = ReyN;
    tablero_.OcultarRey();
    CasillaSet.clear();
    tablero_.RedibujarTablero();
    CastilloCero();
}

void SetTableroF::AlPaso() {
    const QString t = Text1->text().toLower();
    if (!Check[5]->isChecked() || t.size() != 2) return;
    const int col = t[0].unicode() - 'a' + 1;
    const int fila = t[1] == QLatin1Char('3') ? 4 : 5;
    if (!EnCasilla(col)) return;
    // The pawn that has just made its double step must stand there.
    const bool negras = Option2->isChecked();
    const bool esta =
        negras ? (fila == 4 && Tablero[col][4] == PeonB) : (fila == 5 && Tablero[col][5] == PeonN);
    if (!esta) return;
    AlPasoCasilla = col * 10 + fila;
    AlPasoPosible = AlPasoCaduca = true;
}

void SetTableroF::Aceptar() {
    if (Text1->text().isEmpty()) Check[5]->setChecked(false);
    TorreA1Movida = TorreH1Movida = TorreA8Movida = TorreH8Movida = false;
    RelojesCero();
    Jugadas::Vaciar();
    VariablesCero();
    MovimientoAnulado();
    AlPaso();
    TorreH1Movida = !Check[1]->isChecked();
    TorreA1Movida = !Check[2]->isChecked();
    TorreH8Movida = !Check[3]->isChecked();
    TorreA8Movida = !Check[4]->isChecked();
    Turno = Option2->isChecked() ? 2 : 1;
    DesdePosicion = true;
    close();
}

void SetTableroF::Cancelar() {
    PonerFichas();
    tablero_.RedibujarTablero();
    Jugadas::Vaciar();
    DesdePosicion = false;
    Turno = 0;
    close();
}

} // namespace qa
