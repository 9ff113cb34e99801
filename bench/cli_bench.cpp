// Figures of the console tool as a user meets them, measured on the real program in its own
// process: how soon it answers its first command after it was started, and how much memory a
// huge single game costs per half-move.
//
//   bench/bench_cli [HALF_MOVES]   the huge game has HALF_MOVES half-moves (default 2,000,000)
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace {

using Reloj = std::chrono::steady_clock;

struct Corrida {
    double primeraRespuestaMs = 0; // from the start of the process to its first answer line
    long memoriaMaximaKb = 0;
    std::string salida;
};

// Runs the tool with `entrada` on its standard input.
Corrida Correr(const std::string& cli, const std::string& entrada) {
    int in[2], out[2];
    if (::pipe(in) != 0 || ::pipe(out) != 0) std::exit(1);
    posix_spawn_file_actions_t acciones;
    posix_spawn_file_actions_init(&acciones);
    posix_spawn_file_actions_adddup2(&acciones, in[0], 0);
    posix_spawn_file_actions_adddup2(&acciones, out[1], 1);
    posix_spawn_file_actions_addopen(&acciones, 2, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addclose(&acciones, in[1]);
    posix_spawn_file_actions_addclose(&acciones, out[0]);
    char* argv[] = {const_cast<char*>(cli.c_str()), nullptr};
    // The command is waiting before the program starts: what is measured is the program.
    if (::write(in[1], entrada.data(), entrada.size()) != static_cast<ssize_t>(entrada.size()))
        std::exit(1);
    ::close(in[1]);
    const auto inicio = Reloj::now();
    pid_t pid = 0;
    if (posix_spawn(&pid, cli.c_str(), &acciones, nullptr, argv, environ) != 0) std::exit(1);
    posix_spawn_file_actions_destroy(&acciones);
    ::close(in[0]);
    ::close(out[1]);
    Corrida c;
    char buf[65536];
    bool primera = false;
    for (;;) {
        const ssize_t n = ::read(out[0], buf, sizeof buf);
        if (n <= 0) break;
        if (!primera) {
            c.primeraRespuestaMs =
                std::chrono::duration<double, std::milli>(Reloj::now() - inicio).count();
            primera = true;
        }
        c.salida.append(buf, static_cast<size_t>(n));
    }
    ::close(out[0]);
    int estado = 0;
    struct rusage uso {};
    ::wait4(pid, &estado, 0, &uso);
    c.memoriaMaximaKb = uso.ru_maxrss;
    return c;
}

// One game of `medias` half-moves: the knights go out and home again, over and over.
void EscribirPartida(const std::string& ruta, long medias) {
    std::ofstream out(ruta, std::ios::binary);
    out << "[Event \"Enorme\"]\n[White \"A\"]\n[Black \"B\"]\n[Result \"*\"]\n\n";
    static const char* const kVuelta[] = {"Nf3", "Nf6", "Ng1", "Ng8"};
    std::string linea;
    for (long i = 0; i < medias; ++i) {
        if (i % 2 == 0) linea += std::to_string(i / 2 + 1) + ". ";
        linea += kVuelta[i % 4];
        linea += ' ';
        if (linea.size() > 72) {
            linea.back() = '\n';
            out << linea;
            linea.clear();
        }
    }
    out << linea << "*\n";
}

// The same knights' dance as a game file of the program's own.
void EscribirQtr(const std::string& ruta, long medias) {
    std::ofstream out(ruta, std::ios::binary);
    out << "0000\r\n0000\r\nA\r\n";
    static const char* const kVuelta[] = {"7163", "7866", "6371", "6678"};
    for (long i = 0; i < medias; ++i) out << kVuelta[i % 4] << "\r\n";
}

} // namespace

int main(int argc, char** argv) {
    namespace fs = std::filesystem;
    const std::string cli = (fs::path(argv[0]).parent_path() / ".." / "quintarena-cli").string();
    if (!fs::exists(cli)) {
        std::printf("quintarena-cli not found beside %s\n", argv[0]);
        return 1;
    }
    const long medias = argc > 1 ? std::atol(argv[1]) : 2000000;

    std::vector<double> tiempos;
    for (int i = 0; i < 30; ++i) tiempos.push_back(Correr(cli, "get Turno\n").primeraRespuestaMs);
    std::sort(tiempos.begin(), tiempos.end());
    std::printf("first answer after start: median %.2f ms, best %.2f ms, worst %.2f ms (30 runs)\n",
                tiempos[tiempos.size() / 2], tiempos.front(), tiempos.back());

    const std::string pequena = (fs::temp_directory_path() / "qa-bench-cli-small.pgn").string();
    const std::string enorme = (fs::temp_directory_path() / "qa-bench-cli-huge.pgn").string();
    EscribirPartida(pequena, 4);
    EscribirPartida(enorme, medias);
    const Corrida base = Correr(cli, "pgngame " + pequena + " 0\n");
    const auto inicio = Reloj::now();
    const Corrida grande = Correr(cli, "pgngame " + enorme + " 0\n");
    const double segundos = std::chrono::duration<double>(Reloj::now() - inicio).count();
    const double porMedia = static_cast<double>(grande.memoriaMaximaKb - base.memoriaMaximaKb) *
                            1024.0 / static_cast<double>(medias);
    std::printf("huge single game: %ld half-moves, %.1f MB file, answer \"%s\" in %.1f s\n", medias,
                static_cast<double>(fs::file_size(enorme)) / 1e6,
                grande.salida.substr(0, grande.salida.find('\n')).c_str(), segundos);
    std::printf("peak memory %.1f MB (a small game %.1f MB): %.1f bytes per half-move\n",
                static_cast<double>(grande.memoriaMaximaKb) / 1024.0,
                static_cast<double>(base.memoriaMaximaKb) / 1024.0, porMedia);
    const std::string qtr = (fs::temp_directory_path() / "qa-bench-cli-huge.qtr").string();
    const std::string qtrPequena = (fs::temp_directory_path() / "qa-bench-cli-small.qtr").string();
    EscribirQtr(qtr, medias);
    EscribirQtr(qtrPequena, 4);
    const Corrida baseQtr = Correr(cli, "open " + qtrPequena + "\n");
    const Corrida grandeQtr = Correr(cli, "open " + qtr + "\n");
    std::printf(
        "the same game as a .qtr file (%.1f MB) opened: answer \"%s\", peak memory %.1f MB: "
        "%.1f bytes per half-move\n",
        static_cast<double>(fs::file_size(qtr)) / 1e6,
        grandeQtr.salida.substr(0, grandeQtr.salida.find('\n')).c_str(),
        static_cast<double>(grandeQtr.memoriaMaximaKb) / 1024.0,
        static_cast<double>(grandeQtr.memoriaMaximaKb - baseQtr.memoriaMaximaKb) * 1024.0 /
            static_cast<double>(medias));
    for (const auto& f : {pequena, enorme, qtr, qtrPequena}) fs::remove(f);
    return 0;
}
