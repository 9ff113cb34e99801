// The whole program with its board: a game for two people started from the menu and played
// to mate with real mouse drags on the board form.
#include "prueba_programa.h"

#include "board/lista_jugadas.h"
#include "board/vista_tablero.h"
#include "core/environment.h"
#include "core/game_state.h"
#include "core/move_list.h"
#include "files/fen.h"
#include "language/idioma.h"
#include "platform/ini_file.h"
#include "shell/arranque.h"
#include "shell/cpu.h"
#include "shell/enlaces.h"
#include "shell/entorno_programa.h"
#include "shell/ficheros_programa.h"
#include "shell/formularios.h"
#include "shell/jugadas.h"
#include "shell/mdi.h"
#include "shell/opciones.h"
#include "shell/quintarena.h"
#include "shell/reloj.h"
#include "shell/servicios.h"
#include "shell/tablero_programa.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QToolButton>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

using namespace qa;
using namespace Variables;

namespace {

class ProgramaConTablero : public ::testing::Test {
protected:
    prueba::Carpeta carpeta;
    prueba::Cajas cajas;
    VistaTablero* vista = nullptr;

    void SetUp() override {
        cajas.respuestas = {kRespuestaNo, kRespuestaNo};
        InstalarEntornoPrograma();
        InstalarTablero();
        InstalarFicheros();
        ASSERT_TRUE(Main({"quintarena"}));
        vista = qobject_cast<VistaTablero*>(Forms().quintarena->PicBuffer());
        ASSERT_NE(vista, nullptr);
        ASSERT_TRUE(prueba::Esperar([&] { return vista->isVisible(); }));
    }
    void TearDown() override {
        if (Forms().mdi) Forms().mdi->close();
        RestablecerTodo();
    }
    QPoint Centro(const char* casilla) const { return prueba::Centro(*vista->Picture(), casilla); }
    void Arrastrar(const char* jugada) { prueba::Arrastrar(*vista->Picture(), jugada); }
    // With QA_CAPTURAS naming a folder, the main window is saved there as a picture.
    // Under a real X server the whole screen, with the windows of their own.
    static void Captura(const char* nombre) {
        const char* d = std::getenv("QA_CAPTURAS");
        if (!d) return;
        QApplication::processEvents();
        const QPixmap imagen = QGuiApplication::platformName() == "xcb"
                                   ? QGuiApplication::primaryScreen()->grabWindow(0)
                                   : Forms().mdi->grab();
        imagen.save(QString::fromUtf8(d) + "/" + nombre + ".png");
    }
    // A new game at this machine: the engine form comes up, and its start with a person on
    // each side gives the board.
    void NuevaPartida() {
        Entrada("mnuNuevaPartida")->trigger();
        ASSERT_TRUE(Forms().cpu->isVisible());
        Forms().cpu->Boton(1)->trigger();
    }
    std::string Lista() const { return Forms().jugadas->Lista()->Texto().toStdString(); }
    // Every file dialog answers with this file of the scratch folder.
    void Responder(const std::string& nombre) {
        const std::string ruta = carpeta.Ruta(nombre).string(), dir = carpeta.Ruta().string();
        FijarPresentadorDialogos([ruta, dir](int, const std::string&) {
            RespuestaDialogo r;
            r.fichero = ruta;
            r.carpeta = dir;
            return r;
        });
    }
    // A file opened from the menu, as the open dialog answers.
    void Abrir(const std::string& nombre) {
        Responder(nombre);
        Entrada("mnuAbrirPartida")->trigger();
        FijarPresentadorDialogos(nullptr);
    }
    // Two short games in the PGN browser, the first one on the board.
    void AbrirPgn() {
        carpeta.Escribir("dos.pgn",
                         "[Event \"Primera\"]\n[Site \"?\"]\n[Date \"?\"]\n[Round \"1\"]\n"
                         "[White \"A\"]\n[Black \"B\"]\n[Result \"0-1\"]\n\n"
                         "1. f3 e5 2. g4 Qh4# 0-1\n\n"
                         "[Event \"Segunda\"]\n[Site \"?\"]\n[Date \"?\"]\n[Round \"2\"]\n"
                         "[White \"C\"]\n[Black \"D\"]\n[Result \"1-0\"]\n\n"
                         "1. e4 e5 2. Bc4 Nc6 3. Qh5 Nf6 4. Qxf7# 1-0\n");
        Abrir("dos.pgn");
        ASSERT_TRUE(listas().ListaPgnVisible());
        ASSERT_TRUE(prueba::Esperar([] { return Tablero[8][4] == DamaN; }));
    }
    std::string Aviso() const { return vista->Picture()->Aviso().toStdString(); }
};

TEST_F(ProgramaConTablero, FoolsMateFromTheMenuToTheMessage) {
    EXPECT_EQ(Tablero[5][2], PeonB) << "the pieces stand from the start";
    EXPECT_EQ(Turno, 0);
    Arrastrar("e2e4");
    EXPECT_EQ(Tablero[5][4], 0) << "nobody moves before a game begins";

    NuevaPartida();
    ASSERT_EQ(Turno, 1);
    for (const char* j : {"f2f3", "e7e5", "g2g4"}) Arrastrar(j);
    EXPECT_EQ(Turno, 2);
    Entrada("mnuRetroceder")->trigger();
    EXPECT_EQ(Tablero[7][2], PeonB) << "the take-back of the menu";
    EXPECT_EQ(Turno, 1);
    Arrastrar("g2g4");
    Arrastrar("d8h4");

    EXPECT_EQ(Turno, 0);
    EXPECT_TRUE(cajas.Hay(Mensajes[2])) << "Black has won";
    EXPECT_NE(Lista().find("Dh4++"), std::string::npos) << Lista();
    EXPECT_NE(Lista().find("2. g4"), std::string::npos) << Lista();
    Captura("programa-mate");

    // The board as a picture: the squares alone, eight by eight; not while the engine form
    // is up.
    Entrada("mnuGuararImagen")->trigger();
    EXPECT_TRUE(cajas.Hay(Mensajes[80]));
    Forms().cpu->close();
    const std::string bmp = carpeta.Ruta("tablero.bmp").string();
    FijarPresentadorDialogos([&](int, const std::string&) {
        RespuestaDialogo r;
        r.fichero = bmp;
        return r;
    });
    Entrada("mnuGuararImagen")->trigger();
    FijarPresentadorDialogos(nullptr);
    const QImage imagen(QString::fromStdString(bmp));
    EXPECT_EQ(imagen.size(),
              QSize(8 * vista->Picture()->AnchoCasilla, 8 * vista->Picture()->AltoCasilla));
    EXPECT_TRUE(cajas.Hay(Mensajes[37]));

    Marcar("mnuCordenadas", true);
    Forms().mdi->Comando("mnuCordenadas");
    EXPECT_NE(Lista().find("D8-H4"), std::string::npos) << Lista();
}

TEST_F(ProgramaConTablero, ReversedBoardFromTheMenuTakesTheMouseTheOtherWay) {
    NuevaPartida();
    Entrada("mnuInvertirTablero")->trigger();
    ASSERT_TRUE(Marcada("mnuInvertirTablero"));
    PicBuffer* p = vista->Picture();
    // Seen from Black's side, e2 sits in the upper half of the picture.
    EXPECT_LT(Centro("e2").y(), p->height() / 2);
    Arrastrar("e2e4");
    EXPECT_EQ(Tablero[5][4], PeonB);
    Captura("programa-invertido");
    Entrada("mnuInvertirTablero")->trigger();
}

TEST_F(ProgramaConTablero, PointAndClickFromTheMenu) {
    NuevaPartida();
    Entrada("mnuPointClick")->trigger();
    ASSERT_TRUE(Marcada("mnuPointClick"));
    PicBuffer* p = vista->Picture();
    QTest::mouseClick(p, Qt::LeftButton, {}, Centro("g1"));
    QTest::mouseClick(p, Qt::LeftButton, {}, Centro("f3"));
    EXPECT_EQ(Tablero[6][3], CaballoB);
    Entrada("mnuPointClick")->trigger();
}

TEST_F(ProgramaConTablero, SavedGameFileReplaysOnTheBoardByItsTimers) {
    NuevaPartida();
    for (const char* j : {"e2e4", "e7e5", "g1f3", "b8c6", "f1c4"}) Arrastrar(j);
    Forms().cpu->close(); // the engine form's game cannot be saved while it is up
    int32_t antes[9][9];
    std::copy(&Tablero[0][0], &Tablero[0][0] + 81, &antes[0][0]);
    const std::string ruta = carpeta.Ruta("partida.qtr").string();
    Responder("partida.qtr");
    Entrada("mnuGuardarPartida")->trigger();
    ASSERT_TRUE(std::filesystem::exists(ruta));
    EXPECT_TRUE(cajas.Hay(Mensajes[34])) << "the game is saved";
    EXPECT_EQ(carpeta.Leer("partida.qtr"),
              "0000\r\n0000\r\nA\r\n5254\r\n5755\r\n7163\r\n2836\r\n6134\r\n");

    NuevaPartida();
    Forms().cpu->close();
    Entrada("mnuAbrirPartida")->trigger();
    EXPECT_TRUE(Cargando) << "the replay runs on its timers";
    ASSERT_TRUE(prueba::Esperar([] { return !Cargando; }, 10000));
    EXPECT_TRUE(std::equal(&Tablero[0][0], &Tablero[0][0] + 81, &antes[0][0]));
    EXPECT_NE(Lista().find("3. Ac4"), std::string::npos) << Lista();
    Captura("programa-qtr");
    FijarPresentadorDialogos(nullptr);
}

TEST_F(ProgramaConTablero, GameFileWithABackslashInItsNameOpens) {
    // A legal letter in a name here; only the program's own texts use it between folders.
    carpeta.Escribir("Ana\\final.qtr", "0000\r\n0000\r\nA\r\n5254\r\n5755\r\n");
    FijarPresentadorDialogos([&](int, const std::string&) {
        RespuestaDialogo r;
        r.fichero = carpeta.Ruta("Ana\\final.qtr").string();
        r.carpeta = carpeta.Ruta().string();
        return r;
    });
    Entrada("mnuAbrirPartida")->trigger();
    FijarPresentadorDialogos(nullptr);
    EXPECT_TRUE(Cargando) << "the replay runs";
    ASSERT_TRUE(prueba::Esperar([] { return !Cargando; }, 10000));
    EXPECT_FALSE(cajas.Hay(Mensajes[27]));
    EXPECT_EQ(Tablero[5][4], PeonB);
    EXPECT_EQ(Tablero[5][5], PeonN);
}

TEST_F(ProgramaConTablero, PgnCollectionOpensInTheBrowserAndPlaysOnTheBoard) {
    AbrirPgn();
    EXPECT_FALSE(Forms().jugadas->isVisible()) << "the browser holds the panels";
    // The first game is read and played to its end.
    EXPECT_EQ(Tablero[6][3], PeonB);
    Captura("programa-pgn");

    // At its shipped place the browser, its moves included, fits a 1280 x 1024 screen beside
    // the board.
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->inherits("qa::ListaPgnF")) {
            const QRect r = w->frameGeometry();
            EXPECT_LE(r.right(), 1280) << r.right();
            EXPECT_LE(r.bottom(), 1024) << r.bottom();
            EXPECT_GE(r.left(), Forms().quintarena->mapToGlobal(QPoint(0, 0)).x() +
                                    Forms().quintarena->width() - 1);
        }

