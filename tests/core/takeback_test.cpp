// Take-back reads the last undo record back onto the board.
#include "core/move_list.h"
#include "core/takeback.h"
#include "test_support.h"

using namespace Variables;

namespace {

class Retroceso : public prueba::Partida {
protected:
    void Atras() { RetrocesoFuncion(); }
};

TEST_F(Retroceso, PawnStepComesBackAndTheRightStays) {
    Nueva();
    Jugar({"e2e4"});
    Atras();
    EXPECT_EQ(En("e2"), PeonB);
    EXPECT_EQ(En("e4"), 0);
    EXPECT_EQ(Turno, 1);
    EXPECT_TRUE(Jugadas::List[3].empty());
    EXPECT_TRUE(Jugadas::List[1].empty());
    EXPECT_TRUE(Jugadas::List1.empty());
    EXPECT_TRUE(AlPasoPosible) << "the double step's right survives";
    EXPECT_EQ(NumeroJugada, 0);
    EXPECT_FALSE(Retrocediendo);
}

TEST_F(Retroceso, OnlyTheLastLineLeavesEachList) {
    Nueva();
    Jugar({"e2e4", "e7e5", "g1f3"});
    Atras();
    EXPECT_EQ(Jugadas::List[3], "1. e4\r\n" + std::string(18, ' ') + "e5\r\n");
    EXPECT_EQ(Jugadas::List[4], "5254\r\n5755\r\n");
    EXPECT_EQ(NumeroJugada, 1);
    EXPECT_FALSE(MedioTurno) << "White's half-move is next to be written again";
    Atras();
    EXPECT_EQ(Jugadas::List[3], "1. e4\r\n");
    EXPECT_EQ(NumeroJugada, 1);
    EXPECT_TRUE(MedioTurno);
    EXPECT_EQ(Turno, 2);
}

TEST_F(Retroceso, CaptureRestoresTheVictimExactly) {
    Nueva();
    Jugar({"e2e4", "d7d5", "e4d5", "d8d5"});
    Atras();
    EXPECT_EQ(En("d5"), PeonB);
    EXPECT_EQ(En("d8"), DamaN);
    Atras();
    EXPECT_EQ(En("d5"), PeonN);
    EXPECT_EQ(En("e4"), PeonB);
}

TEST_F(Retroceso, CastlingRestoresRookAndRights) {
    Colocar("4k3/8/8/8/8/8/8/R3K2R");
    Jugar({"e1g1"});
    Atras();
    EXPECT_EQ(En("e1"), ReyB);
    EXPECT_EQ(En("h1"), TorreB);
    EXPECT_EQ(En("f1"), 0);
    EXPECT_EQ(En("g1"), 0);
    EXPECT_FALSE(TorreA1Movida);
    EXPECT_FALSE(TorreH1Movida);
    Jugar({"e1c1"});
    Atras();
    EXPECT_EQ(En("a1"), TorreB);
    EXPECT_EQ(En("d1"), 0);
}

TEST_F(Retroceso, PromotionGivesBackAPawnAndTheVictim) {
    Colocar("3r3k/4P3/8/8/8/8/8/K7");
    Jugar({"e7d8"});
    Atras();
    EXPECT_EQ(En("e7"), PeonB);
    EXPECT_EQ(En("d8"), TorreN);
    EXPECT_EQ(Turno, 1);
}

TEST_F(Retroceso, EnPassantPutsThePawnAndTheRightBack) {
    Nueva();
    Jugar({"e2e4", "a7a6", "e4e5", "d7d5", "e5d6"});
    EXPECT_FALSE(AlPasoPosible);
    Atras();
    EXPECT_EQ(En("e5"), PeonB);
    EXPECT_EQ(En("d5"), PeonN);
    EXPECT_EQ(En("d6"), 0);
    EXPECT_TRUE(AlPasoPosible);
    EXPECT_EQ(AlPasoCasilla, 45);
}

TEST_F(Retroceso, RookMoveKeepsItsFlag) {
    Nueva();
    Jugar({"a2a4", "e7e5", "a1a2"});
    Atras();
    EXPECT_EQ(En("a1"), TorreB);
    EXPECT_TRUE(TorreA1Movida) << "rook records carry no rights";
}

TEST_F(Retroceso, EmptyListStillTurnsTheTurnOver) {
    Nueva();
    Atras();
    EXPECT_EQ(Turno, 2);
    Jugadas::List1.push_back("0000");
    Atras();
    EXPECT_EQ(Turno, 2) << "0000 means nothing to undo";
    EXPECT_TRUE(Retrocediendo);
}

} // namespace
