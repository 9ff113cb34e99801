#pragma once
// Window places: every window keeps its place between runs, in twips as the settings hold them.
#include "shell/configuracion.h"

#include <optional>
#include <string>

class QWidget;

namespace qa {

inline constexpr double kTwipsPorPixel = 15.0;

Lugar LugarDe(const QWidget* ventana);

// A place or size read from the settings as pixels: a number that does not make a window
// coordinate is unreadable, and the window keeps what it had. Nothing else is clamped.
std::optional<int> Pixeles(const std::string& twips);

// Places all windows from the settings; nothing is clamped to the screen.
void SituarVentanas();
// Set once SituarVentanas has run: a close before that (a start cut short) writes no places of
// windows that were never placed.
inline bool LugaresLeidos = false;
// Writes the places of the board form and the four panels, in the order of the settings table.
void EscribirLugares();

// The engine form and the PGN browser take the room of the four panels while they are up.
void OcultarVentanas(bool llamanteVisible);
void MostrarVentanas();

// The panel of a view entry ("mnuReloj" -> Reloj), shown or hidden without waiting.
QWidget* Panel(const std::string& entrada);
void MostrarPanel(const std::string& entrada, bool visible);

// The four view entries in the order the panels are shown at start, with their keys.
struct PanelVista {
    const char* entrada;
    const char* clave;
};
inline constexpr PanelVista kPaneles[] = {{"mnuReloj", "Reloj"},
                                          {"mnuVentanaChat", "Chat"},
                                          {"mnuMovimientos", "Jugadas"},
                                          {"mnuMostrarRanking", "Elo"}};

} // namespace qa
