// Files that are no game files: FIFOs, devices, folders with a game file's name, and lines
// longer than any game. Each type gives its own answer and nothing blocks or grows unbounded.
#include "core/game_state.h"
#include "core/move_list.h"
#include "files/epd_list.h"
#include "files/line_reader.h"
#include "files/pgn_browser.h"
#include "files/pgn_scanner.h"
#include "files/qtr_replay.h"
#include "files_support.h"

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace Variables;

namespace {

class Hostiles : public prueba::ConFicheros {
protected:
    void SetUp() override {
        ConFicheros::SetUp();
        // A reader that blocks in open(2) would hang the suite: end it instead.
        ::alarm(60);
    }
    void TearDown() override {
        ::alarm(0);
        ConFicheros::TearDown();
    }
    std::string Fifo(const std::string& nombre) {
        const std::string ruta = dir + "/" + nombre;
        EXPECT_EQ(::mkfifo(ruta.c_str(), 0600), 0);
        return ruta;
    }
    std::string Carpeta(const std::string& nombre) {
        fs::create_directory(dir + "/" + nombre);
        return dir + "/" + nombre;
    }
    std::string ACero(const std::string& nombre) {
        fs::create_symlink("/dev/zero", dir + "/" + nombre);
        return dir + "/" + nombre;
    }
    // `antes` then one line of zero bytes past the cap, with no disk behind the hole.
    std::string Enorme(const std::string& nombre, const std::string& antes) {
        const std::string ruta = Escribir(nombre, antes);
        EXPECT_EQ(::truncate(ruta.c_str(),
                             static_cast<off_t>(antes.size() + LectorLineas::kLargoMaximo + 10)),
                  0);
        return ruta;
    }
    void AbrirPgnComoNavegador(const std::string& ruta) {
        entorno.listaPgnVisible = true;
        ListaPgn::Descargar();
        AbrirPgn(ruta);
        CargarPartidaPgn();
        entorno.listaPgnVisible = false;
    }
};

TEST_F(Hostiles, QtrThatIsNoRegularFileOrHasAHugeLineGives27AndKeepsTheGame) {
    for (const std::string& ruta : {Fifo("f.qtr"), Carpeta("d.qtr"), ACero("z.qtr"),
                                    Enorme("e.qtr", "0000\r\n0000\r\nA\r\n5254\r\n")}) {
        Nueva();
        Jugar({"e2e4"});
        entorno.mensajes.clear();
        EXPECT_FALSE(AbrirQtr(ruta)) << ruta;
        EXPECT_EQ(Mensajes(), "27") << ruta;
        EXPECT_EQ(Tablero[5][4], PeonB) << ruta;
        EXPECT_EQ(Jugadas::List1.size(), 1u) << ruta;
        EXPECT_FALSE(Cargando) << ruta;
    }
}

TEST_F(Hostiles, PgnThatIsNoRegularFileOrHasAHugeLineListsNothingAndGives55) {
    const std::string juego =
        "[Event \"Uno\"]\n[FEN \"4k3/8/8/8/8/8/8/R3K3 w - - 0 1\"]\n\n1. Ra2 *\n";
    for (const std::string& ruta :
         {Fifo("f.pgn"), Carpeta("d.pgn"), ACero("z.pgn"), Enorme("e.pgn", juego)}) {
        Nueva();
        entorno.mensajes.clear();
        AbrirPgnComoNavegador(ruta);
        EXPECT_EQ(TotalPartidas, 0) << ruta;
        EXPECT_TRUE(ListaPgn::Eventos.empty()) << ruta;
        EXPECT_EQ(ListaPgn::Text1[0], "") << ruta;
        EXPECT_EQ(Mensajes(), "55") << ruta;
        EXPECT_EQ(Tablero[1][1], TorreB) << ruta << ": the position of a file we refused";
        EXPECT_EQ(Tablero[4][1], DamaB) << ruta;
    }
    // A game on one line longer than the first buffer is still a game.
    AbrirPgnComoNavegador(Escribir("largo.pgn", "[Event \"Largo\"]\n\n1. e4 {" +
                                                    std::string(3 << 20, 'x') + "} e5 *\n"));
    EXPECT_EQ(TotalPartidas, 1);
    EXPECT_EQ(ListaPgn::PgnJugadas.size(), 2u);
}

TEST_F(Hostiles, EpdThatIsNoRegularFileOrHasAHugeLineIsSilentAndLeavesTheBoard) {
    for (const std::string& ruta : {Fifo("f.epd"), Carpeta("d.epd"), ACero("z.epd"),
                                    Enorme("e.epd", "4k3/8/8/8/8/8/8/R3K3 w - - 0 1\n")}) {
        Nueva();
        Jugar({"e2e4"});
        entorno.mensajes.clear();
        EXPECT_FALSE(FEpd::LeerEPD(ruta)) << ruta;
        EXPECT_EQ(Mensajes(), "") << ruta;
        EXPECT_TRUE(FEpd::Eventos.empty()) << ruta;
        EXPECT_EQ(Tablero[5][4], PeonB) << ruta;
        EXPECT_EQ(Tablero[4][1], DamaB) << ruta;
        EXPECT_FALSE(Cargando) << ruta;
    }
}

} // namespace
