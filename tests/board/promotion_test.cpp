// Promotion through the form: the queen by default, a chosen piece, closing without a choice.
#include "board_fixture.h"

#include "board/coronacion.h"

#include "core/game_state.h"
#include "core/move_list.h"
#include "core/promotion.h"

#include <QPushButton>
#include <QTest>

using namespace Variables;

namespace {
void PosicionCoronacion() {
    LimpiarTablero();
    Tablero[1][7] = PeonB;
    Tablero[5][1] = ReyB;
    Tablero[8][8] = ReyN;
    Tablero[2][2] = PeonN;
    Tablero[3][1] = TorreB;
}
} // namespace

class CoronacionTest : public TableroTest {
protected:
    // Drags `desde` to `hasta`, and on the form clicks box `caja` (0 none) and then the button,
    // or closes the form when `cerrar`.
    void Coronar(QPoint desde, QPoint hasta, int caja, bool cerrar = false) {
        bool visto = false;
        AlAbrirseModal([&](QWidget* w) {
            auto* forma = qobject_cast<qa::Coronacion*>(w);
            ASSERT_NE(forma, nullptr);
            visto = true;
            EXPECT_EQ(::Coronacion::ColorCaja[1], ::Coronacion::ColorElegido);
            if (cerrar) {
                forma->close();
                return;
            }
            if (caja) QTest::mouseClick(forma->PiezaSelec(caja), Qt::LeftButton);
            EXPECT_EQ(::Coronacion::ColorCaja[caja ? caja : 1], ::Coronacion::ColorElegido);
            QTest::mouseClick(forma->Command1(), Qt::LeftButton);
        });
        Arrastrar(desde, {}, hasta);
        EXPECT_TRUE(visto);
    }
    void SetUp() override {
        TableroTest::SetUp();
        PosicionCoronacion();
        pic()->RedibujarTablero();
    }
};

TEST_F(CoronacionTest, ButtonAtOnceGivesAQueen) {
    Coronar(Centro(1, 7), Centro(1, 8), 0);
    EXPECT_EQ(Tablero[1][8], DamaB);
    EXPECT_EQ(Tablero[1][7], 0);
    EXPECT_EQ(EnPantalla(1, 8), Esperada(1, 8, DamaB));
    EXPECT_EQ(Turno, 2);
}

TEST_F(CoronacionTest, ChosenKnightGoesOnTheBoardAndIntoTheList) {
    Coronar(Centro(1, 7), Centro(1, 8), 3);
    EXPECT_EQ(Tablero[1][8], CaballoB);
    EXPECT_EQ(EnPantalla(1, 8), Esperada(1, 8, CaballoB));
    EXPECT_NE(lista->Texto().indexOf("a8=C"), -1) << lista->Texto().toStdString();
}

TEST_F(CoronacionTest, BlackCaptureOnAReversedBoardLandsOnTheTrueSquare) {
    Turno = 2;
    vista->PonerInvertido(true);
    Coronar(Centro(2, 2), Centro(3, 1), 2);
    EXPECT_EQ(Tablero[3][1], TorreN);
    EXPECT_EQ(Tablero[2][2], 0);
    EXPECT_EQ(EnPantalla(3, 1), Esperada(3, 1, TorreN));
    EXPECT_EQ(EnPantalla(2, 2), Esperada(2, 2, 0));
}

TEST_F(CoronacionTest, ClosingWithoutAChoiceLeavesAPawnOnTheLastRow) {
    Coronar(Centro(1, 7), Centro(1, 8), 0, true);
    EXPECT_EQ(Tablero[1][8], PeonB);
    EXPECT_EQ(Jugadas::List1.size(), 1u);
}

TEST_F(CoronacionTest, PointAndClickPromotion) {
    vista->PonerPointClick(true);
    AlAbrirseModal([](QWidget* w) {
        auto* forma = qobject_cast<qa::Coronacion*>(w);
        ASSERT_NE(forma, nullptr);
        QTest::mouseClick(forma->PiezaSelec(4), Qt::LeftButton);
        QTest::mouseClick(forma->Command1(), Qt::LeftButton);
    });
    Clic(1, 7);
    Clic(1, 8);
    EXPECT_EQ(Tablero[1][8], AlfilB);
    EXPECT_EQ(EnPantalla(1, 8), Esperada(1, 8, AlfilB));
    EXPECT_EQ(EnPantalla(1, 7), Esperada(1, 7, 0));
}
