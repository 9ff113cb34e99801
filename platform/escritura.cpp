#include "platform/escritura.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace qa {

namespace {

// As many links as the system itself follows before it gives up with ELOOP.
constexpr int kMaximoEnlaces = 40;
constexpr const char* kFinTemporal = ".tmp";

std::string NombreTemporal(const fs::path& destino, long pid) {
    const std::string nombre =
        "." + destino.filename().string() + "." + std::to_string(pid) + kFinTemporal;
    return (destino.parent_path() / nombre).string();
}

// The process id inside a temporary name of ours, ".<name>.<pid>.tmp"; 0 for any other name.
long PidDeTemporal(const std::string& nombre) {
    const std::string fin = kFinTemporal;
    if (nombre.size() < 2 + fin.size() || nombre.front() != '.' ||
        nombre.compare(nombre.size() - fin.size(), fin.size(), fin) != 0)
        return 0;
    const std::string resto = nombre.substr(1, nombre.size() - 1 - fin.size());
    const auto punto = resto.rfind('.');
    if (punto == std::string::npos || punto == 0 || punto + 1 == resto.size()) return 0;
    const std::string cifras = resto.substr(punto + 1);
    if (cifras.size() > 9 || cifras.find_first_not_of("0123456789") != std::string::npos) return 0;
    return std::stol(cifras);
}

bool EscribirTodo(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t n = ::write(fd, bytes.data(), bytes.size());
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
}

// After the rename the new name must reach the disk too; the file is in place either way.
void SincronizarCarpeta(const fs::path& carpeta) {
    const int fd =
        ::open(carpeta.empty() ? "." : carpeta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

} // namespace

std::optional<std::string> DestinoEscritura(const std::string& ruta) {
    fs::path p = ruta;
    for (int i = 0; i <= kMaximoEnlaces; ++i) {
        struct stat st {};
        if (::lstat(p.c_str(), &st) != 0 || !S_ISLNK(st.st_mode)) return p.string();
        std::error_code ec;
        const fs::path destino = fs::read_symlink(p, ec);
        if (ec) return std::nullopt;
        p = destino.is_absolute() ? destino : p.parent_path() / destino;
    }
    return std::nullopt;
}

bool EscribirFichero(const std::string& ruta, std::string_view bytes) {
    const auto real = DestinoEscritura(ruta);
    if (!real) return false;
    const fs::path destino = *real;
    if (destino.filename().empty()) return false;
    struct stat st {};
    const bool existe = ::stat(destino.c_str(), &st) == 0;
    if (existe && !S_ISREG(st.st_mode)) return false;

    const std::string temporal = NombreTemporal(destino, static_cast<long>(::getpid()));
    ::unlink(temporal.c_str()); // ours by its process id: a leftover of an earlier failure
    const int fd = ::open(temporal.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    if (fd < 0) return false;
    bool bien = EscribirTodo(fd, bytes);
    if (bien && existe) bien = ::fchmod(fd, st.st_mode & 07777) == 0;
    if (bien) bien = ::fsync(fd) == 0;
    if (::close(fd) != 0) bien = false;
    if (bien) bien = std::rename(temporal.c_str(), destino.c_str()) == 0;
    if (!bien) {
        ::unlink(temporal.c_str());
        return false;
    }
    SincronizarCarpeta(destino.parent_path());
    return true;
}

bool QuitarSoloLectura(const std::string& ruta) {
    struct stat st {};
    if (::stat(ruta.c_str(), &st) != 0) return true;
    if (S_ISDIR(st.st_mode)) return false;
    if (st.st_mode & S_IWUSR) return true;
    return ::chmod(ruta.c_str(), (st.st_mode & 07777) | S_IWUSR) == 0;
}

void LimpiarTemporales(const std::string& carpeta) {
    std::error_code ec;
    fs::directory_iterator it(carpeta.empty() ? fs::path(".") : fs::path(carpeta), ec);
    for (; !ec && it != fs::directory_iterator(); it.increment(ec)) {
        const long pid = PidDeTemporal(it->path().filename().string());
        if (pid <= 0 || pid == static_cast<long>(::getpid())) continue;
        // EPERM means the process is there, under another user.
        if (::kill(static_cast<pid_t>(pid), 0) == 0 || errno != ESRCH) continue;
        struct stat st {};
        if (::lstat(it->path().c_str(), &st) == 0 && S_ISREG(st.st_mode))
            ::unlink(it->path().c_str());
    }
}

} // namespace qa
