// The engine session: the moves both ways, and the other spelling of a castling.

#include "engine/motores_interno.h"

#include "core/move_filter.h"
#include "core/move_sequence.h"
#include "platform/texto.h"

namespace qa {

using namespace motor;

namespace {

// The engine's letter of a promotion piece, and back.
char LetraPieza(int32_t pieza) {
    switch (pieza) {
    case TorreB:
    case TorreN:
        return 'r';
    case CaballoB:
    case CaballoN:
        return 'n';
    case AlfilB:
    case AlfilN:
        return 'b';
    case DamaB:
    case DamaN:
        return 'q';
    default:
        return '\0';
    }
}
int32_t PiezaDeLetra(char letra, bool negra) {
    const int32_t blanca = letra == 'r'   ? TorreB
                           : letra == 'n' ? CaballoB
                           : letra == 'b' ? AlfilB
                           : letra == 'q' ? DamaB
                                          : Vacia;
    return blanca != Vacia && negra ? blanca + 6 : blanca;
}

// A board square ("52") as the engine writes it ("e2").
std::string CasillaMotor(const std::string& casilla) {
    std::string r;
    if (!casilla.empty())
        r += casilla[0] >= '1' && casilla[0] <= '8' ? static_cast<char>(casilla[0] - '1' + 'a')
                                                    : '?';
    if (casilla.size() > 1) r += casilla[1];
    return r;
}

} // namespace

void Motores::GenerarMovimiento() {
    Impl& i = *impl_;
    e_.MovimientoCPU = CasillaMotor(Origen) + CasillaMotor(Destino);
    if (const char letra = LetraPieza(PiezaCoronacion)) e_.MovimientoCPU += letra;
    const std::string& mc = e_.MovimientoCPU;
    // By the text alone: any piece from e1 to g1 counts.
    if (mc == "e1g1" || mc == "e8g8" || mc == "e1c1" || mc == "e8c8") i.EnroqueEnviado();
    const bool reloj = i.ConReloj();
    if (reloj && Jugadas::List1.size() == 1 && Val(i.cpu.TextoNivel(3)) == MinutosNegras)
        i.RelojesANivel();
    const int m = MotorBlancas ? 1 : 2;
    if (reloj && Impl::Corre(m)) {
        Impl::EncenderReloj(m == 1 ? i.timer4 : i.timer5);
        (m == 1 ? i.timer5 : i.timer4).Habilitar(false);
        i.TickReloj(m);
    }
    i.TimeMilisegundos();
    i.Enviar(m, i.Relojes(m) + kCrLf + e_.MovimientoCPU);
}

void Motores::Impl::ConvertirMovimiento(const std::string& texto) {
    std::string t = MinusculasAscii(SinBlancosDelante(texto));
    e.MovimientoCPU.clear();
    // Which side castles is read from the engine whose last line says so.
    if (t == "o-o") {
        if (Tiene(e.RespuestaMotor[1], "o-o")) t = "e1g1";
        if (Tiene(e.RespuestaMotor[2], "o-o")) t = "e8g8";
    } else if (t == "o-o-o") {
        if (Tiene(e.RespuestaMotor[1], "o-o-o")) t = "e1c1";
        if (Tiene(e.RespuestaMotor[2], "o-o-o")) t = "e8c8";
    }
    for (std::size_t i = 0; i < 4 && i < t.size(); ++i) {
        const char c = t[i];
        if (i % 2 == 0 && c >= 'a' && c <= 'h') e.MovimientoCPU += static_cast<char>(c - 'a' + '1');
        if (i % 2 == 1 && c >= '1' && c <= '8') e.MovimientoCPU += c;
    }
    // The promotion piece is read from the engine's stored line, not from the move.
    PiezaCoronacion = 0;
    if (t.size() >= 5) {
        if (MotorNegras && !e.RespuestaMotor[2].empty())
            PiezaCoronacion = PiezaDeLetra(e.RespuestaMotor[2].back(), true);
        if (MotorBlancas && PiezaCoronacion == 0 && !e.RespuestaMotor[1].empty())
            PiezaCoronacion = PiezaDeLetra(e.RespuestaMotor[1].back(), false);
    }
    const std::string& m = e.MovimientoCPU;
    Origen = m.substr(0, 2);
    Destino = m.size() > 2 ? m.substr(m.size() - 2) : m;
    TurnoDelJugador();
    FiltroMovimiento();
    if (!AlPasoTexto.empty()) {
        if (!MovimientoValido) {
            MovimientoAnulado();
            return;
        }
        SubComoFicha(AlPasoTexto);
    }
    if (!MovimientoValido) {
        MovimientoAnulado();
        return;
    }
    RematarJugada();
    TurnoDelJugador();
}

void Motores::Impl::TurnoDelJugador() {
    if (ColorJugador == "Negras") Turno = 2;
    if (ColorJugador == "Blancas") Turno = 1;
}

void Motores::Impl::RamaMovimiento(const LineaMotor& l, int m) {
    for (int i = 1; i <= 2; ++i)
        if (e.ComandoMotor[i] == "?") e.ComandoMotor[i].clear();
    if (l.largo) return;
    const int o = 3 - m;
    if (ConReloj()) {
        (m == 1 ? timer4 : timer5).Habilitar(false);
        EncenderReloj(m == 1 ? timer5 : timer4);
    }
    e.RespuestaMotor[m] = l.clave;
    Turno = static_cast<int16_t>(m);
    ConvertirMovimiento(l.texto);
    if (!Corre(o)) {
        Turno = static_cast<int16_t>(o);
        return;
    }
    // The sends inside have set "..." meanwhile.
    e.RespuestaMotor[m] = l.clave;
    std::string jugada = l.texto;
    const char fila = m == 1 ? '1' : '8';
    if (jugada == std::string("e") + fila + "g" + fila || jugada == "o-o") {
        jugada = std::string("e") + fila + "g" + fila;
        EnroqueEnviado();
    } else if (jugada == std::string("e") + fila + "c" + fila || jugada == "o-o-o") {
        jugada = std::string("e") + fila + "c" + fila;
        EnroqueEnviado();
    }
    if (ConReloj()) TickReloj(o);
    TimeMilisegundos();
    Enviar(o, jugada + kCrLf + Relojes(o));
    Turno = 0;
}

void Motores::Impl::EnroqueEnviado() {
    e.EnroquePendiente = true;
    timer2.Habilitar(true);
}

// The castling fallback: the other spelling after two seconds without a word but refusals.
void Motores::Impl::Timer2() {
    const std::string& mc = e.MovimientoCPU;
    if (mc == "e1c1") e.RespuestaMotor[1] = "move o-o-o";
    if (mc == "e1g1") e.RespuestaMotor[1] = "move o-o";
    if (mc == "e8c8") e.RespuestaMotor[2] = "move o-o-o";
    if (mc == "e8g8") e.RespuestaMotor[2] = "move o-o";
    for (int m = 1; m <= 2; ++m) {
        const std::string& r = e.RespuestaMotor[m];
        const std::string fila = m == 1 ? "1" : "8";
        if (r.size() != 9) continue;
        const std::string forma = TerminaEn(r, "e" + fila + "c" + fila)   ? "O-O-O"
                                  : TerminaEn(r, "e" + fila + "g" + fila) ? "O-O"
                                                                          : "";
        if (forma.empty()) continue;
        TimeMilisegundos();
        Enviar(3 - m, forma + kCrLf + Relojes(3 - m));
    }
    const std::string minus = MinusculasAscii(e.MovimientoCPU);
    if (minus == "o-o" || minus == "o-o-o") {
        const bool largo = minus == "o-o-o";
        TimeMilisegundos();
        if (MotorBlancas) Enviar(1, std::string(largo ? "e8c8" : "e8g8") + kCrLf + Relojes(1));
        if (MotorNegras) Enviar(2, std::string(largo ? "e1c1" : "e1g1") + kCrLf + Relojes(2));
    }
    e.EnroquePendiente = false;
    timer2.Habilitar(false);
}

} // namespace qa
