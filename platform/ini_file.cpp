#include "platform/ini_file.h"

#include "platform/escritura.h"
#include "platform/lectura.h"
#include "platform/ruta.h"
#include "platform/texto.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>
#include <unordered_map>
#include <vector>

namespace fs = std::filesystem;

namespace qa {

namespace {

AvisoIdiomaIncorrecto& Aviso() {
    static AvisoIdiomaIncorrecto aviso;
    return aviso;
}

bool EsBlanco(char c) {
    return c == ' ' || c == '\t';
}

std::string_view Recortar(std::string_view s) {
    while (!s.empty() && EsBlanco(s.front())) s.remove_prefix(1);
    while (!s.empty() && EsBlanco(s.back())) s.remove_suffix(1);
    return s;
}

struct Linea {
    std::string bruta; // bytes as in the file, without the line end
    std::string fin;   // "\r\n", "\n" or "" for a last line without one
    std::string texto; // the line as UTF-8
};

struct Fichero {
    bool latin1 = false;
    std::string finLinea = "\r\n";
    std::vector<Linea> lineas;
};

// A file that large is no settings file.
constexpr off_t kTamanoMaximo = 64 << 20;

bool LeerBytes(const std::string& ruta, std::string& bytes, struct stat& st) {
    const int fd = AbrirLecturaRegular(ruta, st);
    if (fd < 0) return false;
    bool bien = st.st_size <= kTamanoMaximo;
    if (bien) {
        bytes.resize(static_cast<std::size_t>(st.st_size));
        std::size_t hecho = 0;
        for (;;) {
            if (hecho == bytes.size()) bytes.resize(hecho + 4096); // grew while we read
            const ssize_t n = ::read(fd, bytes.data() + hecho, bytes.size() - hecho);
            if (n < 0 && errno == EINTR) continue;
            if (n <= 0 || hecho + static_cast<std::size_t>(n) > kTamanoMaximo) {
                bien = n == 0;
                break;
            }
            hecho += static_cast<std::size_t>(n);
        }
        bytes.resize(hecho);
    }
    ::close(fd);
    return bien;
}

void Partir(const std::string& bytes, Fichero& f) {
    f.latin1 = !EsUtf8(bytes);
    bool finVisto = false;
    std::size_t i = 0;
    while (i < bytes.size()) {
        std::size_t j = bytes.find('\n', i);
        Linea l;
        if (j == std::string::npos) {
            l.bruta = bytes.substr(i);
            i = bytes.size();
        } else {
            l.bruta = bytes.substr(i, j - i);
            l.fin = "\n";
            if (!l.bruta.empty() && l.bruta.back() == '\r') {
                l.bruta.pop_back();
                l.fin = "\r\n";
            }
            if (!finVisto) f.finLinea = l.fin;
            finVisto = true;
            i = j + 1;
        }
        l.texto = f.latin1 ? Latin1AUtf8(l.bruta) : l.bruta;
        if (f.lineas.empty() && l.texto.rfind("\xEF\xBB\xBF", 0) == 0) l.texto.erase(0, 3);
        f.lineas.push_back(std::move(l));
    }
}

bool Cargar(const std::string& ruta, Fichero& f) {
    std::string bytes;
    struct stat st {};
    if (!LeerBytes(ruta, bytes, st)) return false;
    Partir(bytes, f);
    return true;
}

// Section name of a header line, or nothing.
std::optional<std::string_view> Seccion(std::string_view texto) {
    texto = Recortar(texto);
    if (texto.empty() || texto.front() != '[') return std::nullopt;
    texto.remove_prefix(1);
    auto cierre = texto.find(']');
    return Recortar(texto.substr(0, cierre));
}

bool EsClave(std::string_view texto) {
    texto = Recortar(texto);
    return !texto.empty() && texto.front() != ';' && texto.front() != '[';
}

std::string_view Clave(std::string_view texto) {
    return Recortar(texto.substr(0, texto.find('=')));
}

// Index range [inicio, fin) of the lines of the first section of that name.
bool BuscarSeccion(const Fichero& f, const std::string& seccion, std::size_t& inicio,
                   std::size_t& fin) {
    for (std::size_t i = 0; i < f.lineas.size(); ++i) {
        auto s = Seccion(f.lineas[i].texto);
        if (!s || !IgualSinCaso(*s, seccion)) continue;
        inicio = i + 1;
        fin = inicio;
        while (fin < f.lineas.size() && !Seccion(f.lineas[fin].texto)) ++fin;
        return true;
    }
    return false;
}

std::optional<std::size_t> BuscarClave(const Fichero& f, std::size_t inicio, std::size_t fin,
                                       const std::string& clave) {
    for (std::size_t i = inicio; i < fin; ++i) {
        const auto& t = f.lineas[i].texto;
        if (EsClave(t) && IgualSinCaso(Clave(t), clave)) return i;
    }
    return std::nullopt;
}

std::string Valor(std::string_view texto) {
    auto igual = texto.find('=');
    if (igual == std::string_view::npos) return {};
    std::string_view v = texto.substr(igual + 1);
    while (!v.empty() && EsBlanco(v.front())) v.remove_prefix(1);
    if (v.size() >= 2 && (v.front() == '"' || v.front() == '\'') && v.back() == v.front())
        v = v.substr(1, v.size() - 2);
    return Izquierda(v, kLargoMaximoValor);
}

std::string Bytes(const Fichero& f) {
    std::string bytes;
    for (const auto& l : f.lineas) bytes += l.bruta + l.fin;
    return bytes;
}

// The parsed copy of a file, kept while the file on disk is the one it was read from: same
// inode, size and times. Our own writes drop it at once, so a read always sees the last write.
struct Sello {
    dev_t dev = 0;
    ino_t ino = 0;
    off_t tamano = -1;
    timespec mtim{}, ctim{};
    bool operator==(const Sello& o) const {
        return dev == o.dev && ino == o.ino && tamano == o.tamano && mtim.tv_sec == o.mtim.tv_sec &&
               mtim.tv_nsec == o.mtim.tv_nsec && ctim.tv_sec == o.ctim.tv_sec &&
               ctim.tv_nsec == o.ctim.tv_nsec;
    }
};

Sello SelloDe(const struct stat& st) {
    return {st.st_dev, st.st_ino, st.st_size, st.st_mtim, st.st_ctim};
}

struct Copia {
    Sello sello;
    // Lower-cased section, lower-cased key: the value of the first of each.
    std::unordered_map<std::string, std::unordered_map<std::string, std::string>> valores;
};

std::unordered_map<std::string, Copia>& Copias() {
    static std::unordered_map<std::string, Copia> copias;
    return copias;
}

// The name looked up without regard to case, kept while its folder is unchanged.
struct Resuelta {
    std::string real;
    Sello carpeta;
};

std::unordered_map<std::string, Resuelta>& Resueltas() {
    static std::unordered_map<std::string, Resuelta> r;
    return r;
}

std::string Resolver(const std::string& fichero) {
    struct stat st {};
    if (::stat(fichero.c_str(), &st) == 0) return fichero;
    const std::string carpeta = fs::path(fichero).parent_path().string();
    struct stat sc {};
    const bool hayCarpeta = ::stat(carpeta.empty() ? "." : carpeta.c_str(), &sc) == 0;
    auto& r = Resueltas();
    auto it = r.find(fichero);
    if (hayCarpeta && it != r.end() && it->second.carpeta == SelloDe(sc)) return it->second.real;
    std::string real = RutaReal(fichero);
    if (hayCarpeta) r[fichero] = {real, SelloDe(sc)};
    return real;
}

void Indexar(const Fichero& f, Copia& c) {
    std::unordered_map<std::string, std::string>* actual = nullptr;
    for (const auto& l : f.lineas) {
        if (auto s = Seccion(l.texto)) {
            auto [it, nueva] = c.valores.try_emplace(Minusculas(*s));
            // Only the first section of a name is ever read.
            actual = nueva ? &it->second : nullptr;
            continue;
        }
        if (actual && EsClave(l.texto))
            actual->try_emplace(Minusculas(Clave(l.texto)), Valor(l.texto));
    }
}

const Copia* CopiaDe(const std::string& fichero) {
    const std::string ruta = Resolver(fichero);
    auto& copias = Copias();
    struct stat st {};
    if (::stat(ruta.c_str(), &st) != 0 || !S_ISREG(st.st_mode)) {
        copias.erase(ruta);
        return nullptr;
    }
    auto it = copias.find(ruta);
    if (it != copias.end() && it->second.sello == SelloDe(st)) return &it->second;
    std::string bytes;
    if (!LeerBytes(ruta, bytes, st)) {
        copias.erase(ruta);
        return nullptr;
    }
    Fichero f;
    Partir(bytes, f);
    Copia c;
    c.sello = SelloDe(st);
    Indexar(f, c);
    return &(copias[ruta] = std::move(c));
}

// After a write of ours: whatever name it went by, no copy may outlive it.
void Olvidar() {
    Copias().clear();
}

} // namespace

void FijarAvisoIdiomaIncorrecto(AvisoIdiomaIncorrecto aviso) {
    Aviso() = std::move(aviso);
}

namespace {

std::string ValorEn(const Copia* c, const std::string& seccion, const std::string& clave) {
    if (!c) return {};
    auto s = c->valores.find(Minusculas(seccion));
    if (s == c->valores.end()) return {};
    auto k = s->second.find(Minusculas(clave));
    return k == s->second.end() ? std::string() : k->second;
}

// An empty value from a language file, outside "Autor", sounds the alarm.
bool Alarma(const std::string& fichero, const std::string& seccion, const std::string& valor) {
    return valor.empty() && TerminaEn(fichero, "lng") && Minusculas(seccion) != "autor" && Aviso();
}

} // namespace

std::string LeerIni(const std::string& fichero, const std::string& seccion,
                    const std::string& clave) {
    std::string valor = ValorEn(CopiaDe(fichero), seccion, clave);
    if (Alarma(fichero, seccion, valor)) Aviso()();
    return valor;
}

std::string LecturaIni::Leer(const std::string& seccion, const std::string& clave) {
    if (!copia_) copia_ = CopiaDe(fichero_);
    std::string valor = ValorEn(static_cast<const Copia*>(copia_), seccion, clave);
    if (Alarma(fichero_, seccion, valor)) {
        copia_ = nullptr; // whatever the alarm does, the next read looks at the file again
        Aviso()();
    }
    return valor;
}

bool IniLegible(const std::string& fichero) {
    return !fichero.empty() && CopiaDe(fichero) != nullptr;
}

bool LeerFicheroRegular(const std::string& ruta, std::string& bytes) {
    struct stat st {};
    return LeerBytes(ruta, bytes, st);
}

bool EscribirIni(const std::string& fichero, const std::string& seccion, const std::string& clave,
                 const std::string& valor) {
    if (Recortar(seccion).empty() || Recortar(clave).empty()) return false;
    const std::string ruta = RutaEscritura(fichero);
    Fichero f;
    const bool existia = Cargar(ruta, f);
    const std::string antes = Bytes(f);
    // A line end inside a value would make a new line of the file.
    std::string v = valor.substr(0, valor.find_first_of("\r\n"));
    auto codificar = [&](const std::string& s) { return f.latin1 ? Utf8ALatin1(s) : s; };

    std::size_t inicio = 0, fin = 0;
    if (BuscarSeccion(f, seccion, inicio, fin)) {
        if (auto i = BuscarClave(f, inicio, fin, clave)) {
            Linea& l = f.lineas[*i];
            auto igual = l.bruta.find('=');
            std::string prefijo;
            if (igual == std::string::npos) {
                prefijo = l.bruta + "=";
            } else {
                std::size_t k = igual + 1;
                while (k < l.bruta.size() && EsBlanco(l.bruta[k])) ++k;
                prefijo = l.bruta.substr(0, k);
            }
            l.bruta = prefijo + codificar(v);
            l.texto = f.latin1 ? Latin1AUtf8(l.bruta) : l.bruta;
        } else {
            std::size_t donde = fin;
            while (donde > inicio && Recortar(f.lineas[donde - 1].texto).empty()) --donde;
            if (donde > 0 && f.lineas[donde - 1].fin.empty()) f.lineas[donde - 1].fin = f.finLinea;
            Linea l{codificar(clave + "=" + v), f.finLinea, clave + "=" + v};
            f.lineas.insert(f.lineas.begin() + static_cast<std::ptrdiff_t>(donde), l);
        }
    } else {
        if (!f.lineas.empty() && f.lineas.back().fin.empty()) f.lineas.back().fin = f.finLinea;
        f.lineas.push_back({codificar("[" + seccion + "]"), f.finLinea, "[" + seccion + "]"});
        f.lineas.push_back({codificar(clave + "=" + v), f.finLinea, clave + "=" + v});
    }
    // Each safe write reaches the disk, and the close writes every key: a value that is
    // already there costs nothing.
    const std::string despues = Bytes(f);
    if (existia && despues == antes) return true;
    const bool hecho = EscribirFichero(ruta, despues);
    Olvidar();
    return hecho;
}

} // namespace qa
