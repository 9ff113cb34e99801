// Lists and replays every game of real PGN collections, as the browser
// would, and tells per file how many games list, how many replay to their
// last move, and why the others stop. Exit status 1 if a game of a file
// named with --strict fails to replay fully.
#include "core/game_state.h"
#include "core/recorder.h"
#include "files/pgn_browser.h"
#include "files/pgn_moves.h"
#include "files/pgn_scanner.h"

#include <cstdio>
#include <map>
#include <string>
#include <vector>

using namespace Variables;

namespace {

struct Resumen {
    int partidas = 0, completas = 0, conFen = 0, sinJugadas = 0;
    std::map<std::string, int> motivos;
    std::vector<std::string> ejemplos;
};

// Why a game stopped short, from the first move that did not play.
std::string Motivo(const std::string& jugada, bool falla) {
    if (!jugada.empty() && jugada[0] == ' ')
        return "rows out of step: a move written as 12...e5 was lost with its number (by design)";
    if (jugada.find('#') != std::string::npos && (jugada[0] == 'O' || jugada[0] == '0'))
        return "castling written with # is not read (by design)";
    if (falla) return "piece move refused (message 52)";
    return "pawn, king or long castling move refused or unreadable (left as a hole, by design)";
}

Resumen Revisar(const std::string& ruta) {
    Resumen r;
    EntornoRegistro registro;
    registro.listaPgnVisible = true;
    InstalarRegistro(&registro);
    ListaPgn::Descargar();
    AbrirPgn(ruta);
    CargarPartidaPgn();
    r.partidas = TotalPartidas;
    for (int32_t i = 0; i < TotalPartidas; ++i) {
        ElegirPartidaPgn(i);
        FallaPgn = false;
        CargarPartidaPgn();
        if (PgnConFen) {
            ++r.conFen;
            continue;
        }
        // The moves the list shows, in the order the replay takes them.
        std::vector<std::string> textos;
        const auto& filas = ListaPgn::PgnMovimientos;
        for (size_t k = 0; k < filas.size(); k += 2) {
            const std::string& b = filas[k];
            const size_t blanco = b.find(' ');
            textos.push_back(blanco == std::string::npos ? b : b.substr(blanco + 1));
            if (k + 1 < filas.size() && filas[k + 1].size() > 18)
                textos.push_back(filas[k + 1].substr(18));
        }
        if (textos.empty()) ++r.sinJugadas;
        if (!FallaPgn && ListaPgn::PgnJugadas.size() == textos.size()) {
            ++r.completas;
            continue;
        }
        // The first text that left no entry: replay again, move by move.
        std::string culpable = "?";
        VariablesCero();
        PonerFichas();
        Turno = 0;
        ListaPgn::PgnJugadas.clear();
        for (size_t k = 0; k < textos.size(); ++k) {
            const size_t antes = ListaPgn::PgnJugadas.size();
            FallaPgn = false;
            ComFicha(textos[k], k % 2 ? 2 : 1);
            if (ListaPgn::PgnJugadas.size() == antes) {
                culpable = textos[k];
                break;
            }
        }
        ++r.motivos[Motivo(culpable, FallaPgn)];
        if (r.ejemplos.size() < 5)
            r.ejemplos.push_back("game " + std::to_string(i) + " at '" + culpable + "'");
    }
    InstalarRegistro(nullptr);
    return r;
}

} // namespace

int main(int argc, char** argv) {
    bool estricto = false, fallo = false;
    for (int a = 1; a < argc; ++a) {
        const std::string arg = argv[a];
        if (arg == "--strict") {
            estricto = true;
            continue;
        }
        const Resumen r = Revisar(arg);
        std::printf("%s: %d games listed, %d replay to the end, %d start from a FEN tag, %d have "
                    "no moves\n",
                    arg.c_str(), r.partidas, r.completas, r.conFen, r.sinJugadas);
        for (const auto& [m, n] : r.motivos) std::printf("  %d stop: %s\n", n, m.c_str());
        for (const auto& e : r.ejemplos) std::printf("    e.g. %s\n", e.c_str());
        if (estricto && r.completas + r.conFen != r.partidas) fallo = true;
        estricto = false;
    }
    return fallo ? 1 : 0;
}
