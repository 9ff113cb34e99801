// The colour scheme of the forms and the colour dialog.
#include "board/color_rgb.h"
#include "board/colores.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <array>
#include <cstdint>
#include <gtest/gtest.h>

namespace {

class ColoresTest : public testing::Test {
protected:
    void SetUp() override {
        guardado[0] = qa::ColorR, guardado[1] = qa::ColorG, guardado[2] = qa::ColorB;
        guardado[3] = qa::Fondo;
        forma.resize(120, 80);
        caja = new QCheckBox("x", &forma);
        qa::RegistrarFormulario(&forma, 2);
    }
    void TearDown() override {
        qa::ColorR = guardado[0], qa::ColorG = guardado[1], qa::ColorB = guardado[2];
        qa::Fondo = guardado[3];
    }
    QImage Fondo() const { return forma.palette().brush(QPalette::Window).textureImage(); }

    int guardado[4];
    QWidget forma;
    QCheckBox* caja;
};

TEST_F(ColoresTest, BevelRunsFromTheBaseInStepsOf40) {
    qa::LeerColor("30:40:55");
    qa::Fondo = 1;
    qa::PintarFormularios(2);
    const QImage f = Fondo();
    ASSERT_EQ(f.size(), QSize(120, 80));
    EXPECT_EQ(QColor(f.pixel(0, 40)), QColor(30, 40, 55));
    EXPECT_EQ(QColor(f.pixel(60, 1)), QColor(70, 80, 95));
    EXPECT_EQ(QColor(f.pixel(119, 79)), QColor(30, 40, 55));
    EXPECT_EQ(QColor(f.pixel(60, 40)), QColor(230, 240, 255));
    EXPECT_EQ(caja->palette().color(QPalette::Window), QColor(230, 240, 255));
}

TEST_F(ColoresTest, WhiteBaseIsWhiteEverywhere) {
    qa::LeerColor("255:255:255");
    qa::Fondo = 1;
    qa::PintarFormularios(0);
    const QImage f = Fondo();
    for (QPoint p : {QPoint(0, 0), QPoint(3, 3), QPoint(60, 40), QPoint(119, 79)})
        EXPECT_EQ(f.pixel(p), 0xffffffffu);
}

TEST_F(ColoresTest, PlainBackgroundIsTheSystemLook) {
    qa::Fondo = 2;
    qa::PintarFormularios(2);
    const QColor sistema = QWidget().palette().color(QPalette::Button);
    EXPECT_EQ(QColor(Fondo().pixel(0, 0)), sistema);
    EXPECT_EQ(QColor(Fondo().pixel(60, 40)), sistema);
    EXPECT_EQ(caja->palette().color(QPalette::Window), sistema);
}

TEST_F(ColoresTest, OtherGroupsAreLeftAlone) {
    qa::LeerColor("0:0:0");
    qa::Fondo = 1;
    qa::PintarFormularios(3);
    EXPECT_TRUE(Fondo().isNull());
}

TEST_F(ColoresTest, ColourKeyIsReadOneCharacterAtATime) {
    auto leido = [](const char* texto) {
        qa::ColorR = qa::ColorG = qa::ColorB = 9;
        qa::LeerColor(texto);
        return std::array<std::int32_t, 3>{qa::ColorR, qa::ColorG, qa::ColorB};
    };
    using C = std::array<std::int32_t, 3>;
    EXPECT_EQ(leido("255:0:0"), (C{255, 0, 0}));
    EXPECT_EQ(leido("1:2"), (C{1, 2, 0}));
    EXPECT_EQ(leido("12:x4:5:6:7"), (C{12, 4, 5}));
    EXPECT_EQ(leido(""), (C{0, 0, 0}));
    EXPECT_EQ(leido("300:0:0"), (C{300, 0, 0})) << "no clamp here";
    // A digit that would take a field past 32 bits is passed over.
    EXPECT_EQ(leido("99999999999:1:1"), (C{999999999, 1, 1}));
    EXPECT_EQ(leido("2147483647:0:0"), (C{2147483647, 0, 0}));
}

TEST_F(ColoresTest, HugeBaseColourPaintsClippedWithoutOverflow) {
    qa::LeerColor("2147483647:0:0");
    qa::Fondo = 1;
    qa::PintarFormularios(2);
    const QImage f = Fondo();
    EXPECT_EQ(QColor(f.pixel(0, 40)), QColor(255, 0, 0));
    EXPECT_EQ(QColor(f.pixel(60, 1)), QColor(255, 40, 40));
    EXPECT_EQ(QColor(f.pixel(60, 40)), QColor(255, 200, 200));
}

TEST_F(ColoresTest, DialogPreviewsAtOnceAndCancelPutsItBack) {
    qa::LeerColor("30:40:55");
    qa::Fondo = 1;
    qa::ColorRgb dialogo;
    dialogo.show();
    dialogo.Scrl_RGB[0]->setValue(0);
    EXPECT_EQ(qa::ColorR, 0);
    EXPECT_EQ(QColor(Fondo().pixel(0, 40)), QColor(0, 40, 55)) << "the preview is at once";
    QTest::mouseClick(dialogo.Option2, Qt::LeftButton, {},
                      QPoint(6, dialogo.Option2->height() / 2));
    EXPECT_EQ(qa::Fondo, 2);
    QSignalSpy cancelado(&dialogo, &qa::ColorRgb::Cancelado);
    QTest::mouseClick(dialogo.Command2, Qt::LeftButton);
    EXPECT_EQ(cancelado.size(), 1);
    EXPECT_EQ(qa::ColorR, 30);
    EXPECT_EQ(qa::Fondo, 1);
    EXPECT_EQ(QColor(Fondo().pixel(0, 40)), QColor(30, 40, 55));
}

TEST_F(ColoresTest, DialogAcceptHandsBackTheTwoKeys) {
    qa::LeerColor("30:40:55");
    qa::ColorRgb dialogo;
    dialogo.show();
    dialogo.Txt_RGB[2]->clear();
    QTest::keyClicks(dialogo.Txt_RGB[2], "200");
    EXPECT_EQ(dialogo.Scrl_RGB[2]->value(), 200);
    QSignalSpy aceptado(&dialogo, &qa::ColorRgb::Aceptado);
    QTest::mouseClick(dialogo.Command1, Qt::LeftButton);
    ASSERT_EQ(aceptado.size(), 1);
    EXPECT_EQ(aceptado[0][0].toString(), "30:40:200");
    EXPECT_EQ(aceptado[0][1].toString(), "1");
}

} // namespace
