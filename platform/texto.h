#pragma once
// Small text helpers shared by the settings, language and path code. Texts are UTF-8 inside
// the program; files may come in Latin-1 (Windows-1252) as well.
#include <optional>
#include <string>
#include <string_view>

namespace qa {

// The line end of every file and message text the program writes.
inline constexpr const char FinLinea[] = "\r\n";

// Lower case for ASCII and the Latin-1 letters (Ñ, Á, ...), the letters our names use.
std::string Minusculas(std::string_view texto);
bool IgualSinCaso(std::string_view a, std::string_view b);
bool EmpiezaSinCaso(std::string_view texto, std::string_view inicio);
bool TerminaEn(std::string_view texto, std::string_view fin);

bool EsUtf8(std::string_view bytes);
std::string Latin1AUtf8(std::string_view bytes);
// Characters outside Windows-1252 become '?'.
std::string Utf8ALatin1(std::string_view texto);
// Number of characters, not bytes.
std::size_t Longitud(std::string_view texto);
std::string Izquierda(std::string_view texto, std::size_t caracteres);

// Every "$" replaced by `por`.
std::string ReemplazarDolar(std::string_view texto, std::string_view por);

// Whole text as a number, blanks around it allowed; nothing for anything else.
std::optional<double> ANumero(std::string_view texto);
std::optional<long> AEntero(std::string_view texto);
// Leading number of the text, 0 when there is none.
double Val(std::string_view texto);
// A single-precision number as text: at most seven digits, no trailing zeros.
std::string TextoNumero(double valor);

} // namespace qa
