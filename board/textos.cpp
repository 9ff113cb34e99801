#include "board/textos.h"

#include "shell/idioma.h"

namespace qa {

QString TextoForma(const char* seccion, const char* clave, const char* porDefecto) {
    const std::string& t = Texto(seccion, clave);
    return t.empty() ? QString::fromUtf8(porDefecto) : QString::fromStdString(t);
}

} // namespace qa
