#pragma once
// A list view's rows straight from a vector of texts, so a list of millions
// of games costs the view nothing until rows are drawn.
#include <QAbstractListModel>
#include <string>
#include <vector>

namespace qa {

class ModeloLista : public QAbstractListModel {
    Q_OBJECT
public:
    ModeloLista(const std::vector<std::string>& filas, QObject* padre)
        : QAbstractListModel(padre), filas_(filas) {}
    int rowCount(const QModelIndex& p = {}) const override {
        return p.isValid() ? 0 : static_cast<int>(filas_.size());
    }
    QVariant data(const QModelIndex& i, int rol) const override;
    // The vector changed: the view reads it again.
    void Refrescar() {
        beginResetModel();
        endResetModel();
    }

private:
    const std::vector<std::string>& filas_;
};

} // namespace qa
