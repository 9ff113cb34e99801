// Saving in the three formats and replaying a .qtr file, through real files.
#include "core/move_list.h"
#include "files/fen.h"
#include "files/game_file.h"
#include "files/line_reader.h"
#include "files/pgn_scanner.h"
#include "files/qtr_replay.h"
#include "files_support.h"

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

using namespace Variables;

namespace {

class Fichero : public prueba::ConFicheros {
protected:
    void Relojes(const std::string& b, const std::string& n) {
        entorno.PonerTextoReloj(1, b);
        entorno.PonerTextoReloj(2, n);
    }
};

TEST_F(Fichero, NewGameSavedAtOnce) {
    Nueva();
    const std::string ruta = dir + "/nueva.qtr";
    EXPECT_EQ(GuardarPartida(ruta), Guardado::Hecho);
    EXPECT_EQ(Leer(ruta), "0000\r\n0000\r\nA\r\n");
    EXPECT_EQ(Mensajes(), "34");
}

TEST_F(Fichero, NewGameAfterAPositionAndAReplayKeepsNothingOfThem) {
    PosicionFen = "4k3/8/8/8/8/8/8/4K2R w K -";
    ASSERT_TRUE(AbrirEpd());
    ASSERT_TRUE(DesdePosicion);
    Relojes("", ""); // as a replay leaves them
    TipoPartida = "A";
    ColorJugador = "Negras";
    Cargando = true;
    Nueva();
    EXPECT_FALSE(DesdePosicion);
    EXPECT_FALSE(Cargando);
    EXPECT_EQ(ColorJugador, "");
    EXPECT_EQ(FiltrosGuardar().size(), 3u) << "every format is offered again";
    const std::string ruta = dir + "/nueva.qtr";
    EXPECT_EQ(GuardarPartida(ruta), Guardado::Hecho);
    EXPECT_EQ(Leer(ruta), "0000\r\n0000\r\nA\r\n");
}

TEST_F(Fichero, GameKindLinesFollowTheClocks) {
    const struct {
        const char *blancas, *negras, *tipo, *texto;
    } casos[] = {
        {"05:30", "04:10", "", "0530\r\n0410\r\nR\r\n"},
        {"00:00", "00:00", "", "0000\r\n0000\r\nA\r\n"},
        {"00:00", "01:00", "", "0000\r\n0100\r\nR\r\nA\r\n"},
        {"", "", "", "\r\n\r\nR\r\n"},
        {"100:05", "3:07", "R", "1005\r\n3:07\r\nR\r\n"},
    };
    for (const auto& c : casos) {
        Nueva();
        Relojes(c.blancas, c.negras);
        TipoPartida = c.tipo;
        const std::string ruta = dir + "/k.qtr";
        ASSERT_EQ(GuardarPartida(ruta), Guardado::Hecho);
        EXPECT_EQ(Leer(ruta), c.texto) << c.blancas << " " << c.negras;
    }
}

TEST_F(Fichero, MovesAreTheSquaresList) {
    Nueva();
    Jugar({"e2e4", "d7d5", "e4d5", "g8f6"});
    const std::string ruta = dir + "/p.QTR";
    ASSERT_EQ(GuardarPartida(ruta), Guardado::Hecho);
    EXPECT_EQ(Leer(ruta), "0000\r\n0000\r\nA\r\n5254\r\n4745\r\n5445\r\n7866\r\n");
}

TEST_F(Fichero, EpdIsOneLine) {
    Nueva();
    Jugar({"e2e4"});
    const std::string ruta = dir + "/p.epd";
    ASSERT_EQ(GuardarPartida(ruta), Guardado::Hecho);
    EXPECT_EQ(Leer(ruta), "rnbqkbnr/pppppppp/8/8/4P3/8/PPPP1PPP/RNBQKBNR b KQkq e3 0 1\r\n");
}

TEST_F(Fichero, PgnWithTheTagsOfTheDialog) {
    Nueva();
    Jugar({"e2e4", "e7e5", "g1f3", "b8c6"});
    const std::string ruta = dir + "/p.pgn";
    ASSERT_EQ(GuardarPartida(ruta), Guardado::Etiquetas);
    EXPECT_TRUE(GuardandoPgn);
    EXPECT_FALSE(Ficheros::Existe(ruta));
    EtiquetasPgn e = EtiquetasIniciales();
    EXPECT_EQ(e.valor[0], "Quintarena");
    EXPECT_EQ(e.valor[1], "Internet");
    EXPECT_EQ(e.valor[6], "*");
    EXPECT_EQ(e.valor[2].find(".0"), std::string::npos); // no leading zeros
    e.valor[2] = "2024.3.9";
    e.valor[4] = "Ana";
    ASSERT_EQ(ConfirmarEtiquetasPgn(e), Guardado::Hecho);
    EXPECT_FALSE(GuardandoPgn);
    EXPECT_EQ(Leer(ruta), "[Event \"Quintarena\"]\r\n[Site \"Internet\"]\r\n[Date \"2024.3.9\"]\r\n"
                          "[Round \"?\"]\r\n[White \"Ana\"]\r\n[Black \"?\"]\r\n[Result \"*\"]\r\n"
                          "\r\n1. e4 e5 2. Nf3 Nc6 *\r\n");
}

TEST_F(Fichero, PgnDroppedWritesNothing) {
    Nueva();
    const std::string ruta = dir + "/p.pgn";
    ASSERT_EQ(GuardarPartida(ruta), Guardado::Etiquetas);
    CancelarEtiquetasPgn();
    EXPECT_EQ(ConfirmarEtiquetasPgn(EtiquetasIniciales()), Guardado::Nada);
    EXPECT_FALSE(Ficheros::Existe(ruta));
}

TEST_F(Fichero, PgnMoveTextWrapsNear72) {
    std::string lista;
    for (int i = 1; i <= 20; ++i)
        lista += std::to_string(i) + ". Nf3\r\n" + std::string(18, ' ') + "Nf6\r\n";
    const std::string t = ConstruirTextoPgn(lista);
    size_t ini = 0, mas = 0;
    for (size_t fin; (fin = t.find("\r\n", ini)) != std::string::npos; ini = fin + 2)
        mas = std::max(mas, fin - ini);
    EXPECT_GE(mas, 70u);
    EXPECT_LE(mas, 80u);
    EXPECT_EQ(t.substr(0, 16), "1. Nf3 Nf6 2. Nf");
}

TEST_F(Fichero, RefusedNamesAndFolders) {
    Nueva();
    EXPECT_EQ(GuardarPartida(dir + "/p.txt"), Guardado::Nada);
    EXPECT_EQ(GuardarPartida(""), Guardado::Nada);
    EXPECT_EQ(GuardarPartida(dir + "/no/such/folder/p.qtr"), Guardado::Fallo);
    EditandoTablero = true;
    EXPECT_EQ(GuardarPartida(dir + "/p.qtr"), Guardado::Nada);
    EXPECT_EQ(Mensajes(), "");
    DesdePosicion = true;
    EXPECT_EQ(FiltrosGuardar().size(), 1u);
}

TEST_F(Fichero, ReadOnlyTargetIsOverwritten) {
    Nueva();
    const std::string ruta = Escribir("ro.qtr", "old");
    chmod(ruta.c_str(), 0444);
    ASSERT_EQ(GuardarPartida(ruta), Guardado::Hecho);
    EXPECT_EQ(Leer(ruta), "0000\r\n0000\r\nA\r\n");
}

TEST_F(Fichero, FailedWriteKeepsTheOldFile) {
    Nueva();
    const std::string ruta = Escribir("viejo.qtr", "old");
    // A folder with a file in it where the temporary file goes: not even root gets past it.
    const std::string estorbo = dir + "/.viejo.qtr." + std::to_string(getpid()) + ".tmp";
    std::filesystem::create_directory(estorbo);
    Escribir(".viejo.qtr." + std::to_string(getpid()) + ".tmp/x", "x");
    EXPECT_EQ(GuardarPartida(ruta), Guardado::Fallo);
    EXPECT_EQ(Leer(ruta), "old");
    // A name under a regular file.
    EXPECT_EQ(GuardarPartida(ruta + "/nueva.qtr"), Guardado::Fallo);
    EXPECT_EQ(Leer(ruta), "old");
}

TEST_F(Fichero, ReplayRebuildsTheGame) {
    Nueva();
    Jugar({"e2e4", "d7d5", "e4d5", "c7c5", "d5c6", "g8f6", "c6b7", "f6e4", "b7a8"});
    const std::string lista3 = Jugadas::List[3];
    const auto tablero = std::vector<int32_t>(&Tablero[0][0], &Tablero[0][0] + 81);
    const std::string ruta = dir + "/r.qtr";
    ASSERT_EQ(GuardarPartida(ruta), Guardado::Hecho);
    Nueva();
    ASSERT_TRUE(ReproducirQtr(ruta));
    EXPECT_EQ(std::vector<int32_t>(&Tablero[0][0], &Tablero[0][0] + 81), tablero);
    EXPECT_EQ(Jugadas::List[3], lista3);
    EXPECT_EQ(Turno, 2);
    EXPECT_EQ(ColorJugador, "Negras");
    EXPECT_EQ(TipoPartida, "A");
    EXPECT_FALSE(Cargando);
    EXPECT_EQ(Mensajes(), "34");
}

TEST_F(Fichero, ReplayByTicks) {
    const std::string ruta = Escribir("t.qtr", "0000\r\n0000\r\nA\r\n5254\r\n");
    ASSERT_TRUE(AbrirQtr(ruta));
    EXPECT_TRUE(Cargando);
    EXPECT_EQ(entorno.TextoReloj(1), "");
    std::vector<PasoQtr> pasos;
    for (PasoQtr p = SendQtr(); p == PasoQtr::Sigue; p = SendQtr()) pasos.push_back(p);
    EXPECT_EQ(pasos.size(), 5u); // four lines and the empty entry behind them
    EXPECT_EQ(Tablero[5][4], PeonB);
    EXPECT_EQ(SendQtr(), PasoQtr::Final); // an extra tick is harmless
    TimerRetrasoQtr();
    EXPECT_EQ(Turno, 2);
}

// The clock lines set the counters: at one machine to 0, over the network to the file's time.
TEST_F(Fichero, ClockLinesOfAReplaySetTheCounters) {
    const std::string ruta = Escribir("c.qtr", "0530\r\n0410\r\nR\r\n5254\r\n");
    for (const bool conectado : {false, true}) {
        MinutosBlancas = SegundosBlancas = MinutosNegras = SegundosNegras = 9;
        Conectado = conectado;
        ASSERT_TRUE(AbrirQtr(ruta));
        EXPECT_EQ(MinutosBlancas, 9) << "the counters stand until the clock lines come";
        EXPECT_EQ(SendQtr(), PasoQtr::Sigue);
        EXPECT_EQ(SendQtr(), PasoQtr::Sigue);
        EXPECT_EQ(entorno.TextoReloj(1), conectado ? "05:30" : "00:00");
        EXPECT_EQ(entorno.TextoReloj(2), conectado ? "04:10" : "00:00");
        EXPECT_EQ(MinutosBlancas, conectado ? 5 : 0);
        EXPECT_EQ(SegundosBlancas, conectado ? 30 : 0);
        EXPECT_EQ(MinutosNegras, conectado ? 4 : 0);
        EXPECT_EQ(SegundosNegras, conectado ? 10 : 0);
    }
}

// A stopped replay, a position opened as a new game and a new game all start the clocks from
// nothing.
TEST_F(Fichero, StoppedReplayOpenedPositionAndNewGameZeroTheClocks) {
    MinutosBlancas = SegundosNegras = 9;
    EXPECT_FALSE(ReproducirQtr(Escribir("d.qtr", "0000\r\n0000\r\nA\r\n5255\r\n")));
    EXPECT_EQ(MinutosBlancas + SegundosNegras, 0);
    EXPECT_EQ(entorno.TextoReloj(1), "00:00");
    MinutosBlancas = SegundosNegras = 9;
    PosicionFen = "4k3/8/8/8/8/8/4P3/4K3 w - - 0 1";
    ASSERT_TRUE(AbrirEpd());
    EXPECT_EQ(MinutosBlancas + SegundosNegras, 0);
    EXPECT_EQ(entorno.TextoReloj(2), "00:00");
    MinutosBlancas = SegundosNegras = 9;
    Nueva();
    EXPECT_EQ(MinutosBlancas + SegundosNegras, 0);
    EXPECT_EQ(entorno.TextoReloj(1), "00:00");
}

TEST_F(Fichero, DamagedFileStopsWithTheMovesSoFar) {
    const std::string ruta =
        Escribir("d.qtr", "0000\r\n0000\r\nA\r\n5254\r\n5755\r\n5256\r\n6163\r\n");
    EXPECT_FALSE(ReproducirQtr(ruta));
    EXPECT_EQ(Mensajes(), "27|55");
    EXPECT_EQ(Tablero[5][4], PeonB);
    EXPECT_EQ(Tablero[5][5], PeonN);
    EXPECT_EQ(Tablero[6][1], AlfilB);
    EXPECT_EQ(Turno, 0);
    EXPECT_FALSE(Cargando);
    EXPECT_EQ(LineasPartida.size(), 2u);
}

TEST_F(Fichero, OddLines) {
    const struct {
        const char* texto;
        bool llega;
        int32_t e8;
    } casos[] = {
        // Lines of 2 and 3 characters are skipped; 5 and more are promotions.
        {"0000\r\n0000\r\nA\r\n52\r\n525\r\n5254\r\n", true, TorreN},
        {"0000\r\n0000\r\nA\r\n5254,5755\r\n", true, TorreN},
        {"0000\r\n0000\r\nA\r\n5254999\r\n", true, TorreN}, // digits no move needs
        {"0000\r\n0000\r\nA\r\n52545555555555555555555\r\n", true, TorreN},
        {"0000\r\n0000\r\nA\r\nxy\r\n\"5254\"\r\n", true, TorreN},
    };
    for (const auto& c : casos) {
        entorno.mensajes.clear();
        EXPECT_EQ(ReproducirQtr(Escribir("o.qtr", c.texto)), c.llega) << c.texto;
        EXPECT_EQ(Tablero[1][8], c.e8);
    }
}

TEST_F(Fichero, BadFilesAreRefusedOrStop) {
    Nueva();
    Jugar({"e2e4"});
    EXPECT_FALSE(AbrirQtr(dir + "/missing.qtr"));
    EXPECT_EQ(Tablero[5][4], PeonB); // nothing changed
    EXPECT_EQ(Mensajes(), "27");
    entorno.mensajes.clear();
    EXPECT_TRUE(ReproducirQtr(Escribir("vacio.qtr", "")));
    EXPECT_EQ(Mensajes(), "55");
    std::string binario;
    for (int i = 0; i < 5000; ++i) binario += static_cast<char>((i * 131) % 256);
    ReproducirQtr(Escribir("bin.qtr", binario));
    EXPECT_FALSE(ReproducirQtr(Escribir("grande.qtr", std::string(10 << 20, '7'))));
    EXPECT_FALSE(Cargando);
}

} // namespace

namespace {

TEST_F(Fichero, PromotionDigitsNoPieceHasAreDamageOnlyWhereUsed) {
    Colocar("4k3/P7/8/8/8/8/8/4K3", 1);
    EXPECT_FALSE(LeerCoronacion("1718999"));
    EXPECT_TRUE(LeerCoronacion("5152999"));
    EXPECT_EQ(PiezaCoronacion, 0);
    EXPECT_TRUE(LeerCoronacion("171811"));
    EXPECT_EQ(PiezaCoronacion, 11);
}

} // namespace
