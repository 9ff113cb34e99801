// Connection and presence: the link made, closed or failed, the peer's version, ping, the
// connection dialog, disconnecting and the nick.

#include "net/sesion_interna.h"

namespace qa {

namespace {

// A caption loses what stands from " -" on, where the delay was shown.
std::string SinRetraso(const std::string& titulo) {
    const std::size_t p = titulo.find(" -");
    if (titulo.find('-') == std::string::npos || p == std::string::npos) return titulo;
    return titulo.substr(0, p);
}

} // namespace

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

// The link is gone: the pump and the ping stop, the queue empties, no game and no offer is left.
void SesionRed::Impl::OlvidarEnlace() {
    t.bomba.Habilitar(false);
    t.ping.Habilitar(false);
    VaciarCola();
    cuenta = 0;
    esCliente = esServidor = Conectado = envioEnCurso = ofertaPendiente = nuevoPendiente = false;
    TerminarPartida();
    archivoPendiente.clear();
    versionRemota.clear();
}

void SesionRed::Impl::ConexionCerrada() {
    dialogos().Sonar(2);
    if (!vista.EnPrimerPlano()) vista.Destellar();
    OlvidarEnlace();
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
    OlvidarEnlace();
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

void SesionRed::TickPing() {
    if (!Conectado) {
        p_->t.ping.Habilitar(false);
        return;
    }
    EnviarMensaje(wire::kPing);
}

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
        if (Longitud(nuevo) > 9) {
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

} // namespace qa
