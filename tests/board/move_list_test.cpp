// The move list view: the notation shown, copying, and the context menu's entries.
#include "board_fixture.h"

#include "core/game_state.h"
#include "core/move_list.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QSignalSpy>

using namespace Variables;

namespace {
QAction* Entrada(QMenu* menu, const QString& texto) {
    for (QAction* a : menu->actions()) {
        if (a->menu())
            if (QAction* b = Entrada(a->menu(), texto)) return b;
        if (a->text() == texto) return a;
    }
    return nullptr;
}
} // namespace

TEST_F(TableroTest, NotationMenuChoosesTheListShown) {
    Arrastrar(5, 2, 5, 4);
    Arrastrar(5, 7, 5, 5);
    Arrastrar(7, 1, 6, 3);
    EXPECT_EQ(lista->toPlainText().left(5), "1. e4");
    EXPECT_NE(lista->toPlainText().indexOf("Cf3"), -1);

    QSignalSpy elegida(lista.get(), &qa::ListaJugadas::NotacionElegida);
    QAction* coordenadas = Entrada(lista->MenuJugadas(), "&Coordinates");
    ASSERT_NE(coordenadas, nullptr);
    coordenadas->trigger();
    ASSERT_EQ(elegida.size(), 1);
    EXPECT_EQ(elegida[0][0].toInt(), 3);
    EXPECT_EQ(lista->Indice(), 1);
    EXPECT_EQ(lista->toPlainText().left(8), "1. E2-E4");

    Entrada(lista->MenuJugadas(), "&English algebraic")->trigger();
    EXPECT_NE(lista->toPlainText().indexOf("Nf3"), -1);
    lista->PonerNotacion(4);
    EXPECT_EQ(lista->Indice(), 5);
}

TEST_F(TableroTest, CopyTakesTheSelectionOrTheWholeGame) {
    Arrastrar(5, 2, 5, 4);
    Arrastrar(5, 7, 5, 5);
    Entrada(lista->MenuJugadas(), "&Copy moves")->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), Jugadas::List[2]);

    QTextCursor c = lista->textCursor();
    c.setPosition(3);
    c.setPosition(5, QTextCursor::KeepAnchor);
    lista->setTextCursor(c);
    lista->CopiarJugadas();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "e4");
}

TEST_F(TableroTest, NewGameEmptiesTheList) {
    Arrastrar(5, 2, 5, 4);
    Jugadas::Vaciar();
    EXPECT_TRUE(lista->toPlainText().isEmpty());
}
