#include "platform/ruta.h"

#include "platform/texto.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace qa {

namespace {

// Through links: a dangling or looping link names no file.
bool Existe(const fs::path& p) {
    std::error_code ec;
    return fs::exists(fs::status(p, ec)) && !ec;
}

// The entry of `carpeta` whose name matches `nombre` without regard to case; the smallest name
// wins when several do, so the answer does not depend on the order of the folder.
std::string BuscarSinCaso(const fs::path& carpeta, const std::string& nombre) {
    std::error_code ec;
    fs::directory_iterator it(carpeta.empty() ? fs::path(".") : carpeta, ec);
    std::string mejor;
    const std::string buscado = Minusculas(nombre);
    for (; !ec && it != fs::directory_iterator(); it.increment(ec)) {
        std::string n = it->path().filename().string();
        if (Minusculas(n) == buscado && (mejor.empty() || n < mejor)) mejor = n;
    }
    return mejor;
}

std::string ConBarras(std::string ruta) {
    std::replace(ruta.begin(), ruta.end(), '\\', '/');
    return ruta;
}

std::string BuscarRuta(const std::string& p) {
    if (p.empty() || Existe(p)) return p;

    const bool absoluta = p.front() == '/';
    fs::path actual = absoluta ? fs::path("/") : fs::path();
    std::size_t i = absoluta ? 1 : 0;
    bool perdida = false; // once a folder is missing the rest cannot be found
    while (i <= p.size()) {
        std::size_t j = p.find('/', i);
        if (j == std::string::npos) j = p.size();
        std::string parte = p.substr(i, j - i);
        i = j + 1;
        if (parte.empty()) continue;
        fs::path siguiente = actual / parte;
        if (!perdida && parte != "." && parte != ".." && !Existe(siguiente)) {
            std::string hallado = BuscarSinCaso(actual, parte);
            if (!hallado.empty())
                siguiente = actual / hallado;
            else
                perdida = true;
        }
        actual = siguiente;
    }
    std::string r = actual.string();
    if (p.back() == '/' && (r.empty() || r.back() != '/')) r += '/';
    return r;
}

} // namespace

std::string RutaReal(const std::string& ruta) {
    return BuscarRuta(ConBarras(ruta));
}

std::string RutaUsuario(const std::string& ruta) {
    return BuscarRuta(ruta);
}

std::string RutaEscritura(const std::string& ruta) {
    return ConBarras(ruta);
}

bool ExisteRuta(const std::string& ruta) {
    return !ruta.empty() && Existe(RutaReal(ruta));
}

bool ExisteRutaUsuario(const std::string& ruta) {
    return !ruta.empty() && Existe(RutaUsuario(ruta));
}

bool EsCarpeta(const std::string& ruta) {
    std::error_code ec;
    return !ruta.empty() && fs::is_directory(RutaReal(ruta), ec);
}

} // namespace qa