    Entrada("mnuNuevaPartida")->trigger();
    EXPECT_FALSE(Forms().cpu->isVisible());
    EXPECT_EQ(Turno, 0) << "no new game while the browser is up";
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->inherits("qa::ListaPgnF")) w->close();
    EXPECT_FALSE(listas().ListaPgnVisible());
    EXPECT_EQ(Tablero[4][8], DamaN) << "the start position is back";
    EXPECT_TRUE(prueba::Esperar([] { return Forms().jugadas->isVisible(); }));
}

TEST_F(ProgramaConTablero, NewGameLeavesNothingOfTheGameBefore) {
    NuevaPartida();
    Arrastrar("e2e4");
    ASSERT_TRUE(vista->Picture()->MarcosMostrados());
    Forms().cpu->close();
    // The EPD browser shows its positions on a board of its own: the last move is no longer
    // the main board's.
    carpeta.Escribir("una.epd", "4k3/8/8/8/8/8/8/4K2R w K -\n");
    Forms().mdi->AbrirFichero(carpeta.Ruta("una.epd").string());
    EXPECT_FALSE(vista->Picture()->MarcosMostrados());
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->inherits("qa::EpdF")) w->close();

    // A game from a position, on a reversed board, after a replay emptied the clocks.
    PosicionFen = "4k3/8/8/8/8/8/8/4K2R w K -";
    ASSERT_TRUE(AbrirEpd());
    ASSERT_TRUE(DesdePosicion);
    Marcar("mnuInvertirTablero", true);
    Forms().mdi->Comando("mnuInvertirTablero");
    Forms().reloj->Label(3)->setText("");
    Forms().reloj->Label(4)->setText("");
    TipoPartida = "A";
    ColorJugador = "Blancas";

    NuevaPartida();
    EXPECT_FALSE(DesdePosicion);
    EXPECT_EQ(TipoPartida, "");
    EXPECT_EQ(ColorJugador, "");
    EXPECT_EQ(Turno, 1);
    EXPECT_EQ(Forms().reloj->Label(3)->text(), "00:00");
    EXPECT_EQ(Forms().reloj->Label(4)->text(), "00:00");
    EXPECT_FALSE(Marcada("mnuInvertirTablero"));
    EXPECT_GT(Centro("e2").y(), vista->Picture()->height() / 2) << "White at the bottom again";
    EXPECT_EQ(Tablero[1][1], TorreB);
    Captura("programa-nueva-partida");

    Forms().cpu->close();
    Responder("nueva.qtr");
    Entrada("mnuGuardarPartida")->trigger();
    FijarPresentadorDialogos(nullptr);
    EXPECT_EQ(carpeta.Leer("nueva.qtr"), "0000\r\n0000\r\nA\r\n");
}

