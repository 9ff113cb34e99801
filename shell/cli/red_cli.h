#pragma once
// Network play in the console tool: the two sockets, the network timers and the forms of a
// network game with no window. Every text handed to a socket is printed as "sent TEXT", every
// text dispatched as "recv TEXT"; boxes go where the session's other boxes go.

#include "net/puertas.h"
#include "net/sesion.h"
#include "platform/temporizador_qt.h"
#include "shell/zocalo_qt.h"

#include <functional>
#include <iosfwd>
#include <string>

class SesionCli;

class RedCli final : public qa::VistaRed {
public:
    // `cerrar` ends the program once a disconnect it waited for has come.
    RedCli(SesionCli& cli, std::function<void()> cerrar);
    ~RedCli() override;
    RedCli(const RedCli&) = delete;
    RedCli& operator=(const RedCli&) = delete;

    // A command of network play, or one that a connection takes over; false when it is neither.
    bool Ejecutar(const std::string& orden, const std::string& arg);
    bool Obtener(const std::string& nombre, std::string& valor);
    // The program closes: false while a disconnect is under way.
    bool AlCerrarPrograma();

    qa::SesionRed& Sesion() { return sesion_; }
    // The engine toolbar, for the commands the network session passes on to it.
    std::function<void(int)> comandoMotor;

    // VistaRed
    void MostrarConexion() override { conexionMostrada_ = true; }
    void PintarConexion(const qa::DialogoConexion&) override {}
    void VaciarIpConexion() override {}
    void OcultarConexion() override {}
    void MostrarIp(const std::string& ip) override { ip_ = ip; }
    bool EpdVisible() override { return epdVisible_; }
    void AnadirChat(const std::string& texto) override { longitudChat_ += texto.size(); }
    std::size_t LongitudChat() override { return longitudChat_; }
    void VaciarChat() override { longitudChat_ = 0; }
    void MostrarChat() override {}
    void TituloChat(const std::string&) override {}
    void GuardarChat() override {}
    std::string TituloTablero() override { return titulo_; }
    void PonerTituloTablero(const std::string& titulo) override { titulo_ = titulo; }
    void GirarTablero(bool) override {}
    void CancelarArrastre() override {}
    void SoltarPuntoClick() override {}
    bool EnPrimerPlano() override { return true; }
    void Destellar() override {}
    void RedibujarBarraEstado() override {}
    void CerrarPrograma() override;
    bool RelojBlanco(int lado) override { return relojBlanco_[lado == 2]; }
    void ColorReloj(int lado, bool blanco) override { relojBlanco_[lado == 2] = blanco; }
    void MostrarPuntuacion() override {}
    void MostrarNuevo() override;
    void PintarNuevo(const qa::DialogoNuevo&) override {}
    void CerrarNuevo() override {}
    std::string LeerTiempo() override;
    void GuardarTiempo(const std::string& minutos) override;
    void LeerEpd(const std::string& ruta) override;
    void CerrarEpd() override;
    void CancelarEpd() override;
    void ComandoMotor(int boton) override;
    bool VolverAPreguntar() override;

private:
    struct OfertaNueva {
        bool blancas = true, puntuable = true;
        std::string minutos;
    };

    void Llamar(bool llamar, const std::string& host);
    void Nueva(const std::string& arg);
    void Abrir(const std::string& ruta);
    void Epd(const std::string& arg);
    void Responder(const std::string& texto);

    SesionCli& cli_;
    std::function<void()> cerrar_;
    qa::ZocaloQt wcli_, wser_; // they print what they hand over and what they dispatch
    qa::TemporizadorQt bomba_, ping_, ranking_, sendQtr_, retrasoQtr_, relojB_, relojN_;
    qa::HoraSistema hora_;
    qa::SesionRed sesion_;

    bool conexionMostrada_ = false;
    std::string ip_;
    bool epdVisible_ = false;
    std::size_t longitudChat_ = 0;
    std::string titulo_ = "Quintarena";
    bool relojBlanco_[2] = {false, false};
    const OfertaNueva* oferta_ = nullptr; // the new game command's terms, while it runs
    bool unaPregunta_ = false;            // a command that answers an input box only once
};
