#pragma once
// The ranking panel: the local record in Label(0) to Label(4), the peer's in Label(5) to Label(9).
#include "shell/formulario_hijo.h"

class QGroupBox;
class QLabel;

namespace qa {

class Ranking : public FormularioHijo {
    Q_OBJECT
public:
    Ranking();
    void AplicarIdioma() override;
    QLabel* Label(int i) const { return etiquetas_[i]; }

private:
    QGroupBox* marcos_[2] = {};
    QLabel* etiquetas_[10] = {};
};

} // namespace qa
