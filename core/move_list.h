#pragma once
// The move texts and undo records of the Jugadas window. The history of the
// game lives here and nowhere else: take-back reads it, the game file writes it.

#include "core/lista_textos.h"
#include "platform/texto.h"

#include <string>
#include <vector>

namespace Jugadas {

using qa::FinLinea;

// List[1] coordinates, [2] Spanish, [3] English, [4] the game as squares,
// [5] the user's letters. Each half-move is one line ended by CR LF.
inline std::string List[6];
// One undo record per half-move.
inline ListaTextos List1;

// Appends one half-move: White's after its number, Black's set off by blanks.
void AnotarLista(const std::string& texto, int indice);
// Empties the five texts and the undo records.
void Vaciar();
// The lines of List[indice], without their line ends.
std::vector<std::string> Lineas(int indice);

} // namespace Jugadas
