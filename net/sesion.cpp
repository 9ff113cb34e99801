#include "net/sesion.h"

#include "core/clocks.h"
#include "core/environment.h"
#include "core/game_end.h"
#include "core/game_state.h"
#include "core/move_filter.h"
#include "core/move_list.h"
#include "core/move_sequence.h"
#include "core/takeback.h"
#include "files/fen.h"
#include "files/pgn_scanner.h"
#include "files/qtr_replay.h"
#include "net/puntuacion.h"
#include "net/texto_red.h"
#include "platform/mensajes.h"
#include "platform/texto.h"

#include <array>
#include <climits>

namespace qa {

using namespace Variables;
using wire::Clase;

namespace {

constexpr int kGanada = 2, kPerdida = 1, kTablas = 3;

std::string Minusculas(std::string s) {
    for (char& c : s)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return s;
}

std::string Mayusculas(std::string s) {
    for (char& c : s)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return s;
}

// Characters, not bytes: a name's letters may take more than one byte each.
std::size_t Letras(const std::string& s) {
    std::size_t n = 0;
    for (unsigned char c : s)
        if ((c & 0xC0) != 0x80) ++n;
    return n;
}

// A counter a peer has set to anything steps down without wrapping.
void Menos1(int32_t& v) {
    if (v > INT32_MIN) --v;
}

// A caption loses what stands from " -" on, where the delay was shown.
std::string SinRetraso(const std::string& titulo) {
    const std::size_t p = titulo.find(" -");
    if (titulo.find('-') == std::string::npos || p == std::string::npos) return titulo;
    return titulo.substr(0, p);
}

void TerminarPartida() {
    TipoPartida.clear();
    ColorJugador.clear();
    Turno = 0;
}

} // namespace

struct SesionRed::Impl {
    Impl(SesionRed& sesion, Zocalo& cli, Zocalo& ser, VistaRed& v, TemporizadoresRed tr, Hora& h)
        : s(sesion), wcli(cli), wser(ser), vista(v), t(tr), hora(h) {}

    SesionRed& s;
    Zocalo& wcli;
    Zocalo& wser;
    VistaRed& vista;
    TemporizadoresRed t;
    Hora& hora;

    DialogoConexion conexion;
    DialogoNuevo nuevo;
    // Places 1 to 40; 0 is not used and 41 stays empty, so the shift reads one past the last.
    std::array<std::string, kCola + 2> cola{};
    int32_t cuenta = 0;
    bool esCliente = false, esServidor = false;
    bool envioEnCurso = false, pingEnCurso = false;
    bool relojTrasMovimiento = false, relojTrasRetroceso = false;
    bool nuevoPendiente = false, ofertaPendiente = false, cierrePendiente = false;
    std::string archivoPendiente, versionRemota;
    // The text under dispatch. A message dispatched while a box is open overwrites it, and the
    // tests after the box read the new one.
    std::string recibido;
    int32_t pingInicio = 0, pingContador = 0, pingDelta = 0, pingSegundos = 0;
    int ultimoSegundoBlancas = 0, ultimoSegundoNegras = 0;
    int cajas = 0; // boxes of ours open, one inside the other

    std::string M(int n) { return dialogos().Mensaje(n); }

    // A box of ours. Beyond the nesting limit a question is answered no and a notice is not shown:
    // a flood of offers must not pile up nested loops without end.
    int Caja(const std::string& texto, int icono, int botones, int extra = 0) {
        if (cajas >= kPreguntasAnidadas) return botones == kBotonesSiNo ? kRespuestaNo : 1;
        ++cajas;
        const int r = dialogos().MostrarMensaje(kTituloMensajes, texto, icono, botones, extra);
        --cajas;
        return r;
    }
    bool Preguntar(int n, int extra = 0) {
        return Caja(std::to_string(n), kIconoPregunta, kBotonesSiNo, extra) == kRespuestaSi;
    }
    void Avisar(int n, int icono = kIconoInformacion) {
        Caja(std::to_string(n), icono, kBotonAceptar);
    }

    void VaciarCola() {
        for (int i = 1; i <= kCola; ++i) cola[static_cast<size_t>(i)].clear();
    }

    void OcultarMarcas() { dibujo().MarcadorVisible(false); }
    void QuitaMarco() { dibujo().OcultarMarcasUltimaJugada(); }

    // The clock captions: white marks the clock that ticks.
    void PrintB() {
        if (SegundosBlancas != 0 && !vista.RelojBlanco(1)) vista.ColorReloj(1, true);
        if (SegundosBlancas != 0 && vista.RelojBlanco(2)) vista.ColorReloj(2, false);
        if (MinutosBlancas == 0 && SegundosBlancas == 0) {
            vista.ColorReloj(1, false);
            vista.ColorReloj(2, false);
        }
        PrintTimerB();
    }
    void PrintN() {
        if (SegundosNegras != 0 && !vista.RelojBlanco(2)) vista.ColorReloj(2, true);
        if (SegundosNegras != 0 && vista.RelojBlanco(1)) vista.ColorReloj(1, false);
        if (MinutosNegras == 0 && SegundosNegras == 0) {
            vista.ColorReloj(1, false);
            vista.ColorReloj(2, false);
        }
        PrintTimerN();
    }
    // Both counters to 0, shown.
    void RelojesCero() {
        MinutosBlancas = SegundosBlancas = MinutosNegras = SegundosNegras = 0;
        PrintB();
        PrintN();
    }
    void Relojes(bool blancas, bool negras) {
        t.relojBlancas.Habilitar(blancas);
        t.relojNegras.Habilitar(negras);
    }
    // The mover's clock stops and the other one runs.
    void CambiarRelojes() {
        if (ColorJugador == "Negras") Relojes(true, false);
        if (ColorJugador == "Blancas") Relojes(false, true);
    }

