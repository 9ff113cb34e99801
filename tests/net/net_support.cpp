#include "net_support.h"

#include "core/game_state.h"
#include "net/puntuacion.h"
#include "platform/programa.h"

#include <algorithm>

namespace prueba {

bool ZocaloFalso::Conectar(const std::string& host, int remoto, int local) {
    llamadas.push_back("Conectar " + host + " " + std::to_string(remoto) + " " +
                       std::to_string(local));
    if (falloConectar) return false;
    estado = qa::kZocaloConectando;
    return true;
}

bool ZocaloFalso::Escuchar(int puerto) {
    llamadas.push_back("Escuchar " + std::to_string(puerto));
    if (falloEscuchar) return false;
    estado = qa::kZocaloEscuchando;
    return true;
}

void ZocaloFalso::Aceptar() {
    llamadas.push_back("Aceptar");
    estado = qa::kZocaloConectado;
}

bool ZocaloFalso::EnviarDatos(const std::string& texto) {
    if (rehusarEnvio) return false;
    enviados.push_back(texto);
    return true;
}

void ZocaloFalso::Cerrar() {
    llamadas.push_back("Cerrar");
    estado = qa::kZocaloCerrado;
}

bool VistaFalsa::Hubo(const std::string& llamada) const {
    return std::find(llamadas.begin(), llamadas.end(), llamada) != llamadas.end();
}

std::string EntornoRed::Mensaje(int n) {
    const auto i = textos_.find(n);
    return i != textos_.end() ? i->second : std::to_string(n);
}

int EntornoRed::MostrarMensaje(const std::string& titulo, const std::string& texto, int icono,
                               int botones, int extra) {
    maxCajas = std::max(maxCajas, ++cajasAbiertas);
    if (botones == qa::kBotonesSiNo && bajoLaCaja) bajoLaCaja();
    const int r = EntornoRegistro::MostrarMensaje(titulo, texto, icono, botones, extra);
    --cajasAbiertas;
    return r;
}

void Red::SetUp() {
    ConFicheros::SetUp();
    InstalarRegistro(&red);
    red.textos_ = {{10, "Play a rated game of $ minutes as $"},
                   {87, "Play a $ game as"},
                   {21, "White"},
                   {22, "Black"},
                   {24, "free"},
                   {59, "(W/B)"},
                   {109, "ping $ s"}};
    qa::FijarDirectorioDatos(dir);
    qa::Puntuacion = {0, 0, 0, 0, qa::kPuntosIniciales};
    qa::PuntuacionRemota = {};
    qa::GrabarPuntuacion(); // the record the program makes at its first start
    NuevaSesion();
}

void Red::TearDown() {
    InstalarRed(nullptr);
    s.reset();
    ConFicheros::TearDown();
}

void Red::NuevaSesion() {
    InstalarRed(nullptr);
    s.reset();
    cli = ZocaloFalso{};
    ser = ZocaloFalso{};
    vista = VistaFalsa{};
    s = std::make_unique<qa::SesionRed>(
        cli, ser, vista,
        qa::TemporizadoresRed{bomba, ping, ranking, sendQtr, retraso, relojB, relojN}, hora);
    s->Nick = "ana";
    InstalarRed(s.get());
}

void Red::ConectarServidor() {
    s->ElegirLlamar(false);
    s->Command1Conexion("");
    s->AlPedirConexion();
    Bombear();
    Salida();
}

void Red::ConectarCliente() {
    s->ElegirLlamar(true);
    s->Command1Conexion("127.0.0.1");
    s->AlConectar();
    Bombear();
    Salida();
}

void Red::Bombear() {
    for (int i = 0; i < 1000 && bomba.Habilitado(); ++i) {
        bomba.Vencer();
        if (s->EnvioEnCurso()) s->AlCompletarEnvio();
    }
}

std::vector<std::string> Red::Salida() {
    std::vector<std::string> r;
    for (ZocaloFalso* z : {&cli, &ser}) {
        r.insert(r.end(), z->enviados.begin(), z->enviados.end());
        z->enviados.clear();
    }
    return r;
}

std::string Red::Cajas() {
    std::string t;
    for (const auto& m : red.mensajes) t += (t.empty() ? "" : "|") + m.texto;
    red.mensajes.clear();
    return t;
}

} // namespace prueba
