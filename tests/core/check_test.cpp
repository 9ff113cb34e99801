// Verdicts on the opponent after a move: check, mate, stalemate, with the
// gaps of the search that decide real games here.
#include "core/move_filter.h"
#include "test_support.h"

using namespace Variables;

namespace {

struct Caso {
    const char* nombre;
    const char* diagrama;
    int turno;
    const char* jugada;
    bool jaque, mate, ahogado;
};

// jaque/mate/ahogado: the flags the filter leaves for the caller.
const Caso kCasos[] = {
    {"double check with no king square is mate", "6rk/6p1/7N/8/8/8/8/6KR", 1, "h6f7", true, true,
     false},
    {"king takes an unprotected checker", "Q6k/6pp/8/8/8/8/8/6K1", 1, "a8g8", true, false, false},
    {"blocked pawn and no king square is stalemate", "7k/7P/5K2/8/8/8/8/8", 1, "f6g6", false, false,
     true},
    {"a pawn double step cannot block: mate", "8/3p4/1R6/7k/1R6/8/8/R1K5", 1, "a1a5", true, true,
     false},
    {"the capturer is pinned: mate", "6rk/8/4N3/8/3r1R2/8/1B6/1K6", 1, "f4h4", true, true, false},
    {"the capturer is free: no mate", "6rk/8/4N3/8/3r1R2/8/8/1K6", 1, "f4h4", true, false, false},
    {"only a pawn capture left is stalemate", "k7/8/2NK4/3p4/3PP3/8/8/8", 1, "d6c7", false, false,
     true},
    {"a pinned defender may interpose: no mate", "6kr/5bpp/8/8/8/1B6/8/K2R4", 1, "d1d8", true,
     false, false},
    {"discovered check without a king square is mate though blockable",
     "3qkb2/3p1p2/8/4N3/8/8/8/K3R3", 1, "e5c4", true, true, false},
    {"discovered check: a capture of a checker with the moved piece's code saves",
     "3qkb2/3p1p2/8/4R3/8/8/7K/1r2R3", 1, "e5h5", true, false, false},
    {"discovered check: a capture of a checker of another code does not",
     "3qkb2/3p1p2/8/4N3/8/8/7K/1r2R3", 1, "e5c4", true, true, false},
    {"a pinned knight with room is no stalemate", "k1K5/1n6/8/1N6/8/8/8/7B", 1, "c8c7", false,
     false, false},
    {"a block by a rook going west is not seen: mate", "kr6/1p6/8/8/8/7r/4K3/3R4", 1, "d1a1", true,
     true, false},
    {"interposition found but every capture trial fails: mate", "4b1rk/8/4N3/8/3r1R2/8/1B6/1K6", 1,
     "f4h4", true, true, false},
};

class Veredicto : public prueba::Partida, public ::testing::WithParamInterface<Caso> {};

TEST_P(Veredicto, AsThisSystemJudges) {
    const Caso& c = GetParam();
    Colocar(c.diagrama, c.turno);
    // Read the flags as the filter leaves them, before the game end resets them.
    Origen = prueba::Casilla(std::string(c.jugada).substr(0, 2));
    Destino = prueba::Casilla(std::string(c.jugada).substr(2, 2));
    FiltroMovimiento();
    ASSERT_TRUE(MovimientoValido);
    EXPECT_EQ(Jaque, c.jaque);
    EXPECT_EQ(Mate, c.mate);
    EXPECT_EQ(Ahogado, c.ahogado);
}

INSTANTIATE_TEST_SUITE_P(Casos, Veredicto, ::testing::ValuesIn(kCasos), [](const auto& info) {
    std::string n;
    for (const char* p = info.param.nombre; *p; ++p)
        n += std::isalnum(static_cast<unsigned char>(*p)) ? *p : '_';
    return n;
});

class Mates : public prueba::Partida {};

TEST_F(Mates, ScholarsMate) {
    Nueva();
    Jugar({"e2e4", "e7e5", "f1c4", "b8c6", "d1h5", "g8f6"});
    auto r = Mover("h5f7");
    EXPECT_EQ(r.tipo, Respuesta::Legal);
    EXPECT_TRUE(r.jaque);
    EXPECT_TRUE(r.mate);
    EXPECT_EQ(Ultima(3), "4. Qxf7++");
    EXPECT_EQ(Turno, 0);
}

TEST_F(Mates, OwnKingLeftInCheckIsRefused) {
    Colocar("4r1k1/8/8/8/8/8/4B3/4K3");
    EXPECT_FALSE(Probar("e2d3")) << "the bishop is pinned";
    EXPECT_TRUE(Probar("e1d1"));
    EXPECT_FALSE(Probar("e1e2"));
}

TEST_F(Mates, PromotionJudgedTwiceSecondVerdictStands) {
    Colocar("k7/2P5/1K6/8/8/8/8/8");
    auto r = Mover("c7c8", 2); // a rook: mate on the back row
    EXPECT_EQ(r.tipo, Respuesta::Legal);
    EXPECT_TRUE(r.mate);
    Colocar("k7/2P5/1K6/8/8/8/8/8");
    r = Mover("c7c8", 4); // a bishop gives nothing
    EXPECT_FALSE(r.jaque);
}

// The king's escape tries its squares in a fixed order; a failed trial marks
// every empty square the mover reaches, and a marked square is not tried.
// FichaGuardada keeps what stood on the last square really tried.
class Huida : public prueba::Partida {};

TEST_F(Huida, TheFirstSquareTheKingKeepsEndsTheTrials) {
    // h7 is covered by the knight on g5, g7 by the bishop; the knight on g8 can be taken.
    Colocar("6Nk/p6N/7B/6N1/8/8/8/K7");
    const auto r = Mover("a1b1");
    ASSERT_EQ(r.tipo, Respuesta::Legal);
    EXPECT_FALSE(r.jaque);
    EXPECT_FALSE(r.ahogado);
    EXPECT_EQ(FichaGuardada, CaballoB);
    EXPECT_EQ(ReyCol, 8);
    EXPECT_EQ(ReyFila, 8);
}

TEST_F(Huida, AMarkedSquareIsNotTried) {
    // Every trial fails. With the king on h7 the rook on g7 reaches g8, so g8
    // is never tried: the rook of the last real trial stays, not g8's 0.
    Colocar("7k/p5RN/8/8/8/8/B7/K5R1");
    ASSERT_EQ(Mover("a1b1").tipo, Respuesta::Legal);
    EXPECT_EQ(FichaGuardada, TorreB);
}

// What the attack tests see on the board: every king of a code, and codes a
// promotion to any number leaves, which stop rays and attack nothing.
class Ataques : public prueba::Partida {};

TEST_F(Ataques, EveryKingOfTheCodeIsLookedAt) {
    Colocar("k6k/8/8/8/8/8/6R1/K7");
    EXPECT_TRUE(Mover("g2h2").jaque) << "the king on h8, the second of the two";
}

TEST_F(Ataques, ACodeBeyondTwelveIsNoKing) {
    Colocar("1k6/8/8/8/8/8/P7/K7");
    Tablero[3][8] = 256 + ReyB; // a king's code in its last byte, beside Black's king
    const auto r = Mover("a2a3");
    ASSERT_EQ(r.tipo, Respuesta::Legal);
    EXPECT_FALSE(r.jaque);
}

TEST_F(Ataques, ACodeBeyondTwelveStopsARay) {
    Colocar("R6k/8/8/8/8/8/P7/K7");
    EXPECT_TRUE(Mover("a2a3").jaque) << "the rook along the back row";
    Colocar("R6k/8/8/8/8/8/P7/K7");
    Tablero[4][8] = 262;
    const auto r = Mover("a2a3");
    ASSERT_EQ(r.tipo, Respuesta::Legal);
    EXPECT_FALSE(r.jaque);
}

} // namespace
