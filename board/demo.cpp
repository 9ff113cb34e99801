// board-demo: two people play at one board, with the move list beside it. Until the board
// lives in the program's own window this is where it is looked at and photographed.
//   board-demo [--size N] [--skin NAME] [--flip] [--clicks] [--lines] [--fen LINE]
//              [--moves "5254 5755 ..."] [--setup] [--grab FILE] [--wait MS]
#include "board/dibujo_tablero.h"
#include "board/lista_jugadas.h"
#include "board/partida_local.h"
#include "board/set_tablero.h"
#include "board/vista_tablero.h"

#include "core/game_state.h"
#include "core/local_move.h"
#include "core/move_list.h"
#include "core/recorder.h"
#include "core/takeback.h"
#include "files/fen.h"
#include "language/idioma.h"
#include "platform/programa.h"

#include <QApplication>
#include <QComboBox>
#include <QCommandLineParser>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QMessageBox>
#include <QScreen>
#include <QSpinBox>
#include <QTimer>
#include <QToolBar>

namespace {

using namespace Variables;

// Messages and sounds of the program, as far as a demo needs them; the rest is recorded.
class EntornoDemo : public EntornoRegistro {
public:
    int MostrarMensaje(const std::string& titulo, const std::string& texto, int, int,
                       int) override {
        QMessageBox::information(QApplication::activeWindow(), QString::fromStdString(titulo),
                                 QString::fromStdString(qa::TextoMensaje(texto)));
        return 1;
    }
    void Sonar(int) override { QApplication::beep(); }
};

void Jugar(const QStringList& jugadas) {
    for (const QString& j : jugadas) {
        if (j.size() < 4) continue;
        const std::string s = j.toStdString();
        SoltarFicha(s.substr(0, 2), s.substr(2, 2), s.size() > 4 ? std::stoi(s.substr(4)) : 0);
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QCommandLineParser opciones;
    opciones.addHelpOption();
    opciones.addOptions({{"size", "Square size in pixels.", "n", "60"},
                         {"skin", "Skin folder under apariencias.", "name"},
                         {"flip", "Board seen from Black's side."},
                         {"clicks", "Move by clicking."},
                         {"lines", "Grid lines."},
                         {"fen", "Start from this position.", "line"},
                         {"moves", "Moves to play first, as squares.", "list"},
                         {"setup", "Open the position set-up."},
                         {"grab", "Save the screen to this file and quit.", "file"},
                         {"wait", "Milliseconds before the grab.", "ms", "600"}});
    opciones.process(app);

    qa::FijarDirectorioPrograma(QApplication::applicationDirPath().toStdString());
    qa::FijarIdioma("English.lng");
    qa::LeerTextosIdioma();

    QMainWindow ventana;
    ventana.setWindowTitle(QStringLiteral("Quintarena board"));
    auto* centro = new QWidget(&ventana);
    auto* fila = new QHBoxLayout(centro);
    auto* vista = new qa::VistaTablero(centro);
    auto* lista = new qa::ListaJugadas(centro);
    lista->setMinimumWidth(200);
    fila->addWidget(vista, 0, Qt::AlignTop);
    fila->addWidget(lista);
    ventana.setCentralWidget(centro);

    EntornoDemo resto;
    qa::DibujoTablero dibujo(*vista);
    dibujo.PonerListaJugadas(lista);
    InstalarRegistro(&resto);
    InstalarDibujo(&dibujo);
    auto* set = new qa::SetTableroF(*vista->Picture(), &ventana);
    QObject::connect(vista, &qa::VistaTablero::ImagenesCambiadas, set,
                     &qa::SetTableroF::PaintImagenesSet);

    QToolBar* barra = ventana.addToolBar(QStringLiteral("Board"));
    barra->addAction(QStringLiteral("New game"), [vista] { qa::PartidaLocal(*vista->Picture()); });
    barra->addAction(QStringLiteral("Take back"), [] {
        if (Turno != 0 && !Jugadas::List1.empty()) RetrocesoFuncion();
    });
    QAction* girar =
        barra->addAction(QStringLiteral("Flip"), vista, &qa::VistaTablero::PonerInvertido);
    girar->setCheckable(true);
    QAction* clics =
        barra->addAction(QStringLiteral("Click moves"), vista, &qa::VistaTablero::PonerPointClick);
    clics->setCheckable(true);
    barra->addAction(QStringLiteral("Set up"), set, &QWidget::show);
    auto* skins = new QComboBox(barra);
    skins->addItems(vista->ActualizarSkins());
    barra->addWidget(skins);
    auto* tamano = new QSpinBox(barra);
    tamano->setRange(30, 100);
    barra->addWidget(tamano);

    qa::PartidaLocal(*vista->Picture());
    tamano->setValue(opciones.value("size").toInt());
    vista->PonerTamano(tamano->value(), false);
    vista->PonerLineas(opciones.isSet("lines"));
    QObject::connect(skins, &QComboBox::textActivated, vista, &qa::VistaTablero::PonerApariencia);
    QObject::connect(vista, &qa::VistaTablero::AparienciaCambiada, skins,
                     &QComboBox::setCurrentText);
    QObject::connect(tamano, &QSpinBox::valueChanged, vista,
                     [vista](int n) { vista->PonerTamano(n); });
    vista->Redimensionar();
    if (opciones.isSet("clicks")) clics->trigger();
    if (opciones.isSet("fen")) {
        PosicionFen = opciones.value("fen").toStdString();
        AbrirEpd();
    }
    ventana.show();
    ventana.adjustSize();
    if (opciones.isSet("grab")) {
        const QString fichero = opciones.value("grab");
        QTimer::singleShot(opciones.value("wait").toInt(), [fichero] {
            QApplication::primaryScreen()->grabWindow(0).save(fichero);
            QApplication::exit(0);
            // A modal form may hold the loop: leave from under it.
            for (QWidget* w : QApplication::topLevelWidgets())
                if (auto* d = qobject_cast<QDialog*>(w); d && d->isVisible()) d->reject();
        });
    }
    if (opciones.isSet("skin"))
        QTimer::singleShot(50, [vista, skins, nombre = opciones.value("skin")] {
            skins->setCurrentText(nombre);
            vista->PonerApariencia(nombre);
        });

    const QStringList jugadas = opciones.value("moves").split(' ', Qt::SkipEmptyParts);
    // The moves are given as the console gives them, in board squares: played before the turn.
    QTimer::singleShot(100, [jugadas, girar, turnar = opciones.isSet("flip")] {
        Jugar(jugadas);
        if (turnar) girar->trigger();
    });
    if (opciones.isSet("setup"))
        QTimer::singleShot(150, [set, &ventana] {
            set->show();
            set->move(ventana.geometry().right() - set->width(), ventana.geometry().top() + 40);
        });
    const int r = app.exec();
    InstalarRegistro(nullptr);
    return r;
}
