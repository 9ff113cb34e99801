// Memory per half-move of a huge single game in the board's window: the move list window shown
// offscreen, every half-move played through the real move sequence, once with the list window
// and once without it, each in a process of its own so that its peak is its own.
//
//   bench/bench_gui [HALF_MOVES]   the game has HALF_MOVES half-moves (default 2,000,000)
#include "board/lista_jugadas.h"

#include "core/environment.h"
#include "core/game_state.h"
#include "core/local_move.h"

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// The board's picture does nothing here: what is measured is the lists and their window.
class SinTablero : public EntornoDibujo {
public:
    explicit SinTablero(qa::ListaJugadas* lista) : lista_(lista) {}
    bool PointClickMarcado() override { return false; }
    bool TableroInvertido() override { return false; }
    void RedibujarTorreEnroque() override {}
    void MarcadorVisible(bool) override {}
    void OcultarMarcasUltimaJugada() override {}
    void DibujarMovimiento() override {}
    void RedibujarTablero() override {}
    void QuitarFichaAlPaso(int, int) override {}
    void ListasCambiadas() override {
        if (lista_) lista_->Actualizar();
    }
    void AvisoCargando(const std::string&) override {}
    void MostrarCoronacion() override {}

private:
    qa::ListaJugadas* lista_;
};

// The knights go out and home again, over and over.
int Jugar(int argc, char** argv, long medias, bool conVentana) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    qa::ListaJugadas lista;
    lista.resize(220, 300);
    if (conVentana) lista.show();
    SinTablero tablero(conVentana ? &lista : nullptr);
    InstalarDibujo(&tablero);
    Variables::NuevaPartidaLocal();
    app.processEvents();
    static const char* const kVuelta[][2] = {
        {"71", "63"}, {"78", "66"}, {"63", "71"}, {"66", "78"}};
    for (long i = 0; i < medias; ++i) {
        const auto r = Variables::SoltarFicha(kVuelta[i % 4][0], kVuelta[i % 4][1], 0);
        if (r.tipo != Variables::Respuesta::Legal) return 2;
        if (i % 65536 == 0) app.processEvents(); // the window lays out and paints as it goes
    }
    app.processEvents();
    if (conVentana && lista.model()->rowCount() != medias) return 3;
    InstalarDibujo(nullptr);
    return 0;
}

long PicoKb(const char* yo, long medias, bool conVentana) {
    const pid_t pid = ::fork();
    if (pid == 0) {
        const std::string n = std::to_string(medias);
        ::execl(yo, yo, n.c_str(), conVentana ? "ventana" : "solo", nullptr);
        ::_exit(127);
    }
    int estado = 0;
    struct rusage uso {};
    ::wait4(pid, &estado, 0, &uso);
    if (!WIFEXITED(estado) || WEXITSTATUS(estado) != 0) {
        std::printf("the run of %ld half-moves failed (%d)\n", medias, estado);
        std::exit(1);
    }
    return uso.ru_maxrss;
}

} // namespace

int main(int argc, char** argv) {
    const long medias = argc > 1 ? std::atol(argv[1]) : 2000000;
    if (argc > 2) return Jugar(argc, argv, medias, std::string(argv[2]) == "ventana");
    const long kPequena = 4;
    for (bool conVentana : {false, true}) {
        const long base = PicoKb(argv[0], kPequena, conVentana);
        const long grande = PicoKb(argv[0], medias, conVentana);
        std::printf("%s: %ld half-moves, peak %.1f MB, %.1f bytes per half-move\n",
                    conVentana ? "with the move list window" : "lists only, no window", medias,
                    static_cast<double>(grande) / 1024.0,
                    static_cast<double>(grande - base) * 1024.0 / static_cast<double>(medias));
    }
}
