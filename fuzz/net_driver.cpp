#include "fuzz/net_driver.h"

#include "core/game_state.h"
#include "core/local_move.h"
#include "core/recorder.h"
#include "net/puntuacion.h"
#include "net/sesion.h"
#include "platform/programa.h"

#include <cstdlib>
#include <filesystem>
#include <string>

using namespace Variables;

namespace {

class Zocalo final : public qa::Zocalo {
public:
    bool rehusar = false;
    bool Conectar(const std::string&, int, int) override { return true; }
    bool Escuchar(int) override { return true; }
    void Aceptar() override {}
    bool EnviarDatos(const std::string&) override { return !rehusar; }
    void Cerrar() override {}
    int Estado() const override { return qa::kZocaloConectado; }
    std::string IpLocal() const override { return "10.0.0.1"; }
};

// The forms, with a chat history that only counts its size.
class Vista final : public qa::VistaRed {
public:
    std::size_t chat = 0;
    bool primerPlano = false;
    std::string titulo = "Quintarena";
    void MostrarConexion() override {}
    void PintarConexion(const qa::DialogoConexion&) override {}
    void VaciarIpConexion() override {}
    void OcultarConexion() override {}
    void MostrarIp(const std::string&) override {}
    bool EpdVisible() override { return false; }
    void AnadirChat(const std::string& t) override { chat += t.size(); }
    std::size_t LongitudChat() override { return chat; }
    void VaciarChat() override { chat = 0; }
    void MostrarChat() override {}
    void TituloChat(const std::string&) override {}
    void GuardarChat() override {}
    std::string TituloTablero() override { return titulo; }
    void PonerTituloTablero(const std::string& t) override { titulo = t.substr(0, 4096); }
    void GirarTablero(bool) override {}
    void CancelarArrastre() override {}
    void SoltarPuntoClick() override {}
    bool EnPrimerPlano() override { return primerPlano; }
    void Destellar() override {}
    void RedibujarBarraEstado() override {}
    void CerrarPrograma() override {}
    bool RelojBlanco(int) override { return false; }
    void ColorReloj(int, bool) override {}
    void MostrarPuntuacion() override {}
    void MostrarNuevo() override {}
    void PintarNuevo(const qa::DialogoNuevo&) override {}
    void CerrarNuevo() override {}
    std::string LeerTiempo() override { return "5"; }
    void GuardarTiempo(const std::string&) override {}
    void LeerEpd(const std::string&) override {}
    void CerrarEpd() override {}
    void CancelarEpd() override {}
    void ComandoMotor(int) override {}
    bool VolverAPreguntar() override { return false; } // nobody to ask again
};

class Hora final : public qa::Hora {
public:
    int segundo = 0;
    int Segundo() override { return segundo; }
    int32_t SegundosDelDia() override { return 1000 + segundo; }
    int32_t Contador() override { return segundo * 1000; }
};

// A folder for the rating record, never the program's; removed when the run ends.
struct Carpeta {
    std::string ruta = (std::filesystem::temp_directory_path() / "qa-net-fuzz-XXXXXX").string();
    Carpeta() {
        if (!mkdtemp(ruta.data())) std::abort();
        qa::FijarDirectorioDatos(ruta);
    }
    ~Carpeta() {
        std::error_code e;
        std::filesystem::remove_all(ruta, e);
    }
};

} // namespace

void EjecutarEntradaRed(const uint8_t* datos, size_t tam) {
    static Carpeta carpeta;
    static EntornoRegistro entorno;
    static qa::TemporizadorManual bomba, ping, ranking, sendQtr, retraso, relojB, relojN;
    InstalarRegistro(&entorno);
    RestablecerTodo();
    entorno = EntornoRegistro();
    qa::Puntuacion = {0, 0, 0, 0, qa::kPuntosIniciales};
    qa::PuntuacionRemota = {};
    Zocalo cli, ser;
    Vista vista;
    Hora hora;
    for (qa::TemporizadorManual* t :
         {&bomba, &ping, &ranking, &sendQtr, &retraso, &relojB, &relojN})
        t->Habilitar(false);
    qa::SesionRed s(cli, ser, vista,
                    qa::TemporizadoresRed{bomba, ping, ranking, sendQtr, retraso, relojB, relojN},
                    hora);
    s.Nick = "fuzz";
    InstalarRed(&s);

    size_t i = 0;
    const uint8_t modo = tam > 0 ? datos[i++] : 0;
    entorno.pointClick = modo & 8;
    entorno.invertido = modo & 16;
    vista.primerPlano = modo & 32;
    const int estado = modo % 5;
    if (estado == 1 || estado == 4) s.AlPedirConexion();
    if (estado == 2 || estado == 3) s.AlConectar();
    if (estado == 2) s.RecibirMensaje("NuevoJuego 2 R 5"); // this side White
    if (estado == 3) s.RecibirMensaje("NuevoJuego 1 R 5"); // this side Black
    if (estado == 4)
        for (const char* t : {"QTR Iniciar", "QTR TB 0500", "QTR TN 0500", "QTR T R", "QTR M 5254"})
            s.RecibirMensaje(t);

    // Segments split at LF: a byte of events, then the received text.
    while (i < tam) {
        size_t fin = i;
        while (fin < tam && datos[fin] != '\n') ++fin;
        const uint8_t ev = datos[i];
        const std::string texto(reinterpret_cast<const char*>(datos) + i + (fin > i ? 1 : 0),
                                reinterpret_cast<const char*>(datos) + fin);
        i = fin + 1;
        if (ev == 0xFF) {
            s.AlCerrar(s.EsCliente() ? qa::Lado::Cliente : qa::Lado::Servidor);
            continue;
        }
        if (ev == 0xFE) {
            s.AlFallar(qa::Lado::Servidor, texto);
            continue;
        }
        entorno.respuestas = {ev & 32 ? qa::kRespuestaSi : qa::kRespuestaNo,
                              ev & 64 ? qa::kRespuestaSi : qa::kRespuestaNo};
        entorno.textos = {texto.substr(0, 1)};
        ser.rehusar = cli.rehusar = (ev & 0xC0) == 0xC0;
        if (ev & 1) bomba.Vencer();
        if ((ev & 2) && s.EnvioEnCurso()) s.AlCompletarEnvio();
        if (ev & 4) {
            hora.segundo = (hora.segundo + 1) % 60;
            relojB.Vencer();
            relojN.Vencer();
        }
        if (ev & 8) {
            ping.Vencer();
            ranking.Vencer();
        }
        if (ev & 16) {
            sendQtr.Vencer();
            retraso.Vencer();
        }
        if ((ev & 0xC0) == 0x80 && !texto.empty()) {
            // A command of this side instead of a received text.
            switch (texto[0]) {
            case 'r':
                s.MenuRendirse();
                break;
            case 'd':
                s.MenuOfrecerTablas();
                break;
            case 't':
                s.MenuRetroceder();
                break;
            case 'x':
                s.MenuDesconectar();
                break;
            case 'c':
                s.EnterChat(texto.substr(1));
                break;
            case 'm':
                if (texto.size() >= 5) SoltarFicha(texto.substr(1, 2), texto.substr(3, 2), 0);
                break;
            default:
                s.RecibirMensaje(texto.substr(1));
                break;
            }
        } else {
            s.AlLlegarDatos(texto);
        }
        if (s.ColaEnvioCuenta() < 0 || s.ColaEnvioCuenta() > qa::SesionRed::kCola) std::abort();
        if (vista.chat > qa::SesionRed::kLimiteChat) std::abort();
    }
    InstalarRed(nullptr);
}
