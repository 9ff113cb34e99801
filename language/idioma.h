#pragma once
// The texts of the current language file. Every menu, caption and message of the program comes
// from a ".lng" file in the program's folder, read key by key with LeerIni.
#include <array>
#include <string>
#include <vector>

namespace qa {

inline constexpr const char* kVersionIdioma = "1.55";

extern std::string FicheroIdioma;
extern std::array<std::string, 110> Mensajes;   // 1 to 109; 0 is never loaded
extern std::array<std::string, 4> TitulosEpd;   // 1 to 3
extern std::array<std::string, 3> TitulosMotor; // 1 and 2
extern std::string TextoSinMotor;

void FijarIdioma(const std::string& nombre);

// The number-or-text rule of the message boxes: a text that reads as a number from 0 to 109 is
// that message, anything else is shown as it is.
std::string TextoMensaje(const std::string& texto);

struct ListaIdiomas {
    std::vector<std::string> nombres; // file names without ".lng", in the order listed
    bool primeroIncorrecto = false;   // the first file has another version: the program stops
};
// Lists the ".lng" files of the program's folder whose version is ours; those that the setting
// `ajuste` picks (see ElegirIdioma) come last.
ListaIdiomas LlenarIdiomas(const std::string& ajuste = "");

// The entry the setting picks: each entry that starts with the setting (without regard to
// case) matches, and the last match wins. Empty when none does.
std::string ElegirIdioma(const std::vector<std::string>& nombres, const std::string& ajuste);

struct ClaveIdioma {
    std::string seccion;
    std::string clave;
};
// Every key the program reads from a language file, in the order it reads them.
const std::vector<ClaveIdioma>& ClavesIdioma();

// Reads the author and version of the current file; the rest only when the version is ours.
// Returns false for a wrong version.
bool LeerTextosIdioma();
const std::string& AutorIdioma();
// A text read by LeerTextosIdioma; empty when it was missing.
const std::string& Texto(const std::string& seccion, const std::string& clave);

} // namespace qa
