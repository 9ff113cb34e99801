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

#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace Variables;

namespace {

class Formularios : public prueba::ConFicheros {
protected:
    QPushButton* Boton(QWidget& w, const QString& texto) {
        for (auto* b : w.findChildren<QPushButton*>())
            if (b->text() == texto) return b;
        return nullptr;
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
    QTRY_COMPARE(TotalPartidas, 2);
    auto* lista = f.findChild<QListView*>("Eventos");
    auto* filas = f.findChild<QListWidget*>("PgnMovimientos");
    ASSERT_TRUE(lista && filas);
    QTRY_COMPARE(filas->count(), 3);
    EXPECT_EQ(lista->model()->rowCount(), 2);
    EXPECT_FALSE(cambios.isEmpty());

    QTest::mouseClick(Boton(f, "|<"), Qt::LeftButton);
    EXPECT_EQ(PosicionPgn, -1);
    QTest::keyClick(filas, Qt::Key_Right);
    EXPECT_EQ(PosicionPgn, 0);
    EXPECT_EQ(Tablero[5][4], PeonB);

    ClicFila(lista, 1);
    QTRY_COMPARE(ListaPgn::Text1[0], std::string("Dos"));
    QTRY_COMPARE(filas->count(), 2);
    EXPECT_EQ(Tablero[4][5], PeonN);

    QSignalSpy cerrado(&f, &qa::ListaPgnF::Cerrado);
    f.close();
    EXPECT_EQ(cerrado.count(), 1);
    EXPECT_EQ(Tablero[4][2], PeonB); // back to the initial position
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
    QTest::mouseClick(Boton(f, "OK"), Qt::LeftButton);
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
