#pragma once
// What a network game needs from the program around it: the two sockets, the forms it shows,
// and the time of day. The program and the console tool each supply their own; tests a fake.
// Everything here is pure virtual, so a holder that forgets a piece does not compile.

#include "platform/estado_zocalo.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace qa {

// One stream socket. Two of them stand on the board: one that only calls, one that only waits
// and then carries the caller it accepted. Its events come back through the session's Al...
// handlers (net/sesion.h), never from inside these calls.
class Zocalo {
public:
    virtual ~Zocalo() = default;
    // Calls `host`:`puertoRemoto` from local port `puertoLocal`. False when the call fails at
    // once; a later failure comes as AlFallar, success as AlConectar.
    virtual bool Conectar(const std::string& host, int puertoRemoto, int puertoLocal) = 0;
    // Binds `puerto` on every address and listens. False when either fails at once.
    virtual bool Escuchar(int puerto) = 0;
    // Takes the caller announced by AlPedirConexion. The socket was closed just before
    // (listening stops), which must not drop that caller.
    virtual void Aceptar() = 0;
    // One message in one write. False when the socket refuses it; otherwise AlCompletarEnvio
    // follows once all its bytes are written.
    virtual bool EnviarDatos(const std::string& texto) = 0;
    // Closes; reports nothing.
    virtual void Cerrar() = 0;
    virtual int Estado() const = 0;
    // This machine's address, "127.0.0.1" when it has no other.
    virtual std::string IpLocal() const = 0;
};

// How the connection dialog looks: which option is chosen, whether its go button is enabled
// (not while a call or a wait is under way), and which of its two waiting captions shows.
struct DialogoConexion {
    bool llamar = true;     // Option1 (call a host); else Option2 (wait for a call)
    bool command1 = true;   // the go button enabled
    bool esperando = false; // Label1 shown: waiting for a call
    bool llamando = false;  // Label2 shown: calling
};

// The new game dialog's controls.
struct DialogoNuevo {
    bool blancas = true;           // Option1 (the offerer plays White); else Option2
    bool puntuable = true;         // Option3 (rated, "R"); else Option4 (free, "A")
    std::string minutos = "";      // Text1
    bool minutosHabilitado = true; // Text1 and both arrows enabled
};

// The forms and panels a network game shows or reads. Boxes, sounds, language texts, clock
// captions, the board's picture, the engine form and the PGN browser go through the core's
// doors (core/environment.h).
class VistaRed {
public:
    virtual ~VistaRed() = default;

    // The connection dialog (Conexion) and the own-address window (Ip).
    virtual void MostrarConexion() = 0; // centred, modal; its buttons call the session
    virtual void PintarConexion(const DialogoConexion& d) = 0;
    virtual void VaciarIpConexion() = 0;
    virtual void OcultarConexion() = 0;
    virtual void MostrarIp(const std::string& ip) = 0; // centred, modal
    virtual bool EpdVisible() = 0;                     // the EPD browser (fEpd)

    // The chat history (ChatList) and its form.
    virtual void AnadirChat(const std::string& texto) = 0; // appended, caret at the end
    virtual std::size_t LongitudChat() = 0;
    virtual void VaciarChat() = 0;
    virtual void MostrarChat() = 0; // checks mnuVentanaChat and shows Chat, if not checked
    virtual void TituloChat(const std::string& nick) = 0; // key Titulo of Chat, " - ", nick
    virtual void GuardarChat() = 0;                       // the save dialog and the file

    // The board form and the main window.
    virtual std::string TituloTablero() = 0;
    virtual void PonerTituloTablero(const std::string& titulo) = 0;
    // mnuInvertirTablero checked to `!negrasAbajo`, then its click: the board turned.
    virtual void GirarTablero(bool negrasAbajo) = 0;
    virtual void CancelarArrastre() = 0; // a drag on the board ended (Drag action 2)
    virtual void SoltarPuntoClick() = 0; // point-and-click: no piece in hand, default pointer
    virtual bool EnPrimerPlano() = 0;    // the main window is the foreground window
    virtual void Destellar() = 0;        // FlashWindow, invert
    virtual void RedibujarBarraEstado() = 0;
    virtual void CerrarPrograma() = 0; // the main window unloaded after a pending close

    // The clock panel's two time captions: white while that clock runs, grey otherwise.
    virtual bool RelojBlanco(int lado) = 0; // 1 White's (Label3), 2 Black's (Label4)
    virtual void ColorReloj(int lado, bool blanco) = 0;

    // The ranking panel shows both records again (net/puntuacion.h).
    virtual void MostrarPuntuacion() = 0;

    // The new game dialog (Nuevo): it stays alive hidden and keeps its choices.
    virtual void MostrarNuevo() = 0; // centred, modal; its controls call the session
    virtual void PintarNuevo(const DialogoNuevo& d) = 0;
    virtual void CerrarNuevo() = 0;
    virtual std::string LeerTiempo() = 0; // key Tiempo of Configuracion
    virtual void GuardarTiempo(const std::string& minutos) = 0;

    // The EPD browser.
    virtual void LeerEpd(const std::string& ruta) = 0; // opens the file in the browser
    virtual void CerrarEpd() = 0;                      // unloads it
    virtual void CancelarEpd() = 0;                    // the peer dropped the position

    // The engine form's toolbar, when it is up: 3 resign, 4 draw, 5 take-back.
    virtual void ComandoMotor(int boton) = 0;

    // An input box that must be answered is asked again while this is true. A holder that
    // cannot wait for a person says false after an unanswered box, and the flow gives up.
    virtual bool VolverAPreguntar() = 0;
};

// The time of day, as the clocks and the ping read it.
class Hora {
public:
    virtual ~Hora() = default;
    virtual int Segundo() = 0;            // seconds field of the wall clock, 0 to 59
    virtual int32_t SegundosDelDia() = 0; // since midnight, rounded
    virtual int32_t Contador() = 0;       // low word of a high-resolution counter
};

// The machine's own clock.
class HoraSistema final : public Hora {
public:
    int Segundo() override;
    int32_t SegundosDelDia() override;
    int32_t Contador() override;
};

} // namespace qa
