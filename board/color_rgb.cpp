#include "board/color_rgb.h"

#include "board/colores.h"
#include "board/textos.h"

#include <QEvent>
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
    Rotular(this, "Color", "Titulo", "Colours");
    auto* rejilla = new QGridLayout(this);
    const char* claves[3] = {"Texto1", "Texto2", "Texto3"};
    const char* defectos[3] = {"Red", "Green", "Blue"};
    for (int i = 0; i < 3; ++i) {
        auto* rotulo = new QLabel(this);
        Rotular(rotulo, "Color", claves[i], defectos[i]);
        rejilla->addWidget(rotulo, i, 0);
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
    auto* frame1 = new QGroupBox(this);
    Rotular(frame1, "Color", "Frame1", "Window background");
    auto* opciones = new QVBoxLayout(frame1);
    Option1 = new QRadioButton(frame1);
    Option2 = new QRadioButton(frame1);
    Rotular(Option1, "Color", "Opcion1", "Coloured background");
    Rotular(Option2, "Color", "Opcion2", "System colours");
    opciones->addWidget(Option1);
    opciones->addWidget(Option2);
    connect(Option1, &QRadioButton::toggled, this, &ColorRgb::Cambio);
    rejilla->addWidget(frame1, 3, 0, 1, 3);
    Command1 = new QPushButton(this);
    Command2 = new QPushButton(this);
    Rotular(Command1, "Botones", "Aceptar", "OK");
    Rotular(Command2, "Botones", "Cancelar", "Cancel");
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

void ColorRgb::changeEvent(QEvent* e) {
    if (e->type() == QEvent::LanguageChange) Rotulos(this);
    QDialog::changeEvent(e);
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