TEST_F(ProgramaConTablero, OpeningAGameFileForgetsTheKindAndColourBefore) {
    TipoPartida = "R";
    ColorJugador = "Negras";
    carpeta.Escribir("sin_tipo.qtr", "0000\r\n0000\r\n5254\r\n5755\r\n");
    Forms().mdi->AbrirFichero(carpeta.Ruta("sin_tipo.qtr").string());
    ASSERT_TRUE(prueba::Esperar([] { return !Cargando; }, 10000));
    EXPECT_EQ(Tablero[5][5], PeonN);
    EXPECT_EQ(TipoPartida, "") << "the file names no kind";
    EXPECT_EQ(ColorJugador, "");
}

TEST_F(ProgramaConTablero, ColourDialogOpensCentredTheFirstTime) {
    Entrada("mnuRgb")->trigger();
    QWidget* dialogo = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->inherits("qa::ColorRgb") && w->isVisible()) dialogo = w;
    ASSERT_NE(dialogo, nullptr);
    const QPoint d = dialogo->frameGeometry().center() - Forms().mdi->geometry().center();
    EXPECT_LE(d.manhattanLength(), 4) << d.x() << "," << d.y();
    Captura("programa-colores");
    dialogo->close();
}

TEST_F(ProgramaConTablero, OpenDialogsTakeANewLanguage) {
    Entrada("mnuSetTablero")->trigger();
    Entrada("mnuRgb")->trigger();
    QWidget* set = nullptr;
    QWidget* color = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (w->inherits("qa::SetTableroF")) set = w;
        if (w->inherits("qa::ColorRgb")) color = w;
    }
    ASSERT_TRUE(set && color);
    for (const char* fichero : {"English.lng", "Español.lng"}) {
        FijarIdioma(fichero);
        Idioma();
        const std::string lng = carpeta.Ruta(fichero).string();
        EXPECT_EQ(set->windowTitle().toStdString(), LeerIni(lng, "SetTablero", "Titulo"));
        EXPECT_EQ(color->windowTitle().toStdString(), LeerIni(lng, "Color", "Titulo"));
        for (QWidget* forma : {set, color}) {
            QStringList botones;
            for (auto* b : forma->findChildren<QPushButton*>()) botones << b->text();
            EXPECT_TRUE(
                botones.contains(QString::fromStdString(LeerIni(lng, "Botones", "Cancelar"))))
                << fichero << botones.join(",").toStdString();
        }
    }
}

