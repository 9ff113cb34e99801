#pragma once
// The logic of the EPD browser: the valid lines of a file, the chosen one
// read onto a board of 64 squares for the small picture, a double click
// opening it as a game.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace FEpd {

inline std::vector<std::string> Eventos; // the file's valid lines
inline int32_t EventosIndice = -1;
inline std::string EventosTag;
inline bool EpdEnviado;
inline bool VistaEpd; // a position of the browser is being shown

// Rows 8 down to 1, columns 1 to 8: piece codes for the small board.
using CasillasEpd = std::array<int32_t, 64>;

// Fills Eventos; message 55 if the first line is no position. Returns
// whether the file could be read at all.
bool LeerEPD(const std::string& ruta);
// A click on entry i: true, with the squares, when the small board is to be drawn.
bool EventosClick(int32_t i, CasillasEpd& casillas, bool formularioVisible = true);
// A double click: the entry opens as a game (over the network, the caller negotiates).
bool EventosDblClick(int32_t i);
// The form closes.
void Cerrar();
void CancelarEPD();

} // namespace FEpd
