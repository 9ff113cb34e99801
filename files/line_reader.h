#pragma once
// Reads a text file line by line through a buffer of its own, with the byte
// offset of each line, so a scan can come back to a line without starting
// over. The buffer grows only with the longest line, never with the file,
// and a range is read no further than its end (and the rest of its last
// line), so one game of a large collection costs its own size.
// Only a regular file is read (a FIFO would block, a device never ends), and
// one line may not pass kLargoMaximo bytes: reading stops there with Fallo().

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

class LectorLineas {
public:
    static constexpr uint64_t kFin = UINT64_MAX;
    // Generous: a whole PGN game may stand on one line.
    static constexpr size_t kLargoMaximo = size_t{256} << 20;

    // Lines whose first byte lies in [desde, hasta). A UTF-8 mark at the
    // start of the file is no part of its first line.
    explicit LectorLineas(const std::string& ruta, uint64_t desde = 0, uint64_t hasta = kFin);
    ~LectorLineas();
    LectorLineas(const LectorLineas&) = delete;
    LectorLineas& operator=(const LectorLineas&) = delete;

    bool Abierto() const { return fd_ >= 0; }
    // A line longer than kLargoMaximo was met; no line is returned from there on.
    bool Fallo() const { return fallo_; }
    // The next line without its LF or CR LF; the view lives until the next call.
    bool Siguiente(std::string_view& linea);
    // Offset of the line last returned.
    uint64_t Posicion() const { return posicion_; }

private:
    bool Rellenar();

    int fd_ = -1;
    bool prestado_ = false;       // the file of a FicheroCompartido, which closes it
    std::unique_ptr<char[]> buf_; // not zero-filled: only what was read is looked at
    size_t capacidad_ = 0;
    size_t ini_ = 0, fin_ = 0;
    uint64_t base_ = 0; // file offset of buf_[0]
    uint64_t hasta_;
    uint64_t posicion_ = 0;
    bool eof_ = false;
    bool fallo_ = false;
};

// While one lives, the readers of its path read through the file it opened
// instead of opening it again: a game's selection reads the collection twice
// in a row. One at a time; a second one meanwhile changes nothing.
class FicheroCompartido {
public:
    explicit FicheroCompartido(const std::string& ruta);
    ~FicheroCompartido();
    FicheroCompartido(const FicheroCompartido&) = delete;
    FicheroCompartido& operator=(const FicheroCompartido&) = delete;

private:
    bool propio_ = false;
};

// Whole-file helpers for the game files.
namespace Ficheros {

bool Existe(const std::string& ruta);
// The last three letters of a path, in lower case.
std::string Extension3(const std::string& ruta);

} // namespace Ficheros
