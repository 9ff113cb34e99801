// Speed of the PGN browser on a large collection of real-looking games:
// listing a whole file, selecting a game anywhere in it, and replaying
// games through ComFicha and the filter; pgn-extract counts the games of
// the same file for comparison.
//
//   bench/pgn_bench [FILE [MB]]   makes FILE (default /tmp/qa-bench.pgn) of
//                                 MB megabytes (default 220) if it is missing
#include "core/game_state.h"
#include "core/recorder.h"
#include "files/pgn_browser.h"
#include "files/pgn_moves.h"
#include "files/pgn_scanner.h"
#include "pgn_generator.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

using namespace Variables;
using Reloj = std::chrono::steady_clock;

namespace {

double Segundos(Reloj::time_point a, Reloj::time_point b) {
    return std::chrono::duration<double>(b - a).count();
}

long MemoriaResidenteKb() {
    std::ifstream in("/proc/self/statm");
    long total = 0, residente = 0;
    in >> total >> residente;
    return residente * 4;
}

void Calentar(const std::string& ruta) {
    std::ifstream in(ruta, std::ios::binary);
    std::vector<char> b(1 << 20);
    while (in.read(b.data(), static_cast<std::streamsize>(b.size())) || in.gcount()) {
    }
}

// pgn-extract reading every game of the file and counting them.
bool PgnExtract(const std::string& ruta, double& segundos, long& partidas) {
    const std::string programa = std::filesystem::exists("/usr/games/pgn-extract")
                                     ? "/usr/games/pgn-extract"
                                     : "pgn-extract";
    const std::string orden = programa + " -r '" + ruta + "' 2>&1 >/dev/null";
    const auto t0 = Reloj::now();
    FILE* p = popen(orden.c_str(), "r");
    if (!p) return false;
    char linea[512];
    partidas = -1;
    while (std::fgets(linea, sizeof linea, p)) {
        long a = 0, b = 0;
        if (std::sscanf(linea, "%ld games matched out of %ld", &a, &b) == 2) partidas = b;
    }
    const int rc = pclose(p);
    segundos = Segundos(t0, Reloj::now());
    return rc == 0 && partidas >= 0;
}

} // namespace

int main(int argc, char** argv) {
    const std::string ruta = argc > 1 ? argv[1] : "/tmp/qa-bench.pgn";
    const long mb = argc > 2 ? std::atol(argv[2]) : 220;
    EntornoRegistro entorno;
    InstalarRegistro(&entorno);

    if (!std::filesystem::exists(ruta) ||
        std::filesystem::file_size(ruta) < static_cast<uintmax_t>(mb) << 20) {
        std::printf("making %s, %ld MB of games...\n", ruta.c_str(), mb);
        std::fflush(stdout);
        if (!GenerarColeccion(ruta, static_cast<uint64_t>(mb) << 20)) return 1;
    }
    entorno.listaPgnVisible = true; // the browser is open from here on
    const double tam = static_cast<double>(std::filesystem::file_size(ruta));
    Calentar(ruta);

    // Listing: the first pass, best of three, from a warm page cache.
    double mejor = 1e9;
    long memoriaLista = 0;
    for (int vez = 0; vez < 3; ++vez) {
        ListaPgn::Descargar();
        const long antes = MemoriaResidenteKb();
        AbrirPgn(ruta);
        const auto t0 = Reloj::now();
        LeerCabecerasPgn(ruta);
        mejor = std::min(mejor, Segundos(t0, Reloj::now()));
        if (vez == 0) memoriaLista = MemoriaResidenteKb() - antes;
    }
    size_t bytesLista = ListaPgn::Eventos.capacity() * sizeof(std::string);
    for (const auto& e : ListaPgn::Eventos)
        if (e.size() >= sizeof(std::string)) bytesLista += e.capacity() + 1;
    const int32_t n = TotalPartidas;
    std::printf("file: %.1f MB, %d games\n", tam / 1e6, n);
    std::printf("listing (first pass): %.3f s, %.0f MB/s\n", mejor, tam / 1e6 / mejor);
    std::printf("memory grown by the listing: %.1f MB (list entries %.1f MB, offsets %.1f MB)\n",
                memoriaLista / 1024.0, bytesLista / 1e6, 2.0 * 8 * n / 1e6);

    // Listing by another tag keeps the first game's tag lines as it goes.
    {
        const auto t0 = Reloj::now();
        BuscarClick(4);
        const double t = Segundos(t0, Reloj::now());
        std::printf("listing by White: %.3f s, %.0f MB/s, %d games\n", t, tam / 1e6 / t,
                    TotalPartidas);
        BuscarClick(0);
    }

    // Selecting: tags and move rows of a game anywhere, the last included.
    std::mt19937 azar(5);
    std::vector<int32_t> elegidas = {0, n / 2, n - 1};
    for (int i = 0; i < 50; ++i) elegidas.push_back(static_cast<int32_t>(azar() % n));
    double peor = 0, suma = 0, peorCompleta = 0;
    int64_t jugadas = 0;
    double tiempoReproduccion = 0;
    for (int32_t k : elegidas) {
        ElegirPartidaPgn(k);
        const auto t0 = Reloj::now();
        LeerCabecerasPgn(ruta);
        LeerMovimientosPgn(ruta);
        const double t = Segundos(t0, Reloj::now());
        peor = std::max(peor, t);
        suma += t;
        ListaPgn::EventosTag.clear();
        ElegirPartidaPgn(k);
        const auto t1 = Reloj::now();
        CargarPartidaPgn(); // what the form's timer does: read and replay to the end
        peorCompleta = std::max(peorCompleta, Segundos(t1, Reloj::now()));
    }
    std::printf("selecting a game (tags and moves shown): worst %.3f ms, mean %.3f ms; "
                "with its replay: worst %.3f ms\n",
                peor * 1e3, suma / static_cast<double>(elegidas.size()) * 1e3, peorCompleta * 1e3);

    // Replaying: the move rows of many games through ComFicha and the filter.
    const int32_t cuantas = std::min<int32_t>(n, 3000);
    for (int32_t k = 0; k < cuantas; ++k) {
        ElegirPartidaPgn(k);
        LeerCabecerasPgn(ruta);
        LeerMovimientosPgn(ruta);
        const auto filas = ListaPgn::PgnMovimientos;
        ListaPgn::PgnJugadas.clear();
        VariablesCero();
        PonerFichas();
        Turno = 0;
        const auto t0 = Reloj::now();
        for (size_t i = 0; i < filas.size(); i += 2) {
            const std::string& b = filas[i];
            ComFicha(b.substr(b.find(' ') + 1), 1);
            if (i + 1 < filas.size()) ComFicha(filas[i + 1].substr(18), 2);
        }
        tiempoReproduccion += Segundos(t0, Reloj::now());
        jugadas += static_cast<int64_t>(ListaPgn::PgnJugadas.size());
    }
    std::printf("replaying through ComFicha and the filter: %lld moves in %.3f s, %.0f moves/s\n",
                static_cast<long long>(jugadas), tiempoReproduccion,
                static_cast<double>(jugadas) / tiempoReproduccion);

    double tExtract = 0;
    long nExtract = 0;
    Calentar(ruta);
    if (PgnExtract(ruta, tExtract, nExtract))
        std::printf("pgn-extract -r counting the games: %ld games in %.3f s, %.0f MB/s; "
                    "our listing is %.1f times as fast\n",
                    nExtract, tExtract, tam / 1e6 / tExtract, tExtract / mejor);
    else
        std::printf("pgn-extract not found (Debian package pgn-extract)\n");
    InstalarRegistro(nullptr);
    return 0;
}
