// One drag step at 60-pixel squares: the board copied back, the piece drawn at the cursor, the
// legality probe and the cursor, as each mouse move of a drag does them. Target: under 2 ms.
#include "board/dibujo_tablero.h"
#include "board/partida_local.h"
#include "board/vista_tablero.h"

#include "core/game_state.h"

#include <QApplication>
#include <benchmark/benchmark.h>

namespace {

using namespace Variables;

void PasoDeArrastre(benchmark::State& estado) {
    qa::VistaTablero vista;
    qa::DibujoTablero dibujo(vista);
    InstalarDibujo(&dibujo);
    vista.PonerTamano(60, false);
    vista.Redimensionar();
    qa::PicBuffer& pic = *vista.Picture();
    qa::PartidaLocal(pic);
    const int medio = pic.AnchoCasilla / 2;
    pic.MouseDown(Qt::LeftButton, 3 * pic.AnchoCasilla + medio, 6 * pic.AltoCasilla + medio);
    int paso = 0;
    for (auto _ : estado) {
        // Up and down the d-file, over legal and illegal squares.
        const int y = (paso++ % (8 * pic.AltoCasilla - 2)) + 1;
        pic.DragOver(3 * pic.AnchoCasilla + medio, y, false);
        benchmark::DoNotOptimize(pic.Imagen().constBits());
    }
    pic.DragDrop(3 * pic.AnchoCasilla + medio, 6 * pic.AltoCasilla + medio);
    InstalarDibujo(nullptr);
}
BENCHMARK(PasoDeArrastre)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
