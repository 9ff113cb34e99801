#include "shell/formulario_hijo.h"

#include "shell/formularios.h"

#include <QCloseEvent>

namespace qa {

FormularioHijo::FormularioHijo(const char* entrada) : entrada_(entrada) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    setOption(QMdiSubWindow::RubberBandResize, false);
}

void FormularioHijo::closeEvent(QCloseEvent* e) {
    e->ignore();
    if (entrada_) Marcar(entrada_, false);
    hide();
}

} // namespace qa
