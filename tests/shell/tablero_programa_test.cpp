// The whole program with its board: a game for two people started from the menu and played
// to mate with real mouse drags on the board form.
#include "prueba_programa.h"

#include "board/lista_jugadas.h"
#include "board/vista_tablero.h"
#include "core/game_state.h"
#include "core/move_list.h"
#include "shell/arranque.h"
#include "shell/formularios.h"
#include "shell/idioma.h"
#include "shell/jugadas.h"
#include "shell/mdi.h"
#include "shell/quintarena.h"
#include "shell/tablero_programa.h"

#include <QAction>
#include <QTest>
#include <cstdlib>
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
        InstalarTablero();
        ASSERT_TRUE(Main({"quintarena"}));
        vista = qobject_cast<VistaTablero*>(Forms().quintarena->PicBuffer());
        ASSERT_NE(vista, nullptr);
        ASSERT_TRUE(prueba::Esperar([&] { return vista->isVisible(); }));
    }
    void TearDown() override {
        if (Forms().mdi) Forms().mdi->close();
        RestablecerTodo();
    }
    QPoint Centro(const char* casilla) const {
        PicBuffer* p = vista->Picture();
        const auto [c, f] = p->Convertir(casilla[0] - 'a' + 1, casilla[1] - '0');
        return p->Esquina(c, f) + QPoint(p->AnchoCasilla / 2, p->AltoCasilla / 2);
    }
    void Arrastrar(const char* jugada) {
        PicBuffer* p = vista->Picture();
        const QPoint a = Centro(jugada), b = Centro(jugada + 2);
        QTest::mousePress(p, Qt::LeftButton, {}, a);
        QTest::mouseMove(p, (a + b) / 2);
        QTest::mouseMove(p, b);
        QTest::mouseRelease(p, Qt::LeftButton, {}, b);
    }
    // With QA_CAPTURAS naming a folder, the main window is saved there as a picture.
    static void Captura(const char* nombre) {
        if (const char* d = std::getenv("QA_CAPTURAS"))
            Forms().mdi->grab().save(QString::fromUtf8(d) + "/" + nombre + ".png");
    }
    std::string Lista() const { return Forms().jugadas->Lista()->toPlainText().toStdString(); }
};

TEST_F(ProgramaConTablero, FoolsMateFromTheMenuToTheMessage) {
    EXPECT_EQ(Tablero[5][2], PeonB) << "the pieces stand from the start";
    EXPECT_EQ(Turno, 0);
    Arrastrar("e2e4");
    EXPECT_EQ(Tablero[5][4], 0) << "nobody moves before a game begins";

    Entrada("mnuNuevaPartida")->trigger();
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

    Marcar("mnuCordenadas", true);
    Forms().mdi->Comando("mnuCordenadas");
    EXPECT_NE(Lista().find("D8-H4"), std::string::npos) << Lista();
}

TEST_F(ProgramaConTablero, ReversedBoardFromTheMenuTakesTheMouseTheOtherWay) {
    Entrada("mnuNuevaPartida")->trigger();
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
    Entrada("mnuNuevaPartida")->trigger();
    Entrada("mnuPointClick")->trigger();
    ASSERT_TRUE(Marcada("mnuPointClick"));
    PicBuffer* p = vista->Picture();
    QTest::mouseClick(p, Qt::LeftButton, {}, Centro("g1"));
    QTest::mouseClick(p, Qt::LeftButton, {}, Centro("f3"));
    EXPECT_EQ(Tablero[6][3], CaballoB);
    Entrada("mnuPointClick")->trigger();
}

} // namespace
