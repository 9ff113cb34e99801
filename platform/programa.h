#pragma once
// Where the program lives. DirectorioPrograma is a Windows-style text ending in a backslash;
// every path built from it goes through RutaReal before it touches the disk.
#include <string>

namespace qa {

extern std::string DirectorioPrograma;
extern std::string FicheroOpciones;
extern std::string FinLinea;

// Sets DirectorioPrograma from a real folder, and FicheroOpciones after it.
void FijarDirectorioPrograma(const std::string& carpeta);

} // namespace qa
