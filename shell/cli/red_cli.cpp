#include "shell/cli/red_cli.h"

#include "core/environment.h"
#include "core/game_state.h"
#include "core/move_list.h"
#include "files/epd_list.h"
#include "files/line_reader.h"
#include "net/puntuacion.h"
#include "platform/ini_file.h"
#include "platform/programa.h"
#include "platform/texto.h"
#include "shell/cli/cli_session.h"
#include "shell/cli/traza.h"

#include <charconv>
#include <ostream>
#include <sstream>

using namespace Variables;

namespace {

std::string Bandera(bool b) {
    return b ? "-1" : "0";
}

std::string Registro(const qa::RegistroPuntuacion& r) {
    return std::to_string(r.PartidasJugadas) + "-" + std::to_string(r.PartidasGanadas) + "-" +
           std::to_string(r.PartidasPerdidas) + "-" + std::to_string(r.PartidasTablas) + "-" +
           std::to_string(r.Puntos);
}

} // namespace

RedCli::RedCli(SesionCli& cli, std::function<void()> cerrar)
    : cli_(cli), cerrar_(std::move(cerrar)), bomba_(300), ping_(65000), ranking_(2500, true),
      sendQtr_(100), retrasoQtr_(100), relojB_(200), relojN_(200),
      sesion_(wcli_, wser_, *this,
              {bomba_, ping_, ranking_, sendQtr_, retrasoQtr_, relojB_, relojN_}, hora_) {
    for (qa::ZocaloQt* z : {&wcli_, &wser_}) {
        z->alEnviar = [this](const std::string& t) {
            cli_.Salida() << "sent " << TextoVisible(t) << std::endl;
        };
        z->alRecibir = [this](const std::string& t) {
            cli_.Salida() << "recv " << TextoVisible(t) << std::endl;
        };
    }
    wcli_.Enlazar(sesion_, qa::Lado::Cliente);
    wser_.Enlazar(sesion_, qa::Lado::Servidor);
    sesion_.Nick = qa::LeerIni(qa::FicheroOpciones, "Configuracion", "Nick");
    sesion_.CargarNuevo();
    qa::LeerPuntuacion();
    InstalarRed(&sesion_);
}

RedCli::~RedCli() {
    InstalarRed(nullptr);
}

bool RedCli::AlCerrarPrograma() {
    const bool listo = sesion_.AlCerrarPrograma();
    qa::GrabarPuntuacion();
    return listo;
}

void RedCli::CerrarPrograma() {
    if (cerrar_) cerrar_();
}

