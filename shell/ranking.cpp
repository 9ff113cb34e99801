#include "shell/ranking.h"

#include "language/idioma.h"
#include "shell/puntuacion.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace qa {

Ranking::Ranking() : FormularioHijo("mnuMostrarRanking") {
    setObjectName("Ranking");
    auto* cuerpo = new QWidget;
    auto* fila = new QHBoxLayout(cuerpo);
    for (int m = 0; m < 2; ++m) {
        marcos_[m] = new QGroupBox;
        auto* columna = new QVBoxLayout(marcos_[m]);
        for (int i = 0; i < 5; ++i) {
            auto* l = new QLabel;
            l->setObjectName(QString("Label%1").arg(m * 5 + i));
            etiquetas_[m * 5 + i] = l;
            columna->addWidget(l);
        }
        fila->addWidget(marcos_[m]);
    }
    setWidget(cuerpo);
    setWindowFlags(windowFlags() & ~Qt::WindowMaximizeButtonHint);
    resize(330, 190);
}

void Ranking::AplicarIdioma() {
    setWindowTitle(QString::fromStdString(Texto("Ranking", "Titulo")));
    marcos_[0]->setTitle(QString::fromStdString(Texto("Ranking", "Frame1")));
    marcos_[1]->setTitle(QString::fromStdString(Texto("Ranking", "Frame2")));
    for (int k = 1; k <= 5; ++k) {
        QString t = QString::fromStdString(Texto("Ranking", std::to_string(k)));
        etiquetas_[k - 1]->setText(t);
        etiquetas_[k + 4]->setText(t);
    }
    PrintPuntuacion();
}

} // namespace qa