TEST_F(ProgramaConTablero, ChosenSkinIsKeptWhenTheOptionsOpenAgain) {
    std::filesystem::create_directories(carpeta.Ruta("apariencias"));
    std::filesystem::copy(std::string(QA_DATOS) + "/apariencias/coral",
                          carpeta.Ruta("apariencias/coral"),
                          std::filesystem::copy_options::recursive);
    Opciones* op = Forms().opciones;
    auto* skins = op->findChild<QComboBox*>("SkinCombo");
    ASSERT_TRUE(skins);
    auto aceptar = [&] {
        for (auto* b : op->findChildren<QPushButton*>())
            if (b->text().toStdString() == Texto("Botones", "Aceptar")) b->click();
    };
    Forms().mdi->Comando("mnuOpciones");
    skins->setCurrentIndex(skins->findText("coral"));
    emit skins->activated(skins->currentIndex());
    EXPECT_EQ(vista->Apariencia(), "coral");
    aceptar();
    EXPECT_FALSE(op->isVisible());
    for (int vez = 0; vez < 2; ++vez) {
        Forms().mdi->Comando("mnuOpciones");
        EXPECT_EQ(skins->currentText(), "coral") << vez;
        EXPECT_EQ(skins->itemText(0).toStdString(), Texto("Opciones", "Opcion1"));
        aceptar();
        EXPECT_EQ(LeerIni(carpeta.Ruta("Default.ini").string(), "Configuracion", "Apariencia"),
                  "coral");
    }
    EXPECT_EQ(vista->Apariencia(), "coral");
}