bool RedCli::Ejecutar(const std::string& orden, const std::string& arg) {
    std::ostream& salida = cli_.Salida();
    const bool conectado = Conectado;
    if (orden == "listen" && arg.empty()) {
        Llamar(false, {});
    } else if (orden == "connect" && !arg.empty() && arg.find(' ') == std::string::npos) {
        Llamar(true, arg);
    } else if (orden == "cancel" && arg.empty()) {
        if (sesion_.Conexion().command1) {
            salida << "ignored\n";
        } else {
            sesion_.Command2Conexion();
            salida << "ok\n";
        }
    } else if (orden == "disconnect" && arg.empty()) {
        if (!conectado) {
            salida << "ignored\n";
            return true;
        }
        sesion_.MenuDesconectar();
        bool cierre = !Conectado;
        for (int i = 1; i <= qa::SesionRed::kCola; ++i) cierre |= sesion_.ColaEnvio(i) == "Close";
        salida << (cierre ? "ok" : "refused") << '\n';
    } else if (orden == "say" && !arg.empty()) {
        if (!conectado) {
            salida << "ignored\n";
            return true;
        }
        const int32_t antes = sesion_.ColaEnvioCuenta();
        sesion_.EnterChat(arg);
        salida << (sesion_.ColaEnvioCuenta() > antes ? "ok" : "refused") << '\n';
    } else if (orden == "nick" && !arg.empty()) {
        unaPregunta_ = true;
        cli_.ResponderTexto(arg);
        sesion_.MenuCambiarNick();
        unaPregunta_ = false;
        const bool bien = sesion_.Nick == arg;
        if (bien) qa::EscribirIni(qa::FicheroOpciones, "Configuracion", "Nick", arg);
        salida << (bien ? "ok" : "refused") << '\n';
    } else if (orden == "address" && arg.empty()) {
        ip_.clear();
        sesion_.MenuObtenerIp();
        salida << (ip_.empty() ? "ignored" : ip_) << '\n';
    } else if (orden == "new" && !arg.empty()) {
        Nueva(arg);
    } else if (orden == "resign" && arg.empty() && !motor().CpuVisible()) {
        const bool enJuego = !TipoPartida.empty();
        sesion_.MenuRendirse();
        salida << (enJuego && TipoPartida.empty() ? "ok" : "ignored") << '\n';
    } else if (orden == "draw" && arg.empty() && !motor().CpuVisible()) {
        const bool antes = sesion_.OfertaPendiente();
        sesion_.MenuOfrecerTablas();
        salida << (!antes && sesion_.OfertaPendiente() ? "ok" : "ignored") << '\n';
    } else if (orden == "epd" && !arg.empty()) {
        Epd(arg);
    } else if (!conectado) {
        return false;
    } else if (orden == "takeback" && arg.empty()) {
        const bool antes = sesion_.OfertaPendiente();
        sesion_.MenuRetroceder();
        salida << (!antes && sesion_.OfertaPendiente() ? "ok" : "ignored") << '\n';
    } else if (orden == "open" && !arg.empty()) {
        Abrir(arg);
    } else if ((orden == "new" || orden == "setfen" || orden == "pgn" || orden == "pgngame") &&
               !motor().CpuVisible()) {
        // One board alone cannot change while a peer shares the game.
        salida << "ignored\n";
    } else {
        return false;
    }
    return true;
}

void RedCli::Llamar(bool llamar, const std::string& host) {
    std::ostream& salida = cli_.Salida();
    if (Conectado) {
        sesion_.MenuEstablecerConexion(); // tells that a connection is up
        salida << "ignored\n";
        return;
    }
    if (!sesion_.Conexion().command1) {
        salida << "ignored\n"; // a call or a wait is under way: cancel it first
        return;
    }
    conexionMostrada_ = false;
    sesion_.MenuEstablecerConexion();
    if (!conexionMostrada_) {
        salida << "ignored\n";
        return;
    }
    sesion_.ActivarConexion();
    sesion_.ElegirLlamar(llamar);
    sesion_.Command1Conexion(host);
    salida << (sesion_.Conexion().command1 ? "failed" : "ok") << '\n';
}

// "new white R 5", "new black A": the new game dialog filled in and sent.
void RedCli::Nueva(const std::string& arg) {
    std::ostream& salida = cli_.Salida();
    std::istringstream palabras(arg);
    std::string color, modo, minutos, resto;
    palabras >> color >> modo >> minutos >> resto;
    OfertaNueva o;
    o.blancas = color == "white";
    o.puntuable = modo == "R";
    o.minutos = minutos;
    int32_t v = 0;
    const bool numero = std::from_chars(minutos.data(), minutos.data() + minutos.size(), v).ptr ==
                            minutos.data() + minutos.size() &&
                        !minutos.empty();
    if ((color != "white" && color != "black") || (modo != "R" && modo != "A") || !resto.empty() ||
        (o.puntuable ? !numero : !minutos.empty())) {
        salida << "error new needs white|black R MINUTES, or white|black A\n";
        return;
    }
    if (!Conectado) {
        salida << "ignored\n";
        return;
    }
    const bool antes = sesion_.NuevoPendiente();
    oferta_ = &o;
    sesion_.MenuNuevaPartida();
    oferta_ = nullptr;
    salida << (!antes && sesion_.NuevoPendiente() ? "ok" : "ignored") << '\n';
}

