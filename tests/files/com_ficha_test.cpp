// ComFicha reads a move by character positions and plays it through the
// filter: which squares it finds, what it records, and what it refuses.
#include "files/pgn_moves.h"
#include "files/pgn_scanner.h"
#include "files_support.h"

using namespace Variables;

namespace {

struct Caso {
    const char* nombre;
    const char* diagrama; // placement, White to move unless color is 2
    const char* jugada;
    int color;
    const char* entrada; // what PgnJugadas gains; "" nothing
    bool falla;          // FallaPgn and message 52
};

const Caso kCasos[] = {
    {"Pawn push", "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR", "e4", 1, "5254", false},
    {"Pawn single step", "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR", "e3", 1, "5253", false},
    {"Black pawn push", "rnbqkbnr/pppppppp/8/8/4P3/8/PPPP1PPP/RNBQKBNR", "c5", 2, "3735", false},
    {"Check mark after a push", "4k3/8/8/8/8/8/3P4/4K3", "d3+", 1, "4243", false},
    {"Pawn capture", "4k3/8/8/3p4/4P3/8/8/4K3", "exd5", 1, "5445", false},
    {"Knight", "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR", "Nf3", 1, "7163", false},
    {"Lower-case knight letter", "4k3/8/8/8/8/8/8/4K1N1", "nf3", 1, "7163", false},
    {"File letter picks the knight", "4k3/8/8/8/8/5N2/8/1N2K3", "Nbd2", 1, "2142", false},
    {"The other file", "4k3/8/8/8/8/5N2/8/1N2K3", "Nfd2", 1, "6342", false},
    {"Row digit picks the knight", "4k3/8/8/8/8/1N6/8/1N2K3", "N1d2", 1, "2142", false},
    {"Row digit with capture", "4k3/8/8/8/8/1N6/3p4/1N2K3", "N3xd2", 1, "2342", false},
    {"Rook capture behind x", "r3k3/8/8/8/8/8/8/R3K3", "Rxa1", 2, "1811", false},
    {"Queen capture with check", "4k3/7p/8/8/8/3Q4/8/4K3", "Qxh7+", 1, "4387", false},
    {"Pinned knight: the other one", "4r1k1/8/8/8/8/8/2N1N3/4K3", "Nd4", 1, "3244", false},
    {"Bishop, not a b-pawn", "4k3/8/8/8/8/8/8/4KB2", "Bb5", 1, "6125", false},
    {"Promotion with =", "k7/4P3/8/8/8/8/8/4K3", "e8=Q+", 1, "57585", false},
    {"Promotion without =", "k7/4P3/8/8/8/8/8/4K3", "e8N", 1, "57583", false},
    {"Promotion with capture", "k2r4/4P3/8/8/8/8/8/4K3", "exd8=Q", 1, "57485", false},
    {"Capture promotion without =", "k2r4/4P3/8/8/8/8/8/4K3", "exd8R", 1, "57482", false},
    {"Black promotion", "4k3/8/8/8/8/8/4p3/K7", "e1=Q", 2, "525111", false},
    {"King", "4k3/8/8/8/8/8/8/4K3", "Ke2", 1, "5152", false},
    {"King capture", "4k3/8/8/8/8/8/3p4/4K3", "Kxd2", 1, "5142", false},
    {"Short castling", "r3k2r/8/8/8/8/8/8/R3K2R", "O-O", 1, "5171", false},
    {"Short castling with zeros", "r3k2r/8/8/8/8/8/8/R3K2R", "0-0", 1, "5171", false},
    {"Lower-case castling with check", "r3k2r/8/8/8/8/8/8/R3K2R", "o-o+", 1, "5171", false},
    {"Long castling", "r3k2r/8/8/8/8/8/8/R3K2R", "O-O-O", 1, "5131", false},
    {"Black short castling", "r3k2r/8/8/8/8/8/8/R3K2R", "O-O", 2, "5878", false},
    {"Castling with # is not read", "r3k2r/8/8/8/8/8/8/R3K2R", "O-O#", 1, "", false},
    {"Refused pawn move leaves a hole", "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR", "e5", 1, "",
     false},
    {"Refused piece move fails", "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR", "Nf6", 1, "", true},
    {"Refused short castling fails", "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR", "O-O", 1, "",
     true},
    {"Refused long castling is silent", "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR", "O-O-O", 1,
     "", false},
    {"Refused king move is silent", "4k3/8/8/8/8/8/4r3/4K3", "Kf2", 1, "", false},
    {"Unknown text", "4k3/8/8/8/8/8/8/4K3", "Z4", 1, "", false},
    {"Square off the board", "4k3/8/8/8/8/8/8/4K3", "e9", 1, "", false},
    {"Piece square off the board", "4k3/8/8/8/8/8/8/4KB2", "Bz9", 1, "", true},
};

void PrintTo(const Caso& c, std::ostream* os) {
    *os << c.jugada;
}

class LeerJugada : public prueba::ConFicheros, public ::testing::WithParamInterface<Caso> {};

TEST_P(LeerJugada, FindsSquaresAndRecords) {
    const Caso& c = GetParam();
    Colocar(c.diagrama, 0);
    ComFicha(c.jugada, c.color);
    const std::string entrada = ListaPgn::PgnJugadas.empty() ? "" : ListaPgn::PgnJugadas.back();
    EXPECT_EQ(entrada, c.entrada);
    EXPECT_EQ(FallaPgn, c.falla);
    EXPECT_EQ(Mensajes(), c.falla ? std::string("52 ") + c.jugada : "");
}

INSTANTIATE_TEST_SUITE_P(Casos, LeerJugada, ::testing::ValuesIn(kCasos), [](const auto& info) {
    std::string n;
    for (const char* p = info.param.nombre; *p; ++p)
        if (std::isalnum(static_cast<unsigned char>(*p))) n += *p;
    return n;
});

class Lectura : public prueba::ConFicheros {};

TEST_F(Lectura, EnPassantCaptureClearsTheVictim) {
    Nueva();
    Jugar({"e2e4", "a7a6", "e4e5", "d7d5"});
    Turno = 0;
    ComFicha("exd6", 1);
    ASSERT_EQ(ListaPgn::PgnJugadas.size(), 1u);
    EXPECT_EQ(ListaPgn::PgnJugadas[0], "5546");
    EXPECT_EQ(En("d5"), 0);
    EXPECT_EQ(En("d6"), PeonB);
    EXPECT_FALSE(AlPasoPosible);
}

TEST_F(Lectura, PieceMoveLeavesNobodyToMove) {
    Colocar("4k3/8/8/8/8/8/8/4K1N1", 0);
    ComFicha("Nf3", 1);
    EXPECT_EQ(Turno, 0);
    EXPECT_TRUE(Origen.empty()); // the per-move state is cleared after each move
}

} // namespace
