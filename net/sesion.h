#pragma once
// A network game's session: the link to the peer and everything agreed over it. The holder (the
// board form, the console tool) owns the sockets and timers, forwards their events here, and
// installs the session as the core's peer (core/peer.h), so the moves and replayed files of the
// core come here as wire texts.

#include "core/peer.h"
#include "net/puertas.h"
#include "platform/temporizador.h"

#include <cstdint>
#include <memory>
#include <string>

namespace qa {

// The timers of a network game; the session sets their intervals and their work.
struct TemporizadoresRed {
    Temporizador& bomba;        // Timer2: the send pump, 300 ms
    Temporizador& ping;         // Ping: 60000 ms waiting side, 65000 calling side
    Temporizador& ranking;      // TimerR: the record to the peer, once, 2500 ms
    Temporizador& sendQtr;      // SendQtr: a game file replayed, 100 ms and slower
    Temporizador& retrasoQtr;   // TimerRetrasoQTR: the end of a replay, 100 ms
    Temporizador& relojBlancas; // Timer1 of the clock panel, 200 ms
    Temporizador& relojNegras;  // Timer2 of the clock panel, 200 ms
};

// Which socket an event comes from.
enum class Lado { Cliente, Servidor };

// What Enter in the chat's input box does.
enum class TeclaChat {
    Pasa,   // the key goes on and the line stays in the box
    Vaciar, // the key is dropped and the box emptied (sent, refused or not connected)
};

class SesionRed final : public EntornoRed {
public:
    static constexpr int kCola = 40; // places of the send queue
    static constexpr const char* kVersion = "1.55";
    static constexpr int kPuertoEspera = 1500, kPuertoLlamada = 1501;

    // wcli only calls, wser only waits and then carries the caller it accepted.
    SesionRed(Zocalo& wcli, Zocalo& wser, VistaRed& vista, TemporizadoresRed t, Hora& hora);
    ~SesionRed() override;
    SesionRed(const SesionRed&) = delete;
    SesionRed& operator=(const SesionRed&) = delete;

    // The send path: queued while connected, dropped otherwise; the pump sends it.
    void EnviarMensaje(const std::string& texto);
    // The dispatcher: one received text, as it came.
    void RecibirMensaje(const std::string& texto);

    // Socket events.
    void AlConectar();                            // the call was answered (calling socket)
    void AlPedirConexion();                       // a caller knocks (waiting socket)
    void AlLlegarDatos(const std::string& datos); // all that was there, one read
    void AlCompletarEnvio();                      // the last message's bytes are all written
    void AlCerrar(Lado lado);                     // the peer closed
    void AlFallar(Lado lado, const std::string& descripcion);

    // Timer ticks (also installed as the timers' own work).
    void TickBomba();
    void TickPing();
    void TickRanking();
    void TickSendQtr();
    void TickRetrasoQtr();
    void TickRelojBlancas();
    void TickRelojNegras();

    // The connection dialog.
    void ActivarConexion();                       // on activation: the chosen option again
    void ElegirLlamar(bool llamar);               // Option1 / Option2 clicked
    void Command1Conexion(const std::string& ip); // go
    void Command2Conexion();                      // cancel; closes the dialog unless it was busy

    // Menu commands.
    void MenuEstablecerConexion();
    void MenuObtenerIp();
    void MenuDesconectar();
    void MenuCambiarNick();
    // False when not connected: the command belongs to engine play.
    bool MenuNuevaPartida();
    void MenuRendirse();
    void MenuOfrecerTablas();
    void MenuRetroceder();
    // The open command's connected branches for a game (".qtr") or a position (".epd"); a
    // ".pgn" is refused. False when not connected: the caller opens the file on its own board,
    // except a ".qtr", which AbrirQtr replays.
    bool AbrirArchivo(const std::string& ruta);
    // Starts the replay of a game file, for the peer too while connected.
    void AbrirQtr(const std::string& ruta);

    // The new game dialog.
    void CargarNuevo();                          // on load: Option1 and Option3 chosen
    void NuevoOpcionColor(bool blancas);         // Option1 / Option2
    void NuevoOpcion3();                         // rated
    void NuevoOpcion4();                         // free
    void NuevoMinutos(const std::string& texto); // Text1 changed
    void NuevoEnter();                           // Enter in Text1
    void NuevoSubir();                           // Command4(0)
    void NuevoBajar();                           // Command4(1)
    void NuevoCommand1();                        // send the offer
    void NuevoCommand2();                        // cancel

    // Enter in the chat's input box with `texto` in it.
    TeclaChat EnterChat(const std::string& texto);

    // The main window closes. False: wait (CierrePendiente), the disconnect is under way and
    // VistaRed::CerrarPrograma comes when it has ended.
    bool AlCerrarPrograma();

    void Desconectar();
    void CambiarNick();

    // EntornoRed: the core's calls as wire texts.
    void EnviarMovimiento(int colOrigen, int filaOrigen, int colDestino, int filaDestino,
                          int32_t pieza) override;
    void EnviarInicioPartida() override;
    void EnviarLineaPartida(LineaPartida tipo, const std::string& linea) override;
    void EnviarErrorPartida() override;
    void EnviarLadoRival(int colorRival, int turnoRival) override;
    void EnviarFinPartida() override;
    void CancelarEpd() override;
    void EnviarPosicion() override;
    int PreguntarColor() override;
    void SumaDePartidas(int resultado) override;

    // State, for the holders and the console tool's `get`.
    std::string Nick; // the local player's name, at most 9 characters
    const std::string& VersionRemota() const;
    bool EsCliente() const;
    bool EsServidor() const;
    bool NuevoPendiente() const;
    bool OfertaPendiente() const;
    const std::string& ArchivoPendiente() const;
    bool CierrePendiente() const;
    bool EnvioEnCurso() const;
    bool PingEnCurso() const;
    int32_t PingSegundos() const;
    int32_t ColaEnvioCuenta() const;
    // Entry i of the send queue, 1 to kCola; empty outside.
    const std::string& ColaEnvio(int i) const;
    const DialogoConexion& Conexion() const;
    const DialogoNuevo& Nuevo() const;

    // Question boxes opened by the peer's messages, one inside the other, at most this many; a
    // question beyond them is answered no.
    static constexpr int kPreguntasAnidadas = 8;
    // The most text the chat history takes; beyond it the user is asked to save it, and it is
    // emptied.
    static constexpr std::size_t kLimiteChat = 1 << 20;

private:
    struct Impl;
    std::unique_ptr<Impl> p_;
};

} // namespace qa
