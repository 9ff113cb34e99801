// The browsers as a person uses them, offscreen: list, buttons, keys,
// the tag dialog and the EPD list, with the real widgets.
#include "core/game_state.h"
#include "files/epd_list.h"
#include "files/game_file.h"
#include "files/gui/epd_form.h"
#include "files/gui/lista_pgn_form.h"
#include "files/pgn_browser.h"
#include "files/pgn_scanner.h"
#include "files_support.h"
#include "language/idioma.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace Variables;

namespace {

class Formularios : public prueba::ConFicheros {
protected:
    QPushButton* Boton(QWidget& w, const char* nombre) { return w.findChild<QPushButton*>(nombre); }
    // The game list's rows as shown.
    static QStringList Filas(QListView* v) {
        QStringList filas;
        for (int i = 0; i < v->model()->rowCount(); ++i)
            filas << v->model()->index(i, 0).data().toString();
        return filas;
    }
    static QStringList Rotulos(QWidget& w) {
        QStringList r;
        for (auto* l : w.findChildren<QLabel*>()) r << l->text();
        return r;
    }
    static bool Llega(const std::function<bool()>& condicion) {
        return QTest::qWaitFor(condicion, 5000);
    }
    // The language file as the program reads it, and every form told of it.
    static void Idioma(const char* fichero, QWidget& forma) {
        qa::FicheroIdioma = std::string(QA_DATOS) + "/" + fichero;
        ASSERT_TRUE(qa::LeerTextosIdioma());
        QEvent cambio(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&forma, &cambio);
    }
    void ClicFila(QListView* v, int fila, bool doble = false) {
        const QRect r = v->visualRect(v->model()->index(fila, 0));
        QTest::mouseClick(v->viewport(), Qt::LeftButton, {}, r.center());
        if (doble) QTest::mouseDClick(v->viewport(), Qt::LeftButton, {}, r.center());
    }
};

const char* kDos = "[Event \"Uno\"]\n[White \"A\"]\n\n1. e4 e5 2. Nf3 *\n\n"
                   "[Event \"Dos\"]\n[White \"B\"]\n\n1. d4 d5 *\n";

TEST_F(Formularios, BrowserListsStepsAndChooses) {
    entorno.listaPgnVisible = true;
    qa::ListaPgnF f;
    QSignalSpy cambios(&f, &qa::ListaPgnF::TableroCambiado);
    f.Abrir(QString::fromStdString(Escribir("dos.pgn", kDos)));
    ASSERT_TRUE(QTest::qWaitFor([&] { return TotalPartidas == 2; })) << "TotalPartidas";
    auto* lista = f.findChild<QListView*>("Eventos");
    auto* filas = f.findChild<QListView*>("PgnMovimientos");
    ASSERT_TRUE(lista && filas);
    ASSERT_TRUE(QTest::qWaitFor([&] { return filas->model()->rowCount() == 3; }))
        << "filas->model()->rowCount()";
    EXPECT_EQ(lista->model()->rowCount(), 2);
    EXPECT_FALSE(cambios.isEmpty());

    QTest::mouseClick(Boton(f, "Command1_1"), Qt::LeftButton);
    EXPECT_EQ(PosicionPgn, -1);
    QTest::keyClick(filas, Qt::Key_Right);
    EXPECT_EQ(PosicionPgn, 0);
    EXPECT_EQ(Tablero[5][4], PeonB);

    ClicFila(lista, 1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return ListaPgn::Text1[0] == std::string("Dos"); }))
        << "ListaPgn::Text1[0]";
    ASSERT_TRUE(QTest::qWaitFor([&] { return filas->model()->rowCount() == 2; }))
        << "filas->model()->rowCount()";
    EXPECT_EQ(Tablero[4][5], PeonN);

    QSignalSpy cerrado(&f, &qa::ListaPgnF::Cerrado);
    f.close();
    EXPECT_EQ(cerrado.count(), 1);
    EXPECT_EQ(Tablero[4][2], PeonB); // back to the initial position
}

const char* kTres = "[Event \"Uno\"]\n[White \"A\"]\n\n1. e4 e5 *\n\n"
                    "[Event \"Dos\"]\n[White \"B\"]\n\n1. d4 d5 *\n\n"
                    "[Event \"Tres\"]\n[White \"C\"]\n\n1. c4 *\n";

TEST_F(Formularios, BrowserListsTheTagItSaysAfterEveryChange) {
    entorno.listaPgnVisible = true;
    qa::ListaPgnF f;
    f.Abrir(QString::fromStdString(Escribir("tres.pgn", kTres)));
    ASSERT_TRUE(Llega([&] { return TotalPartidas == 3; }));
    auto* lista = f.findChild<QListView*>("Eventos");
    auto* buscar = f.findChild<QComboBox*>("Buscar");
    ASSERT_TRUE(lista && buscar);
    ASSERT_TRUE(Llega([&] { return Filas(lista) == QStringList{"Uno", "Dos", "Tres"}; }));
    for (auto [indice, filas] : {std::pair{4, QStringList{"A", "B", "C"}},
                                 std::pair{0, QStringList{"Uno", "Dos", "Tres"}}}) {
        // The view repaints only the rows it is told of: the whole list is new.
        QSignalSpy nueva(lista->model(), &QAbstractItemModel::modelReset);
        buscar->setCurrentIndex(indice);
        emit buscar->activated(indice);
        ASSERT_TRUE(Llega([&] { return Filas(lista) == filas; }));
        EXPECT_GE(nueva.count(), 1);
    }
}

