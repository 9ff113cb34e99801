#include "language/idioma.h"
#include "platform/escritura.h"
#include "platform/ini_file.h"
#include "platform/programa.h"
#include "platform/texto.h"
#include "shell/cli/cli_session.h"
#include "shell/cli/entrada_cli.h"
#include "shell/cli/programa_cli.h"

#include <QCoreApplication>
#include <fcntl.h>
#include <filesystem>
#include <iostream>
#include <string>

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

} // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    // Asked before Qt opens descriptors of its own, one of which could take the number 0.
    const bool hayEntrada = ::fcntl(0, F_GETFD) != -1;
    QCoreApplication app(argc, argv);
    SesionCli::Traductor traductor;
    if (CargarIdioma()) traductor = [](const std::string& t) { return qa::TextoMensaje(t); };
    SesionCli sesion(std::cout, std::cerr, traductor);
    ProgramaCli programa(sesion, [] { QCoreApplication::quit(); });
    sesion.FijarOrdenes(&programa);
    EntradaCli entrada(sesion, hayEntrada, [&programa] { programa.Terminar(); });
    return app.exec();
}
