#pragma once
// Small text tests of the PGN scanner, in the manner of the line reader it
// was written for: lower-cased starts, values between the first two quotes,
// numbers as a spreadsheet would take them.

#include <cstdint>
#include <string>
#include <string_view>

namespace PgnTexto {

// The line starts with the prefix, compared in lower case (prefix given lower case).
bool EmpiezaCon(std::string_view linea, std::string_view prefijo);
// Between the first two double quotes; to the end of the line if the second
// is missing, empty if there is none.
std::string_view ValorEntreComillas(std::string_view linea);
// "[Name value]": the name, trimmed and in lower case. False if no blank
// follows it, so that no name can be told.
bool NombreEtiqueta(std::string_view linea, std::string& nombre);
std::string_view RecortarBlancos(std::string_view s);
// Digits with an optional sign, point and exponent, as "12." or "12".
bool EsNumerico(std::string_view s);
// The leading number of a text, 0 if there is none; very long ones saturate.
int64_t ValorNumero(std::string_view s);
// Every comment and variation becomes "[!]". The first "{" or "(" is taken
// (a missing one counts as at position 32000), its extent found by depth,
// and every copy of that text in the game replaced at once.
void QuitarComentarios(std::string& texto);

} // namespace PgnTexto
