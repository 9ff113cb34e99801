#include "shell/formularios.h"

#include "shell/enlaces.h"
#include "shell/mdi.h"

#include <QAction>

namespace qa {

Formularios& Forms() {
    static Formularios f;
    return f;
}

Enlaces& Enlace() {
    static Enlaces e;
    return e;
}

QAction* Entrada(const std::string& nombre) {
    return Forms().mdi ? Forms().mdi->Entrada(nombre) : nullptr;
}

bool Marcada(const std::string& nombre) {
    QAction* a = Entrada(nombre);
    return a && a->isChecked();
}

void Marcar(const std::string& nombre, bool marcada) {
    if (QAction* a = Entrada(nombre)) a->setChecked(marcada);
}

} // namespace qa
