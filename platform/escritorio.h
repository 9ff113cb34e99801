#pragma once
// File association the freedesktop way, for the current user: a shared-mime-info package and a
// hidden .desktop entry under the user's data folder ($XDG_DATA_HOME, else ~/.local/share).
#include <string>
#include <vector>

namespace qa {

struct TipoEscritorio {
    std::string mime;        // "application/x-quintarena"
    std::string extension;   // ".qtr"
    std::string clase;       // "qtrfile": names the files we write
    std::string descripcion; // shown by file managers
    std::string programa;    // the executable
    std::string icono;       // a picture file, may be missing
};

std::string CarpetaDatosUsuario();

// The folder for the files the program writes: `programa` itself when it can be written (a build
// folder, a portable copy); otherwise this user's data folder of the application, where the
// files named in `semillas` are first copied from `programa` unless they are there already.
// Empty when neither can be used.
std::string CarpetaEscritura(const std::string& programa, const std::vector<std::string>& semillas);

// Writes both files and runs update-mime-database and update-desktop-database when present.
// False when a file could not be written.
bool RegistrarTipoEscritorio(const TipoEscritorio& tipo);

} // namespace qa
