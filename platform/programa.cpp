#include "platform/programa.h"

namespace qa {

std::string DirectorioPrograma;
std::string FicheroOpciones;
std::string FinLinea = "\r\n";

void FijarDirectorioPrograma(const std::string& carpeta) {
    DirectorioPrograma = carpeta;
    if (DirectorioPrograma.empty() ||
        (DirectorioPrograma.back() != '\\' && DirectorioPrograma.back() != '/'))
        DirectorioPrograma += '\\';
    FicheroOpciones = DirectorioPrograma + "Default.ini";
}

} // namespace qa
