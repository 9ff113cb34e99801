#pragma once
// The move list panel: one list per notation, of which one is shown (List(1) to List(5)).
#include "shell/formulario_hijo.h"

class QListWidget;
class QStackedWidget;

namespace qa {

class Jugadas : public FormularioHijo {
    Q_OBJECT
public:
    Jugadas();
    void AplicarIdioma() override;
    QListWidget* List(int i) const { return listas_[i]; }
    void MostrarLista(int i);

private:
    QStackedWidget* pila_;
    QListWidget* listas_[6] = {};
};

} // namespace qa
