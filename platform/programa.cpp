#include "platform/programa.h"

namespace qa {

std::string DirectorioPrograma;
std::string DirectorioDatos;
std::string FicheroOpciones;

namespace {

std::string ConBarra(std::string carpeta) {
    if (carpeta.empty() || (carpeta.back() != '\\' && carpeta.back() != '/')) carpeta += '\\';
    return carpeta;
}

} // namespace

void FijarDirectorioPrograma(const std::string& carpeta) {
    DirectorioPrograma = ConBarra(carpeta);
    FijarDirectorioDatos(DirectorioPrograma);
}

void FijarDirectorioDatos(const std::string& carpeta) {
    DirectorioDatos = ConBarra(carpeta);
    FicheroOpciones = DirectorioDatos + "Default.ini";
}

} // namespace qa
