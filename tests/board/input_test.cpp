// The road of a move from the mouse: drag, drop on the origin, leaving the board, clicks.
#include "board_fixture.h"

#include "core/game_state.h"
#include "core/move_list.h"
#include "core/takeback.h"

#include <QTest>

using namespace Variables;

TEST_F(TableroTest, DragE2E4MovesThePieceAndPassesTheTurn) {
    const QImage antes = pic()->Imagen().copy();
    QTest::mousePress(pic(), Qt::LeftButton, {}, Centro(5, 2));
    EXPECT_TRUE(pic()->Arrastrando());
    EXPECT_EQ(Origen, "52");
    // The piece has left its square at once.
    EXPECT_EQ(EnPantalla(5, 2).pixel(2, 2), Esperada(5, 2, 0).pixel(2, 2));
    Mover(Centro(5, 4));
    EXPECT_EQ(pic()->cursor().shape(), Qt::ClosedHandCursor);
    Mover(Centro(5, 5));
    EXPECT_EQ(pic()->cursor().shape(), Qt::ForbiddenCursor);
    Mover(Centro(5, 2));
    EXPECT_EQ(pic()->cursor().shape(), Qt::ClosedHandCursor) << "the origin itself is no refusal";
    Mover(Centro(5, 4));
    QTest::mouseRelease(pic(), Qt::LeftButton, {}, Centro(5, 4));

    EXPECT_FALSE(pic()->Arrastrando());
    EXPECT_EQ(Tablero[5][4], PeonB);
    EXPECT_EQ(Tablero[5][2], 0);
    EXPECT_EQ(Turno, 2);
    EXPECT_TRUE(Origen.empty());
    EXPECT_EQ(Jugadas::List1, std::vector<std::string>{"5254"});
    EXPECT_EQ(EnPantalla(5, 4), Esperada(5, 4, PeonB));
    EXPECT_EQ(EnPantalla(5, 2), Esperada(5, 2, 0));
    EXPECT_EQ(EnPantalla(4, 2), antes.copy(QRect(pic()->Esquina(4, 2), QSize(60, 60))));
    ASSERT_TRUE(pic()->MarcosMostrados());
    EXPECT_EQ(pic()->MarcoEn(0), QPoint(5, 2));
    EXPECT_EQ(pic()->MarcoEn(1), QPoint(5, 4));
    EXPECT_EQ(registro.sonidos, std::vector<int>{3});
}

TEST_F(TableroTest, DropOnTheOriginRestoresTheBoardAndKeepsTheTurn) {
    const QImage antes = pic()->Imagen().copy();
    Arrastrar(Centro(7, 1), {Centro(6, 3), Centro(7, 2)}, Centro(7, 1));
    EXPECT_EQ(pic()->Imagen(), antes);
    EXPECT_EQ(Tablero[7][1], CaballoB);
    EXPECT_EQ(Turno, 1);
    EXPECT_TRUE(Origen.empty());
    EXPECT_TRUE(Jugadas::List1.empty());
}

TEST_F(TableroTest, IllegalDropPutsThePieceBack) {
    const QImage antes = pic()->Imagen().copy();
    Arrastrar(1, 1, 1, 5);
    EXPECT_EQ(pic()->Imagen(), antes);
    EXPECT_EQ(Tablero[1][1], TorreB);
    EXPECT_EQ(Turno, 1);
    EXPECT_TRUE(Origen.empty());
}

TEST_F(TableroTest, LeavingTheBoardCancelsAndComingBackDoesNotResume) {
    const QImage antes = pic()->Imagen().copy();
    QTest::mousePress(pic(), Qt::LeftButton, {}, Centro(4, 2));
    Mover(Centro(4, 3));
    Mover(QPoint(-8, Centro(4, 3).y())); // over the rank numbers, off the picture
    EXPECT_FALSE(pic()->Arrastrando());
    EXPECT_EQ(pic()->Imagen(), antes);
    EXPECT_TRUE(Origen.empty());
    Mover(Centro(4, 4));
    QTest::mouseRelease(pic(), Qt::LeftButton, {}, Centro(4, 4));
    EXPECT_EQ(Tablero[4][2], PeonB);
    EXPECT_EQ(Tablero[4][4], 0);
    EXPECT_EQ(Turno, 1);
    EXPECT_EQ(pic()->Imagen(), antes);
}

