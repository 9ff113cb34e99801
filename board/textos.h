#pragma once
// Captions of the board's forms: the current language's text, or ours while none is loaded.
#include <QString>

namespace qa {

QString TextoForma(const char* seccion, const char* clave, const char* porDefecto);

} // namespace qa
