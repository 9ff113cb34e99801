#pragma once
// The session's socket over the platform's: what the program and the console tool hand to the
// network session, and where they hang its events.
#include "net/puertas.h"
#include "net/sesion.h"
#include "platform/socket_red.h"

#include <functional>
#include <string>

namespace qa {

class ZocaloQt final : public Zocalo {
public:
    bool Conectar(const std::string& host, int puertoRemoto, int puertoLocal) override {
        socket.LocalPort(puertoLocal);
        socket.RemotePort(puertoRemoto);
        return socket.Connect(host, puertoRemoto);
    }
    bool Escuchar(int puerto) override {
        socket.LocalPort(puerto);
        return socket.Bind(puerto) && socket.Listen();
    }
    void Aceptar() override { socket.Accept(peticion_); }
    bool EnviarDatos(const std::string& texto) override {
        if (alEnviar) alEnviar(texto);
        return socket.SendData(texto);
    }
    void Cerrar() override { socket.Close(); }
    int Estado() const override { return socket.State(); }
    std::string IpLocal() const override { return SocketRed::LocalIP(); }

    // The socket's events go to the session, as coming from `lado`.
    void Enlazar(SesionRed& sesion, Lado lado) {
        socket.alConectar = [&sesion] { sesion.AlConectar(); };
        socket.alPedirConexion = [this, &sesion](int peticion) {
            peticion_ = peticion;
            sesion.AlPedirConexion();
        };
        socket.alLlegarDatos = [this, &sesion](std::size_t) {
            const std::string datos = socket.GetData();
            if (alRecibir) alRecibir(datos);
            sesion.AlLlegarDatos(datos);
        };
        socket.alCompletarEnvio = [&sesion] { sesion.AlCompletarEnvio(); };
        socket.alCerrar = [&sesion, lado] { sesion.AlCerrar(lado); };
        socket.alFallar = [&sesion, lado](int, const std::string& descripcion) {
            sesion.AlFallar(lado, descripcion);
        };
    }

    SocketRed socket;
    // Who wants to see each text handed to the socket and each one dispatched (the console
    // tool's trace); nothing set, nothing seen.
    std::function<void(const std::string&)> alEnviar, alRecibir;

private:
    int peticion_ = 0;
};

} // namespace qa
