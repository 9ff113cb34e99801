#include "shell/reloj.h"

#include "core/clocks.h"
#include "core/game_state.h"
#include "language/idioma.h"

#include <QGridLayout>
#include <QLabel>

namespace qa {

Reloj::Reloj() : FormularioHijo("mnuReloj") {
    setObjectName("Reloj");
    auto* cuerpo = new QWidget;
    auto* rejilla = new QGridLayout(cuerpo);
    for (int i = 1; i <= 4; ++i) {
        etiquetas_[i] = new QLabel;
        etiquetas_[i]->setObjectName(QString("Label%1").arg(i));
        rejilla->addWidget(etiquetas_[i], (i - 1) % 2, (i - 1) / 2);
    }
    using namespace Variables;
    etiquetas_[3]->setText(QString::fromStdString(TextoTiempo(MinutosBlancas, SegundosBlancas)));
    etiquetas_[4]->setText(QString::fromStdString(TextoTiempo(MinutosNegras, SegundosNegras)));
    QFont grande = etiquetas_[3]->font();
    grande.setPointSize(grande.pointSize() + 6);
    grande.setBold(true);
    etiquetas_[3]->setFont(grande);
    etiquetas_[4]->setFont(grande);
    setWidget(cuerpo);
    setWindowFlags(windowFlags() & ~Qt::WindowMaximizeButtonHint);
    resize(200, 110);
}

void Reloj::AplicarIdioma() {
    setWindowTitle(QString::fromStdString(Texto("Reloj", "Titulo")));
    etiquetas_[1]->setText(QString::fromStdString(Texto("Reloj", "Jugador1")));
    etiquetas_[2]->setText(QString::fromStdString(Texto("Reloj", "Jugador2")));
}

} // namespace qa
