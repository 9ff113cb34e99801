#pragma once
// A list view's rows straight from a vector or a ListaTextos of texts, so a list
// of millions of games or moves costs the view nothing until rows are drawn.
#include "core/lista_textos.h"

#include <QAbstractListModel>
#include <string>
#include <vector>

namespace qa {

class ModeloLista : public QAbstractListModel {
    Q_OBJECT
public:
    ModeloLista(const std::vector<std::string>& filas, QObject* padre)
        : QAbstractListModel(padre), vector_(&filas) {}
    ModeloLista(const ListaTextos& filas, QObject* padre)
        : QAbstractListModel(padre), textos_(&filas) {}
    int rowCount(const QModelIndex& p = {}) const override {
        return p.isValid() ? 0 : static_cast<int>(vector_ ? vector_->size() : textos_->size());
    }
    QVariant data(const QModelIndex& i, int rol) const override;
    // The vector changed: the view reads it again.
    void Refrescar() {
        beginResetModel();
        endResetModel();
    }

private:
    const std::vector<std::string>* vector_ = nullptr;
    const ListaTextos* textos_ = nullptr;
};

} // namespace qa
