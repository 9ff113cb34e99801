// The engine session: the clocks of time-control games.

#include "engine/motores_interno.h"

#include "core/clocks.h"
#include "platform/texto.h"

#include <algorithm>
#include <cstdint>

namespace qa {

using namespace motor;

namespace {

int32_t Centesimas(int32_t minutos, int32_t segundos) {
    const int64_t c = (static_cast<int64_t>(minutos) * 60 + segundos) * 100;
    return static_cast<int32_t>(std::clamp<int64_t>(c, INT32_MIN, INT32_MAX));
}

} // namespace

void Motores::DetenerTimersCpu() {
    impl_->PararRelojes();
}

void Motores::Impl::PararRelojes() {
    timer4.Habilitar(false);
    timer5.Habilitar(false);
}

void Motores::Impl::TimeMilisegundos() {
    e.CentesimasBlancas = Centesimas(MinutosBlancas, SegundosBlancas);
    e.CentesimasNegras = Centesimas(MinutosNegras, SegundosNegras);
}

std::string Motores::Impl::Relojes(int motor) {
    const int32_t propio = motor == 1 ? e.CentesimasBlancas : e.CentesimasNegras;
    const int32_t otro = motor == 1 ? e.CentesimasNegras : e.CentesimasBlancas;
    return "time " + std::to_string(propio) + kCrLf + "otim " + std::to_string(otro);
}

void Motores::Impl::PrintTimerCPU(int lado) {
    const bool blancas = lado == 1;
    const int32_t min = blancas ? MinutosBlancas : MinutosNegras;
    const int32_t seg = blancas ? SegundosBlancas : SegundosNegras;
    const int propia = blancas ? 6 : 7, otra = blancas ? 7 : 6;
    const bool cero = min == 0 && seg == 0;
    cpu.RelojEncendido(propia, !cero);
    cpu.RelojEncendido(otra, false);
    cpu.PonerTexto(propia, TextoTiempo(min, seg));
}

void Motores::Impl::RelojesANivel() {
    const auto minutos = static_cast<int32_t>(std::clamp(Val(cpu.TextoNivel(3)), 0.0, 1e6));
    MinutosBlancas = MinutosNegras = minutos;
    SegundosBlancas = SegundosNegras = 0;
    PrintTimerCPU(1);
    PrintTimerCPU(2);
}

// The tick waits for the next change of the wall clock's second: the clock counts those
// changes, so waking any sooner finds nothing to do.
void Motores::Impl::EsperarSegundo(Temporizador& t) {
    if (!t.Habilitado()) return;
    const int64_t ms = cpu.MilisegundosDelDia();
    t.Intervalo(static_cast<int>(1000 - ((ms % 1000) + 1000) % 1000) + 1);
}

// A clock switched on looks at the wall clock at once, whatever its last wait was.
void Motores::Impl::EncenderReloj(Temporizador& t) {
    if (!t.Habilitado()) t.Intervalo(1);
    t.Habilitar(true);
}

void Motores::Impl::TickReloj(int lado) {
    const bool blancas = lado == 1;
    Temporizador& t = blancas ? timer4 : timer5;
    if (!ConReloj()) {
        t.Habilitar(false);
        return;
    }
    // An engine gone from White's side stops the game; Black's side has no such test.
    if (blancas && NombraMotor(1) && !MotorBlancas) self.ToolboxComand("2");

    const int segundo = static_cast<int>((cpu.MilisegundosDelDia() / 1000) % 60);
    int& ultimo = blancas ? e.UltimoSegundoBlancas : e.UltimoSegundoNegras;
    if (segundo == ultimo) {
        EsperarSegundo(t);
        return;
    }
    ultimo = segundo;
    int32_t& min = blancas ? MinutosBlancas : MinutosNegras;
    int32_t& seg = blancas ? SegundosBlancas : SegundosNegras;
    if (seg == 0 && min != 0) {
        --min;
        seg = 60;
    }
    if (seg != 0) {
        --seg;
        PrintTimerCPU(lado);
        EsperarSegundo(t);
        return;
    }
    PrintTimerCPU(lado);
    t.Habilitar(false);
    if (!Corre(lado)) {
        CerrarPartidaCPU();
        Aviso(29);
    } else {
        dialogos().Sonar(5);
        CerrarPartidaCPU();
        Aviso(NombreLista(blancas ? 2 : 1) + ". " + dialogos().Mensaje(30));
    }
    TipoPartida.clear();
    Turno = 0;
    ColorJugador.clear();
}

} // namespace qa