TEST_F(TableroTest, WrongColourCannotBePickedUp) {
    Mover(Centro(5, 7));
    EXPECT_EQ(pic()->cursor().shape(), Qt::ArrowCursor);
    Mover(Centro(5, 2));
    EXPECT_EQ(pic()->cursor().shape(), Qt::OpenHandCursor);
    QTest::mousePress(pic(), Qt::LeftButton, {}, Centro(5, 7));
    EXPECT_FALSE(pic()->Arrastrando());
    EXPECT_TRUE(Origen.empty());
    QTest::mouseRelease(pic(), Qt::LeftButton, {}, Centro(5, 5));
    EXPECT_EQ(Tablero[5][7], PeonN);
}

TEST_F(TableroTest, TurnZeroMakesTheBoardDead) {
    Turno = 0;
    Arrastrar(5, 2, 5, 4);
    vista->PonerPointClick(true);
    Clic(5, 2);
    Clic(5, 4);
    EXPECT_EQ(Tablero[5][2], PeonB);
    EXPECT_FALSE(pic()->MarcadorMostrado());
}

TEST_F(TableroTest, PointAndClickSelectsMovesAndDropsTheSelection) {
    vista->PonerPointClick(true);
    Clic(5, 7); // Black's pawn while White is to move
    EXPECT_FALSE(pic()->MarcadorMostrado());
    Clic(5, 2);
    EXPECT_TRUE(pic()->MarcadorMostrado());
    EXPECT_EQ(Origen, "52");
    Mover(Centro(5, 4));
    EXPECT_EQ(pic()->cursor().shape(), Qt::OpenHandCursor);
    Mover(Centro(5, 5));
    EXPECT_EQ(pic()->cursor().shape(), Qt::ForbiddenCursor);
    Clic(5, 2); // the selected piece again: the selection goes
    EXPECT_FALSE(pic()->MarcadorMostrado());
    EXPECT_TRUE(Origen.empty());

    Clic(7, 1);
    Clic(7, 4); // no knight move: dropped, the board never changed
    EXPECT_FALSE(pic()->MarcadorMostrado());
    EXPECT_EQ(Tablero[7][1], CaballoB);

    Clic(7, 1);
    Clic(6, 3);
    EXPECT_EQ(Tablero[6][3], CaballoB);
    EXPECT_EQ(Turno, 2);
    EXPECT_FALSE(pic()->MarcadorMostrado());
    EXPECT_EQ(EnPantalla(6, 3), Esperada(6, 3, CaballoB));
    EXPECT_EQ(EnPantalla(7, 1), Esperada(7, 1, 0));
}

TEST_F(TableroTest, ReversedBoardLowerLeftCornerIsH8) {
    Turno = 2;
    vista->PonerInvertido(true);
    const int borde = 8 * pic()->AltoCasilla - 1;
    QTest::mousePress(pic(), Qt::LeftButton, {}, QPoint(0, borde));
    EXPECT_EQ(Origen, "88");
    EXPECT_EQ(FichaMovida, TorreN);
    QTest::mouseRelease(pic(), Qt::LeftButton, {}, QPoint(0, borde));
    EXPECT_TRUE(Origen.empty());

    vista->PonerPointClick(true);
    QTest::mouseClick(pic(), Qt::LeftButton, {}, QPoint(1, borde));
    EXPECT_EQ(Origen, "88");
    // The picture agrees: Black's h-rook stands in that corner.
    EXPECT_EQ(pic()->Imagen().copy(QRect(0, 7 * 60, 60, 60)), Esperada(8, 8, TorreN));
}

