#pragma once
// The check for a newer version: "version.dat" at the web site holds the latest version number
// on its last line.
#include <QString>
#include <string>

namespace qa {

// The site, in this one place; version.dat lies at its root.
inline constexpr const char* kDireccionWeb = "https://quintarena.github.io/";
inline constexpr const char* kCorreo = "quintarena@users.noreply.github.com";

// Asks first (message 100); on Yes reads `base` + "version.dat".
void Actualizar(const std::string& base);
// The end of the read: the number on the last line against ours. Deletes the file.
void FinActualizacion(const QString& propiedad, const QString& fichero);
void FalloActualizacion();

} // namespace qa
