#include "engine/descubrimiento.h"

#include "platform/texto.h"

#include <algorithm>
#include <filesystem>
#include <unistd.h>

namespace qa {

namespace fs = std::filesystem;

namespace {

void OrdenarSinCaso(std::vector<std::string>& nombres) {
    std::sort(nombres.begin(), nombres.end(), [](const std::string& a, const std::string& b) {
        auto ma = Minusculas(a), mb = Minusculas(b);
        return ma != mb ? ma < mb : a < b;
    });
}

// Folders or files (regular files and links to them) of `carpeta`, in listing order; a folder
// that cannot be read lists nothing.
std::vector<std::string> Listar(const fs::path& carpeta, bool carpetas) {
    std::vector<std::string> nombres;
    std::error_code ec;
    fs::directory_iterator it(carpeta, ec);
    for (; !ec && it != fs::directory_iterator(); it.increment(ec)) {
        std::error_code ecTipo;
        const bool esCarpeta = it->is_directory(ecTipo);
        if (carpetas ? esCarpeta : (!esCarpeta && it->is_regular_file(ecTipo)))
            nombres.push_back(it->path().filename().string());
    }
    OrdenarSinCaso(nombres);
    return nombres;
}

} // namespace

std::vector<MotorEncontrado> BuscarMotores(const std::string& carpeta,
                                           const std::function<void()>& ceder) {
    std::vector<MotorEncontrado> motores;
    const fs::path raiz(carpeta);
    // The queue of sub-folders still to look into; with none, the folder itself is looked into.
    std::vector<std::string> cola = Listar(raiz, true);
    std::string nombre, actual;
    std::vector<std::string> listado;
    std::size_t siguiente = 0;
    int fallos = 0;
    auto Siguiente = [&] { return siguiente < listado.size() ? listado[siguiente++] : ""; };
    for (;;) {
        if (ceder) ceder();
        if (nombre.empty()) {
            actual = cola.empty() ? std::string() : cola.front();
            listado = Listar(actual.empty() ? raiz : raiz / actual, false);
            siguiente = 0;
        }
        nombre = Siguiente();
        const std::string minusculas = Minusculas(nombre);
        const fs::path ruta = (actual.empty() ? raiz : raiz / actual) / nombre;
        bool motor = false;
        std::string entrada;
        if (TerminaEn(minusculas, "com") || TerminaEn(minusculas, "exe")) {
            // A name of three letters has no entry to cut from it: the search ends there.
            if (minusculas.size() < 4) break;
            motor = true;
            entrada = minusculas.substr(0, minusculas.size() - 4);
        } else if (!nombre.empty() && access(ruta.c_str(), X_OK) == 0) {
            motor = true;
            entrada = minusculas;
        }
        if (motor) {
            motores.push_back({entrada, ruta.string()});
            if (!cola.empty()) cola.erase(cola.begin());
            nombre.clear();
            fallos = 0;
        }
        if (nombre.empty() && cola.empty()) break;
        if (nombre.empty()) ++fallos;
        // A folder without an engine is listed ten times before it is given up.
        if (fallos == 10) {
            fallos = 0;
            if (!cola.empty()) cola.erase(cola.begin());
            nombre.clear();
        }
    }
    return motores;
}

} // namespace qa
