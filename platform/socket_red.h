#pragma once
// A stream socket as network play sees it: it either calls a host or listens and then carries
// the one connection it accepts. Its events come one at a time from the event loop, in the order
// things happened, never from inside one of its own calls, and never for what the program
// itself closed.

#include <QObject>

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <string>

#include "platform/estado_zocalo.h"

class QTcpServer;
class QTcpSocket;

namespace qa {

class SocketRed {
public:
    // What State() answers.
    using Estado = EstadoZocalo;

    SocketRed();
    ~SocketRed();
    SocketRed(const SocketRed&) = delete;
    SocketRed& operator=(const SocketRed&) = delete;

    // The local port a call goes out from (0: any) and the one Listen waits on.
    void LocalPort(int puerto) { puertoLocal_ = puerto; }
    int LocalPort() const { return puertoLocal_; }
    // Kept for the caller to read back; the waiting side takes a caller from any port.
    void RemotePort(int puerto) { puertoRemoto_ = puerto; }
    int RemotePort() const { return puertoRemoto_; }

    // Starts a call; false when it cannot even start (the local port is taken, the socket is
    // busy). A call that fails later is reported by alFallar.
    bool Connect(const std::string& host, int puerto);
    bool Bind(int puerto);
    // Waits on the bound port; false when the port is taken.
    bool Listen();
    // Takes the caller of a connection request; the listening may have been closed already.
    bool Accept(int peticion);
    // Hands one message to the network; alCompletarEnvio comes once when all of it is written.
    bool SendData(const std::string& datos);
    // What the data event being dispatched brought, once.
    std::string GetData();
    // Ends the listening and the connection. No event of either comes afterwards.
    void Close();
    int State() const;

    // This machine's address for the peer to call: the first IPv4 address that is not the
    // loopback, or "127.0.0.1" when there is none.
    static std::string LocalIP();
    // The port the connected peer calls from, and ours; 0 when not connected.
    int PuertoDelPeer() const;
    std::string HostDelPeer() const;
    int PuertoPropio() const;

    // Events.
    std::function<void()> alConectar;                      // the call was answered
    std::function<void(int)> alPedirConexion;              // a caller, by request number for Accept
    std::function<void(std::size_t)> alLlegarDatos;        // bytes to take with GetData
    std::function<void()> alCompletarEnvio;                // one message wholly written
    std::function<void()> alCerrar;                        // the peer closed the connection
    std::function<void(int, const std::string&)> alFallar; // number and description

    // At most this many received bytes wait to be dispatched; beyond it the socket stops
    // reading and the peer's sending stalls.
    static constexpr std::int64_t kTopePendiente = 4 * 1024 * 1024;

private:
    enum class Tipo { Conectado, Peticion, Datos, EnvioCompleto, Cierre, Fallo };
    struct Suceso {
        Tipo tipo;
        std::string datos;
        int numero = 0;
    };

    void Encolar(Suceso s);
    void Despachar();
    void Vigilar(QTcpSocket* s);
    void Leer();
    void AlEscribir(std::int64_t n);
    void AlDesconectar();
    void AlError(int error);
    void Soltar(QTcpSocket*& s);
    void NuevasPeticiones();

    QObject contexto_; // owns our connections to Qt; queued dispatches die with it
    QTcpServer* servidor_ = nullptr;
    QTcpSocket* conexion_ = nullptr;
    std::map<int, QTcpSocket*> peticiones_;
    int siguientePeticion_ = 1;
    int peticionEnCurso_ = 0;
    std::deque<Suceso> sucesos_;
    std::int64_t bytesPendientes_ = 0; // received, not yet dispatched
    std::deque<std::int64_t> envios_;  // bytes still to write of each message handed over
    std::string datos_;                // what the current data event brought
    Estado final_ = kZocaloCerrado;    // after the peer's close or an error
    int puertoLocal_ = 0;
    int puertoRemoto_ = 0;
    int puertoEscucha_ = 0;
};

} // namespace qa