TEST_F(TableroTest, ReversedBoardDragAndCastling) {
    vista->PonerInvertido(true);
    for (auto [c1, f1, c2, f2] : {std::array{5, 2, 5, 4},
                                  {5, 7, 5, 5},
                                  {7, 1, 6, 3},
                                  {2, 8, 3, 6},
                                  {6, 1, 3, 4},
                                  {7, 8, 6, 6}})
        Arrastrar(c1, f1, c2, f2);
    ASSERT_EQ(Jugadas::List1.size(), 6u);
    Arrastrar(5, 1, 7, 1);
    EXPECT_EQ(Tablero[7][1], ReyB);
    EXPECT_EQ(Tablero[6][1], TorreB);
    for (int c = 5; c <= 8; ++c)
        EXPECT_EQ(EnPantalla(c, 1), Esperada(c, 1, Tablero[c][1])) << "column " << c;
    EXPECT_EQ(pic()->MarcoEn(1), QPoint(2, 8)) << "g1 seen from Black's side";
}

TEST_F(TableroTest, EnPassantTakesThePawnOffThePicture) {
    for (auto [c1, f1, c2, f2] :
         {std::array{5, 2, 5, 4}, {1, 7, 1, 6}, {5, 4, 5, 5}, {4, 7, 4, 5}, {5, 5, 4, 6}})
        Arrastrar(c1, f1, c2, f2);
    EXPECT_EQ(Tablero[4][6], PeonB);
    EXPECT_EQ(Tablero[4][5], 0);
    EXPECT_EQ(EnPantalla(4, 5), Esperada(4, 5, 0));
    EXPECT_EQ(EnPantalla(4, 6), Esperada(4, 6, PeonB));
}

TEST_F(TableroTest, TwoPeoplePlayToMateAndTakeBack) {
    Arrastrar(6, 2, 6, 3);
    Arrastrar(5, 7, 5, 5);
    vista->PonerPointClick(true);
    Clic(7, 2);
    Clic(7, 4);
    Clic(4, 8);
    Clic(8, 4);
    EXPECT_EQ(Tablero[8][4], DamaN);
    ASSERT_FALSE(registro.mensajes.empty());
    EXPECT_EQ(registro.mensajes.back().texto, "2");
    EXPECT_EQ(registro.mensajes.back().icono, 64);
    EXPECT_NE(lista->Texto().indexOf("Dh4++"), -1) << lista->Texto().toStdString();

    RetrocesoFuncion();
    EXPECT_EQ(Tablero[4][8], DamaN);
    EXPECT_EQ(EnPantalla(4, 8), Esperada(4, 8, DamaN));
    EXPECT_EQ(EnPantalla(8, 4), Esperada(8, 4, 0));
    EXPECT_FALSE(pic()->MarcosMostrados());
    EXPECT_EQ(lista->Texto().indexOf("Dh4"), -1);
}

TEST_F(TableroTest, JunkCodesAreNeitherDrawnNorPickedUp) {
    Tablero[4][4] = 13;
    Tablero[5][5] = -7;
    pic()->RedibujarTablero();
    EXPECT_EQ(EnPantalla(4, 4), Esperada(4, 4, 0));
    Arrastrar(4, 4, 4, 5);
    vista->PonerPointClick(true);
    Clic(5, 5);
    EXPECT_FALSE(pic()->MarcadorMostrado());
    EXPECT_TRUE(Origen.empty());
    EXPECT_EQ(Turno, 1);
}

TEST_F(TableroTest, ReversedPromotionClosedWithoutAChoiceStaysSafe) {
    LimpiarTablero();
    Tablero[1][7] = PeonB;
    Tablero[5][1] = ReyB;
    Tablero[8][6] = ReyN;
    pic()->RedibujarTablero();
    vista->PonerInvertido(true);
    AlAbrirseModal([](QWidget* w) { w->close(); });
    Arrastrar(1, 7, 1, 8);
    EXPECT_FALSE(pic()->Arrastrando());
    EXPECT_TRUE(Origen.empty());
}
