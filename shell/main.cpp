#include "platform/senales.h"
#include "shell/arranque.h"
#include "shell/entorno_programa.h"
#include "shell/ficheros_programa.h"
#include "shell/formularios.h"
#include "shell/mdi.h"
#include "shell/red_programa.h"
#include "shell/tablero_programa.h"

#include <QApplication>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    app.setApplicationName("Quintarena");
    // The close handler decides when the program ends, not the last window.
    app.setQuitOnLastWindowClosed(false);
    std::vector<std::string> argumentos;
    for (const QString& a : QCoreApplication::arguments()) argumentos.push_back(a.toStdString());
    qa::AlTerminar(qa::PedirCierre);
    qa::InstalarEntornoPrograma();
    qa::InstalarTablero();
    qa::InstalarFicheros();
    qa::InstalarRedPrograma();
    int codigo = 0;
    if (qa::Main(argumentos)) codigo = app.exec();
    qa::TerminarRedPrograma();
    qa::LiberarFormularios();
    return codigo;
}
