#pragma once
// Where the program lives. DirectorioPrograma is a Windows-style text ending in a backslash;
// every path built from it goes through RutaReal (to read) or RutaEscritura (to write) before
// it touches the disk.
#include <string>

namespace qa {

extern std::string DirectorioPrograma;
// Where the settings, the ranking and the other files the program writes live: the program's
// own folder, unless an installed copy cannot write there. Same style as DirectorioPrograma.
extern std::string DirectorioDatos;
extern std::string FicheroOpciones;

// Sets DirectorioPrograma from a real folder, and DirectorioDatos and FicheroOpciones after it.
void FijarDirectorioPrograma(const std::string& carpeta);
// Moves the written files to another real folder: DirectorioDatos and FicheroOpciones.
void FijarDirectorioDatos(const std::string& carpeta);

} // namespace qa
