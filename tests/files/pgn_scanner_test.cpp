// The scanner over real files: what the list, the tag boxes and the move
// rows show, the lossy parts included, and that a selection read through
// the index shows what a reading from the first line shows.
#include "files/line_reader.h"
#include "files/pgn_browser.h"
#include "files/pgn_moves.h"
#include "files/pgn_scanner.h"
#include "files/pgn_text.h"
#include "files_support.h"

#include <filesystem>
#include <fstream>

using namespace Variables;

namespace {

std::string Filas() {
    std::string t;
    for (const auto& f : ListaPgn::PgnMovimientos) t += f + "\n";
    return t;
}

struct Token {
    const char* token;
    int tipo;
};
const Token kTokens[] = {
    {"", 0},    {"12...e5", 0}, {"...", 0},   {"[!]", 1}, {"12.", 2},  {"12", 2},
    {"$14", 4}, {"e4", 3},      {"O-O", 3},   {"1-0", 6}, {"0-1", 6},  {"1/2-1/2", 6},
    {"*", 6},   {"Ra1-a2", 6},  {"12.e4", 5}, {"e4.", 3}, {"Nf3+", 3}, {"+1", 2},
    {"1e5", 2}, {"O-O-O", 3},   {"0-0", 3},   {"--", 3},  {"a1=Q", 3}, {"!?", 3},
    {" 12", 2}, {"+5", 2},      {"7", 2},     {"Nf3", 3}, {"e2e4", 3}, {"Bb5$", 4},
};

TEST(TipoToken, ClassifiesInItsOrder) {
    for (const auto& t : kTokens) EXPECT_EQ(TipoTokenPgn(t.token), t.tipo) << t.token;
}

struct Texto {
    const char* entrada;
    const char* filas;
};
const Texto kTextos[] = {
    {"1. e4 e5 2. Nf3 *", "1. e4\n                  e5\n2. Nf3\n"},
    {"1.e4 e5 2.Nf3 Nc6 1-0", "1. e4\n                  e5\n2. Nf3\n                  Nc6\n"},
    {"1. e4 { outer { inner } still } e5", "1. e4\n                  e5\n"},
    {"1. e4 (1. d4 d5) e5", "1. e4\n                  e5\n"},
    {"1. e4 e5 2. Nf3 $1 {good} 2... Nc6",
     "1. e4\n                  e5\n2. Nf3\n                  Nc6\n"},
    {"1. e4 e5 12...Nc6 13. Nf3", "1. e4\n                  e5\n13. Nf3\n"},
    {"1. Ra1-a2 Rh8", "1. Rh8\n"},
    {"e4 e5 1. d4", "1. d4\n"},
    {"1. e4 { unbalanced", "1. e4\n"},
    {"1. e4 ( unbalanced e5", "1. e4\n"},
    {"   ", ""},
};

TEST(ListarMovimientos, RowsOfTheMoveText) {
    for (const auto& t : kTextos) {
        ListaPgn::PgnMovimientos.clear();
        PgnConFen = false;
        ListarMovimientosPgn(t.entrada);
        EXPECT_EQ(Filas(), t.filas) << t.entrada;
    }
}

TEST(QuitarComentarios, EveryCopyOfAFoundTextGoes) {
    const std::pair<const char*, const char*> casos[] = {
        {"{a} x {a} y {b}", "[!] x [!] y [!]"}, {"{ outer { inner } still } e4", "[!] e4"},
        {"(a {b) c} d) e", "[!] c} d) e"},      {"{a (b} (c) e", "[!] [!] e"},
        {"e4 {never closed", "e4 [!]"},
    };
    for (const auto& [entrada, salida] : casos) {
        std::string t = entrada;
        PgnTexto::QuitarComentarios(t);
        EXPECT_EQ(t, salida) << entrada;
    }
}

TEST(QuitarComentarios, HugeTextOfDifferentCommentsEndsQuickly) {
    std::string t;
    for (int i = 0; i < 200000; ++i) t += "e4 {c" + std::to_string(i) + "} ";
    PgnTexto::QuitarComentarios(t);
    EXPECT_EQ(t.find('{'), std::string::npos);
    EXPECT_EQ(t.substr(0, 14), "e4 [!] e4 [!] ");
}

class Escaner : public prueba::ConFicheros {
protected:
    void SetUp() override {
        ConFicheros::SetUp();
        entorno.listaPgnVisible = true;
    }
    void Abrir(const std::string& ruta, int buscar = 0) {
        ListaPgn::Buscar = buscar;
        AbrirPgn(ruta);
        CargarPartidaPgn();
    }
    void Elegir(int i) {
        ElegirPartidaPgn(i);
        CargarPartidaPgn();
    }
    static std::string Cajas() {
        std::string t;
        for (const auto& c : ListaPgn::Text1) t += c + "|";
        return t + ListaPgn::Combo1;
    }
};

const char* kTres = "[Event \"Uno\"]\n[Site \"S1\"]\n[White \"A\"]\n[Black \"B\"]\n"
                    "[Result \"1-0\"]\n\n1. e4 e5 2. Qh5 Nc6 3. Bc4 Nf6 4. Qxf7# 1-0\n\n"
                    "[EVENT \"Dos\"]\n[Site \"S2\"]\n[Black \"D\"]\n\n% a line for programs\n"
                    "1. d4 d5 *\n\n"
                    "[Event \"Tres\"]\n[Site \"S3\"]\n[White \"E\"]\n[Black \"F\"]\n\n1. c4 *\n";

TEST_F(Escaner, ListsByEventAndShowsTheFirstGame) {
    Abrir(Escribir("tres.pgn", kTres));
    EXPECT_EQ(TotalPartidas, 3);
    EXPECT_EQ(ListaPgn::Eventos, (std::vector<std::string>{"Uno", "Dos", "Tres"}));
    EXPECT_EQ(Cajas(), "Uno|S1|||A|B|1-0");
    EXPECT_EQ(ListaPgn::PgnJugadas,
              (std::vector<std::string>{"5254", "5755", "4185", "2836", "6134", "7866", "8567"}));
    EXPECT_EQ(PosicionPgn, 7);
    EXPECT_EQ(ListaPgn::Label2, "Partida: 1");
    EXPECT_EQ(ListaPgn::EtiquetaCuenta, " 3 50");
}

TEST_F(Escaner, SelectingReadsOnlyThatGame) {
    Abrir(Escribir("tres.pgn", kTres));
    Elegir(1);
    EXPECT_EQ(Cajas(), "Dos|S2||||D|");
    EXPECT_EQ(Filas(), "1. d4\n                  d5\n");
    Elegir(2);
    EXPECT_EQ(Cajas(), "Tres|S3|||E|F|");
    EXPECT_EQ(ListaPgn::PgnJugadas, (std::vector<std::string>{"3234"}));
    EXPECT_EQ(ListaPgn::Label2, "Partida: 3");
}

// Bytes this process has taken from files so far.
uint64_t BytesLeidos() {
    std::ifstream io("/proc/self/io");
    std::string clave;
    uint64_t valor = 0;
    while (io >> clave >> valor)
        if (clave == "rchar:") return valor;
    return 0;
}

TEST_F(Escaner, SelectingAGameReadsAboutItsOwnSize) {
    std::string texto;
    for (int i = 0; i < 4000; ++i)
        texto += "[Event \"E" + std::to_string(i) +
                 "\"]\n[White \"A\"]\n[Black \"B\"]\n\n"
                 "1. e4 e5 2. Nf3 Nc6 3. Bb5 a6 4. Ba4 Nf6 5. O-O Be7 *\n\n";
    const std::string ruta = Escribir("muchas.pgn", texto);
    Abrir(ruta);
    ASSERT_EQ(TotalPartidas, 4000);
    for (int k : {2000, 3999, 0}) {
        ElegirPartidaPgn(k);
        const uint64_t antes = BytesLeidos();
        CargarPartidaPgn();
        const uint64_t leidos = BytesLeidos() - antes;
        EXPECT_EQ(ListaPgn::Text1[0], "E" + std::to_string(k));
        EXPECT_EQ(ListaPgn::PgnJugadas.size(), 10u);
        EXPECT_LT(leidos, 16u * 1024) << "game " << k << " of a " << texto.size() << "-byte file";
    }
}

// Descriptors this process holds open.
size_t Abiertos() {
    size_t n = 0;
    for ([[maybe_unused]] const auto& e : std::filesystem::directory_iterator("/proc/self/fd")) ++n;
    return n;
}

TEST_F(Escaner, ReadersShareTheFileOpenedForTheirPath) {
    const std::string ruta = Escribir("uno.txt", "a\nb\n");
    const std::string otra = Escribir("otra.txt", "c\n");
    const size_t antes = Abiertos();
    std::string_view l;
    {
        const FicheroCompartido abierto(ruta);
        // Gone from its folder, the file is still read through the open one.
        std::filesystem::remove(ruta);
        {
            const FicheroCompartido segundo(otra); // while the first lives: changes nothing
            LectorLineas lector(ruta);
            ASSERT_TRUE(lector.Siguiente(l));
            EXPECT_EQ(l, "a");
            LectorLineas suyo(otra);
            ASSERT_TRUE(suyo.Siguiente(l));
            EXPECT_EQ(l, "c");
        }
        LectorLineas desdeB(ruta, 2);
        ASSERT_TRUE(desdeB.Siguiente(l)) << "the second one closed the first one's file";
        EXPECT_EQ(l, "b");
    }
    EXPECT_EQ(Abiertos(), antes);
    EXPECT_FALSE(LectorLineas(ruta).Abierto());
}

TEST_F(Escaner, SelectingAGameLeavesNoFileOpen) {
    Abrir(Escribir("tres.pgn", kTres));
    const size_t antes = Abiertos();
    Elegir(2);
    Elegir(1);
    EXPECT_EQ(Cajas(), "Dos|S2||||D|");
    EXPECT_EQ(Abiertos(), antes);
}

TEST_F(Escaner, ARangeEndsWithItsLastLineWhateverItsLength) {
    const std::string larga(3 << 20, 'x');
    const std::string ruta = Escribir("larga.txt", "a\r\n" + larga + "\nb\nc");
    // The range ends inside the long line: it is returned whole, and nothing after it.
    LectorLineas lector(ruta, 0, 10);
    std::string_view linea;
    ASSERT_TRUE(lector.Siguiente(linea));
    EXPECT_EQ(linea, "a");
    const uint64_t antes = BytesLeidos();
    ASSERT_TRUE(lector.Siguiente(linea));
    EXPECT_EQ(linea.size(), larga.size());
    EXPECT_EQ(lector.Posicion(), 3u);
    EXPECT_FALSE(lector.Siguiente(linea));
    EXPECT_LT(BytesLeidos() - antes, 2 * larga.size());
    // A range that starts at a line gives the lines from there to the file's end.
    LectorLineas resto(ruta, 3 + larga.size() + 1);
    std::string visto;
    while (resto.Siguiente(linea)) visto += std::string(linea) + "|";
    EXPECT_EQ(visto, "b|c|");
}

TEST_F(Escaner, ClickingTheShownEntryDoesNothing) {
    Abrir(Escribir("tres.pgn", kTres));
    EXPECT_FALSE(ElegirPartidaPgn(0));
    EXPECT_TRUE(ElegirPartidaPgn(2));
}

TEST_F(Escaner, ListByWhiteIsOutOfStepWhereATagIsMissing) {
    Abrir(Escribir("tres.pgn", kTres), 4);
    EXPECT_EQ(ListaPgn::Eventos, (std::vector<std::string>{"A", "E"}));
    Elegir(1); // the second listed game is the third by "[event "; its moves are the second's
    EXPECT_EQ(Filas(), "1. d4\n                  d5\n");
}

TEST_F(Escaner, ListByWhiteMixesInTheNextGamesTags) {
    Abrir(Escribir("tres.pgn", kTres), 4);
    // Up to the next "[white " line, which stands in the third game.
    EXPECT_EQ(Cajas(), "Tres|S3|||A|D|1-0");
}

TEST_F(Escaner, TagNeedsItsBlank) {
    Abrir(Escribir("sin.pgn", "[Event\"x\"]\n1. e4\n[Event \"y\"]\n1. d4\n"));
    EXPECT_EQ(TotalPartidas, 1);
}

TEST_F(Escaner, FenGameShowsItsPositionAndNoMoves) {
    Abrir(Escribir("fen.pgn", "[Event \"p\"]\n[FEN \"4k3/8/8/8/8/8/8/4K2R w - - 0 1\"]\n\n"
                              "1. Rh8# *\n[Event \"q\"]\n\n1. e4 *\n"));
    EXPECT_TRUE(PgnConFen);
    EXPECT_TRUE(ListaPgn::PgnJugadas.empty());
    EXPECT_EQ(Tablero[8][1], TorreB);
    EXPECT_EQ(TotalPartidas, 2); // the list is still read to the end
    EXPECT_TRUE(TeclaPgn(39));
    EXPECT_EQ(Tablero[8][1], TorreB);
    Elegir(1);
    EXPECT_FALSE(PgnConFen);
    EXPECT_EQ(ListaPgn::PgnJugadas, (std::vector<std::string>{"5254"}));
}

TEST_F(Escaner, FailingMoveStopsWithTheMovesBefore) {
    Abrir(Escribir("falla.pgn", "[Event \"x\"]\n\n1. e4 e5 2. Nf3 Nc6 3. Nf6 a6 *\n"));
    EXPECT_TRUE(FallaPgn);
    EXPECT_EQ(ListaPgn::PgnJugadas.size(), 4u);
    EXPECT_EQ(Mensajes(), "52 Nf6");
}

TEST_F(Escaner, NoGameGivesMessage55) {
    Abrir(Escribir("vacio.pgn", ""));
    EXPECT_EQ(TotalPartidas, 0);
    EXPECT_EQ(Mensajes(), "55");
}

TEST_F(Escaner, BadFilesListNothingAndCrashNothing) {
    std::string binario;
    for (int i = 0; i < 100000; ++i) binario += static_cast<char>((i * 7919) % 256);
    const std::string grande = "[Event \"" + std::string(10 << 20, 'x') + "\"]\n1. e4 *\n";
    const std::string llaves = "[Event \"x\"]\n1. e4 {{{ (( e5 } 2. Nf3\n[Event \"y\"]\n1. d4\n";
    for (const auto& [nombre, texto] : std::vector<std::pair<std::string, std::string>>{
             {"bin.pgn", binario}, {"grande.pgn", grande}, {"llaves.pgn", llaves}}) {
        Abrir(Escribir(nombre, texto));
        for (int32_t i = 0; i < TotalPartidas; ++i) Elegir(i);
    }
    EXPECT_EQ(ListaPgn::Eventos, (std::vector<std::string>{"x", "y"}));
    EXPECT_EQ(ListaPgn::PgnJugadas, (std::vector<std::string>{"4244"}));
    Abrir(dir + "/missing.pgn");
    EXPECT_EQ(TotalPartidas, 0);
}

TEST_F(Escaner, SteppingThroughTheGame) {
    Abrir(Escribir("uno.pgn", kTres));
    const auto final = std::vector<int32_t>(&Tablero[0][0], &Tablero[0][0] + 81);
    PulsarBotonPgn(3); // forward past the end does nothing
    EXPECT_EQ(PosicionPgn, 7);
    PulsarBotonPgn(1);
    EXPECT_EQ(PosicionPgn, -1);
    EXPECT_EQ(Tablero[5][2], PeonB);
    PulsarBotonPgn(2); // back at the start does nothing
    EXPECT_EQ(PosicionPgn, -1);
    PulsarBotonPgn(3);
    EXPECT_EQ(Tablero[5][4], PeonB);
    PulsarBotonPgn(4);
    EXPECT_EQ(PosicionPgn, 6);
    EXPECT_EQ(std::vector<int32_t>(&Tablero[0][0], &Tablero[0][0] + 81), final);
    PulsarBotonPgn(2);
    EXPECT_EQ(PosicionPgn, 5);
    EXPECT_EQ(Tablero[6][7], PeonN); // Qxf7 undone
    IrAFilaPgn(0);
    EXPECT_EQ(Tablero[5][4], PeonB);
    EXPECT_EQ(Tablero[5][7], PeonN);
    EXPECT_TRUE(AlternarAutoPlay());
    EXPECT_FALSE(BotonesNavegacion);
    for (int i = 0; i < 10; ++i) AvanzarPgn();
    EXPECT_FALSE(AutoPlay);
    EXPECT_TRUE(BotonesNavegacion);
    EXPECT_EQ(Mensajes(), "");
}

// A selection read through the index against a reading from the first line,
// for every game of the real collections, listed by Event.
TEST_F(Escaner, IndexShowsWhatAReadingFromTheStartShows) {
    const std::string datos = prueba::DatosReales();
    ASSERT_FALSE(datos.empty())
        << "QA_TEST_DATA not set: run through ctest, which fetches the data";
    for (const char* nombre : {"wcc.pgn", "chessjs-benchmark.pgn"}) {
        const std::string ruta = datos + "/" + nombre;
        std::ifstream in(ruta);
        ASSERT_TRUE(in) << ruta;
        std::vector<std::string> cajas, textos;
        std::string linea;
        while (std::getline(in, linea)) {
            if (!linea.empty() && linea.back() == '\r') linea.pop_back();
            if (PgnTexto::EmpiezaCon(linea, "[event ")) {
                cajas.push_back("");
                textos.emplace_back();
            }
            if (cajas.empty()) continue;
            if (!linea.empty() && linea[0] == '[') {
                cajas.back() += std::string(PgnTexto::ValorEntreComillas(linea)) + "|";
            } else if (!linea.empty() && linea[0] != '%') {
                textos.back() += linea + " ";
            }
        }
        Abrir(ruta);
        ASSERT_EQ(TotalPartidas, static_cast<int32_t>(cajas.size())) << nombre;
        for (int32_t i = TotalPartidas - 1; i >= 0; --i) {
            Elegir(i);
            EXPECT_NE(cajas[static_cast<size_t>(i)].find(ListaPgn::Text1[0] + "|" +
                                                         ListaPgn::Text1[1] + "|"),
                      std::string::npos)
                << nombre << " game " << i;
            const auto filas = ListaPgn::PgnMovimientos;
            ListaPgn::PgnMovimientos.clear();
            ListarMovimientosPgn(textos[static_cast<size_t>(i)]);
            EXPECT_EQ(filas, ListaPgn::PgnMovimientos) << nombre << " game " << i;
        }
    }
}

} // namespace
