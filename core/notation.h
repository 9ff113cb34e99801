#pragma once
// Every legal move is written, before the board changes, in four notations
// plus the squares line, and leaves one undo record.

#include <string>

namespace Variables {

// Rook, knight, bishop, queen, king, en passant mark (index 1..6).
inline std::string LetrasEspanol[7] = {"", "T", "C", "A", "D", "R", "ap"};
// The hook for the user's own letters; nothing fills it, so the user's list
// shows moves with piece letters and "ep" left out.
inline std::string LetrasUsuario[7];

void EscribirJugada();
void TraducirNotacion(const std::string& texto, const std::string (&letras)[7]);
void Desambiguar();
void ProbarOtra(bool bandera);
void PonerFila();
void PonerColumna();

// The undo record of the move now being written.
std::string RegistroDeshacer();

} // namespace Variables
