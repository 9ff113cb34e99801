// The picture: sizes, labels, grid lines, the frames through a resize, masked pieces.
#include "board_fixture.h"

#include "core/game_state.h"

#include <QLabel>
#include <QTest>

using namespace Variables;

namespace {
QStringList Etiquetas(const QWidget& w) {
    QStringList t;
    for (const QLabel* l : w.findChildren<QLabel*>())
        if (l->isVisible()) t << l->text();
    return t;
}
} // namespace

TEST_F(TableroTest, SizeFollowsTamanoAndPiecesFillTheirSquares) {
    for (int tamano : {30, 100, 20}) {
        QSize antes = vista->size(), avisado;
        QObject::connect(vista.get(), &qa::VistaTablero::TamanoCambiado,
                         [&avisado](QSize s) { avisado = s; });
        vista->PonerTamano(tamano);
        ASSERT_TRUE(EsperarRedimension());
        EXPECT_EQ(pic()->size(), QSize(8 * tamano, 8 * tamano));
        EXPECT_EQ(pic()->AnchoCasilla, tamano);
        EXPECT_EQ(avisado, vista->size()) << "the form is told";
        EXPECT_NE(antes, vista->size());
        EXPECT_EQ(EnPantalla(4, 1), Esperada(4, 1, DamaB));
        EXPECT_EQ(EnPantalla(5, 8), Esperada(5, 8, ReyN));
        // The queen reaches both halves of its square.
        const QImage& m = pic()->R().mascaras[DamaB];
        EXPECT_EQ(m.pixel(tamano / 2, tamano / 2), 0xff000000u);
        EXPECT_EQ(m.pixel(0, 0), 0xffffffffu);
    }
}

TEST_F(TableroTest, PieceKeepsTheSquareColourAroundIt) {
    // The black queen stands on her colour, the king on a light square: the corners show
    // the square, the centre the piece.
    const QImage d8 = EnPantalla(4, 8);
    EXPECT_EQ(d8.pixel(1, 1), pic()->R().oscuro.pixel(1, 1));
    EXPECT_NE(d8.pixel(30, 30), pic()->R().oscuro.pixel(30, 30));
    const QImage e8 = EnPantalla(5, 8);
    EXPECT_EQ(e8.pixel(1, 1), pic()->R().claro.pixel(1, 1));
}

TEST_F(TableroTest, FramesStayOnTheirSquaresThroughAResizeAndATurn) {
    Arrastrar(2, 1, 3, 3);
    ASSERT_TRUE(pic()->MarcosMostrados());
    vista->PonerTamano(44);
    ASSERT_TRUE(EsperarRedimension());
    EXPECT_EQ(pic()->MarcoEn(0), QPoint(2, 1));
    EXPECT_EQ(pic()->MarcoEn(1), QPoint(3, 3));
    vista->PonerInvertido(true);
    EXPECT_EQ(pic()->MarcoEn(0), QPoint(7, 8));
    EXPECT_EQ(pic()->MarcoEn(1), QPoint(6, 6));
    EXPECT_EQ(EnPantalla(3, 3), Esperada(3, 3, CaballoB));

    vista->PonerMarcos(false);
    EXPECT_FALSE(pic()->MarcosMostrados());
    Arrastrar(2, 8, 3, 6);
    EXPECT_FALSE(pic()->MarcosMostrados());
}

TEST_F(TableroTest, LabelsTurnWithTheBoardAndHide) {
    QStringList t = Etiquetas(*vista);
    EXPECT_EQ(t.size(), 16);
    vista->PonerInvertido(true);
    // Lower left is h and 1 after the turn; the label for the top row reads 1.
    QLabel* primeraLetra = nullptr;
    QLabel* numeroArriba = nullptr;
    for (QLabel* l : vista->findChildren<QLabel*>()) {
        if (l->text().at(0).isLetter() && (!primeraLetra || l->x() < primeraLetra->x()))
            primeraLetra = l;
        if (l->text().at(0).isDigit() && (!numeroArriba || l->y() < numeroArriba->y()))
            numeroArriba = l;
    }
    ASSERT_TRUE(primeraLetra && numeroArriba);
    EXPECT_EQ(primeraLetra->text(), "h");
    EXPECT_EQ(numeroArriba->text(), "1");
    vista->PonerCoordenadas(false);
    EXPECT_TRUE(Etiquetas(*vista).isEmpty());
}

TEST_F(TableroTest, GridLinesComeAndGo) {
    const int x = pic()->AnchoCasilla; // first vertical line, in an empty row
    const int y = 4 * pic()->AltoCasilla + 5;
    const QRgb sinLinea = pic()->Imagen().pixel(x, y);
    vista->PonerLineas(true);
    EXPECT_EQ(pic()->Imagen().pixel(x, y), 0xff000000u);
    EXPECT_EQ(EnPantalla(5, 1).pixel(30, 30), Esperada(5, 1, ReyB).pixel(30, 30));
    vista->PonerLineas(false);
    EXPECT_EQ(pic()->Imagen().pixel(x, y), sinLinea);
}

TEST_F(TableroTest, SizeBoxAndItsSpinButtonsKeepToThirtyToAHundred) {
    EXPECT_EQ(vista->TamanoEnter("7"), "30");
    EXPECT_EQ(vista->TamanoEnter("250"), "100");
    EXPECT_EQ(vista->TamanoEnter("99"), "99");
    EXPECT_EQ(vista->TamanoMas("99"), "100");
    EXPECT_EQ(vista->TamanoMas("100"), "100");
    EXPECT_EQ(vista->TamanoMas("12"), "30");
    EXPECT_EQ(vista->TamanoMenos("31"), "30");
    EXPECT_EQ(vista->TamanoMenos("30"), "30");
    EXPECT_EQ(vista->TamanoMenos("140"), "100");
    EXPECT_EQ(vista->TamanoMenos("45"), "44");
    ASSERT_TRUE(EsperarRedimension());
    EXPECT_EQ(pic()->AnchoCasilla, 44);
}
