#pragma once
// The one way the program writes a whole file: settings, the rating record, saved games, the
// chat and the board picture. A crash, a full disk or a kill never leaves a file half written.
#include <optional>
#include <string>
#include <string_view>

namespace qa {

// The file a write to `ruta` replaces: symbolic links are followed to the end of their chain,
// so a link stays a link and its target gets the new text. Nothing when the chain loops.
std::optional<std::string> DestinoEscritura(const std::string& ruta);

// Writes `bytes` to a temporary file in the target's own folder, flushes it to the disk and
// renames it over the target. On any failure the old file stands as it was and the answer is
// false. An existing file keeps its permissions; a new one gets 0644 less the umask.
bool EscribirFichero(const std::string& ruta, std::string_view bytes);

// Gives the owner the right to write an existing file; true when there is nothing to do or
// it worked. A folder cannot be made writable as a file.
bool QuitarSoloLectura(const std::string& ruta);

// A kill in the last moment of a write leaves its temporary file behind: removes those in
// `carpeta` whose process has gone. Another copy of the program may be writing its own.
void LimpiarTemporales(const std::string& carpeta);

} // namespace qa
