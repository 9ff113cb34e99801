// The piece rules, castling and en passant as the program plays them,
// odd cases included.
#include "core/move_filter.h"
#include "test_support.h"

using namespace Variables;
using prueba::Casilla;

namespace {

class Filtro : public prueba::Partida {};

TEST_F(Filtro, PawnStepsAndBlocks) {
    Colocar("4k3/8/8/8/8/2n5/1P1P4/4K3");
    EXPECT_TRUE(Probar("b2b4"));
    EXPECT_TRUE(Probar("b2b3"));
    EXPECT_FALSE(Probar("b2c2"));
    Colocar("4k3/8/8/8/3n4/8/3P4/4K3");
    EXPECT_TRUE(Probar("d2d3"));
    EXPECT_FALSE(Probar("d2d4")) << "square ahead of the double step is taken";
    Colocar("4k3/8/8/8/8/3n4/3P4/4K3");
    EXPECT_FALSE(Probar("d2d4")) << "a pawn cannot jump";
    EXPECT_FALSE(Probar("d2d3"));
}

TEST_F(Filtro, TurnAndOwnPieces) {
    Nueva();
    EXPECT_EQ(Mover("e7e5").tipo, Respuesta::Rehusada);
    EXPECT_EQ(Mover("d1d2").tipo, Respuesta::Rehusada);
    EXPECT_EQ(Mover("e2e2").tipo, Respuesta::Rehusada) << "a drop on the origin";
    EXPECT_EQ(Turno, 1);
    Turno = 0;
    EXPECT_EQ(Mover("e2e4").tipo, Respuesta::Ignorada);
    EXPECT_EQ(En("e2"), PeonB);
}

TEST_F(Filtro, EnPassantSurvivesKingMovesAndLooksAtNoPiece) {
    Nueva();
    Jugar({"e2e4", "a7a6", "e4e5", "d7d5", "e1e2", "e8d7"});
    EXPECT_TRUE(AlPasoPosible);
    ASSERT_EQ(Mover("e5d6").tipo, Respuesta::Legal);
    EXPECT_EQ(En("d5"), 0);
    EXPECT_EQ(En("d6"), PeonB);

    // The right is only a column digit and a flag: White's own double step
    // lets a white pawn take towards that column, whatever stands beside it.
    Colocar("4k3/8/8/1P6/8/8/P7/4K3");
    Jugar({"a2a4"});
    Turno = 1;
    EXPECT_TRUE(Probar("b5a6"));
}

TEST_F(Filtro, RefusedEnPassantRepairDependsOnTheMover) {
    // White's capture would expose the king on the fifth row: the pawn taken
    // comes back as a white rook.
    Colocar("8/8/8/K2pP2r/8/8/8/7k");
    AlPasoPosible = true;
    AlPasoCasilla = 45;
    EXPECT_EQ(Mover("e5d6").tipo, Respuesta::Rehusada);
    EXPECT_EQ(En("d5"), TorreB);
    EXPECT_EQ(En("e5"), PeonB);

    Colocar("7K/8/8/8/R2Pp2k/8/8/8", 2);
    AlPasoPosible = true;
    AlPasoCasilla = 44;
    EXPECT_EQ(Mover("e4d3").tipo, Respuesta::Rehusada);
    EXPECT_EQ(En("d4"), PeonB) << "a black capturer gets the white pawn back";
}

TEST_F(Filtro, ProbeOfEnPassantTakesTheVictimOff) {
    Nueva();
    Jugar({"e2e4", "a7a6", "e4e5", "d7d5"});
    EXPECT_TRUE(Probar("e5d6"));
    EXPECT_EQ(En("d5"), 0) << "by design: nothing repairs a probed en passant victim";
}

TEST_F(Filtro, BishopWalkOffTheBoard) {
    Colocar("8/Q7/8/8/8/8/8/k6K");
    EXPECT_TRUE(Probar("a7e8")) << "(1,7) reaches (5,8) when (2,8) is empty";
    EXPECT_TRUE(Probar("a7c8"));
    EXPECT_TRUE(Probar("a7b8"));
    Colocar("1n6/Q7/8/8/8/8/8/k6K");
    EXPECT_FALSE(Probar("a7e8"));

    Colocar("7k/8/8/8/8/8/B7/K7");
    EXPECT_TRUE(Probar("a2d1")) << "downwards one row later: row 0 reads empty";
    EXPECT_TRUE(Probar("a2h1"));
    EXPECT_FALSE(Probar("a2c1"));
    EXPECT_TRUE(Probar("a2b1"));
    Colocar("7k/8/8/8/8/8/B7/KN6");
    EXPECT_FALSE(Probar("a2d1"));
}

TEST_F(Filtro, BishopAndRookPaths) {
    Colocar("4k3/8/8/3p4/8/1B6/8/R3K3");
    EXPECT_TRUE(Probar("b3d5"));
    EXPECT_FALSE(Probar("b3e6"));
    EXPECT_FALSE(Probar("b3b4"));
    EXPECT_TRUE(Probar("a1a8"));
    EXPECT_FALSE(Probar("a1f1"));
    EXPECT_FALSE(Probar("a1b2"));

    // A refused walk still ends the en passant right for this move.
    AlPasoPosible = true;
    Origen = Casilla("a1");
    Destino = Casilla("f1");
    FiltroMovimiento();
    EXPECT_FALSE(MovimientoValido);
    EXPECT_TRUE(AlPasoCaduca);
    MovimientoAnulado();
    EXPECT_FALSE(AlPasoCaduca);
    EXPECT_TRUE(AlPasoPosible);
}

TEST_F(Filtro, CastlingWithoutARookStillMovesOne) {
    Colocar("4k3/8/8/8/8/8/8/4K3");
    ASSERT_EQ(Mover("e1g1").tipo, Respuesta::Legal);
    EXPECT_EQ(En("g1"), ReyB);
    EXPECT_EQ(En("f1"), TorreB);
    EXPECT_EQ(En("h1"), 0);
    EXPECT_TRUE(TorreA1Movida);
    EXPECT_TRUE(TorreH1Movida);
}

TEST_F(Filtro, CastlingAttackTests) {
    Colocar("4k3/8/8/8/8/4n3/8/R3K2R");
    EXPECT_EQ(Mover("e1g1").tipo, Respuesta::Rehusada) << "f1 attacked by the knight";
    EXPECT_EQ(En("e1"), ReyB);
    EXPECT_EQ(En("h1"), TorreB);
    EXPECT_FALSE(TorreH1Movida);

    Colocar("4k3/8/8/8/8/n7/8/R3K2R");
    EXPECT_EQ(Mover("e1c1").tipo, Respuesta::Legal) << "only b1 attacked";
    EXPECT_EQ(En("c1"), ReyB);
    EXPECT_EQ(En("d1"), TorreB);

    Colocar("4k3/8/8/8/8/8/4r3/R3K2R");
    EXPECT_EQ(Mover("e1g1").tipo, Respuesta::Rehusada) << "in check";
    EXPECT_FALSE(EnroqueIntento);
}

TEST_F(Filtro, CastlingRightsAndTestOnlyMode) {
    Colocar("r3k2r/8/8/8/8/8/8/R3K2R");
    TorreH1Movida = true;
    EXPECT_FALSE(Probar("e1g1"));
    EXPECT_TRUE(Probar("e1c1"));
    EXPECT_EQ(Mover("e1g1").tipo, Respuesta::Rehusada);
    EXPECT_EQ(En("e1"), ReyB);
    ASSERT_EQ(Mover("e1c1").tipo, Respuesta::Legal);
    ASSERT_EQ(Mover("e8g8").tipo, Respuesta::Legal);
    EXPECT_EQ(En("f8"), TorreN);
    EXPECT_TRUE(TorreA8Movida && TorreH8Movida);
}

TEST_F(Filtro, KingOnTheFarRowMayStepTwo) {
    Colocar("4K3/8/8/8/8/8/8/k7");
    EXPECT_EQ(Mover("e8g8").tipo, Respuesta::Legal) << "an ordinary move, not castling";
    EXPECT_EQ(En("g8"), ReyB);
    EXPECT_EQ(En("f8"), 0);
    Colocar("K7/8/8/8/8/8/8/4k3", 2);
    EXPECT_EQ(Mover("e1c1").tipo, Respuesta::Legal);
    EXPECT_EQ(En("c1"), ReyN);
}

TEST_F(Filtro, BlackRookSavesTheWhitePair) {
    Nueva();
    Jugar({"a2a4", "a7a5", "a1a3", "a8a6"});
    EXPECT_TRUE(TorreA1Movida);
    EXPECT_TRUE(TorreA8Movida);
    EXPECT_TRUE(DerechosNegras[1]) << "the black pair holds the white a-rook flag";
    EXPECT_FALSE(DerechosNegras[2]);
}

TEST_F(Filtro, PromotionKnownOrChosen) {
    Colocar("3r3k/4P3/8/8/8/8/8/K7");
    auto r = Mover("e7d8", 3);
    ASSERT_EQ(r.tipo, Respuesta::Legal);
    EXPECT_EQ(En("d8"), CaballoB);
    EXPECT_EQ(entorno.coronacionesMostradas, 0);

    Colocar("3r3k/4P3/8/8/8/8/8/K7");
    EXPECT_TRUE(Probar("e7e8"));
    EXPECT_EQ(entorno.coronacionesMostradas, 0) << "never shown under a dragged piece";
    r = Mover("e7d8");
    ASSERT_EQ(r.tipo, Respuesta::Legal);
    EXPECT_EQ(entorno.coronacionesMostradas, 1);
    EXPECT_EQ(En("d8"), DamaB) << "the queen is the default";
    EXPECT_TRUE(r.jaque);

    Colocar("7K/8/8/8/8/8/p7/7k", 2);
    entorno.eleccionCoronacion = 2;
    ASSERT_EQ(Mover("a2a1").tipo, Respuesta::Legal);
    EXPECT_EQ(En("a1"), TorreN);

    // Closed without a choice: the pawn stays a pawn on the last row.
    Colocar("7k/P7/8/8/8/8/8/K7");
    entorno.eleccionCoronacion = -1;
    ASSERT_EQ(Mover("a7a8").tipo, Respuesta::Legal);
    EXPECT_EQ(En("a8"), PeonB);
}

TEST_F(Filtro, PromotionOnAnInvertedBoardLandsOnTheTrueSquare) {
    Colocar("7k/P7/8/8/8/8/8/K7");
    entorno.invertido = true;
    ASSERT_EQ(Mover("a7a8").tipo, Respuesta::Legal);
    EXPECT_EQ(En("a8"), DamaB);
    EXPECT_EQ(En("a7"), 0);
}

} // namespace