TEST_F(ProgramaConTablero, SizeBoxTakesDigitsEnterAndItsSpinButtons) {
    Opciones* op = Forms().opciones;
    Forms().mdi->Comando("mnuOpciones");
    auto* caja = op->findChild<QLineEdit*>("Text1");
    auto* mas = op->findChild<QToolButton*>("Button1");
    auto* menos = op->findChild<QToolButton*>("Button2");
    ASSERT_TRUE(caja && mas && menos);
    caja->setFocus();
    caja->selectAll();
    QTest::keyClicks(caja, "0x7-a0 ");
    EXPECT_EQ(caja->text(), "70") << "letters and signs are dropped, leading zeros go";
    QTest::keyClick(caja, Qt::Key_Backspace);
    QTest::keyClick(caja, Qt::Key_2);
    EXPECT_EQ(caja->text(), "72");
    QTest::keyClick(caja, Qt::Key_Return);
    EXPECT_TRUE(op->isVisible()) << "Enter only resizes";
    ASSERT_TRUE(prueba::Esperar([&] { return vista->Picture()->AltoCasilla == 72; }));

    for (auto [escrito, tras] : {std::pair{"5", "30"}, std::pair{"999", "100"}}) {
        caja->selectAll();
        QTest::keyClicks(caja, escrito);
        QTest::keyClick(caja, Qt::Key_Enter);
        EXPECT_EQ(caja->text(), tras);
    }
    QTest::mouseClick(menos, Qt::LeftButton);
    EXPECT_EQ(caja->text(), "99");
    QTest::mouseClick(mas, Qt::LeftButton);
    QTest::mouseClick(mas, Qt::LeftButton);
    EXPECT_EQ(caja->text(), "100") << "no further than 100";
    ASSERT_TRUE(prueba::Esperar([&] { return vista->Picture()->AltoCasilla == 100; }));
    op->FijarTamano("30");
    QTest::mouseClick(menos, Qt::LeftButton);
    EXPECT_EQ(caja->text(), "30");
    QTest::mouseClick(mas, Qt::RightButton);
    EXPECT_EQ(caja->text(), "30") << "the left button only";
    QTest::mouseClick(mas, Qt::LeftButton);
    EXPECT_EQ(caja->text(), "31");

    // Typed without Enter and accepted, the size is kept as typed for the next start.
    caja->selectAll();
    QTest::keyClicks(caja, "150");
    op->OpcionesAceptar();
    EXPECT_EQ(LeerIni(carpeta.Ruta("Default.ini").string(), "Configuracion", "Tamaño"), "150");
}

