#pragma once
// Skins: folders of 26 pictures under "apariencias" that replace the built-in set.
#include "board/imagenes.h"

#include <QStringList>

namespace qa {

// Any name beginning with "(" is the built-in set, whatever the language calls it.
bool EsNombreBase(const QString& nombre);
// The built-in set's name in the current language.
QString NombreBase();
// The built-in name, then the skin folders in lower case, in the order of the folder.
QStringList ActualizarSkins(const QString& nombreBase, const QString& carpetaApariencias);
// The folder of a skin, found without regard to case; empty when there is none.
QString RutaSkin(const QString& carpetaApariencias, const QString& nombre);
// Loads the pictures of the folder into `s`. False when one is missing or unreadable, or
// when their sizes do not agree; `s` is then whatever was read so far.
bool Skins(const QString& rutaSkin, JuegoFichas& s);

} // namespace qa
