// The move list view: the notation shown, copying, and the context menu's entries.
#include "board_fixture.h"

#include "core/game_state.h"
#include "core/move_list.h"
#include "core/takeback.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

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
    EXPECT_EQ(lista->Texto().left(5), "1. e4");
    EXPECT_NE(lista->Texto().indexOf("Cf3"), -1);

    QSignalSpy elegida(lista.get(), &qa::ListaJugadas::NotacionElegida);
    QAction* coordenadas = Entrada(lista->MenuJugadas(), "&Coordinates");
    ASSERT_NE(coordenadas, nullptr);
    coordenadas->trigger();
    ASSERT_EQ(elegida.size(), 1);
    EXPECT_EQ(elegida[0][0].toInt(), 3);
    EXPECT_EQ(lista->Indice(), 1);
    EXPECT_EQ(lista->Texto().left(8), "1. E2-E4");

    Entrada(lista->MenuJugadas(), "&English algebraic")->trigger();
    EXPECT_NE(lista->Texto().indexOf("Nf3"), -1);
    lista->PonerNotacion(4);
    EXPECT_EQ(lista->Indice(), 5);
}

TEST_F(TableroTest, CopyTakesTheSelectionOrTheWholeGame) {
    Arrastrar(5, 2, 5, 4);
    Arrastrar(5, 7, 5, 5);
    Entrada(lista->MenuJugadas(), "&Copy moves")->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), Jugadas::List[2]);

    // Black's move picked with the mouse, then White's added with Ctrl.
    Arrastrar(7, 1, 6, 3);
    for (int fila : {1, 0}) {
        const QRect r = lista->visualRect(lista->model()->index(fila, 0));
        QTest::mouseClick(lista->viewport(), Qt::LeftButton,
                          fila ? Qt::NoModifier : Qt::ControlModifier, r.center());
    }
    lista->CopiarJugadas();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "1. e4\r\n" + QString(18, ' ') + "e5");
}

TEST_F(TableroTest, TheListFollowsMovesAndTakeBacks) {
    for (int i = 0; i < 40; ++i) {
        Arrastrar(7, 1, 6, 3);
        Arrastrar(7, 8, 6, 6);
        Arrastrar(6, 3, 7, 1);
        Arrastrar(6, 6, 7, 8);
    }
    ASSERT_EQ(lista->model()->rowCount(), 160);
    EXPECT_EQ(lista->model()->index(158, 0).data().toString(), "80. Cg1");
    EXPECT_EQ(lista->model()->index(159, 0).data().toString(), QString(18, ' ') + "Cg8");
    // The end of the game is in view, as in a text box scrolled to its end.
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return lista->viewport()->rect().intersects(
            lista->visualRect(lista->model()->index(159, 0)));
    }));
    RetrocesoFuncion();
    RetrocesoFuncion();
    ASSERT_EQ(lista->model()->rowCount(), 158);
    EXPECT_EQ(lista->model()->index(157, 0).data().toString(), QString(18, ' ') + "Cf6");
    lista->PonerNotacion(3);
    ASSERT_EQ(lista->model()->rowCount(), 158);
    EXPECT_EQ(lista->model()->index(157, 0).data().toString(), QString(18, ' ') + "G8-F6");
}

TEST_F(TableroTest, NewGameEmptiesTheList) {
    Arrastrar(5, 2, 5, 4);
    Jugadas::Vaciar();
    EXPECT_TRUE(lista->Texto().isEmpty());
}