// The dialog comes up only from the new game command: its terms are filled in and sent.
void RedCli::MostrarNuevo() {
    if (!oferta_) {
        sesion_.NuevoCommand2();
        return;
    }
    sesion_.NuevoOpcionColor(oferta_->blancas);
    if (oferta_->puntuable) {
        sesion_.NuevoOpcion3();
        sesion_.NuevoMinutos(oferta_->minutos);
    } else {
        sesion_.NuevoOpcion4();
    }
    sesion_.NuevoCommand1();
}

void RedCli::Abrir(const std::string& ruta) {
    std::ostream& salida = cli_.Salida();
    if (!Ficheros::Existe(ruta)) {
        salida << "refused\n"; // the open dialog offers only files that are there
        return;
    }
    const bool replayAntes = Cargando;
    sesion_.AbrirArchivo(ruta);
    const bool bien = !sesion_.ArchivoPendiente().empty() || (!replayAntes && Cargando);
    salida << (bien ? "ok" : "refused") << '\n';
}

// "epd N" opens position N of the EPD browser as a game; "epd close" closes the browser.
void RedCli::Epd(const std::string& arg) {
    std::ostream& salida = cli_.Salida();
    if (!epdVisible_) {
        salida << "ignored\n";
        return;
    }
    if (arg == "close") {
        epdVisible_ = false;
        FEpd::Cerrar();
        salida << "ok\n";
        return;
    }
    int32_t n = -1;
    auto [p, ec] = std::from_chars(arg.data(), arg.data() + arg.size(), n);
    if (ec != std::errc() || p != arg.data() + arg.size() || n < 0 ||
        n >= static_cast<int32_t>(FEpd::Eventos.size())) {
        salida << "error no position " << arg << '\n';
        return;
    }
    // Over the network the position goes to the peer with the colour chosen here.
    epdVisible_ = false;
    FEpd::EventosDblClick(n);
    salida << "ok\n";
}

void RedCli::LeerEpd(const std::string& ruta) {
    epdVisible_ = true;
    if (!FEpd::LeerEPD(ruta)) epdVisible_ = false;
}

void RedCli::CerrarEpd() {
    epdVisible_ = false;
    FEpd::Cerrar();
}

void RedCli::CancelarEpd() {
    epdVisible_ = false;
    FEpd::CancelarEPD();
}

void RedCli::ComandoMotor(int boton) {
    if (comandoMotor) comandoMotor(boton);
}

bool RedCli::VolverAPreguntar() {
    return !unaPregunta_ && !cli_.CajaSinRespuesta();
}

std::string RedCli::LeerTiempo() {
    return qa::LeerIni(qa::FicheroOpciones, "Configuracion", "Tiempo");
}

void RedCli::GuardarTiempo(const std::string& minutos) {
    qa::EscribirIni(qa::FicheroOpciones, "Configuracion", "Tiempo", minutos);
}

bool RedCli::Obtener(const std::string& nombre, std::string& valor) {
    const qa::SesionRed& s = sesion_;
    if (nombre == "versionremota")
        valor = s.VersionRemota();
    else if (nombre == "nick")
        valor = s.Nick;
    else if (nombre == "escliente")
        valor = Bandera(s.EsCliente());
    else if (nombre == "esservidor")
        valor = Bandera(s.EsServidor());
    else if (nombre == "nuevopendiente")
        valor = Bandera(s.NuevoPendiente());
    else if (nombre == "ofertapendiente")
        valor = Bandera(s.OfertaPendiente());
    else if (nombre == "archivopendiente")
        valor = s.ArchivoPendiente();
    else if (nombre == "cierrependiente")
        valor = Bandera(s.CierrePendiente());
    else if (nombre == "envioencurso")
        valor = Bandera(s.EnvioEnCurso());
    else if (nombre == "pingencurso")
        valor = Bandera(s.PingEnCurso());
    else if (nombre == "pingsegundos")
        valor = std::to_string(s.PingSegundos());
    else if (nombre == "colaenviocuenta")
        valor = std::to_string(s.ColaEnvioCuenta());
    else if (nombre == "puntuacion")
        valor = Registro(qa::Puntuacion);
    else if (nombre == "puntuacionremota")
        valor = Registro(qa::PuntuacionRemota);
    else
        return false;
    return true;
}