TEST_F(ProgramaConTablero, GameFileOpenedOverThePgnBrowserPutsItAwayAndReplaysUnderANotice) {
    AbrirPgn();
    carpeta.Escribir("partida.qtr", "0000\r\n0000\r\nA\r\n5254\r\n5755\r\n7163\r\n");
    Abrir("partida.qtr");
    EXPECT_FALSE(listas().ListaPgnVisible()) << "the browser is closed";
    ASSERT_TRUE(Cargando);
    EXPECT_EQ(Aviso(), Mensajes[69]);
    Captura("programa-qtr-aviso");
    ASSERT_TRUE(prueba::Esperar([] { return !Cargando; }, 10000));
    EXPECT_EQ(Aviso(), "");
    EXPECT_NE(Lista().find("2. Cf3"), std::string::npos) << Lista();
    EXPECT_FALSE(cajas.Hay(Mensajes[55]));
    EXPECT_EQ(Turno, 2);
    EXPECT_TRUE(prueba::Esperar([] { return Forms().jugadas->isVisible(); }));
    Captura("programa-qtr-tras-pgn");
}

TEST_F(ProgramaConTablero, PositionFileOpenedOverThePgnBrowser) {
    AbrirPgn();
    carpeta.Escribir("pos.epd", "4k3/8/8/8/8/8/8/R3K3 w - - 0 1\n"
                                "rnbqkbnr/pppppppp/8/8/4P3/8/PPPP1PPP/RNBQKBNR b KQkq e3 0 1\n");
    Abrir("pos.epd");
    QWidget* epd = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->inherits("qa::EpdF") && w->isVisible()) epd = w;
    ASSERT_NE(epd, nullptr);
    EXPECT_TRUE(Cargando);
    EXPECT_EQ(Aviso(), Mensajes[69]) << "the main board waits under the notice";
    Captura("programa-epd-aviso");

    ASSERT_TRUE(QTest::qWaitForWindowExposed(epd));
    auto* lista = epd->findChild<QAbstractItemView*>();
    ASSERT_NE(lista, nullptr);
    const QRect fila = lista->visualRect(lista->model()->index(1, 0));
    ASSERT_TRUE(fila.isValid());
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, fila.center());
    QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, fila.center());
    EXPECT_FALSE(listas().ListaPgnVisible()) << "the browser is closed";
    EXPECT_FALSE(epd->isVisible());
    EXPECT_FALSE(Cargando);
    EXPECT_EQ(Aviso(), "");
    EXPECT_EQ(Tablero[5][4], PeonB);
    EXPECT_EQ(Turno, 2);
    Captura("programa-epd-tras-pgn");
}

} // namespace
