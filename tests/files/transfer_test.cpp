// What the game files tell the peer while connected, line by line as the file has it, and how a
// game file or a position opened over the PGN browser puts the browser away.
#include "core/move_list.h"
#include "files/epd_list.h"
#include "files/fen.h"
#include "files/pgn_scanner.h"
#include "files/qtr_replay.h"
#include "files_support.h"

using namespace Variables;
using Llamadas = std::vector<std::string>;

namespace {

const char* kPosicion = "4k3/8/8/8/8/8/8/R3K3 w - - 0 1";

class Transferencia : public prueba::ConFicheros {
protected:
    bool Hubo(const std::string& llamada) const {
        for (const auto& l : entorno.llamadas)
            if (l == llamada) return true;
        return false;
    }
};

TEST_F(Transferencia, AReplayGoesToThePeerWithTheFilesOwnLines) {
    Conectado = true;
    entorno.colorRed = 2; // the player takes Black
    // "525405": digits behind a move that needs none travel as they stand.
    ASSERT_TRUE(ReproducirQtr(Escribir("p.qtr", "0530\r\n0410\r\nR\r\n525405\r\n5755\r\n")));
    EXPECT_EQ(entorno.alRival,
              (Llamadas{"EnviarInicioPartida", "EnviarLineaPartida TB 0530",
                        "EnviarLineaPartida TN 0410", "EnviarLineaPartida T R",
                        "EnviarLineaPartida M 525405", "EnviarLineaPartida M 5755",
                        "PreguntarColor", "EnviarLadoRival 1 1", "EnviarFinPartida"}));
    EXPECT_EQ(Turno, 0) << "White, the peer, is to move";
    EXPECT_EQ(ColorJugador, "Negras");
}

TEST_F(Transferencia, ALineThatDoesNotPlayStopsThePeerToo) {
    Conectado = true;
    EXPECT_FALSE(ReproducirQtr(Escribir("d.qtr", "0000\r\n0000\r\nA\r\n5254\r\n5256\r\n")));
    EXPECT_EQ(entorno.alRival, (Llamadas{"EnviarInicioPartida", "EnviarLineaPartida TB 0000",
                                         "EnviarLineaPartida TN 0000", "EnviarLineaPartida T A",
                                         "EnviarLineaPartida M 5254", "EnviarErrorPartida"}));
}

TEST_F(Transferencia, AnEpdBrowserLeftWithoutAPositionCancelsForThePeer) {
    Conectado = true;
    ASSERT_TRUE(FEpd::LeerEPD(Escribir("b.epd", "bad\n")));
    EXPECT_EQ(entorno.alRival, Llamadas{"CancelarEpd"});
    ASSERT_TRUE(FEpd::LeerEPD(Escribir("a.epd", std::string(kPosicion) + "\n")));
    FEpd::Cerrar();
    EXPECT_EQ(entorno.alRival, (Llamadas{"CancelarEpd", "CancelarEpd"}));
    Conectado = false;
    entorno.alRival.clear();
    ASSERT_TRUE(FEpd::LeerEPD(Escribir("b.epd", "bad\n")));
    EXPECT_TRUE(entorno.alRival.empty()) << "nothing goes out at one machine";
}

TEST_F(Transferencia, AGameFileOpenedOverThePgnBrowserClosesIt) {
    AbrirPgn(Escribir("x.pgn", "[Event \"a\"]\n\n1. e4 e5 *\n"));
    EXPECT_TRUE(Hubo("AvisoCargando 69"));
    entorno.listaPgnVisible = true;
    entorno.llamadas.clear();
    ASSERT_TRUE(ReproducirQtr(Escribir("p.qtr", "0000\r\n0000\r\nA\r\n5254\r\n5755\r\n")));
    EXPECT_EQ(entorno.llamadas.front(), "CerrarListaPgn");
    EXPECT_TRUE(Hubo("AvisoCargando 69")) << "the notice is over the board while it loads";
    EXPECT_EQ(Ultima(3), "e5") << "the moves are written once the browser is gone";
    EXPECT_EQ(Mensajes(), "");
}

TEST_F(Transferencia, APositionOpenedOverThePgnBrowserClosesIt) {
    ASSERT_TRUE(FEpd::LeerEPD(Escribir("a.epd", std::string(kPosicion) + "\n")));
    EXPECT_TRUE(Hubo("AvisoCargando 69"));
    entorno.listaPgnVisible = true;
    ASSERT_TRUE(FEpd::EventosDblClick(0));
    EXPECT_TRUE(Hubo("CerrarListaPgn"));
    EXPECT_EQ(En("a1"), TorreB);
    EXPECT_EQ(Turno, 1);
}

} // namespace
