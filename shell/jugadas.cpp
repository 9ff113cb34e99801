#include "shell/jugadas.h"

#include "board/lista_jugadas.h"
#include "language/idioma.h"

namespace qa {

Jugadas::Jugadas() : FormularioHijo("mnuMovimientos"), lista_(new ListaJugadas) {
    setObjectName("Jugadas");
    setWidget(lista_);
    resize(220, 300);
}

void Jugadas::AplicarIdioma() {
    setWindowTitle(QString::fromStdString(Texto("Jugadas", "Titulo")));
}

} // namespace qa