TEST_F(Formularios, KeysInTheGameListChooseTheGameAsTheMouseDoes) {
    entorno.listaPgnVisible = true;
    qa::ListaPgnF f;
    f.Abrir(QString::fromStdString(Escribir("tres.pgn", kTres)));
    auto* lista = f.findChild<QListView*>("Eventos");
    auto* filas = f.findChild<QListView*>("PgnMovimientos");
    ASSERT_TRUE(lista && filas);
    ASSERT_TRUE(Llega([&] { return ListaPgn::Text1[0] == std::string("Uno"); }));
    lista->setFocus();
    const std::pair<Qt::Key, const char*> teclas[] = {
        {Qt::Key_Down, "Dos"}, {Qt::Key_End, "Tres"},      {Qt::Key_Up, "Dos"},
        {Qt::Key_Home, "Uno"}, {Qt::Key_PageDown, "Tres"}, {Qt::Key_PageUp, "Uno"}};
    for (const auto& [tecla, evento] : teclas) {
        QTest::keyClick(lista, tecla);
        ASSERT_TRUE(Llega([&] { return ListaPgn::Text1[0] == std::string(evento); }));
        // "Partida: N" on the form, N the game's place in the list.
        const QString posicion = QString::fromStdString(ListaPgn::Label2);
        EXPECT_TRUE(posicion.endsWith(" " + QString::number(lista->currentIndex().row() + 1)))
            << evento;
        EXPECT_TRUE(Rotulos(f).contains(posicion)) << evento;
    }
    // The last game chosen is the one on the board and in the move list.
    ASSERT_TRUE(Llega([&] { return filas->model()->rowCount() == 2; }));
    EXPECT_EQ(Tablero[5][4], PeonB);
    EXPECT_EQ(Tablero[5][5], PeonN);
}

TEST_F(Formularios, BrowserTextsComeFromTheLanguageFile) {
    qa::ListaPgnF f;
    for (const char* fichero : {"Español.lng", "English.lng"}) {
        Idioma(fichero, f);
        const QStringList r = Rotulos(f);
        for (const char* k : {"1", "2", "3", "4", "5", "6", "7", "8", "9"})
            EXPECT_TRUE(r.contains(QString::fromStdString(qa::Texto("Pgn", k)))) << fichero << k;
        auto* buscar = f.findChild<QComboBox*>("Buscar");
        EXPECT_EQ(buscar->itemText(4).toStdString(), qa::Texto("Pgn", "5"));
        EXPECT_EQ(Boton(f, "Guardar")->text().toStdString(), qa::Texto("Botones", "Guardar"));
        EXPECT_EQ(Boton(f, "Cancelar")->text().toStdString(), qa::Texto("Botones", "Cancelar"));
        EXPECT_EQ(ListaPgn::Label2.rfind(qa::Texto("Pgn", "13"), 0), 0u) << ListaPgn::Label2;
        f.Abrir(QString::fromStdString(Escribir("tres.pgn", kTres)));
        ASSERT_TRUE(Llega([&] { return TotalPartidas == 3; }));
        for (const char* k : {"18", "19", "20", "21"})
            EXPECT_EQ(
                Boton(f, (std::string("Command1_") + std::to_string(std::stoi(k) - 17)).c_str())
                    ->toolTip()
                    .toStdString(),
                qa::Texto("Tips", k));
        QPushButton* auto5 = Boton(f, "Command1_5");
        EXPECT_EQ(auto5->toolTip().toStdString(), qa::Texto("Tips", "22"));
        EXPECT_TRUE(auto5->text().isEmpty());
        QTest::mouseClick(auto5, Qt::LeftButton);
        EXPECT_EQ(auto5->toolTip().toStdString(), qa::Texto("Tips", "23"));
        QTest::mouseClick(auto5, Qt::LeftButton);
        f.close();
    }
}

TEST_F(Formularios, TagDialogWritesTheSave) {
    Nueva();
    Jugar({"e2e4"});
    const std::string ruta = dir + "/dialogo.pgn";
    ASSERT_EQ(GuardarPartida(ruta), Guardado::Etiquetas);
    qa::ListaPgnF f;
    f.AbrirComoDialogo();
    auto* blancas = f.findChild<QLineEdit*>("Text1_4");
    ASSERT_TRUE(blancas);
    blancas->setText("Ana");
    QSignalSpy guardado(&f, &qa::ListaPgnF::Guardado);
    QTest::mouseClick(Boton(f, "Guardar"), Qt::LeftButton);
    ASSERT_EQ(guardado.count(), 1);
    EXPECT_TRUE(guardado[0][0].toBool());
    EXPECT_NE(Leer(ruta).find("[White \"Ana\"]\r\n"), std::string::npos);
    EXPECT_NE(Leer(ruta).find("1. e4 *"), std::string::npos);
}

TEST_F(Formularios, EpdListShowsAndOpens) {
    const std::string t = "4k3/8/8/8/8/8/8/R3K3 w - - 0 1\n"
                          "rnbqkbnr/pppppppp/8/8/4P3/8/PPPP1PPP/RNBQKBNR b KQkq e3 0 1\n";
    qa::EpdF f;
    f.Abrir(QString::fromStdString(Escribir("p.epd", t)));
    auto* lista = f.findChild<QListView*>("Eventos");
    ASSERT_TRUE(lista);
    EXPECT_EQ(lista->model()->rowCount(), 2);
    QSignalSpy abierta(&f, &qa::EpdF::PosicionAbierta);
    ClicFila(lista, 1, true);
    EXPECT_EQ(abierta.count(), 1);
    EXPECT_TRUE(DesdePosicion);
    EXPECT_EQ(Turno, 2);
}

} // namespace
