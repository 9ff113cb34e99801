#pragma once
// Settings and language files: sections in brackets and key=value lines, read and written key by
// key as the private-profile calls do. Sections and keys are found without regard to case, the
// first of duplicates wins, a missing key reads as empty, a value is cut at 255 characters.
// A parsed copy of each file is kept while the file is unchanged on disk, so reading many keys
// costs one read of the file.
// A write keeps every other byte of the file, and goes through a temporary file and a rename so
// that the file is never left half written.
#include <functional>
#include <string>
#include <utility>

namespace qa {

constexpr std::size_t kLargoMaximoValor = 255;

std::string LeerIni(const std::string& fichero, const std::string& seccion,
                    const std::string& clave);

// Many keys of one file read in a row, each as LeerIni reads it, with the file looked at once
// instead of at every key: a language file's hundreds of texts at start. Only the alarm of a
// missing text can run anything between two reads, and after it the file is looked at again.
class LecturaIni {
public:
    explicit LecturaIni(std::string fichero) : fichero_(std::move(fichero)) {}
    std::string Leer(const std::string& seccion, const std::string& clave);

private:
    std::string fichero_;
    const void* copia_ = nullptr; // the parsed copy the reads go to, while it cannot have changed
};

// True when the file is a regular file that can be read: a folder, a FIFO, a device or a file
// we may not read is no settings or language file, and counts as missing.
bool IniLegible(const std::string& fichero);

// The whole of a regular file of at most 64 MB, opened without blocking; false for anything else
// (a FIFO, a folder, a device), which the caller takes as a missing file.
bool LeerFicheroRegular(const std::string& ruta, std::string& bytes);

// False when the file could not be written; the old file then stands as it was.
bool EscribirIni(const std::string& fichero, const std::string& seccion, const std::string& clave,
                 const std::string& valor);

// A language file that lacks a key is noticed in LeerIni (an empty value from a ".lng" file,
// section other than "Autor"); the shell tells the user and falls back to Spanish.
using AvisoIdiomaIncorrecto = std::function<void()>;
void FijarAvisoIdiomaIncorrecto(AvisoIdiomaIncorrecto aviso);

} // namespace qa
