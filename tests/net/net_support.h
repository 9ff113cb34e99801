#pragma once
// A network session on fake sockets and hand-driven timers: what goes out is what the socket
// was handed, what comes in is handed to the session as a socket would.

#include "../files/files_support.h"
#include "net/sesion.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace prueba {

class ZocaloFalso final : public qa::Zocalo {
public:
    std::vector<std::string> enviados, llamadas;
    bool rehusarEnvio = false, falloConectar = false, falloEscuchar = false;
    int estado = qa::kZocaloCerrado;
    std::string ip = "192.168.1.7";

    bool Conectar(const std::string& host, int remoto, int local) override;
    bool Escuchar(int puerto) override;
    void Aceptar() override;
    bool EnviarDatos(const std::string& texto) override;
    void Cerrar() override;
    int Estado() const override { return estado; }
    std::string IpLocal() const override { return ip; }
};

class VistaFalsa final : public qa::VistaRed {
public:
    std::vector<std::string> llamadas; // calls without a state of their own
    std::string chat, titulo = "Tablero", tituloChat;
    qa::DialogoConexion conexion;
    qa::DialogoNuevo nuevo;
    bool primerPlano = false, epdVisible = false, volverAPreguntar = true;
    bool blanco[3] = {false, false, false};
    int destellos = 0, arrastresCancelados = 0, tableroNegrasAbajo = -1;
    std::string tiempo = "10";
    // Runs when the new game dialog is shown, as a person would fill it in.
    std::function<void()> alMostrarNuevo;

    void MostrarConexion() override { llamadas.push_back("MostrarConexion"); }
    void PintarConexion(const qa::DialogoConexion& d) override { conexion = d; }
    void VaciarIpConexion() override { llamadas.push_back("VaciarIpConexion"); }
    void OcultarConexion() override { llamadas.push_back("OcultarConexion"); }
    void MostrarIp(const std::string& ip) override { llamadas.push_back("MostrarIp " + ip); }
    bool EpdVisible() override { return epdVisible; }
    void AnadirChat(const std::string& texto) override { chat += texto; }
    std::size_t LongitudChat() override { return chat.size(); }
    void VaciarChat() override { chat.clear(); }
    void MostrarChat() override { llamadas.push_back("MostrarChat"); }
    void TituloChat(const std::string& nick) override { tituloChat = nick; }
    void GuardarChat() override { llamadas.push_back("GuardarChat"); }
    std::string TituloTablero() override { return titulo; }
    void PonerTituloTablero(const std::string& t) override { titulo = t; }
    void GirarTablero(bool negrasAbajo) override { tableroNegrasAbajo = negrasAbajo; }
    void CancelarArrastre() override { ++arrastresCancelados; }
    void SoltarPuntoClick() override { llamadas.push_back("SoltarPuntoClick"); }
    bool EnPrimerPlano() override { return primerPlano; }
    void Destellar() override { ++destellos; }
    void RedibujarBarraEstado() override {}
    void CerrarPrograma() override { llamadas.push_back("CerrarPrograma"); }
    bool RelojBlanco(int lado) override { return blanco[lado == 2 ? 2 : 1]; }
    void ColorReloj(int lado, bool b) override { blanco[lado == 2 ? 2 : 1] = b; }
    void MostrarPuntuacion() override {}
    void MostrarNuevo() override {
        llamadas.push_back("MostrarNuevo");
        if (alMostrarNuevo) alMostrarNuevo();
    }
    void PintarNuevo(const qa::DialogoNuevo& d) override { nuevo = d; }
    void CerrarNuevo() override { llamadas.push_back("CerrarNuevo"); }
    std::string LeerTiempo() override { return tiempo; }
    void GuardarTiempo(const std::string& m) override { tiempo = m; }
    void LeerEpd(const std::string& ruta) override { llamadas.push_back("LeerEpd " + ruta); }
    void CerrarEpd() override { llamadas.push_back("CerrarEpd"); }
    void CancelarEpd() override { llamadas.push_back("CancelarEpd"); }
    void ComandoMotor(int boton) override {
        llamadas.push_back("ComandoMotor " + std::to_string(boton));
    }
    bool VolverAPreguntar() override { return volverAPreguntar; }
    bool Hubo(const std::string& llamada) const;
};

class HoraFalsa final : public qa::Hora {
public:
    int segundo = 0;
    int32_t delDia = 1000, contador = 0;
    int Segundo() override { return segundo; }
    int32_t SegundosDelDia() override { return delDia; }
    int32_t Contador() override { return contador; }
};

// The recorder with the language texts the network builds its lines from.
class EntornoRed final : public EntornoRegistro {
public:
    std::map<int, std::string> textos_;
    // When set, runs inside a yes/no box as the events under a modal box would.
    std::function<void()> bajoLaCaja;
    int cajasAbiertas = 0, maxCajas = 0;
    std::string Mensaje(int n) override;
    int MostrarMensaje(const std::string& titulo, const std::string& texto, int icono, int botones,
                       int extra) override;
};

class Red : public ConFicheros {
protected:
    EntornoRed red;
    ZocaloFalso cli, ser;
    VistaFalsa vista;
    HoraFalsa hora;
    qa::TemporizadorManual bomba, ping, ranking, sendQtr, retraso, relojB, relojN;
    std::unique_ptr<qa::SesionRed> s;

    void SetUp() override;
    void TearDown() override;
    // A fresh session on its own fakes (after the state of the core was reset).
    void NuevaSesion();
    // The waiting side takes a caller, or the calling side is answered; the greeting goes out
    // and is forgotten.
    void ConectarServidor();
    void ConectarCliente();
    // Ticks of the pump, each send completed at once, until the queue is empty.
    void Bombear();
    // What went out since the last call, from whichever socket carries the connection.
    std::vector<std::string> Salida();
    void Recibir(const std::string& texto) { s->AlLlegarDatos(texto); }
    // The texts of the boxes shown so far, joined by "|"; and forgotten.
    std::string Cajas();
};

} // namespace prueba
