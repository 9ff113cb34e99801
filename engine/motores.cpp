#include "engine/motores.h"

#include "core/clocks.h"
#include "core/game_state.h"
#include "core/move_filter.h"
#include "core/move_list.h"
#include "core/move_sequence.h"
#include "core/takeback.h"
#include "engine/descubrimiento.h"
#include "engine/lector_motor.h"
#include "engine/niveles.h"
#include "language/idioma.h"
#include "platform/mensajes.h"
#include "platform/programa.h"
#include "platform/ruta.h"
#include "platform/texto.h"

#include <algorithm>

namespace qa {

using namespace Variables;

namespace {

constexpr const char* kCrLf = "\r\n";

bool Contiene(const std::string& texto, const std::string& parte) {
    return texto.find(parte) != std::string::npos;
}

// What stands before and behind the "$" of a message; with none, all of it is behind.
std::string AntesDolar(const std::string& texto) {
    const auto p = texto.find('$');
    return p == std::string::npos ? std::string() : texto.substr(0, p);
}
std::string TrasDolar(const std::string& texto) {
    const auto p = texto.find('$');
    return p == std::string::npos ? texto : texto.substr(p + 1);
}

void Aviso(const std::string& texto, int icono = kIconoInformacion) {
    dialogos().MostrarMensaje(kTituloMensajes, texto, icono, kBotonAceptar, 0);
}
void Aviso(int numero, int icono = kIconoInformacion) {
    Aviso(std::to_string(numero), icono);
}

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

std::string MinusculasAscii(std::string texto) {
    for (char& c : texto)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return texto;
}

int32_t Centesimas(int32_t minutos, int32_t segundos) {
    const int64_t c = (static_cast<int64_t>(minutos) * 60 + segundos) * 100;
    return static_cast<int32_t>(std::clamp<int64_t>(c, INT32_MIN, INT32_MAX));
}

} // namespace

struct Motores::Impl {
    Impl(Motores& m, EntornoCpu& c, Temporizador& t1, Temporizador& t2, Temporizador& t3,
         Temporizador& t4, Temporizador& t5)
        : self(m), e(m.e_), cpu(c), timer1(t1), timer2(t2), timer3(t3), timer4(t4), timer5(t5) {}

    Motores& self;
    EstadoMotores& e;
    EntornoCpu& cpu;
    Temporizador &timer1, &timer2, &timer3, &timer4, &timer5;
    ConsolaMotor* consola[3] = {};

    static bool Corre(int motor) { return motor == 1 ? MotorBlancas : MotorNegras; }
    static bool DosMotores() { return MotorBlancas && MotorNegras; }
    bool ConReloj() { return cpu.OpcionNivel() == kNivelReloj; }

    // The entry a list shows, and whether it names an engine rather than a person.
    std::string NombreLista(int lista) {
        const int i = cpu.IndiceLista(lista);
        if (i < 0 || i >= static_cast<int>(e.NombresMotor.size())) return {};
        return e.NombresMotor[static_cast<std::size_t>(i)];
    }
    bool NombraMotor(int lista) { return Nombra(cpu.IndiceLista(lista)); }
    bool Nombra(int i) const {
        return i >= 1 && i < static_cast<int>(e.RutasMotor.size()) &&
               e.NombresMotor[static_cast<std::size_t>(i)] != TextoSinMotor;
    }

    // --- Consoles -------------------------------------------------------------------------

    void EnviarMotor(int motor) {
        if (!Corre(motor)) return;
        cpu.Ceder();
        e.RespuestaMotor[motor] = "...";
        // The yield may have replaced or dropped the console: take the one there is now.
        if (consola[motor]) consola[motor]->Enviar(e.ComandoMotor[motor]);
        cpu.Ceder();
    }

    void Enviar(int motor, const std::string& comando) {
        e.ComandoMotor[motor] = comando;
        EnviarMotor(motor);
    }

    void ArrancarMotor(int motor) {
        e.RespuestaMotor[motor].clear();
        e.ComandoMotor[motor].clear();
        if (!Corre(motor)) return;
        const int ok = consola[motor] ? consola[motor]->Ejecutar(e.RutaMotor[motor]) : 0;
        // The game goes on against nothing: the flag stays.
        if (ok == 0) Aviso(88, kIconoStop);
    }

