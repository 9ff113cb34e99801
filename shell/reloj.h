#pragma once
// The clock panel: the two players and their times.
#include "shell/formulario_hijo.h"

class QLabel;

namespace qa {

class Reloj : public FormularioHijo {
    Q_OBJECT
public:
    Reloj();
    void AplicarIdioma() override;
    QLabel* Label(int i) const { return etiquetas_[i]; } // 1, 2 players; 3, 4 their times

private:
    QLabel* etiquetas_[5] = {};
};

} // namespace qa
