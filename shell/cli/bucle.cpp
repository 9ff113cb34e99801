// The console tool's event loop, loaded by the plain program at the first command that needs it.
#include "shell/cli/cli_session.h"
#include "shell/cli/entrada_cli.h"
#include "shell/cli/ordenes_bucle.h"
#include "shell/cli/programa_cli.h"

#include <QCoreApplication>

extern "C" int QaCorrerBucle(void* s, const char* pendiente, unsigned long longitud, bool fin) {
    SesionCli& sesion = *static_cast<SesionCli*>(s);
    static int argc = 1;
    static char nombre[] = "quintarena-cli";
    static char* argv[] = {nombre, nullptr};
    QCoreApplication app(argc, argv);
    int codigo = 0;
    {
        ProgramaCli programa(sesion, [] { QCoreApplication::quit(); });
        sesion.FijarOrdenes(&programa);
        EntradaCli entrada(sesion, std::string(pendiente, longitud), fin,
                           [&programa] { programa.Terminar(); });
        codigo = app.exec();
        sesion.FijarOrdenes(nullptr);
    }
    return codigo;
}
