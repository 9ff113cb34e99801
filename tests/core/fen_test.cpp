// Positions as text lines, with our castling letters.
#include "core/move_list.h"
#include "core/takeback.h"
#include "files/fen.h"
#include "test_support.h"

using namespace Variables;

namespace {

class Fen : public prueba::Partida {};

TEST_F(Fen, StartPosition) {
    Nueva();
    EscribirFen();
    EXPECT_EQ(TextoFen, "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR w KQkq - 0 1");
}

TEST_F(Fen, SideRightsAndEnPassantFields) {
    Nueva();
    Jugar({"e2e4"});
    EscribirFen();
    EXPECT_EQ(TextoFen, "rnbqkbnr/pppppppp/8/8/4P3/8/PPPP1PPP/RNBQKBNR b KQkq e3 0 1");
    TorreA1Movida = TorreH1Movida = true;
    EscribirFen();
    EXPECT_NE(TextoFen.find(" b KQ e3 "), std::string::npos) << "upper case is Black's rooks";
    TorreA8Movida = TorreH8Movida = true;
    AlPasoPosible = false;
    EscribirFen();
    EXPECT_NE(TextoFen.find(" b  - 0 1"), std::string::npos) << "no rights: two blanks, no hyphen";
    Turno = 0;
    MedioTurno = false;
    EscribirFen();
    EXPECT_NE(TextoFen.find(" w  -"), std::string::npos) << "nobody to move: by the half-move";
}

TEST_F(Fen, ReadingRefusesBadLines) {
    Nueva();
    const std::string antes = "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR";
    for (const char* l : {"8/8/8 w", "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR x KQkq -",
                          "rnbqkbnr/pppppppp/9/8/8/8/PPPPPPPP/RNBQKBNR w KQkq -",
                          "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNRP w KQkq -",
                          "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBN w KQkq -",
                          "99999999999999999999999999999999999k w - -", ""}) {
        EXPECT_FALSE(LeerFen(l)) << l;
        EscribirFen();
        EXPECT_EQ(TextoFen.substr(0, antes.size()), antes) << l;
    }
}

TEST_F(Fen, ReadingSetsTheState) {
    TorreA1Movida = TorreH1Movida = TorreA8Movida = TorreH8Movida = true;
    ASSERT_TRUE(LeerFen("4k3/8/8/3pP3/8/8/8/R3K2R B k d6 5 40"));
    EXPECT_EQ(ColorInicio, 2);
    EXPECT_FALSE(TorreA1Movida) << "k is White's a-rook";
    EXPECT_TRUE(TorreH1Movida && TorreA8Movida && TorreH8Movida);
    EXPECT_TRUE(AlPasoPosible);
    EXPECT_EQ(AlPasoCasilla, 45);
    EXPECT_EQ(AlPasoFen, "d6");
    EXPECT_EQ(En("a1"), TorreB);
    EXPECT_EQ(En("d5"), PeonN);

    ASSERT_TRUE(LeerFen("4k3/8/8/8/8/8/8/4K3 w - e4"));
    EXPECT_FALSE(AlPasoPosible) << "only rows 3 and 6 name a right";
    EXPECT_EQ(AlPasoCasilla, 0);

    TorreA1Movida = TorreH1Movida = TorreA8Movida = TorreH8Movida = true;
    EXPECT_FALSE(LeerFen("4k3/8/8/8/8/8/8/4K3 b Kx -"));
    EXPECT_FALSE(TorreA8Movida) << "flags already cleared when the field is refused";
    EXPECT_EQ(ColorInicio, 2);
    EXPECT_EQ(En("e1"), ReyB) << "the board of the last line read stands";
}

TEST_F(Fen, OpeningAPositionWithBlackToMove) {
    PosicionFen = "4k3/8/8/8/8/8/4P3/4K3 b - - 0 1";
    ASSERT_TRUE(AbrirEpd());
    EXPECT_EQ(Turno, 2);
    EXPECT_EQ(ColorJugador, "Negras");
    EXPECT_TRUE(DesdePosicion);
    EXPECT_TRUE(TorreA1Movida && TorreH1Movida && TorreA8Movida && TorreH8Movida);
    EXPECT_TRUE(Jugadas::List1.empty()) << "the empty line for White has no undo record";
    Jugar({"e8d7"});
    EXPECT_EQ(Jugadas::Lineas(3), (std::vector<std::string>{"1. ", std::string(18, ' ') + "Kd7"}));
}

TEST_F(Fen, TakeBackToTheFirstPositionGivesTheRightBack) {
    PosicionFen = "4k3/8/8/3pP3/8/8/8/4K3 w - d6 0 1";
    ASSERT_TRUE(AbrirEpd());
    Jugar({"e1e2"});
    EXPECT_FALSE(AlPasoPosible) << "a right read from a line lasts one move";
    RetrocesoFuncion();
    EXPECT_TRUE(AlPasoPosible);
    EXPECT_EQ(AlPasoCasilla, 45);
    EXPECT_EQ(Turno, 1);
}

} // namespace
