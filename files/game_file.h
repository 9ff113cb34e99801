#pragma once
// Saving a game: the .qtr game file, PGN, or the position as one EPD line,
// chosen by the last three letters of the name. Every file is written to a
// temporary name and renamed into place.

#include <string>
#include <utility>
#include <vector>

namespace Variables {

inline std::string RutaPartida;  // path in use while saving
inline std::string TextoPartida; // text to be written
inline std::string TextoPgn;     // PGN move text

// The seven tags of the PGN dialog, in the order written: Event, Site,
// Date, Round, White, Black, Result.
struct EtiquetasPgn {
    std::string valor[7];
};

enum class Guardado {
    Nada,      // no name, an unknown extension, or the position editor is open
    Hecho,     // written, message 34 shown
    Fallo,     // the file system refused; message 28 if the file could not be made writable
    Etiquetas, // a PGN: the tag dialog is to be shown (GuardandoPgn is true)
};

// The save dialog's filters, label key and pattern: EPD only for a game
// that began from a position.
std::vector<std::pair<std::string, std::string>> FiltrosGuardar();
// Saves under ruta, the name the dialog gave.
Guardado GuardarPartida(const std::string& ruta);
// The dialog's boxes as they open: Quintarena, Internet, today, ?, ?, ?, *.
EtiquetasPgn EtiquetasIniciales();
// The dialog confirmed: tags, moves and result go to RutaPartida.
Guardado ConfirmarEtiquetasPgn(const EtiquetasPgn& e);
// The dialog dropped: nothing is written.
void CancelarEtiquetasPgn();

// The pieces of the .qtr text, for tests and the replay's mirror image.
std::string TextoQtr();
// List(3) wrapped as PGN move text, numbered moves at about 72 columns.
std::string ConstruirTextoPgn(const std::string& lista3);

} // namespace Variables
