// The EPD list: which lines it keeps, what the small board shows, and
// opening a position.
#include "core/move_list.h"
#include "files/epd_list.h"
#include "files/fen.h"
#include "files_support.h"

using namespace Variables;

namespace {

const char* kBuena = "4k3/8/8/8/8/8/8/R3K3 w - - 0 1";
const char* kOtra = "rnbqkbnr/pppppppp/8/8/4P3/8/PPPP1PPP/RNBQKBNR b KQkq e3 0 1";

class Epd : public prueba::ConFicheros {};

TEST_F(Epd, FirstLineGoodThenBadOnesDropped) {
    std::string t = std::string(kBuena) + "\n";
    for (int i = 0; i < 9; ++i) t += "not a position\n";
    t += std::string(kOtra) + " bm e5; id \"x\";\r\n";
    ASSERT_TRUE(FEpd::LeerEPD(Escribir("a.epd", t)));
    EXPECT_EQ(FEpd::Eventos.size(), 2u);
    EXPECT_EQ(Mensajes(), "");
    EXPECT_TRUE(Cargando);
    EXPECT_EQ(FEpd::EventosTag, "0");
}

TEST_F(Epd, FirstLineBadGives55) {
    ASSERT_TRUE(FEpd::LeerEPD(Escribir("b.epd", std::string("bad\n") + kBuena + "\n")));
    EXPECT_TRUE(FEpd::Eventos.empty());
    EXPECT_EQ(Mensajes(), "55");
}

TEST_F(Epd, EmptyFileShowsNothing) {
    ASSERT_TRUE(FEpd::LeerEPD(Escribir("c.epd", "")));
    EXPECT_TRUE(FEpd::Eventos.empty());
    EXPECT_EQ(Mensajes(), "");
    EXPECT_FALSE(FEpd::LeerEPD(dir + "/missing.epd"));
}

TEST_F(Epd, BadLinesOfEveryKindAreDropped) {
    std::string binario;
    for (int i = 0; i < 3000; ++i) binario += static_cast<char>((i * 31) % 256);
    const std::string t = std::string(kBuena) + "\n" +
                          "ppppppppp/8/8/8/8/8/8/8 w - - 0 1\n" + // 65 squares
                          std::string(10 << 20, 'p') + " w - -\n" + binario + "\n";
    ASSERT_TRUE(FEpd::LeerEPD(Escribir("d.epd", t)));
    EXPECT_EQ(FEpd::Eventos, (std::vector<std::string>{kBuena}));
}

TEST_F(Epd, ClickShowsThePositionOnce) {
    ASSERT_TRUE(FEpd::LeerEPD(Escribir("e.epd", std::string(kBuena) + "\n" + kOtra + "\n")));
    FEpd::CasillasEpd c{};
    EXPECT_FALSE(FEpd::EventosClick(0, c)); // shown already
    ASSERT_TRUE(FEpd::EventosClick(1, c));
    EXPECT_EQ(c[36], PeonB); // e4: row 4 from the top is index 4*8, column e adds 4
    EXPECT_EQ(c[4], ReyN);
    EXPECT_FALSE(FEpd::EventosClick(1, c));
    EXPECT_FALSE(FEpd::EventosClick(7, c));
}

TEST_F(Epd, DoubleClickOpensTheGame) {
    ASSERT_TRUE(FEpd::LeerEPD(Escribir("f.epd", std::string(kOtra) + "\n")));
    ASSERT_TRUE(FEpd::EventosDblClick(0));
    EXPECT_TRUE(DesdePosicion);
    EXPECT_FALSE(Cargando);
    EXPECT_EQ(Turno, 2);
    EXPECT_EQ(Tablero[5][4], PeonB);
}

TEST_F(Epd, DoubleClickWhileConnectedAsksTheColourAndSendsThePosition) {
    ASSERT_TRUE(FEpd::LeerEPD(Escribir("h.epd", std::string(kOtra) + "\n")));
    Conectado = true;
    entorno.colorRed = 2;
    ASSERT_TRUE(FEpd::EventosDblClick(0));
    EXPECT_EQ(entorno.alRival, (std::vector<std::string>{"PreguntarColor", "EnviarPosicion"}));
    EXPECT_EQ(ColorJugador, "Negras");
    EXPECT_EQ(Turno, 2) << "Black to move, and the player took Black";
    EXPECT_FALSE(Cargando);
    EXPECT_FALSE(FEpd::VistaEpd);
    Conectado = false;
}

TEST_F(Epd, ClosingWithoutOpeningGivesACleanBoard) {
    ASSERT_TRUE(FEpd::LeerEPD(Escribir("g.epd", std::string(kBuena) + "\n")));
    EXPECT_EQ(Tablero[1][1], TorreB);
    FEpd::Cerrar();
    EXPECT_EQ(Tablero[1][2], PeonB);
    EXPECT_FALSE(Cargando);
    EXPECT_FALSE(FEpd::VistaEpd);
}

} // namespace

namespace {

// kokopu's table of positions: the lines with Chess960 castling letters are
// no positions to this reader, the other 14 list and open.
TEST_F(Epd, RealPositionTable) {
    const std::string datos = prueba::DatosReales();
    ASSERT_FALSE(datos.empty())
        << "QA_TEST_DATA not set: run through ctest, which fetches the data";
    ASSERT_TRUE(FEpd::LeerEPD(datos + "/kokopu-fens.epd"));
    ASSERT_EQ(FEpd::Eventos.size(), 14u);
    FEpd::CasillasEpd c{};
    for (int32_t i = 1; i < 14; ++i) EXPECT_TRUE(FEpd::EventosClick(i, c));
    EXPECT_EQ(Mensajes(), "");
}

} // namespace
