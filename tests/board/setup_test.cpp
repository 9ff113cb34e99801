// Building a position by hand and starting a game from it.
#include "board_fixture.h"

#include "board/estado_set.h"
#include "board/set_tablero.h"

#include "core/game_state.h"
#include "core/move_list.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace Variables;

class SetTest : public TableroTest {
protected:
    void SetUp() override {
        TableroTest::SetUp();
        set = std::make_unique<qa::SetTableroF>(*pic());
        set->show();
        ASSERT_TRUE(EditandoTablero);
    }
    void TearDown() override {
        set.reset();
        qa::FichaSet = 0;
        qa::CasillaSet.clear();
        TableroTest::TearDown();
    }
    void Paleta(int codigo) {
        for (int i = 0; i < 10; ++i)
            if (set->Picture1(i)->Valor() == codigo)
                QTest::mouseClick(set->Picture1(i), Qt::LeftButton);
        ASSERT_EQ(qa::FichaSet, codigo);
    }
    std::unique_ptr<qa::SetTableroF> set;
};

TEST_F(SetTest, PlaceRemoveAndMoveTheKings) {
    QTest::mouseClick(set->Command[2], Qt::LeftButton);
    int piezas = 0;
    for (int c = 1; c <= 8; ++c)
        for (int f = 1; f <= 8; ++f) piezas += Tablero[c][f] != 0;
    EXPECT_EQ(piezas, 2);
    EXPECT_EQ(Tablero[5][1], ReyB);
    EXPECT_EQ(Tablero[5][8], ReyN);

    Paleta(DamaB);
    Clic(4, 4);
    EXPECT_EQ(Tablero[4][4], DamaB);
    EXPECT_EQ(EnPantalla(4, 4), Esperada(4, 4, DamaB));
    Clic(4, 4, Qt::RightButton);
    EXPECT_EQ(Tablero[4][4], 0);
    EXPECT_EQ(EnPantalla(4, 4), Esperada(4, 4, 0));

    Clic(5, 8, Qt::RightButton); // a king cannot be removed
    EXPECT_EQ(Tablero[5][8], ReyN);
    EXPECT_FALSE(pic()->ReyMarcado());

    Clic(5, 1);
    EXPECT_TRUE(pic()->ReyMarcado());
    EXPECT_EQ(qa::CasillaSet, "51");
    Clic(7, 1);
    EXPECT_EQ(Tablero[7][1], ReyB);
    EXPECT_EQ(Tablero[5][1], 0);
    EXPECT_FALSE(pic()->ReyMarcado());
    EXPECT_EQ(EnPantalla(7, 1), Esperada(7, 1, ReyB));
    EXPECT_TRUE(Jugadas::List1.empty()) << "no move was made";
}

TEST_F(SetTest, AcceptStartsAGameFromThePosition) {
    QTest::mouseClick(set->Command[2], Qt::LeftButton);
    Paleta(PeonB);
    Clic(5, 4);
    Paleta(PeonN);
    Clic(4, 4);
    set->Option2->setChecked(true);
    QTest::mouseClick(set->Check[5], Qt::LeftButton);
    EXPECT_TRUE(set->Text1->isEnabled());
    QTest::keyClicks(set->Text1, "x9e3z");
    EXPECT_EQ(set->Text1->text(), "e3") << "letter first, then 3 or 6";
    QTest::mouseClick(set->Command[3], Qt::LeftButton);

    EXPECT_FALSE(EditandoTablero);
    EXPECT_FALSE(set->isVisible());
    EXPECT_EQ(Turno, 2);
    EXPECT_TRUE(DesdePosicion);
    EXPECT_TRUE(TorreA1Movida && TorreH1Movida && TorreA8Movida && TorreH8Movida);
    EXPECT_EQ(AlPasoCasilla, 54);
    EXPECT_TRUE(AlPasoPosible);

    Arrastrar(4, 4, 5, 3); // d4xe3 en passant
    EXPECT_EQ(Tablero[5][3], PeonN);
    EXPECT_EQ(Tablero[5][4], 0);
    EXPECT_EQ(EnPantalla(5, 4), Esperada(5, 4, 0));
}

TEST_F(SetTest, EnPassantWithoutThePawnIsSilentlyNotAllowed) {
    AlPasoPosible = false;
    AlPasoCasilla = 0;
    set->Option2->setChecked(true);
    set->Check[5]->setChecked(true);
    set->Text1->setText("e3");
    QTest::mouseClick(set->Command[3], Qt::LeftButton);
    EXPECT_FALSE(AlPasoPosible);
    EXPECT_TRUE(registro.mensajes.empty());
}

TEST_F(SetTest, StartPositionKeepsCastlingWhenTheBoxesAreTicked) {
    QTest::mouseClick(set->Command[2], Qt::LeftButton);
    QTest::mouseClick(set->Command[1], Qt::LeftButton);
    EXPECT_EQ(Tablero[4][1], DamaB);
    for (int i = 1; i <= 4; ++i) EXPECT_FALSE(set->Check[i]->isChecked());
    set->Check[1]->setChecked(true);
    QTest::mouseClick(set->Command[3], Qt::LeftButton);
    EXPECT_FALSE(TorreH1Movida);
    EXPECT_TRUE(TorreA1Movida);
    EXPECT_EQ(Turno, 1);
}

TEST_F(SetTest, CancelPutsTheStartPositionBackWithNoGame) {
    QTest::mouseClick(set->Command[2], Qt::LeftButton);
    QTest::mouseClick(set->Command[4], Qt::LeftButton);
    EXPECT_EQ(Tablero[4][8], DamaN);
    EXPECT_EQ(Turno, 0);
    EXPECT_FALSE(DesdePosicion);
    EXPECT_FALSE(EditandoTablero);
    EXPECT_EQ(EnPantalla(4, 8), Esperada(4, 8, DamaN));
}