    void CmdTerminar(int motor) {
        if (Corre(motor)) {
            e.CerrandoMotor = true;
            if (consola[motor]) consola[motor]->Enviar("exit");
            if (consola[motor]) consola[motor]->Enviar("quit");
            cpu.Ceder();
            if (consola[motor]) consola[motor]->Terminar();
            cpu.Ceder();
        }
        e.CerrandoMotor = false;
    }

    void DescargarDLL() {
        consola[1] = consola[2] = nullptr;
        cpu.SoltarConsolas();
    }

    void VariableCPUCero(bool relojes = true) {
        e.MovimientoCPU.clear();
        e.PeticionPendiente = e.EnroquePendiente = false;
        for (int caja = 1; caja <= 5; ++caja) cpu.PonerTexto(caja, "");
        timer4.Habilitar(false);
        timer5.Habilitar(false);
        if (relojes) {
            cpu.PonerTexto(6, "00:00");
            cpu.PonerTexto(7, "00:00");
        }
        for (int m = 1; m <= 2; ++m) {
            e.RutaMotor[m].clear();
            e.ComandoMotor[m].clear();
            e.RespuestaMotor[m].clear();
        }
        MotorBlancas = MotorNegras = false;
    }

    // Both engines stopped and the engine state cleared: the common end of a game.
    void Terminar() {
        CmdTerminar(1);
        CmdTerminar(2);
        VariableCPUCero();
        Turno = 0;
    }

    // --- Clocks ---------------------------------------------------------------------------

    void TimeMilisegundos() {
        e.CentesimasBlancas = Centesimas(MinutosBlancas, SegundosBlancas);
        e.CentesimasNegras = Centesimas(MinutosNegras, SegundosNegras);
    }
    std::string Relojes(int motor) {
        const int32_t propio = motor == 1 ? e.CentesimasBlancas : e.CentesimasNegras;
        const int32_t otro = motor == 1 ? e.CentesimasNegras : e.CentesimasBlancas;
        return "time " + std::to_string(propio) + kCrLf + "otim " + std::to_string(otro);
    }

    void PrintTimerCPU(int lado) {
        const bool blancas = lado == 1;
        const int32_t min = blancas ? MinutosBlancas : MinutosNegras;
        const int32_t seg = blancas ? SegundosBlancas : SegundosNegras;
        const int propia = blancas ? 6 : 7, otra = blancas ? 7 : 6;
        const bool cero = min == 0 && seg == 0;
        cpu.RelojEncendido(propia, !cero);
        cpu.RelojEncendido(otra, false);
        cpu.PonerTexto(propia, TextoTiempo(min, seg));
    }

    void RelojesANivel() {
        const auto minutos = static_cast<int32_t>(std::clamp(Val(cpu.TextoNivel(3)), 0.0, 1e6));
        MinutosBlancas = MinutosNegras = minutos;
        SegundosBlancas = SegundosNegras = 0;
        PrintTimerCPU(1);
        PrintTimerCPU(2);
    }

    // The tick waits for the next change of the wall clock's second: the clock counts those
    // changes, so waking any sooner finds nothing to do.
    void EsperarSegundo(Temporizador& t) {
        if (!t.Habilitado()) return;
        const int64_t ms = cpu.MilisegundosDelDia();
        t.Intervalo(static_cast<int>(1000 - ((ms % 1000) + 1000) % 1000) + 1);
    }

    // A clock switched on looks at the wall clock at once, whatever its last wait was.
    static void EncenderReloj(Temporizador& t) {
        if (!t.Habilitado()) t.Intervalo(1);
        t.Habilitar(true);
    }

