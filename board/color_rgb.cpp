#include "board/color_rgb.h"

#include "board/colores.h"
#include "board/textos.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

namespace qa {

ColorRgb::ColorRgb(QWidget* parent) : QDialog(parent) {
    setWindowTitle(TextoForma("Color", "Titulo", "Colours"));
    auto* rejilla = new QGridLayout(this);
    const char* claves[3] = {"Texto1", "Texto2", "Texto3"};
    const char* defectos[3] = {"Red", "Green", "Blue"};
    for (int i = 0; i < 3; ++i) {
        rejilla->addWidget(new QLabel(TextoForma("Color", claves[i], defectos[i]), this), i, 0);
        Scrl_RGB[i] = new QScrollBar(Qt::Horizontal, this);
        Scrl_RGB[i]->setRange(0, 255);
        Scrl_RGB[i]->setMinimumWidth(200);
        Txt_RGB[i] = new QLineEdit(this);
        Txt_RGB[i]->setValidator(new QIntValidator(0, 255, Txt_RGB[i]));
        Txt_RGB[i]->setFixedWidth(44);
        rejilla->addWidget(Scrl_RGB[i], i, 1);
        rejilla->addWidget(Txt_RGB[i], i, 2);
        connect(Scrl_RGB[i], &QScrollBar::valueChanged, this, [this, i](int v) {
            if (Txt_RGB[i]->text() != QString::number(v)) Txt_RGB[i]->setText(QString::number(v));
            Cambio();
        });
        connect(Txt_RGB[i], &QLineEdit::textEdited, this,
                [this, i](const QString& t) { Scrl_RGB[i]->setValue(t.toInt()); });
    }
    auto* frame1 = new QGroupBox(TextoForma("Color", "Frame1", "Window background"), this);
    auto* opciones = new QVBoxLayout(frame1);
    Option1 = new QRadioButton(TextoForma("Color", "Opcion1", "Coloured background"), frame1);
    Option2 = new QRadioButton(TextoForma("Color", "Opcion2", "System colours"), frame1);
    opciones->addWidget(Option1);
    opciones->addWidget(Option2);
    connect(Option1, &QRadioButton::toggled, this, &ColorRgb::Cambio);
    rejilla->addWidget(frame1, 3, 0, 1, 3);
    Command1 = new QPushButton(TextoForma("Botones", "Aceptar", "OK"), this);
    Command2 = new QPushButton(TextoForma("Botones", "Cancelar", "Cancel"), this);
    rejilla->addWidget(Command1, 4, 1, Qt::AlignRight);
    rejilla->addWidget(Command2, 4, 2);
    connect(Command1, &QPushButton::clicked, this, [this] {
        emit Aceptado(QStringLiteral("%1:%2:%3").arg(ColorR).arg(ColorG).arg(ColorB),
                      QString::number(Fondo));
        accept();
    });
    connect(Command2, &QPushButton::clicked, this, [this] {
        ColorR = antes_[0];
        ColorG = antes_[1];
        ColorB = antes_[2];
        Fondo = antes_[3];
        PintarFormularios(0);
        emit Cancelado();
        reject();
    });
    RegistrarFormulario(this, 0);
}

void ColorRgb::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    antes_[0] = ColorR;
    antes_[1] = ColorG;
    antes_[2] = ColorB;
    antes_[3] = Fondo;
    leyendo_ = true;
    for (int i = 0; i < 3; ++i) Scrl_RGB[i]->setValue(antes_[i]);
    (Fondo == 2 ? Option2 : Option1)->setChecked(true);
    leyendo_ = false;
}

void ColorRgb::Cambio() {
    if (leyendo_) return;
    ColorR = Scrl_RGB[0]->value();
    ColorG = Scrl_RGB[1]->value();
    ColorB = Scrl_RGB[2]->value();
    Fondo = Option2->isChecked() ? 2 : 1;
    PintarFormularios(0);
}

} // namespace qa
