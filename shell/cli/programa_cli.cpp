#include "shell/cli/programa_cli.h"

#include "core/game_state.h"
#include "shell/cli/red_cli.h"

#include <set>

namespace {

constexpr int kPlazoCierreMs = 5000;

bool OrdenDeRed(const std::string& orden, const std::string& arg) {
    static const std::set<std::string> kOrdenes = {"listen", "connect", "cancel",  "disconnect",
                                                   "say",    "nick",    "address", "resign",
                                                   "draw",   "epd"};
    return kOrdenes.count(orden) > 0 || (orden == "new" && !arg.empty());
}

bool VariableDeRed(const std::string& nombre) {
    static const std::set<std::string> kNombres = {"versionremota",    "nick",
                                                   "escliente",        "esservidor",
                                                   "nuevopendiente",   "ofertapendiente",
                                                   "archivopendiente", "cierrependiente",
                                                   "envioencurso",     "pingencurso",
                                                   "pingsegundos",     "colaenviocuenta",
                                                   "puntuacion",       "puntuacionremota"};
    return kNombres.count(nombre) > 0;
}

} // namespace

ProgramaCli::ProgramaCli(SesionCli& cli, std::function<void()> salir)
    : cli_(cli), salir_(std::move(salir)) {
    plazoCierre_.setSingleShot(true);
    QObject::connect(&plazoCierre_, &QTimer::timeout, [this] { salir_(); });
}

ProgramaCli::~ProgramaCli() = default;

RedCli& ProgramaCli::Red() {
    if (!red_)
        red_ = std::make_unique<RedCli>(cli_, [this] {
            if (saliendo_) salir_();
        });
    return *red_;
}

bool ProgramaCli::Ejecutar(const std::string& orden, const std::string& arg) {
    if (red_ || OrdenDeRed(orden, arg)) {
        if (Red().Ejecutar(orden, arg)) return true;
    }
    return false;
}

bool ProgramaCli::Obtener(const std::string& nombre, std::string& valor) {
    if (red_ || VariableDeRed(nombre)) return Red().Obtener(nombre, valor);
    return false;
}

void ProgramaCli::Terminar() {
    saliendo_ = true;
    if (red_ && !red_->AlCerrarPrograma()) {
        plazoCierre_.start(kPlazoCierreMs);
        return;
    }
    salir_();
}
