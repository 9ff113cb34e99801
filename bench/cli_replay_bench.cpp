// Replaying every game of a collection through the console tool, one process and one
// "pgngame" command per game, beside pgn-extract reading and checking the same games.
//
//   bench/bench_cli_replay FILE [CLI]   CLI defaults to quintarena-cli beside bench/
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/resource.h>
#include <unistd.h>

namespace {

using Reloj = std::chrono::steady_clock;

// Processor time of the finished children, user and system.
double TiempoHijos() {
    rusage r{};
    ::getrusage(RUSAGE_CHILDREN, &r);
    return static_cast<double>(r.ru_utime.tv_sec + r.ru_stime.tv_sec) +
           static_cast<double>(r.ru_utime.tv_usec + r.ru_stime.tv_usec) / 1e6;
}

struct Vuelta {
    double segundos = 1e9;
    double cpu = 1e9; // what counts on a busy machine
    long ok = 0, fallidas = 0, lineas = 0;
};

// Runs `orden` with `entrada` on its standard input; counts the answers.
Vuelta Correr(const std::string& orden, const std::string& entrada) {
    Vuelta v;
    const std::string guion = "/tmp/qa-bench-cli-" + std::to_string(::getpid()) + ".in";
    std::ofstream(guion) << entrada;
    const auto t0 = Reloj::now();
    const double c0 = TiempoHijos();
    FILE* p = popen((orden + " < '" + guion + "' 2>/dev/null").c_str(), "r");
    if (!p) return v;
    char linea[4096];
    while (std::fgets(linea, sizeof linea, p)) {
        ++v.lineas;
        if (std::string_view(linea).starts_with("ok ")) ++v.ok;
        if (std::string_view(linea).starts_with("failed ")) ++v.fallidas;
    }
    const int rc = pclose(p);
    v.segundos = std::chrono::duration<double>(Reloj::now() - t0).count();
    v.cpu = TiempoHijos() - c0;
    std::filesystem::remove(guion);
    if (rc != 0) v.segundos = -1;
    return v;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s FILE.pgn [quintarena-cli]\n", argv[0]);
        return 2;
    }
    const std::string ruta = std::filesystem::absolute(argv[1]).string();
    const std::string cli =
        argc > 2 ? argv[2]
                 : (std::filesystem::canonical("/proc/self/exe").parent_path().parent_path() /
                    "quintarena-cli")
                       .string();
    const std::string extractor = std::filesystem::exists("/usr/games/pgn-extract")
                                      ? "/usr/games/pgn-extract"
                                      : "pgn-extract";

    long n = 0;
    {
        FILE* p = popen(("echo 'pgn " + ruta + "' | '" + cli + "' 2>/dev/null").c_str(), "r");
        if (!p || std::fscanf(p, "%ld", &n) != 1) n = 0;
        if (p) pclose(p);
    }
    if (n <= 0) {
        std::fprintf(stderr, "no games in %s (or %s did not run)\n", ruta.c_str(), cli.c_str());
        return 1;
    }
    std::string entrada = "pgn " + ruta + "\n";
    for (long i = 0; i < n; ++i) entrada += "pgngame " + ruta + " " + std::to_string(i) + "\n";

    // Best of three, page cache warm after the first.
    Vuelta nuestra, suya;
    for (int vez = 0; vez < 3; ++vez) {
        const Vuelta a = Correr("'" + cli + "'", entrada);
        if (a.segundos < 0) {
            std::fprintf(stderr, "%s failed\n", cli.c_str());
            return 1;
        }
        if (a.cpu < nuestra.cpu) nuestra = a;
        const Vuelta b = Correr("'" + extractor + "' -r '" + ruta + "'", "");
        if (b.segundos >= 0 && b.cpu < suya.cpu) suya = b;
    }
    const double mb = static_cast<double>(std::filesystem::file_size(ruta)) / 1e6;
    std::printf("collection: %s, %.2f MB, %ld games\n", ruta.c_str(), mb, n);
    std::printf("quintarena-cli replaying every game (pgngame 0..%ld): %.3f s processor, %.3f s "
                "elapsed; %ld played through, %ld stopped at a move\n",
                n - 1, nuestra.cpu, nuestra.segundos, nuestra.ok, nuestra.fallidas);
    if (suya.cpu < 1e9)
        std::printf("pgn-extract -r checking every game: %.3f s processor, %.3f s elapsed; "
                    "ours takes %.2f times its processor time\n",
                    suya.cpu, suya.segundos, nuestra.cpu / suya.cpu);
    else
        std::printf("pgn-extract not found (Debian package pgn-extract)\n");
    return 0;
}
