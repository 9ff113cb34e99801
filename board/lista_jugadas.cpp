#include "board/lista_jugadas.h"

#include "board/textos.h"

#include "core/move_list.h"

#include <QActionGroup>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>

namespace qa {

namespace {
// The list each notation setting shows.
constexpr int kLista[5] = {0, 2, 3, 1, 5};
} // namespace

ListaJugadas::ListaJugadas(QWidget* parent) : QPlainTextEdit(parent), menu_(new QMenu(this)) {
    setReadOnly(true);
    setLineWrapMode(QPlainTextEdit::NoWrap);
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
    QPlainTextEdit::changeEvent(e);
}

void ListaJugadas::PonerNotacion(int check) {
    if (check < 1 || check > 4) return;
    check_ = check;
    indice_ = kLista[check];
    notaciones_[check]->setChecked(true);
    Actualizar();
}

void ListaJugadas::Actualizar() {
    QString texto = QString::fromStdString(Jugadas::List[indice_]);
    texto.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (texto.endsWith(QLatin1Char('\n'))) texto.chop(1);
    if (texto == toPlainText()) return;
    setPlainText(texto);
    moveCursor(QTextCursor::End);
}

void ListaJugadas::CopiarJugadas() {
    QClipboard* portapapeles = QGuiApplication::clipboard();
    portapapeles->clear();
    QString seleccion = textCursor().selectedText();
    if (!seleccion.isEmpty()) {
        seleccion.replace(QChar::ParagraphSeparator, QString::fromLatin1(Jugadas::FinLinea));
        portapapeles->setText(seleccion);
    } else {
        portapapeles->setText(QString::fromStdString(Jugadas::List[indice_]));
    }
}

void ListaJugadas::contextMenuEvent(QContextMenuEvent* e) {
    menu_->exec(e->globalPos());
}

} // namespace qa