    // A fresh game, as the new game dialog makes it.
    void NuevoAceptado() {
        LineasPartida.assign(2, std::string());
        Cargando = false;
        Jugadas::Vaciar();
        PonerFichas();
        if (!Conectado) {
            dibujo().RedibujarTablero();
            vista.GirarTablero(false);
        }
        VariablesCero();
        MovimientoAnulado();
        EditandoTablero = false;
    }

    // A line for the chat history; one that the history cannot take any more asks to save it,
    // and empties it.
    void AnadirChat(std::string linea) {
        if (linea.size() > kLimiteChat) linea.resize(kLimiteChat);
        if (vista.LongitudChat() + linea.size() > kLimiteChat) {
            if (Caja("7", kIconoPregunta, kBotonesSiNo) == kRespuestaSi) vista.GuardarChat();
            vista.VaciarChat();
            return;
        }
        vista.AnadirChat(linea);
    }

    void InterrumpirEntrada() {
        if (!dibujo().PointClickMarcado()) {
            ArrastreCancelado = true;
            vista.CancelarArrastre();
        } else if (!Atacantes.empty()) {
            Destino.clear();
            Origen.clear();
            dibujo().MarcadorVisible(false);
            vista.SoltarPuntoClick();
        }
    }

    void ConexionEstablecida();
    void ConexionCerrada();
    void ConexionError(const std::string& descripcion);
    void CerradoServidor() {
        wser.Cerrar();
        ConexionCerrada();
    }
    void Animacion() {
        if (conexion.esperando)
            conexion.esperando = false;
        else if (conexion.llamando)
            conexion.llamando = false;
    }

    void EnviarSocket(const std::string& texto) {
        if (!Conectado) return;
        Zocalo* z = esServidor ? &wser : esCliente ? &wcli : nullptr;
        if (z && !z->EnviarDatos(texto)) Avisar(6, kIconoStop);
    }
    void PrioridadCola() {
        const auto adelantar = [this](size_t i) {
            std::string guardado = std::move(cola[i]);
            for (size_t j = i; j > 1; --j) cola[j] = std::move(cola[j - 1]);
            cola[1] = std::move(guardado);
        };
        for (size_t i = 2; i <= kCola; ++i)
            if (cola[i] == wire::kPing) adelantar(i);
        for (size_t i = 2; i <= kCola; ++i)
            if (cola[i].starts_with("TIME")) adelantar(i);
        for (size_t i = 2; i <= kCola; ++i)
            if (cola[i].starts_with("Movimiento")) adelantar(i);
    }

    // The guards of resign, draw and take-back; false when the command stops here.
    bool Guardias(int boton) {
        if (motor().CpuVisible()) {
            vista.ComandoMotor(boton);
            return false;
        }
        if (listas().ListaPgnVisible()) return false;
        if (Cargando) {
            Avisar(80);
            return false;
        }
        if (ofertaPendiente || nuevoPendiente || !archivoPendiente.empty()) {
            Avisar(81);
            return false;
        }
        return !EditandoTablero;
    }

