#include "shell/cli/ordenes_bucle.h"

#include "platform/texto.h"

#include <set>

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

bool VariableDeMotor(const std::string& nombre) {
    static const std::set<std::string> kNombres = {
        "nivelmotor",        "comandomotor(1)",   "comandomotor(2)",
        "respuestamotor(1)", "respuestamotor(2)", "rutamotor(1)",
        "rutamotor(2)",      "relojblancas",      "relojnegras"};
    return kNombres.count(nombre) > 0;
}

bool NecesitaBucle(const std::string& orden, const std::string& arg) {
    if (orden == "get") {
        const std::string n = qa::Minusculas(arg);
        return VariableDeRed(n) || VariableDeMotor(n);
    }
    return orden == "wait" || orden == "engine" || OrdenDeRed(orden, arg);
}