    void TickReloj(int lado) {
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

    void CerrarPartidaCPU() {
        timer4.Habilitar(false);
        timer5.Habilitar(false);
        e.ParandoMotores = true;
        CmdTerminar(1);
        CmdTerminar(2);
        VariableCPUCero(false); // the clocks keep their last values
        Turno = 0;
        e.ParandoMotores = false;
        dibujo().OcultarMarcasUltimaJugada();
        TipoPartida.clear();
        ColorJugador.clear();
        VariablesCero();
        dibujo().RedibujarTablero();
        Cargando = false;
        dibujo().ListasCambiadas();
    }

    // --- Moves ----------------------------------------------------------------------------

    void ConvertirMovimiento(const std::string& texto) {
        std::string t = texto.substr(std::min(texto.find_first_not_of(' '), texto.size()));
        t = MinusculasAscii(t);
        e.MovimientoCPU.clear();
        // Which side castles is read from the engine whose last line says so.
        if (t == "o-o") {
            if (Contiene(e.RespuestaMotor[1], "o-o")) t = "e1g1";
            if (Contiene(e.RespuestaMotor[2], "o-o")) t = "e8g8";
        } else if (t == "o-o-o") {
            if (Contiene(e.RespuestaMotor[1], "o-o-o")) t = "e1c1";
            if (Contiene(e.RespuestaMotor[2], "o-o-o")) t = "e8c8";
        }
        for (std::size_t i = 0; i < 4 && i < t.size(); ++i) {
            const char c = t[i];
            if (i % 2 == 0 && c >= 'a' && c <= 'h')
                e.MovimientoCPU += static_cast<char>(c - 'a' + '1');
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

    static void TurnoDelJugador() {
        if (ColorJugador == "Negras") Turno = 2;
        if (ColorJugador == "Blancas") Turno = 1;
    }

    void RamaMovimiento(const LineaMotor& l, int m) {
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

    void EnroqueEnviado() {
        e.EnroquePendiente = true;
        timer2.Habilitar(true);
    }

    // The castling fallback: the other spelling after two seconds without a word but refusals.
    void Timer2() {
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

    // --- The reader -----------------------------------------------------------------------

    void LeerLineaMotor(const std::string& texto, int m) {
        EstadoLinea estado;
        estado.motorBlancas = MotorBlancas;
        estado.motorNegras = MotorNegras;
        estado.enroquePendiente = e.EnroquePendiente;
        estado.peticionPendiente = e.PeticionPendiente;
        estado.sinJugadas = Jugadas::List[1].empty();
        const LineaMotor l = LeerLinea(texto, estado);
        switch (l.clase) {
        case ClaseLinea::Ignorada:
            return;
        case ClaseLinea::RechazoNivel:
            Enviar(m, "level 0 15 0");
            return;
        case ClaseLinea::RechazoGrave:
            Aviso(dialogos().Mensaje(90) + " " + l.linea, kIconoStop);
            Terminar();
            e.PeticionPendiente = false;
            timer1.Habilitar(false);
            return;
        case ClaseLinea::RechazoPeticion:
            e.PeticionPendiente = false;
            timer1.Habilitar(false);
            if (DosMotores())
                Aviso(dialogos().Mensaje(89) + kCrLf + l.clave);
            else
                Aviso(89);
            return;
        case ClaseLinea::Movimiento:
            RamaMovimiento(l, m);
            return;
        case ClaseLinea::Caracteristicas:
            // Engine 2's features go to engine 1, which hears its own last command again.
            e.ComandoMotor[m] = l.texto;
            EnviarMotor(1);
            return;
        case ClaseLinea::OfertaTablas:
            OfertaTablas(m);
            return;
        case ClaseLinea::Tablas:
            timer4.Habilitar(false);
            timer5.Habilitar(false);
            Aviso(95);
            Terminar();
            return;
        case ClaseLinea::Pista:
            if (DosMotores()) return;
            for (int i = 1; i <= 2; ++i)
                if (e.ComandoMotor[i] == "hint") e.ComandoMotor[i].clear();
            e.PeticionPendiente = false;
            timer1.Habilitar(false);
            Aviso(l.texto);
            return;
        case ClaseLinea::Resultado:
            timer4.Habilitar(false);
            timer5.Habilitar(false);
            if (l.tablas) Aviso(95);
            if (l.rendicion) {
                MotorRendido(m);
                return;
            }
            Terminar();
            return;
        case ClaseLinea::Rendicion:
            MotorRendido(m);
            return;
        case ClaseLinea::Otra:
            if (e.EnroquePendiente) {
                e.EnroquePendiente = false;
                timer2.Habilitar(false);
            } else if (e.PeticionPendiente) {
                e.PeticionPendiente = false;
                timer1.Habilitar(false);
            } else {
                const Pensamiento p = LeerPensamiento(l.linea);
                for (int caja = 1; caja <= 5; ++caja)
                    if (p[static_cast<std::size_t>(caja)])
                        cpu.PonerTexto(caja, *p[static_cast<std::size_t>(caja)]);
            }
            return;
        }
    }

    void OfertaTablas(int m) {
        if (DosMotores()) {
            const int o = 3 - m;
            e.PeticionPendiente = true;
            timer1.Habilitar(true);
            Enviar(o, "offer draw");
            return;
        }
        const std::string texto = NombreLista(m) + TrasDolar(dialogos().Mensaje(94));
        const int r =
            dialogos().MostrarMensaje(kTituloMensajes, texto, kIconoPregunta, kBotonesSiNo, 0);
        if (r == kRespuestaSi) Terminar();
    }

    void MotorRendido(int m) {
        timer4.Habilitar(false);
        timer5.Habilitar(false);
        const std::string aviso92 = dialogos().Mensaje(92);
        if (DosMotores())
            Aviso(NombreLista(m) + " " + AntesDolar(aviso92) + NombreLista(3 - m) +
                  TrasDolar(aviso92));
        else if (Corre(m))
            Aviso(NombreLista(m) + TrasDolar(dialogos().Mensaje(91)));
        self.ToolboxComand("2");
    }

    // --- Match control --------------------------------------------------------------------

    void Empezar() {
        if (!Jugadas::List[1].empty() && (MotorBlancas || MotorNegras)) {
            const std::string pregunta = ReemplazarDolar(dialogos().Mensaje(84), kCrLf);
            const int r = dialogos().MostrarMensaje(kTituloMensajes, pregunta, kIconoPregunta,
                                                    kBotonesSiNo, kSegundoPorDefecto);
            if (r != kRespuestaSi) return;
        }
        CmdTerminar(1);
        CmdTerminar(2);
        VariableCPUCero();
        DescargarDLL();
        if (!NombraMotor(1) && !NombraMotor(2)) {
            cpu.Player2();
            Turno = 1;
            return;
        }
        timer3.Habilitar(true);
    }

    void Timer3() {
        // Off first: the sends below yield, and a second tick must not start a second game.
        timer3.Habilitar(false);
        if (const int i = cpu.IndiceLista(1); Nombra(i)) {
            consola[1] = &cpu.NuevaConsola(1);
            CmdTerminar(1);
            e.RutaMotor[1] = e.RutasMotor[static_cast<std::size_t>(i)];
            MotorBlancas = true;
            ArrancarMotor(1);
            cpu.Player2();
            Turno = 0;
        } else {
            cpu.Player2();
            Turno = 1;
        }
        if (const int i = cpu.IndiceLista(2); Nombra(i)) {
            consola[2] = &cpu.NuevaConsola(2);
            CmdTerminar(2);
            e.RutaMotor[2] = e.RutasMotor[static_cast<std::size_t>(i)];
            MotorNegras = true;
            ArrancarMotor(2);
        } else {
            Turno = 0;
        }
        const bool reloj = ConReloj();
        if (reloj && Jugadas::List1.empty()) RelojesANivel();
        if (!reloj) {
            MinutosBlancas = SegundosBlancas = MinutosNegras = SegundosNegras = 0;
            cpu.PonerTexto(6, "00:00");
            cpu.PonerTexto(7, "00:00");
        }
        for (int m = 2; m >= 1; --m) {
            Enviar(m, std::string("xboard") + kCrLf + "protover 2" + kCrLf + "new" + kCrLf);
            Enviar(m, std::string("random") + kCrLf + "ics -" + kCrLf + e.NivelMotor + kCrLf);
            Enviar(m, std::string("post") + kCrLf + "easy" +
                          (m == 1 ? std::string(kCrLf) + "go" : ""));
        }
        if (reloj) {
            EncenderReloj(timer4);
            timer5.Habilitar(false);
        }
        // The person's side comes to stand at the bottom.
        if (MotorBlancas || MotorNegras) {
            if (!MotorBlancas) cpu.MarcarInvertirTablero(true);
            if (!MotorNegras) cpu.MarcarInvertirTablero(false);
        }
        timer3.Habilitar(false);
    }

    void Timer1() {
        for (int i = 1; i <= 2; ++i)
            if (e.ComandoMotor[i] == "offer draw") Aviso(96);
        for (int i = 1; i <= 2; ++i)
            if (e.ComandoMotor[i] == "hint") Aviso(97);
        for (int i = 1; i <= 2; ++i)
            if (e.ComandoMotor[i] == "?") Aviso(97);
        e.PeticionPendiente = false;
        timer1.Habilitar(false);
    }

    // A hint, a move-now or a draw offer to the engine that runs.
    void Peticion(const std::string& comando) {
        for (int m = 1; m <= 2; ++m) {
            if (!Corre(m)) continue;
            cpu.Ceder();
            e.PeticionPendiente = true;
            timer1.Habilitar(true);
            Enviar(m, comando);
        }
    }
};

Motores::Motores(EntornoCpu& cpu, Temporizador& timer1, Temporizador& timer2, Temporizador& timer3,
                 Temporizador& timer4, Temporizador& timer5)
    : impl_(std::make_unique<Impl>(*this, cpu, timer1, timer2, timer3, timer4, timer5)) {
    Impl& i = *impl_;
    timer1.Intervalo(1000);
    timer2.Intervalo(2000);
    timer3.Intervalo(1000);
    timer4.Intervalo(1);
    timer5.Intervalo(1);
    timer1.alVencer = [&i] { i.Timer1(); };
    timer2.alVencer = [&i] { i.Timer2(); };
    timer3.alVencer = [&i] { i.Timer3(); };
    timer4.alVencer = [&i] { i.TickReloj(1); };
    timer5.alVencer = [&i] { i.TickReloj(2); };
    e_.NombresMotor = {TextoSinMotor};
    e_.RutasMotor = {std::string()};
}

Motores::~Motores() {
    for (Temporizador* t :
         {&impl_->timer1, &impl_->timer2, &impl_->timer3, &impl_->timer4, &impl_->timer5}) {
        t->Habilitar(false);
        t->alVencer = nullptr;
    }
}

bool Motores::CpuVisible() {
    return impl_->cpu.Visible();
}

void Motores::DetenerTimersCpu() {
    impl_->timer4.Habilitar(false);
    impl_->timer5.Habilitar(false);
}

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
    if (!MotorBlancas) {
        if (reloj && MotorNegras) {
            Impl::EncenderReloj(i.timer5);
            i.timer4.Habilitar(false);
            i.TickReloj(2);
        }
        i.TimeMilisegundos();
        i.Enviar(2, i.Relojes(2) + kCrLf + e_.MovimientoCPU);
    } else {
        if (reloj) {
            Impl::EncenderReloj(i.timer4);
            i.timer5.Habilitar(false);
            i.TickReloj(1);
        }
        i.TimeMilisegundos();
        i.Enviar(1, i.Relojes(1) + kCrLf + e_.MovimientoCPU);
    }
}

void Motores::ActualizarCPU() {
    Impl& i = *impl_;
    e_.NombresMotor = {TextoSinMotor};
    e_.RutasMotor = {std::string()};
    i.cpu.LlenarListas(e_.NombresMotor);
    const auto encontrados =
        BuscarMotores(RutaReal(DirectorioPrograma + "Motor\\"), [&i] { i.cpu.Ceder(); });
    std::vector<std::string> nombres{TextoSinMotor}, rutas{std::string()};
    for (const auto& m : encontrados) {
        nombres.push_back(m.nombre);
        rutas.push_back(m.ruta);
    }
    e_.NombresMotor = nombres;
    e_.RutasMotor = rutas;
    i.cpu.LlenarListas(nombres);
}

void Motores::Boton(int indice) {
    Impl& i = *impl_;
    switch (indice) {
    case 1:
        i.Empezar();
        break;
    case 2:
        ToolboxComand("2");
        break;
    case 4:
        ToolboxComand("3");
        break;
    case 5:
        ToolboxComand("4");
        break;
    case 7:
        ToolboxComand("5");
        break;
    case 9:
        if (Impl::DosMotores() || Turno == 0) return;
        i.Peticion("hint");
        break;
    case 10:
        if (Turno != 0 || Impl::DosMotores()) return;
        i.Peticion("?");
        break;
    default:
        break;
    }
}

void Motores::ToolboxComand(const std::string& codigo) {
    Impl& i = *impl_;
    if (codigo == "2") {
        i.timer4.Habilitar(false);
        i.timer5.Habilitar(false);
        e_.ParandoMotores = true;
        i.Terminar();
        e_.ParandoMotores = false;
    } else if (codigo == "3") {
        if (Impl::DosMotores()) return;
        if (!MotorNegras && (Turno == 0 || !MotorBlancas)) return;
        std::string nombre;
        if (!i.NombraMotor(1)) nombre = i.NombreLista(2);
        if (!i.NombraMotor(2)) nombre = i.NombreLista(1);
        std::string antes = AntesDolar(dialogos().Mensaje(92));
        if (!antes.empty() && antes[0] >= 'a' && antes[0] <= 'z')
            antes[0] = static_cast<char>(antes[0] - 'a' + 'A');
        Aviso(antes + nombre + TrasDolar(dialogos().Mensaje(92)));
        i.Terminar();
    } else if (codigo == "4") {
        // An offer is made on one's own turn only.
        if (Impl::DosMotores() || Turno == 0) return;
        i.Peticion("offer draw");
    } else if (codigo == "5") {
        if (Turno == 0 || Jugadas::List1.empty()) return;
        // Only the engine has moved, or nobody at this board may take back.
        if (Jugadas::List1.size() == 1 && i.NombraMotor(1)) return;
        if (i.NombraMotor(1) && i.NombraMotor(2)) return;
        RetrocesoFuncion();
        if (i.NombraMotor(1) || i.NombraMotor(2)) RetrocesoFuncion();
        i.cpu.QuitarMarcoActivo();
        // One "remove" takes back both moves.
        for (int m = 1; m <= 2; ++m) {
            if (!Impl::Corre(m)) continue;
            i.cpu.Ceder();
            i.Enviar(m, "remove");
        }
    }
}

bool Motores::PuedeAbrirNiveles() const {
    return !MotorBlancas && !MotorNegras;
}

void Motores::CargarLevel() {
    Impl& i = *impl_;
    const std::string nivel =
        ComandoNivel(i.cpu.OpcionNivel(), i.cpu.TextoNivel(1), i.cpu.TextoNivel(2),
                     i.cpu.TextoNivel(3), i.cpu.JugadasNivel());
    if (!nivel.empty()) e_.NivelMotor = nivel;
}

void Motores::DatoRecibido(int motor, const std::string& texto) {
    if (motor != 1 && motor != 2) return;
    impl_->LeerLineaMotor(texto, motor);
}

void Motores::ErrorRecibido(int /*motor*/, const std::string& texto) {
    Impl& i = *impl_;
    if (e_.CerrandoMotor) return;
    if (e_.ParandoMotores && Contiene(texto, "6")) return;
    Aviso("[ERROR] " + texto, kIconoStop);
    i.DescargarDLL();
    i.Terminar();
}

void Motores::CerrarFormulario() {
    Impl& i = *impl_;
    i.Terminar();
    TipoPartida.clear();
    i.DescargarDLL();
    if (i.cpu.Visible()) listas().MostrarVentanas();
}

void Motores::CerrarPrograma() {
    Impl& i = *impl_;
    if (i.cpu.Visible()) {
        i.Terminar();
        TipoPartida.clear();
    }
    i.DescargarDLL();
}

} // namespace qa
