// What both sides agree on: a new game, resigning, a draw, a take-back, opening a game or a
// position for both.

#include "net/sesion_interna.h"

namespace qa {

namespace {

std::string Mayusculas(std::string s) {
    for (char& c : s)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return s;
}

} // namespace

bool SesionRed::Impl::NuevoJuego(const wire::Oferta& o) {
    // The colour named is the one offered to this side: White when the offerer plays Black.
    const std::string color = o.color == '1' ? M(22) : o.color == '2' ? M(21) : "";
    std::string pregunta;
    if (o.modo == 'R') {
        const std::string m = M(10);
        const std::size_t a = m.find('$');
        const std::size_t b = a == std::string::npos ? a : m.find('$', a + 1);
        const std::string antes = m.substr(0, a);
        const std::string entre =
            a == std::string::npos ? "" : m.substr(a + 1, b == std::string::npos ? b : b - a - 1);
        pregunta = antes + std::to_string(o.minutos) + entre + color + ".";
    } else if (o.modo == 'A') {
        const std::string m = M(87);
        const std::size_t a = m.find('$');
        pregunta = m.substr(0, a) + M(24) + (a == std::string::npos ? "" : m.substr(a + 1)) + " " +
                   color + ".";
    }
    if (Caja(pregunta, kIconoPregunta, kBotonesSiNo) != kRespuestaSi || !Conectado) {
        s.EnviarMensaje("NuevoCancelado");
        return true;
    }
    DesdePosicion = false;
    OcultarMarcas();
    s.EnviarMensaje("NuevoAceptado");
    MinutosBlancas = MinutosNegras = o.minutos;
    SegundosBlancas = SegundosNegras = 0;
    PrintReloj(1);
    PrintReloj(2);
    TipoPartida = std::string(1, o.modo);
    if (o.color == '1') {
        Turno = 0;
        ColorJugador = "Negras";
    } else if (o.color == '2') {
        Turno = 1;
        ColorJugador = "Blancas";
    }
    NuevoAceptado();
    MovimientoAnulado();
    if (o.color == '1') vista.GirarTablero(true);
    if (o.color == '2') vista.GirarTablero(false);
    QuitaMarco();
    // White's clock runs from the acceptance; a free game has none, except that the offerer
    // playing Black leaves the clocks as they were.
    if (o.color == '1' && o.modo == 'R') Relojes(true, false);
    if (o.color == '1' && o.modo == 'A') Relojes(false, false);
    if (o.color == '2' && o.modo == 'R') Relojes(true, false);
    return true;
}

void SesionRed::Impl::NuevoAceptadoRecibido() {
    DesdePosicion = false;
    OcultarMarcas();
    nuevoPendiente = false;
    const int32_t minutos = static_cast<int32_t>(wire::ValorVersion(nuevo.minutos));
    MinutosBlancas = MinutosNegras = minutos;
    SegundosBlancas = SegundosNegras = 0;
    PrintReloj(1);
    PrintReloj(2);
    const bool blancas = nuevo.blancas;
    // Playing Black, only a game still running counts here: after a finished one no clock
    // starts until White's first time message.
    if (blancas) {
        Relojes(nuevo.puntuable, false);
    } else if (TipoPartida == "R") {
        Relojes(true, false);
    }
    NuevoAceptado();
    MovimientoAnulado();
    vista.GirarTablero(!blancas);
    QuitaMarco();
    Turno = blancas ? 1 : 0;
    ColorJugador = blancas ? "Blancas" : "Negras";
    TipoPartida = nuevo.puntuable ? "R" : "A";
    Avisar(101);
}

void SesionRed::Impl::Epd(const wire::Posicion& p) {
    TipoPartida = "A"; // a position game is never rated
    ColorJugador.clear();
    Turno = 0;
    if (listas().ListaPgnVisible()) {
        FicheroPgn.clear();
        listas().CerrarListaPgn();
    }
    VaciarParaPosicion();
    ColorInicio = 0;
    bool relleno = p.forma == '2';
    if (p.forma == '1' || p.forma == '2') Turno = 0;
    if (p.forma == 'T') {
        Turno = static_cast<int16_t>(p.turno);
        relleno = p.turno == 2;
    }
    if (relleno) JugadaVaciaBlancas();
    ColorJugador = p.negras ? "Negras" : "Blancas"; // the sender told its own colour
    LeerFen(p.fen);
    dibujo().RedibujarTablero();
    Cargando = false;
    vista.GirarTablero(ColorJugador == "Negras");
    QuitaMarco();
    DesdePosicion = true;
}

bool SesionRed::MenuNuevaPartida() {
    Impl& d = *p_;
    if (listas().ListaPgnVisible() || EditandoTablero) return true;
    if (d.ofertaPendiente || d.nuevoPendiente || !d.archivoPendiente.empty()) {
        d.Avisar(81);
        return true;
    }
    if (Cargando) {
        d.Avisar(80);
        return true;
    }
    if (!Conectado) return false;
    if (!TipoPartida.empty() && !d.Preguntar(12, kSegundoPorDefecto)) return true;
    d.vista.MostrarNuevo();
    return true;
}

void SesionRed::MenuRendirse() {
    Impl& d = *p_;
    if (!d.Guardias(3) || TipoPartida.empty() || !Conectado) return;
    if (!d.Preguntar(14, kSegundoPorDefecto)) return;
    EnviarMensaje("Rendirse");
    if (TipoPartida == "R") SumaDePartidas(kPerdida);
    TerminarPartida();
    d.Avisar(15);
}

void SesionRed::MenuOfrecerTablas() {
    Impl& d = *p_;
    if (!d.Guardias(4) || TipoPartida.empty() || !Conectado) return;
    if (!d.Preguntar(17, kSegundoPorDefecto) || !Conectado) return;
    EnviarMensaje("OfrecerTablas");
    d.ofertaPendiente = true;
}

void SesionRed::MenuRetroceder() {
    Impl& d = *p_;
    if (motor().CpuVisible()) {
        d.vista.ComandoMotor(5);
        return;
    }
    if (Jugadas::List[1].empty() || EditandoTablero || Cargando) return;
    if (d.ofertaPendiente) {
        d.Avisar(81);
        return;
    }
    if (Conectado && Turno == 0) {
        if (wire::ValorVersion(d.versionRemota) <= 1.41) {
            d.Avisar(106);
            return;
        }
        d.ofertaPendiente = true;
        EnviarMensaje("Retroceso");
    } else if (!Conectado && Turno != 0) {
        RetrocesoFuncion();
    }
}

bool SesionRed::AbrirArchivo(const std::string& ruta) {
    Impl& d = *p_;
    if (!Conectado) return false;
    const std::string tipo = ruta.size() >= 3 ? Minusculas(ruta.substr(ruta.size() - 3)) : "";
    const bool enJuego = !TipoPartida.empty();
    if (tipo == "pgn") {
        d.Avisar(58);
    } else if (tipo == "qtr") {
        if (enJuego) {
            if (d.Preguntar(57)) {
                d.archivoPendiente = ruta;
                EnviarMensaje("AbrirPartida");
            }
        } else {
            AbrirQtr(ruta);
        }
    } else if (tipo == "epd") {
        if (wire::ValorVersion(d.versionRemota) <= 1.41) {
            d.Avisar(56);
            return true;
        }
        if (enJuego && !d.Preguntar(57)) return true;
        if (d.vista.EpdVisible()) d.vista.CerrarEpd();
        if (!enJuego) TerminarPartida();
        d.archivoPendiente = ruta;
        Cargando = true;
        EnviarMensaje("AbrirPartidaEPD");
    }
    return true;
}

void SesionRed::CancelarEpd() {
    EnviarMensaje("CancelarEPD");
}

void SesionRed::EnviarPosicion() {
    const bool delRival = Turno == 0;
    EnviarMensaje(
        wire::TextoEpd(delRival, delRival ? ColorInicio : Turno, ColorJugador, PosicionFen));
}

int SesionRed::PreguntarColor() {
    Impl& d = *p_;
    const std::string letras = d.M(59);
    const std::string pregunta =
        d.M(86) + " " + (ColorInicio == 0 ? d.M(21) : d.M(22)) + "." + FinLinea + letras;
    // The last letters of the prompt's tail, as in "(B/N)": White's, a slash, Black's.
    const std::string blancas = letras.size() >= 4 ? letras.substr(letras.size() - 4, 1) : "";
    const std::string negras = letras.size() >= 2 ? letras.substr(letras.size() - 2, 1) : "";
    for (;;) {
        const std::string r = Mayusculas(dialogos().PedirTexto(pregunta, d.M(60)));
        if (!r.empty() && r == blancas) return 1;
        if (!r.empty() && r == negras) return 2;
        if (!d.vista.VolverAPreguntar()) return 1;
    }
}

} // namespace qa
