#pragma once
// Paths. The program builds some names from Windows-style texts of its own (DirectorioPrograma,
// "Sonidos\", names lower-cased from the command line); in those `\` separates folders. A name
// from the user, the command line or a dialog is taken as given: `\` is a legal letter here.
//
// One rule for every name: the exact name first. Only a name being read, and only when the
// exact name does not exist, is looked up without regard to case. A name being written is
// never mapped onto another file.
#include <string>

namespace qa {

// A name the program built, to read: `\` becomes `/`; a part that does not exist as written is
// looked up in its folder without regard to case, one folder at a time. Parts that match
// nothing stay as written.
std::string RutaReal(const std::string& ruta);
// A name from the user, to read: the same lookup, with `\` left as it is.
std::string RutaUsuario(const std::string& ruta);
// A name the program built, to write: `\` becomes `/`, nothing more.
std::string RutaEscritura(const std::string& ruta);

// Whether the name, read by the rules above, names a file.
bool ExisteRuta(const std::string& ruta);
bool EsCarpeta(const std::string& ruta);
bool ExisteRutaUsuario(const std::string& ruta);

} // namespace qa
