#include "files/line_reader.h"

#include "platform/lectura.h"
#include "platform/texto.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
constexpr size_t kBloque = 1 << 20;
// What is read past a range's end to finish its last line.
constexpr size_t kCola = 4096;

struct Compartido {
    std::string ruta;
    int fd = -1;
    struct stat st {};
};
Compartido compartido;
} // namespace

FicheroCompartido::FicheroCompartido(const std::string& ruta) {
    if (compartido.fd >= 0) return;
    compartido.fd = qa::AbrirLecturaRegular(ruta, compartido.st);
    if (compartido.fd < 0) return;
    compartido.ruta = ruta;
    propio_ = true;
}

FicheroCompartido::~FicheroCompartido() {
    if (!propio_) return;
    ::close(compartido.fd);
    compartido.fd = -1;
    compartido.ruta.clear();
}

LectorLineas::LectorLineas(const std::string& ruta, uint64_t desde, uint64_t hasta)
    : hasta_(hasta), posicion_(desde) {
    struct stat st {};
    if (compartido.fd >= 0 && compartido.ruta == ruta) {
        fd_ = compartido.fd;
        st = compartido.st;
        prestado_ = true;
    } else {
        fd_ = qa::AbrirLecturaRegular(ruta, st);
    }
    if (fd_ < 0) return;
    base_ = desde;
    const uint64_t tamano = static_cast<uint64_t>(std::max<off_t>(st.st_size, 0));
    const uint64_t tramo = std::min(hasta, tamano) > desde ? std::min(hasta, tamano) - desde : 0;
    capacidad_ = static_cast<size_t>(std::clamp<uint64_t>(tramo + 1, kCola, kBloque));
    buf_ = std::make_unique_for_overwrite<char[]>(capacidad_);
    if (desde == 0) {
        Rellenar();
        if (fin_ >= 3 && std::memcmp(buf_.get(), "\xEF\xBB\xBF", 3) == 0) ini_ = 3;
    }
}

LectorLineas::~LectorLineas() {
    if (fd_ >= 0 && !prestado_) ::close(fd_);
}

bool LectorLineas::Rellenar() {
    if (eof_) return false;
    if (ini_ > 0) {
        std::memmove(buf_.get(), buf_.get() + ini_, fin_ - ini_);
        base_ += ini_;
        fin_ -= ini_;
        ini_ = 0;
    }
    if (fin_ == capacidad_) { // a line longer than the buffer
        if (capacidad_ >= LectorLineas::kLargoMaximo) {
            fallo_ = eof_ = true;
            return false;
        }
        const size_t mayor = std::min(capacidad_ * 2, LectorLineas::kLargoMaximo);
        auto nuevo = std::make_unique_for_overwrite<char[]>(mayor);
        std::memcpy(nuevo.get(), buf_.get(), fin_);
        buf_ = std::move(nuevo);
        capacidad_ = mayor;
    }
    // Up to the range's end; past it, only small steps to finish the last line.
    const uint64_t desde = base_ + fin_;
    size_t pedir = capacidad_ - fin_;
    if (hasta_ != kFin) {
        // Past the end the steps double with the line, so a long last line is not read in
        // thousands of small pieces.
        const uint64_t falta = hasta_ > desde ? hasta_ - desde : std::max(kCola, fin_ - ini_);
        pedir = static_cast<size_t>(std::min<uint64_t>(pedir, falta));
    }
    for (;;) {
        ssize_t n = ::pread(fd_, buf_.get() + fin_, pedir, static_cast<off_t>(desde));
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) {
            eof_ = true;
            return false;
        }
        fin_ += static_cast<size_t>(n);
        return true;
    }
}

bool LectorLineas::Siguiente(std::string_view& linea) {
    if (fd_ < 0) return false;
    for (;;) {
        if (base_ + ini_ >= hasta_) return false;
        const char* p = buf_.get() + ini_;
        const void* nl = std::memchr(p, '\n', fin_ - ini_);
        size_t largo;
        size_t salto;
        if (nl) {
            largo = static_cast<size_t>(static_cast<const char*>(nl) - p);
            salto = largo + 1;
        } else if (!Rellenar()) {
            if (ini_ >= fin_ || fallo_) return false;
            largo = salto = fin_ - ini_; // the last line has no line end
            p = buf_.get() + ini_;
        } else {
            continue;
        }
        posicion_ = base_ + ini_;
        ini_ += salto;
        if (largo > 0 && p[largo - 1] == '\r') --largo;
        linea = std::string_view(p, largo);
        return true;
    }
}

namespace Ficheros {

bool Existe(const std::string& ruta) {
    struct stat st {};
    return ::stat(ruta.c_str(), &st) == 0;
}

std::string Extension3(const std::string& ruta) {
    return qa::Minusculas(ruta.size() >= 3 ? ruta.substr(ruta.size() - 3) : ruta);
}

} // namespace Ficheros
