#include "files/gui/epd_form.h"

#include "files/epd_list.h"
#include "files/gui/modelo_lista.h"
#include "files/gui/tablero_mini.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QListView>

namespace qa {

EpdF::EpdF(QWidget* padre) : QWidget(padre, Qt::Window) {
    eventos_ = new QListView;
    eventos_->setObjectName("Eventos");
    eventos_->setUniformItemSizes(true);
    modelo_ = new ModeloLista(FEpd::Eventos, this);
    eventos_->setModel(modelo_);
    mini_ = new TableroMini;
    auto* capa = new QHBoxLayout(this);
    capa->addWidget(eventos_, 2);
    capa->addWidget(mini_, 1);
    connect(eventos_, &QListView::clicked, this, [this](const QModelIndex& i) {
        FEpd::CasillasEpd c{};
        if (FEpd::EventosClick(i.row(), c, isVisible())) mini_->PonerCasillas(c);
    });
    connect(eventos_, &QListView::doubleClicked, this, [this](const QModelIndex& i) {
        if (!FEpd::EventosDblClick(i.row())) return;
        emit PosicionAbierta();
        hide();
    });
}

void EpdF::Abrir(const QString& ruta) {
    FEpd::LeerEPD(ruta.toStdString());
    modelo_->Refrescar();
    if (FEpd::Eventos.empty()) return;
    eventos_->setCurrentIndex(modelo_->index(0));
    mini_->CopiarTablero(); // the first line is on Tablero already
    show();
}

void EpdF::closeEvent(QCloseEvent* e) {
    FEpd::Cerrar();
    emit Cerrado();
    e->accept();
}

} // namespace qa
