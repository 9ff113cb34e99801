#include "board/lista_jugadas.h"

#include "board/textos.h"

#include "core/move_list.h"

#include <QAbstractListModel>
#include <QActionGroup>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>

#include <algorithm>
#include <climits>

namespace qa {

namespace {
// The list each notation setting shows.
constexpr int kLista[5] = {0, 2, 3, 1, 5};

int Filas(int indice) {
    // A view counts its rows in int; a game that long shows its first rows only.
    return static_cast<int>(std::min<size_t>(Jugadas::List[indice].Lineas(), INT_MAX));
}
} // namespace

// The rows of one list, read when the view asks for them.
class ModeloJugadas : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& padre = {}) const override {
        return padre.isValid() ? 0 : filas_;
    }
    QVariant data(const QModelIndex& i, int rol) const override {
        if (rol != Qt::DisplayRole || !i.isValid() || i.row() >= filas_) return {};
        return QString::fromStdString(Jugadas::List[indice_].Linea(static_cast<size_t>(i.row())));
    }

    void Mostrar(int indice) {
        beginResetModel();
        indice_ = indice;
        filas_ = Filas(indice);
        endResetModel();
    }

    // After a move or a take-back only the end of the list has changed.
    void Releer() {
        const int filas = Filas(indice_);
        if (filas > filas_) {
            beginInsertRows({}, filas_, filas - 1);
            filas_ = filas;
            endInsertRows();
        } else if (filas < filas_) {
            beginRemoveRows({}, filas, filas_ - 1);
            filas_ = filas;
            endRemoveRows();
        }
        if (filas_ > 0) emit dataChanged(index(filas_ - 1), index(filas_ - 1));
    }

private:
    int indice_ = 2;
    int filas_ = 0;
};

ListaJugadas::ListaJugadas(QWidget* parent)
    : QListView(parent), modelo_(new ModeloJugadas(this)), menu_(new QMenu(this)) {
    setModel(modelo_);
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    copiar_ = menu_->addAction(QString(), this, &ListaJugadas::CopiarJugadas);
    guardarComo_ = menu_->addAction(QString(), this, &ListaJugadas::GuardarComo);
    mnuNotacion_ = menu_->addMenu(QString());
    auto* grupo = new QActionGroup(this);
    for (int check = 1; check <= 4; ++check) {
        QAction* a = mnuNotacion_->addAction(QString());
        a->setCheckable(true);
        grupo->addAction(a);
        notaciones_[check] = a;
        connect(a, &QAction::triggered, this, [this, check] {
            PonerNotacion(check);
            emit NotacionElegida(check);
        });
    }
    AplicarIdioma();
    PonerNotacion(1);
}

void ListaJugadas::AplicarIdioma() {
    copiar_->setText(TextoForma("Jugadas", "Menu1", "&Copy moves"));
    guardarComo_->setText(TextoForma("Jugadas", "Menu2", "&Save as..."));
    mnuNotacion_->setTitle(TextoForma("Jugadas", "Menu3", "&Notation"));
    const char* claves[5] = {nullptr, "Menu6", "Menu7", "Menu5", "Menu4"};
    const char* defectos[5] = {nullptr, "&Spanish algebraic", "&English algebraic", "&Coordinates",
                               "&Algebraic"};
    for (int check = 1; check <= 4; ++check)
        notaciones_[check]->setText(TextoForma("Jugadas", claves[check], defectos[check]));
}

void ListaJugadas::changeEvent(QEvent* e) {
    if (e->type() == QEvent::LanguageChange) AplicarIdioma();
    QListView::changeEvent(e);
}

void ListaJugadas::PonerNotacion(int check) {
    if (check < 1 || check > 4) return;
    check_ = check;
    indice_ = kLista[check];
    notaciones_[check]->setChecked(true);
    modelo_->Mostrar(indice_);
    scrollToBottom();
}

void ListaJugadas::Actualizar() {
    const int antes = modelo_->rowCount();
    modelo_->Releer();
    if (modelo_->rowCount() == antes || desplazar_) return;
    // Scrolling lays out every row: once when the moves stop coming, not at each of them.
    desplazar_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            desplazar_ = false;
            scrollToBottom();
        },
        Qt::QueuedConnection);
}

QString ListaJugadas::Texto() const {
    QStringList lineas;
    for (int i = 0; i < modelo_->rowCount(); ++i) lineas << modelo_->index(i).data().toString();
    return lineas.join(QLatin1Char('\n'));
}

void ListaJugadas::CopiarJugadas() {
    QClipboard* portapapeles = QGuiApplication::clipboard();
    portapapeles->clear();
    QModelIndexList filas = selectionModel()->selectedRows();
    if (!filas.isEmpty()) {
        std::sort(filas.begin(), filas.end());
        QStringList lineas;
        for (const QModelIndex& i : filas) lineas << i.data().toString();
        portapapeles->setText(lineas.join(QString::fromLatin1(Jugadas::FinLinea)));
    } else {
        portapapeles->setText(QString::fromStdString(Jugadas::List[indice_]));
    }
}

void ListaJugadas::contextMenuEvent(QContextMenuEvent* e) {
    menu_->exec(e->globalPos());
}

} // namespace qa
