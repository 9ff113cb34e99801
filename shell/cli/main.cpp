#include "language/idioma.h"
#include "platform/escritura.h"
#include "platform/ini_file.h"
#include "platform/programa.h"
#include "platform/texto.h"
#include "shell/cli/cli_session.h"
#include "shell/cli/ordenes_bucle.h"

#include <cerrno>
#include <dlfcn.h>
#include <filesystem>
#include <iostream>
#include <string>
#include <unistd.h>

namespace {

// The message texts of the language the settings beside the program name;
// without them a message shows its number.
bool CargarIdioma() {
    std::error_code ec;
    auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
    if (ec) return false;
    qa::FijarDirectorioPrograma(exe.parent_path().string());
    qa::LimpiarTemporales(exe.parent_path().string());
    std::string idioma = qa::LeerIni(qa::FicheroOpciones, "Configuracion", "Idioma");
    if (idioma.empty()) idioma = "Español";
    qa::FijarIdioma(qa::Minusculas(idioma) + ".lng");
    return qa::LeerTextosIdioma();
}

// Notes the first command that the event loop must answer, and answers nothing itself.
class Vigia final : public OrdenesCli {
public:
    bool Ejecutar(const std::string& orden, const std::string& arg) override {
        return pedido = pedido || NecesitaBucle(orden, arg);
    }
    bool Obtener(const std::string&, std::string&) override { return false; }
    bool pedido = false;
};

// The loop beside the program takes over from `pendiente` on.
int CorrerBucle(SesionCli& sesion, const std::string& pendiente, bool fin) {
    std::error_code ec;
    const auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
    const std::string ruta = (exe.parent_path() / kModuloBucle).string();
    void* modulo = ::dlopen(ruta.c_str(), RTLD_NOW | RTLD_GLOBAL);
    auto correr =
        modulo ? reinterpret_cast<FuncionBucle>(::dlsym(modulo, "QaCorrerBucle")) : nullptr;
    if (!correr) {
        const char* e = ::dlerror();
        std::cout << "error the event loop cannot be loaded: " << (e ? e : ruta) << std::endl;
        return 1;
    }
    sesion.FijarOrdenes(nullptr);
    return correr(&sesion, pendiente.data(), pendiente.size(), fin);
}

} // namespace

int main() {
    std::ios::sync_with_stdio(false);
    SesionCli::Traductor traductor;
    if (CargarIdioma()) traductor = [](const std::string& t) { return qa::TextoMensaje(t); };
    SesionCli sesion(std::cout, std::cerr, traductor);
    Vigia vigia;
    sesion.FijarOrdenes(&vigia);
    std::string resto;
    char buf[65536];
    for (;;) {
        ssize_t n;
        do {
            n = ::read(0, buf, sizeof buf);
        } while (n < 0 && errno == EINTR);
        if (n <= 0) break;
        resto.append(buf, static_cast<size_t>(n));
        size_t ini = 0;
        for (size_t fin; (fin = resto.find('\n', ini)) != std::string::npos; ini = fin + 1) {
            sesion.Ejecutar(resto.substr(ini, fin - ini));
            if (vigia.pedido) return CorrerBucle(sesion, resto.substr(ini), false);
        }
        resto.erase(0, ini);
    }
    // A last line without its end is still a command.
    if (!resto.empty()) {
        sesion.Ejecutar(resto);
        if (vigia.pedido) return CorrerBucle(sesion, resto, true);
    }
    return 0;
}
