#pragma once
// Paths in the program are Windows-style texts ("Sonidos\", names lower-cased from the command
// line). RutaReal turns one into a path this file system finds.
#include <string>

namespace qa {

// `\` becomes `/`; a part that does not exist as written is looked up in its folder without
// regard to case, one folder at a time. Parts that match nothing stay as written, so the result
// also names a file still to be made.
std::string RutaReal(const std::string& ruta);

bool ExisteRuta(const std::string& ruta);
bool EsCarpeta(const std::string& ruta);

} // namespace qa