    void Despachar();
    bool Atender(Clase c);
    void Pong();
    void VersionQt();
    void VersionEnSaludo();
    bool Movimiento();
    void Epd(const wire::Posicion& p);
    void Qtr(const wire::LineaQtr& l);
    void ErrorQtr();
    bool NuevoJuego(const wire::Oferta& o);
    void NuevoAceptadoRecibido();
    void TickReloj(int lado);
    void EmpezarReplay(const std::string& ruta);
};

// ---------------------------------------------------------------------------------------------
// Connection and presence.

void SesionRed::Impl::ConexionEstablecida() {
    VaciarCola();
    cuenta = 0;
    OcultarMarcas();
    conexion.command1 = true;
    Animacion();
    vista.PintarConexion(conexion);
    vista.OcultarConexion();
    Turno = 0;
    TipoPartida.clear();
    ColorJugador.clear();
    DesdePosicion = false;
    Jugadas::Vaciar();
    RelojesCero();
    PonerFichas();
    dibujo().RedibujarTablero();
    vista.GirarTablero(false);
    QuitaMarco();
    VariablesCero();
    MovimientoAnulado();
    vista.VaciarChat();
    vista.AnadirChat("*** " + M(39) + FinLinea);
    vista.AnadirChat("Quintarena " + M(40) + " " + kVersion + FinLinea);
    s.EnviarMensaje("Mensaje " + s.Nick + " " + M(42) + " Quintarena " + M(40) + " " + kVersion);
    s.EnviarMensaje(std::string("VersionQT ") + kVersion);
    vista.RedibujarBarraEstado();
    t.ranking.Habilitar(true);
    t.ping.Intervalo(esServidor ? 60000 : 65000);
    t.ping.Habilitar(true);
    dialogos().Sonar(1);
}

void SesionRed::Impl::ConexionCerrada() {
    dialogos().Sonar(2);
    t.bomba.Habilitar(false);
    t.ping.Habilitar(false);
    VaciarCola();
    if (!vista.EnPrimerPlano()) vista.Destellar();
    cuenta = 0;
    esCliente = esServidor = Conectado = envioEnCurso = ofertaPendiente = nuevoPendiente = false;
    TipoPartida.clear();
    ColorJugador.clear();
    archivoPendiente.clear();
    versionRemota.clear();
    Turno = 0;
    if (Cargando) {
        NuevoAceptado();
        MovimientoAnulado();
        Cargando = DesdePosicion = false;
        RelojesCero();
    }
    AnadirChat("*** " + M(41) + FinLinea);
    vista.RedibujarBarraEstado();
    vista.PonerTituloTablero(SinRetraso(vista.TituloTablero()));
}

void SesionRed::Impl::ConexionError(const std::string& descripcion) {
    dialogos().Sonar(2);
    conexion.command1 = true;
    Animacion();
    vista.PintarConexion(conexion);
    t.ping.Habilitar(false);
    t.bomba.Habilitar(false);
    VaciarCola();
    cuenta = 0;
    esCliente = esServidor = Conectado = envioEnCurso = ofertaPendiente = false;
    TipoPartida.clear();
    ColorJugador.clear();
    Turno = 0;
    versionRemota.clear();
    archivoPendiente.clear();
    nuevoPendiente = false;
    AnadirChat("*** " + M(41) + FinLinea);
    Caja(descripcion, kIconoInformacion, kBotonAceptar);
}

void SesionRed::Impl::Pong() {
    pingDelta = static_cast<int32_t>(static_cast<uint32_t>(hora.Contador()) -
                                     static_cast<uint32_t>(pingContador));
    pingSegundos = static_cast<int32_t>(int64_t{hora.SegundosDelDia()} - pingInicio);
    const std::string m = M(109);
    const std::size_t p = m.find('$');
    const std::string antes = p == std::string::npos ? m : m.substr(0, p);
    const std::string despues = p == std::string::npos ? "" : m.substr(p + 1);
    vista.PonerTituloTablero(SinRetraso(vista.TituloTablero()) + " - " + antes +
                             std::to_string(pingSegundos) + despues);
}

void SesionRed::Impl::VersionQt() {
    const std::string& r = recibido;
    const std::size_t espacio = r.find(' ');
    const std::string tras = espacio == std::string::npos ? r : r.substr(espacio + 1);
    if (r.ends_with("eta") && espacio != std::string::npos) {
        versionRemota = tras;
        const std::size_t e = versionRemota.find(' ');
        const int64_t lugar = e == std::string::npos ? 0 : static_cast<int64_t>(e) + 1;
        const int64_t n = static_cast<int64_t>(versionRemota.size()) - lugar - 1;
        versionRemota.resize(static_cast<size_t>(n < 0 ? 0 : n));
    }
    if (versionRemota.empty()) versionRemota = tras;
}

// A greeting from a peer too old to send its version tells it in its last word.
void SesionRed::Impl::VersionEnSaludo() {
    if (recibido.ends_with("eta")) recibido.resize(recibido.size() >= 5 ? recibido.size() - 5 : 0);
    const std::size_t largo = recibido.size();
    for (std::size_t n = 4; n >= 1; --n)
        if (largo > n && recibido[largo - n - 1] == ' ') versionRemota = recibido.substr(largo - n);
}

// ---------------------------------------------------------------------------------------------
// The dispatcher.

void SesionRed::Impl::Despachar() {
    if (recibido == wire::kPing) {
        s.EnviarMensaje(wire::kPong);
        return;
    }
    if (recibido == wire::kPong) {
        Pong();
        return;
    }
    if (!recibido.starts_with("TIME") && !vista.EnPrimerPlano()) vista.Destellar();
    if (wire::AbreCaja(recibido)) InterrumpirEntrada();
    std::size_t prueba = 0;
    for (;;) {
        const Clase c = wire::Clasificar(recibido, prueba, &prueba);
        if (c == Clase::Ninguna || Atender(c)) return;
    }
}

// One test of the dispatcher that matched; true when the dispatch ends with it.
bool SesionRed::Impl::Atender(Clase c) {
    const bool rated = TipoPartida == "R";
    switch (c) {
    case Clase::Ninguna:
        return true;
    case Clase::Retroceso:
        if (!Preguntar(103)) {
            s.EnviarMensaje("RetrocesoCancelado");
            return false;
        }
        Turno = 0;
        s.EnviarMensaje("RetrocesoAceptado");
        RetrocesoFuncion();
        return true;
    case Clase::RetrocesoAceptado:
        ofertaPendiente = false;
        RetrocesoFuncion();
        Turno = 0;
        if (ColorJugador == "Blancas") Turno = 1;
        if (ColorJugador == "Negras") Turno = 2;
        if (rated && Turno == 1) Relojes(true, false);
        if (rated && Turno == 2) Relojes(false, true);
        Avisar(104);
        return true;
    case Clase::RetrocesoCancelado:
        ofertaPendiente = false;
        Avisar(105);
        return true;
    case Clase::Close:
        esCliente = esServidor = Conectado = false;
        TipoPartida.clear();
        ColorJugador.clear();
        t.bomba.Habilitar(false);
        t.ping.Habilitar(false);
        VaciarCola();
        cuenta = 0;
        CerradoServidor();
        return false;
    case Clase::AbrirPartidaEpd:
        if (Preguntar(35)) {
            TerminarPartida();
            DesdePosicion = Cargando = true;
            OcultarMarcas();
            dibujo().AvisoCargando(M(69));
            s.EnviarMensaje("AbrirAceptadoEPD");
        } else {
            s.EnviarMensaje("AbrirCanceladoEPD");
        }
        return false;
    case Clase::AbrirAceptadoEpd:
        vista.LeerEpd(archivoPendiente);
        Cargando = false;
        archivoPendiente.clear();
        return false;
    case Clase::AbrirCanceladoEpd:
        archivoPendiente.clear();
        Cargando = false;
        Avisar(20);
        return false;
    case Clase::CancelarEpd:
        vista.CancelarEpd();
        Avisar(102);
        return false;
    case Clase::Epd: {
        const auto p = wire::LeerEpd(recibido);
        if (!p) return true;
        Epd(*p);
        return false;
    }
    case Clase::AbrirPartida:
        if (Preguntar(35)) {
            DesdePosicion = false;
            Cargando = true;
            OcultarMarcas();
            s.EnviarMensaje("AbrirAceptado");
        } else {
            s.EnviarMensaje("AbrirCancelado");
        }
        return false;
    case Clase::AbrirAceptado:
        if (archivoPendiente.size() >= 3 &&
            Minusculas(archivoPendiente.substr(archivoPendiente.size() - 3)) == "qtr") {
            DesdePosicion = false;
            OcultarMarcas();
            TerminarPartida();
            dialogos().PonerTextoReloj(1, "");
            dialogos().PonerTextoReloj(2, "");
            const std::string ruta = std::move(archivoPendiente);
            archivoPendiente.clear();
            EmpezarReplay(ruta);
        }
        return false;
    case Clase::AbrirCancelado:
        archivoPendiente.clear();
        Avisar(20);
        return false;
    case Clase::NuevoJuego: {
        const auto o = wire::LeerNuevoJuego(recibido);
        if (o) NuevoJuego(*o);
        return true;
    }
    case Clase::NuevoCancelado:
        nuevoPendiente = false;
        Avisar(11);
        return false;
    case Clase::NuevoAceptado:
        NuevoAceptadoRecibido();
        return false;
    case Clase::Rendirse:
        if (rated) s.SumaDePartidas(kGanada);
        TerminarPartida();
        Avisar(16);
        return false;
    case Clase::OfrecerTablas:
        if (Preguntar(18) && Conectado) {
            if (TipoPartida == "R") s.SumaDePartidas(kTablas);
            TerminarPartida();
            s.EnviarMensaje("TablasAceptadas");
        } else {
            s.EnviarMensaje("TablasCancelado");
        }
        return false;
    case Clase::TablasAceptadas:
        ofertaPendiente = false;
        if (rated) s.SumaDePartidas(kTablas);
        TerminarPartida();
        Avisar(19);
        return false;
    case Clase::TablasCancelado:
        ofertaPendiente = false;
        Avisar(20);
        return false;
    case Clase::VersionQt:
        VersionQt();
        return false;
    case Clase::Mensaje:
        if (versionRemota.empty()) VersionEnSaludo();
        vista.MostrarChat();
        AnadirChat((recibido.size() > 8 ? recibido.substr(8) : std::string()) + FinLinea);
        recibido.clear();
        return true;
    case Clase::Time: {
        const auto tiempo = wire::LeerTiempo(recibido);
        if (!tiempo) return true;
        if (!rated) return false;
        if (ColorJugador == "Negras") {
            MinutosBlancas = tiempo->minutos;
            SegundosBlancas = tiempo->segundos;
            PrintB();
            Relojes(false, true);
        } else if (ColorJugador == "Blancas") {
            MinutosNegras = tiempo->minutos;
            SegundosNegras = tiempo->segundos;
            PrintN();
            Relojes(true, false);
        }
        return false;
    }
    case Clase::Movimiento:
        return Movimiento();
    case Clase::Ranking: {
        const auto r = wire::LeerRanking(recibido);
        if (!r) return true;
        PuntuacionRemota = *r;
        vista.MostrarPuntuacion();
        return false;
    }
    case Clase::Qtr: {
        const auto l = wire::LeerQtr(recibido);
        if (l) Qtr(*l);
        MovimientoAnulado();
        return true;
    }
    }
    return true;
}

bool SesionRed::Impl::Movimiento() {
    const auto m = wire::LeerMovimiento(recibido);
    if (!m) return true;
    Destino.clear();
    Origen = m->origen;
    Destino = m->destino;
    PiezaCoronacion = m->pieza;
    if (dibujo().TableroInvertido()) {
        ColRaton = 9 - ColRaton;
        FilaRaton = 9 - FilaRaton;
    }
    if (ColorJugador == "Negras") Turno = 1;
    if (ColorJugador == "Blancas") Turno = 2;
    FiltroMovimiento();
    if (!AlPasoTexto.empty() && MovimientoValido) SubComoFicha(AlPasoTexto);
    if (MovimientoValido) {
        // The drawing takes screen squares, as after a move made on this board.
        if (TipoEnroque == 0) InvertirMovimiento();
        RematarJugada();
        if (ColorJugador == "Negras") Turno = 2;
        if (ColorJugador == "Blancas") Turno = 1;
        return true;
    }
    Caja("Error interno.", kIconoStop, kBotonAceptar);
    s.MenuDesconectar();
    return false;
}

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
    PrintB();
    PrintN();
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
    PrintB();
    PrintN();
    if (nuevo.blancas) {
        Relojes(nuevo.puntuable, false);
        NuevoAceptado();
        MovimientoAnulado();
        vista.GirarTablero(false);
        QuitaMarco();
        Turno = 1;
        ColorJugador = "Blancas";
    } else {
        // Only a game still running counts here: after a finished one no clock starts until
        // White's first time message.
        if (TipoPartida == "R") Relojes(true, false);
        NuevoAceptado();
        MovimientoAnulado();
        vista.GirarTablero(true);
        QuitaMarco();
        Turno = 0;
        ColorJugador = "Negras";
    }
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
    Jugadas::Vaciar();
    VariablesCero();
    MovimientoAnulado();
    RelojesCero();
    TorreA1Movida = TorreH1Movida = TorreA8Movida = TorreH8Movida = true;
    LineasPartida.assign(2, std::string());
    LineaActual = ColorInicio = 0;
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

// ---------------------------------------------------------------------------------------------
// Game transfer.

void SesionRed::Impl::Qtr(const wire::LineaQtr& l) {
    if (l.iniciar) {
        OcultarMarcas();
        Cargando = true;
        ColorInicio = 0;
        TerminarPartida();
        dibujo().AvisoCargando(M(69));
        Jugadas::Vaciar();
        VariablesCero();
        MovimientoAnulado();
        PonerFichas();
        dialogos().PonerTextoReloj(1, "");
        dialogos().PonerTextoReloj(2, "");
        RelojesCero();
        LineasPartida.assign(2, std::string());
        LineasPartida[1] = "E";
    }
    if (l.terminado) {
        LineasPartida.assign(2, std::string());
        dibujo().RedibujarTablero();
        Cargando = false;
        vista.GirarTablero(ColorJugador == "Negras");
        QuitaMarco();
        return;
    }
    switch (l.tipo) {
    case wire::TipoQtr::Otra:
        break;
    case wire::TipoQtr::Error:
        ErrorQtr();
        break;
    case wire::TipoQtr::Clase:
        if (l.valor == 'B') ColorJugador = "Blancas";
        if (l.valor == 'N') ColorJugador = "Negras";
        if (l.valor == 'A' || l.valor == 'R') TipoPartida = std::string(1, l.valor);
        if (l.valor >= '0' && l.valor <= '2') Turno = static_cast<int16_t>(l.valor - '0');
        break;
    case wire::TipoQtr::Relojes:
        if (l.lado == 1) {
            MinutosBlancas = l.minutos;
            SegundosBlancas = l.segundos;
            Turno = 0;
            PrintB();
        } else {
            MinutosNegras = l.minutos;
            SegundosNegras = l.segundos;
            PrintN();
        }
        break;
    case wire::TipoQtr::Jugada:
        if (ColorInicio == 0) Turno = 1;
        if (ColorInicio == 1) Turno = 2;
        Origen = l.origen;
        Destino = l.destino;
        if (l.conPieza) PiezaCoronacion = l.pieza;
        FiltroMovimiento();
        // The sender played the line already; its result is not looked at, but a pawn taken
        // en passant leaves this board too.
        if (MovimientoValido && !AlPasoTexto.empty()) SubComoFicha(AlPasoTexto);
        if (ColorInicio == 0 && Turno == 1)
            ColorInicio = 1;
        else if (ColorInicio == 1 && Turno == 2)
            ColorInicio = 0;
        if (Mate || Ahogado) {
            TerminarPartida();
            RelojesCero();
            if (Mate) FinPorMate();
            if (Ahogado) FinPorAhogado();
        }
        break;
    }
}

void SesionRed::Impl::ErrorQtr() {
    LineasPartida.assign(2, std::string());
    dibujo().RedibujarTablero();
    Cargando = DesdePosicion = false;
    TerminarPartida();
    ColorInicio = 0;
    NuevoAceptado();
    if (!listas().ListaPgnVisible()) listas().MostrarVentanas();
    vista.GirarTablero(false);
    QuitaMarco();
    Avisar(55);
    RelojesCero();
}

void SesionRed::Impl::EmpezarReplay(const std::string& ruta) {
    t.sendQtr.Habilitar(false);
    t.retrasoQtr.Habilitar(false);
    if (!Variables::AbrirQtr(ruta)) return;
    vista.GirarTablero(false);
    dibujo().RedibujarTablero();
    t.sendQtr.Intervalo(100);
    t.sendQtr.Habilitar(true);
}

// ---------------------------------------------------------------------------------------------
// Clocks.

void SesionRed::Impl::TickReloj(int lado) {
    Temporizador& timer = lado == 1 ? t.relojBlancas : t.relojNegras;
    int32_t& minutos = lado == 1 ? MinutosBlancas : MinutosNegras;
    int32_t& segundos = lado == 1 ? SegundosBlancas : SegundosNegras;
    int& ultimo = lado == 1 ? ultimoSegundoBlancas : ultimoSegundoNegras;
    if (TipoPartida.empty()) {
        timer.Habilitar(false);
        vista.ColorReloj(1, false);
        vista.ColorReloj(2, false);
        return;
    }
    // A clock counts changes of the wall clock's second; the tick only looks for them.
    const int segundo = hora.Segundo();
    if (segundo == ultimo) return;
    ultimo = segundo;
    if (minutos != 0 && segundos == 0) {
        Menos1(minutos);
        segundos = 60;
    }
    if (minutos == 0 && segundos == 0) {
        if (lado == 1)
            PrintB();
        else
            PrintN();
        timer.Habilitar(false);
        const std::string perdedor = lado == 1 ? "Blancas" : "Negras";
        const std::string ganador = lado == 1 ? "Negras" : "Blancas";
        if (TipoPartida == "R") {
            if (ColorJugador == perdedor) s.SumaDePartidas(kPerdida);
            if (ColorJugador == ganador) s.SumaDePartidas(kGanada);
        }
        if (ColorJugador == perdedor) {
            Avisar(29);
        } else if (ColorJugador == ganador) {
            dialogos().Sonar(5);
            Avisar(30);
        }
        TerminarPartida();
        return;
    }
    Menos1(segundos);
    if (lado == 1)
        PrintB();
    else
        PrintN();
}

// ---------------------------------------------------------------------------------------------

SesionRed::SesionRed(Zocalo& wcli, Zocalo& wser, VistaRed& vista, TemporizadoresRed t, Hora& hora)
    : p_(std::make_unique<Impl>(*this, wcli, wser, vista, t, hora)) {
    t.bomba.Intervalo(300);
    t.ping.Intervalo(65000);
    t.ranking.Intervalo(2500);
    t.sendQtr.Intervalo(100);
    t.retrasoQtr.Intervalo(100);
    t.relojBlancas.Intervalo(200);
    t.relojNegras.Intervalo(200);
    t.bomba.alVencer = [this] { TickBomba(); };
    t.ping.alVencer = [this] { TickPing(); };
    t.ranking.alVencer = [this] { TickRanking(); };
    t.sendQtr.alVencer = [this] { TickSendQtr(); };
    t.retrasoQtr.alVencer = [this] { TickRetrasoQtr(); };
    t.relojBlancas.alVencer = [this] { TickRelojBlancas(); };
    t.relojNegras.alVencer = [this] { TickRelojNegras(); };
}

SesionRed::~SesionRed() {
    for (Temporizador* x : {&p_->t.bomba, &p_->t.ping, &p_->t.ranking, &p_->t.sendQtr,
                            &p_->t.retrasoQtr, &p_->t.relojBlancas, &p_->t.relojNegras}) {
        x->Habilitar(false);
        x->alVencer = nullptr;
    }
}

void SesionRed::EnviarMensaje(const std::string& texto) {
    Impl& d = *p_;
    if (!Conectado) return;
    // A full queue drops the message: a peer that stops reading cannot make it grow.
    if (d.cuenta >= kCola) return;
    if (d.cuenta < 0) d.cuenta = 0;
    ++d.cuenta;
    d.cola[static_cast<size_t>(d.cuenta)] = texto;
    d.t.bomba.Habilitar(true);
}

void SesionRed::RecibirMensaje(const std::string& texto) {
    p_->recibido = texto;
    p_->Despachar();
}

void SesionRed::AlConectar() {
    Impl& d = *p_;
    d.esCliente = true;
    d.esServidor = false;
    Conectado = true;
    d.ConexionEstablecida();
}

void SesionRed::AlPedirConexion() {
    Impl& d = *p_;
    if (d.wser.Estado() > kZocaloCerrado) {
        d.wser.Cerrar();
        d.wcli.Cerrar();
    }
    d.wser.Aceptar();
    d.esCliente = false;
    d.esServidor = true;
    Conectado = true;
    d.ConexionEstablecida();
}

void SesionRed::AlLlegarDatos(const std::string& datos) {
    p_->recibido.clear();
    RecibirMensaje(datos);
}

void SesionRed::AlCompletarEnvio() {
    Impl& d = *p_;
    d.pingEnCurso = false;
    if (d.relojTrasRetroceso) {
        d.CambiarRelojes();
        d.relojTrasRetroceso = false;
    }
    if (d.relojTrasMovimiento) {
        d.CambiarRelojes();
        d.relojTrasMovimiento = false;
        // The mover tells its own time left.
        if (!d.t.relojNegras.Habilitado())
            EnviarMensaje(wire::TextoTime(MinutosNegras, SegundosNegras));
        if (!d.t.relojBlancas.Habilitado())
            EnviarMensaje(wire::TextoTime(MinutosBlancas, SegundosBlancas));
    }
    d.envioEnCurso = false;
}

void SesionRed::AlCerrar(Lado lado) {
    Impl& d = *p_;
    if (lado == Lado::Servidor) {
        d.CerradoServidor();
        return;
    }
    d.wcli.Cerrar();
    d.ConexionCerrada();
    if (d.cierrePendiente) d.vista.CerrarPrograma();
}

void SesionRed::AlFallar(Lado lado, const std::string& descripcion) {
    (lado == Lado::Cliente ? p_->wcli : p_->wser).Cerrar();
    p_->ConexionError(descripcion);
}

void SesionRed::TickBomba() {
    Impl& d = *p_;
    if (!Conectado) {
        d.VaciarCola();
        d.cuenta = 0;
        d.t.bomba.Habilitar(false);
        return;
    }
    if (d.envioEnCurso) return;
    d.PrioridadCola();
    d.envioEnCurso = true;
    if (TipoPartida == "R") {
        if (d.cola[1].starts_with("Movimiento")) d.relojTrasMovimiento = true;
        if (d.cola[1].starts_with("RetrocesoAceptado")) d.relojTrasRetroceso = true;
    }
    d.EnviarSocket(d.cola[1]);
    if (d.cola[1] == wire::kPing) {
        d.pingContador = d.hora.Contador();
        d.pingInicio = d.hora.SegundosDelDia();
        d.pingEnCurso = true;
    }
    for (size_t i = 1; i <= kCola && !d.cola[i].empty(); ++i) d.cola[i] = d.cola[i + 1];
    if (!d.cola[1].empty()) {
        if (d.cuenta > 0) --d.cuenta;
        return;
    }
    d.cuenta = 0;
    d.t.bomba.Habilitar(false);
}

void SesionRed::TickPing() {
    if (!Conectado) {
        p_->t.ping.Habilitar(false);
        return;
    }
    EnviarMensaje(wire::kPing);
}

void SesionRed::TickRanking() {
    EnviarMensaje(wire::TextoRanking(Puntuacion));
    p_->t.ranking.Habilitar(false);
}

void SesionRed::TickSendQtr() {
    Impl& d = *p_;
    // The feeder slows as the send queue fills, and waits while it is nearly full.
    const int32_t n = d.cuenta;
    int ms = 100;
    if (Conectado) {
        if (n >= 6) ms = 300;
        if (n > 10) ms = 500;
        if (n > 15) ms = 700;
        if (n > 20) ms = 1000;
        if (n > 25) ms = 1500;
    }
    if (d.t.sendQtr.Intervalo() != ms) d.t.sendQtr.Intervalo(ms);
    if (Conectado && n >= 31) return;
    const PasoQtr paso = SendQtr();
    dibujo().RedibujarTablero();
    if (paso == PasoQtr::Final) d.t.retrasoQtr.Habilitar(true);
    if (paso == PasoQtr::Rehusada) d.t.sendQtr.Habilitar(false);
}

void SesionRed::TickRetrasoQtr() {
    Impl& d = *p_;
    d.t.retrasoQtr.Habilitar(false);
    // The end waits until every line has gone out.
    if (d.cuenta > 0) return;
    d.t.sendQtr.Habilitar(false);
    TimerRetrasoQtr();
    d.vista.GirarTablero(Conectado && ColorJugador == "Negras");
    d.QuitaMarco();
    dibujo().RedibujarTablero();
}

void SesionRed::TickRelojBlancas() {
    p_->TickReloj(1);
}

void SesionRed::TickRelojNegras() {
    p_->TickReloj(2);
}

// ---------------------------------------------------------------------------------------------
// The connection dialog and the menu commands.

void SesionRed::ActivarConexion() {
    ElegirLlamar(p_->conexion.llamar);
}

void SesionRed::ElegirLlamar(bool llamar) {
    Impl& d = *p_;
    d.conexion.llamar = llamar;
    if (!llamar) d.vista.VaciarIpConexion();
    d.vista.PintarConexion(d.conexion);
}

void SesionRed::Command1Conexion(const std::string& ip) {
    Impl& d = *p_;
    if (d.conexion.llamar) {
        if (ip.empty()) {
            d.Avisar(13, kIconoStop);
            return;
        }
        if (!d.wcli.Conectar(ip, kPuertoEspera, kPuertoLlamada)) {
            d.wcli.Cerrar();
            d.Avisar(5, kIconoStop);
            return;
        }
        d.conexion.llamando = true;
    } else {
        if (!d.wser.Escuchar(kPuertoEspera)) {
            d.Avisar(4, kIconoStop);
            d.wser.Cerrar();
            d.wcli.Cerrar();
            return;
        }
        d.conexion.esperando = true;
    }
    d.conexion.command1 = false;
    d.vista.PintarConexion(d.conexion);
}

void SesionRed::Command2Conexion() {
    Impl& d = *p_;
    (d.conexion.llamar ? d.wcli : d.wser).Cerrar();
    d.Animacion();
    d.vista.VaciarIpConexion();
    if (!d.conexion.command1) {
        d.conexion.command1 = true;
        d.vista.PintarConexion(d.conexion);
        return;
    }
    d.vista.PintarConexion(d.conexion);
    d.vista.OcultarConexion();
}

void SesionRed::MenuEstablecerConexion() {
    Impl& d = *p_;
    if (d.vista.EpdVisible() || listas().ListaPgnVisible() || motor().CpuVisible() ||
        EditandoTablero)
        return;
    if (Conectado) {
        d.Avisar(9);
        return;
    }
    d.vista.MostrarConexion();
}

void SesionRed::MenuObtenerIp() {
    Impl& d = *p_;
    if (listas().ListaPgnVisible()) return;
    const std::string ip = d.wcli.IpLocal();
    if (ip != "127.0.0.1")
        d.vista.MostrarIp(ip);
    else
        d.Avisar(68);
}

void SesionRed::MenuDesconectar() {
    Impl& d = *p_;
    if (!Conectado) return;
    if (TipoPartida != "R" || d.Preguntar(53, kSegundoPorDefecto)) Desconectar();
}

void SesionRed::Desconectar() {
    Impl& d = *p_;
    if (d.esCliente) {
        // The waiting side closes; the socket's close event ends it here.
        EnviarMensaje("Close");
        return;
    }
    if (!d.esServidor) return;
    d.esCliente = d.esServidor = Conectado = false;
    TipoPartida.clear();
    ColorJugador.clear();
    d.t.bomba.Habilitar(false);
    d.t.ping.Habilitar(false);
    d.CerradoServidor();
}

void SesionRed::MenuCambiarNick() {
    CambiarNick();
}

void SesionRed::CambiarNick() {
    Impl& d = *p_;
    std::string nuevo;
    for (;;) {
        nuevo = dialogos().PedirTexto(d.M(66), d.M(67));
        if (Letras(nuevo) > 9) {
            d.Avisar(38);
        } else if (Nick.empty() && nuevo.empty()) {
            d.Avisar(8); // the first name cannot be skipped
        } else {
            break;
        }
        if (!d.vista.VolverAPreguntar()) return;
    }
    if (nuevo.empty()) return;
    const std::string cambio = "*** " + Nick + " " + d.M(31) + " " + nuevo;
    if (!Nick.empty()) {
        d.AnadirChat(cambio + FinLinea);
        d.vista.TituloChat(nuevo);
    }
    if (Conectado) EnviarMensaje("Mensaje " + cambio);
    Nick = nuevo;
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

void SesionRed::AbrirQtr(const std::string& ruta) {
    TerminarPartida();
    dialogos().PonerTextoReloj(1, "");
    dialogos().PonerTextoReloj(2, "");
    p_->EmpezarReplay(ruta);
}

// ---------------------------------------------------------------------------------------------
// The new game dialog.

namespace {

// The dialog's box after a change: at most 180, leading zeros gone.
std::string MinutosCorregidos(const std::string& texto) {
    const double v = wire::ValorVersion(texto);
    if (v > 180) return "180";
    if (texto.empty()) return texto;
    return std::to_string(static_cast<int32_t>(v));
}

int32_t ValorMinutos(const std::string& texto) {
    const double v = wire::ValorVersion(texto);
    return v > 1000 ? 1000 : v < -1000 ? -1000 : static_cast<int32_t>(v);
}

} // namespace

void SesionRed::CargarNuevo() {
    p_->nuevo.blancas = true;
    NuevoOpcion3();
}

void SesionRed::NuevoOpcionColor(bool blancas) {
    p_->nuevo.blancas = blancas;
    p_->vista.PintarNuevo(p_->nuevo);
}

void SesionRed::NuevoOpcion3() {
    Impl& d = *p_;
    d.nuevo.puntuable = true;
    d.nuevo.minutosHabilitado = true;
    std::string tiempo = d.vista.LeerTiempo();
    if (wire::ValorVersion(tiempo) < 1) tiempo = "1";
    d.nuevo.minutos = MinutosCorregidos(tiempo);
    d.vista.PintarNuevo(d.nuevo);
}

void SesionRed::NuevoOpcion4() {
    Impl& d = *p_;
    d.nuevo.puntuable = false;
    d.nuevo.minutosHabilitado = false;
    d.vista.GuardarTiempo(d.vista.LeerTiempo());
    d.nuevo.minutos = "0"; // a free game has no time
    d.vista.PintarNuevo(d.nuevo);
}

void SesionRed::NuevoMinutos(const std::string& texto) {
    p_->nuevo.minutos = MinutosCorregidos(texto);
    p_->vista.PintarNuevo(p_->nuevo);
}

void SesionRed::NuevoEnter() {
    if (ValorMinutos(p_->nuevo.minutos) == 0) p_->nuevo.minutos = "1";
    NuevoCommand1();
}

void SesionRed::NuevoSubir() {
    const int32_t v = ValorMinutos(p_->nuevo.minutos);
    if (v <= 180) NuevoMinutos(std::to_string(v + 1));
}

void SesionRed::NuevoBajar() {
    const int32_t v = ValorMinutos(p_->nuevo.minutos);
    if (v > 180)
        NuevoMinutos("180");
    else if (v != 1)
        NuevoMinutos(std::to_string(v - 1));
}

void SesionRed::NuevoCommand1() {
    Impl& d = *p_;
    if (Conectado) {
        if (ValorMinutos(d.nuevo.minutos) == 0) d.nuevo.minutos = "1";
        if (!d.nuevo.puntuable) d.nuevo.minutos = "0";
        EnviarMensaje(wire::TextoNuevoJuego(d.nuevo.blancas, d.nuevo.puntuable, d.nuevo.minutos));
        EditandoTablero = false;
        d.nuevoPendiente = true;
    }
    d.vista.PintarNuevo(d.nuevo);
    d.vista.CerrarNuevo();
}

void SesionRed::NuevoCommand2() {
    p_->nuevoPendiente = false;
    p_->vista.CerrarNuevo();
}

// ---------------------------------------------------------------------------------------------

TeclaChat SesionRed::EnterChat(const std::string& texto) {
    Impl& d = *p_;
    if (!Conectado) return TeclaChat::Vaciar;
    if (d.cuenta > 35) return TeclaChat::Pasa;
    if (Cargando) {
        d.Avisar(79);
        return TeclaChat::Vaciar;
    }
    if (texto.empty()) return TeclaChat::Vaciar;
    if (d.cuenta >= 38) {
        d.Avisar(73);
        d.Caja(d.M(74) + FinLinea + texto, kIconoInformacion, kBotonAceptar);
        return TeclaChat::Vaciar;
    }
    const std::string linea = "<" + Nick + ">" + texto;
    EnviarMensaje("Mensaje " + linea);
    d.AnadirChat(linea + FinLinea);
    return TeclaChat::Vaciar;
}

bool SesionRed::AlCerrarPrograma() {
    Impl& d = *p_;
    // A call or a wait under way ends with the program.
    if (!d.conexion.command1) {
        d.wcli.Cerrar();
        d.wser.Cerrar();
    }
    if (Conectado) MenuDesconectar();
    if (!Conectado) return true;
    d.cierrePendiente = true;
    return false;
}

// ---------------------------------------------------------------------------------------------
// The core's peer.

void SesionRed::EnviarMovimiento(int colOrigen, int filaOrigen, int colDestino, int filaDestino,
                                 int32_t pieza) {
    EnviarMensaje(wire::TextoMovimiento(colOrigen, filaOrigen, colDestino, filaDestino, pieza));
}

void SesionRed::EnviarInicioPartida() {
    EnviarMensaje("QTR Iniciar");
}

void SesionRed::EnviarLineaPartida(LineaPartida tipo, const std::string& linea) {
    switch (tipo) {
    case LineaPartida::Tipo:
        EnviarMensaje("QTR T " + linea);
        break;
    case LineaPartida::RelojBlancas:
        EnviarMensaje("QTR TB " + linea);
        break;
    case LineaPartida::RelojNegras:
        EnviarMensaje("QTR TN " + linea);
        break;
    case LineaPartida::Jugada:
        EnviarMensaje("QTR M " + linea);
        break;
    }
}

void SesionRed::EnviarErrorPartida() {
    EnviarMensaje("QTR ERROR");
}

void SesionRed::EnviarLadoRival(int colorRival, int turnoRival) {
    EnviarMensaje(colorRival == 2 ? "QTR T N" : "QTR T B");
    EnviarMensaje("QTR T " + std::to_string(turnoRival));
}

void SesionRed::EnviarFinPartida() {
    EnviarMensaje("QTR Terminado");
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

void SesionRed::SumaDePartidas(int resultado) {
    SumarResultado(resultado);
    p_->vista.MostrarPuntuacion();
    GrabarPuntuacion();
}

// ---------------------------------------------------------------------------------------------
// State.

const std::string& SesionRed::VersionRemota() const {
    return p_->versionRemota;
}
bool SesionRed::EsCliente() const {
    return p_->esCliente;
}
bool SesionRed::EsServidor() const {
    return p_->esServidor;
}
bool SesionRed::NuevoPendiente() const {
    return p_->nuevoPendiente;
}
bool SesionRed::OfertaPendiente() const {
    return p_->ofertaPendiente;
}
const std::string& SesionRed::ArchivoPendiente() const {
    return p_->archivoPendiente;
}
bool SesionRed::CierrePendiente() const {
    return p_->cierrePendiente;
}
bool SesionRed::EnvioEnCurso() const {
    return p_->envioEnCurso;
}
bool SesionRed::PingEnCurso() const {
    return p_->pingEnCurso;
}
int32_t SesionRed::PingSegundos() const {
    return p_->pingSegundos;
}
int32_t SesionRed::ColaEnvioCuenta() const {
    return p_->cuenta;
}
const std::string& SesionRed::ColaEnvio(int i) const {
    static const std::string vacio;
    return i >= 1 && i <= kCola ? p_->cola[static_cast<size_t>(i)] : vacio;
}
const DialogoConexion& SesionRed::Conexion() const {
    return p_->conexion;
}
const DialogoNuevo& SesionRed::Nuevo() const {
    return p_->nuevo;
}

} // namespace qa
