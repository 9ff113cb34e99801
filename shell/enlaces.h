#pragma once
// Hooks through which the file, network and engine layers plug into the shell: loaders, their
// state, and the commands of the menu. An empty hook is a layer that is not built in; the shell
// then does nothing in its place.
#include <functional>
#include <map>
#include <string>

class QWidget;

namespace qa {

struct Enlaces {
    // Loaders of the three file types.
    std::function<void(const std::string&)> CargarPgn, AbrirQtr, AbrirEpd;
    // The open command while connected: true when the network took the file (or refused it).
    std::function<bool(const std::string&)> AbrirEnRed;
    // The forms are made: the layers hook their handlers up; the settings are read into them.
    std::function<void()> FormulariosCreados, OpcionesLeidas;

    // State owned by other forms. Whether a peer is connected is the core's Conectado; whether
    // the PGN browser or the engine form is up, the core's listas() and motor() say.
    std::function<bool()> SetTableroVisible;
    std::function<bool()> ModoEdicion, Cargando;
    std::function<std::string()> NombreRemoto;

    // The EPD browser as the network needs it: whether it is up, a file opened in it with no
    // question asked, its close, and the peer's cancel of the position.
    std::function<bool()> EpdVisible;
    std::function<void(const std::string&)> LeerEpd;
    std::function<void()> CerrarEpd, CancelarEpd;

    // Steps of the close and the load that belong to the other layers.
    std::function<void()> CerrarMotores, DescargarDLL, CambiarNick;
    // The engine form: shown for a new game at this machine; its commands "3" resign, "4" offer
    // a draw, "5" take back, which the main menu's entries become while it is up; the levels
    // read from the settings.
    std::function<void()> MostrarCpu, NivelesLeidos;
    std::function<void(const std::string&)> ToolboxComand;
    // The network's part of the close: false while a disconnect is still under way, and the
    // close must wait for it.
    std::function<bool()> CerrarRed;
    std::function<void()> CargarImagenes, NotacionCambiada, PointClickCambiado, PintarFondos;
    std::function<int()> AlturaFichas; // height of the piece buffers, for the size setting
    std::function<void()> CambiarTamano, RepintarPaleta;
    // The size box: Enter and its two spin buttons take its text and give what it is to show.
    std::function<std::string(const std::string&)> TamanoEnter, TamanoMas, TamanoMenos;
    // The options dialog: a skin picked in its list, and its settings accepted.
    std::function<void(const std::string&)> SkinElegida;
    std::function<void()> OpcionesAplicadas;
    // The board picture itself, without its labels: what "save as picture" saves.
    std::function<QWidget*()> ImagenTablero;

    // Commands of the menu by the name of their entry ("mnuGuardarPartida", ...).
    std::map<std::string, std::function<void()>> Comandos;
};

Enlaces& Enlace();

inline bool Cierto(const std::function<bool()>& f) {
    return f && f();
}
inline void Ejecutar(const std::function<void()>& f) {
    if (f) f();
}

} // namespace qa
