#pragma once
// The move list panel: shows one of the move texts, chosen by the notation menu.
#include "shell/formulario_hijo.h"

namespace qa {

class ListaJugadas;

class Jugadas : public FormularioHijo {
    Q_OBJECT
public:
    Jugadas();
    void AplicarIdioma() override;
    ListaJugadas* Lista() const { return lista_; }

private:
    ListaJugadas* lista_;
};

} // namespace qa
