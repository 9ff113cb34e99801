#include "shell/jugadas.h"

#include "shell/formularios.h"
#include "shell/idioma.h"
#include "shell/mdi.h"
#include "shell/servicios.h"

#include <QListWidget>
#include <QStackedWidget>

namespace qa {

Jugadas::Jugadas() : FormularioHijo("mnuMovimientos"), pila_(new QStackedWidget) {
    setObjectName("Jugadas");
    for (int i = 1; i <= 5; ++i) {
        listas_[i] = new QListWidget;
        listas_[i]->setObjectName(QString("List%1").arg(i));
        listas_[i]->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(listas_[i], &QWidget::customContextMenuRequested, this, [] {
            if (Forms().mdi) MenuContextual(Forms().mdi->MenuJugadas());
        });
        pila_->addWidget(listas_[i]);
    }
    setWidget(pila_);
    MostrarLista(2);
    resize(220, 300);
}

void Jugadas::MostrarLista(int i) {
    if (i >= 1 && i <= 5) pila_->setCurrentWidget(listas_[i]);
}

void Jugadas::AplicarIdioma() {
    setWindowTitle(QString::fromStdString(Texto("Jugadas", "Titulo")));
}

} // namespace qa
