#include "shell/opciones.h"

#include "board/apariencia.h"
#include "language/idioma.h"
#include "platform/ini_file.h"
#include "platform/programa.h"
#include "platform/ruta.h"
#include "platform/texto.h"
#include "shell/arranque.h"
#include "shell/enlaces.h"
#include "shell/formularios.h"
#include "shell/mdi.h"
#include "shell/puntuacion.h"
#include "shell/servicios.h"
#include "shell/ventanas.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <filesystem>

namespace qa {

namespace {
QString Q(const std::string& s) {
    return QString::fromStdString(s);
}
} // namespace

Opciones::Opciones(QWidget* padre)
    : QDialog(padre), combo1_(new QComboBox), skinCombo_(new QComboBox), text1_(new QLineEdit),
      button1_(new QToolButton), button2_(new QToolButton), label1_(new QLabel),
      aceptar_(new QPushButton), cancelar_(new QPushButton) {
    setObjectName("Opciones");
    combo1_->setObjectName("Combo1");
    skinCombo_->setObjectName("SkinCombo");
    text1_->setObjectName("Text1");
    auto* capas = new QVBoxLayout(this);
    for (int i = 1; i <= 3; ++i) {
        frames_[i] = new QGroupBox;
        frames_[i]->setObjectName(QString("Frame%1").arg(i));
        capas->addWidget(frames_[i]);
    }
    (new QVBoxLayout(frames_[1]))->addWidget(combo1_);
    (new QVBoxLayout(frames_[2]))->addWidget(skinCombo_);
    auto* rejilla = new QGridLayout(frames_[3]);
    for (int i = 1; i <= 3; ++i) {
        checks_[i] = new QCheckBox;
        checks_[i]->setObjectName(QString("Check%1").arg(i));
        rejilla->addWidget(checks_[i], i - 1, 0, 1, 2);
    }
    rejilla->addWidget(label1_, 3, 0);
    auto* tamano = new QHBoxLayout;
    tamano->setSpacing(0);
    tamano->addWidget(text1_);
    auto* flechas = new QVBoxLayout;
    flechas->setSpacing(0);
    for (auto [boton, nombre, flecha] : {std::tuple{button1_, "Button1", Qt::UpArrow},
                                         std::tuple{button2_, "Button2", Qt::DownArrow}}) {
        boton->setObjectName(nombre);
        boton->setArrowType(flecha);
        boton->setFocusPolicy(Qt::NoFocus);
        boton->setFixedSize(18, 12);
        flechas->addWidget(boton);
    }
    tamano->addLayout(flechas);
    rejilla->addLayout(tamano, 3, 1);
    text1_->installEventFilter(this);
    // A typed number keeps no leading zeros.
    connect(text1_, &QLineEdit::textChanged, this, [this](const QString& t) {
        if (t.isEmpty()) return;
        const QString valor = QString::number(Val(t.toStdString()), 'f', 0);
        if (valor != t) text1_->setText(valor);
    });
    connect(button1_, &QToolButton::clicked, this, [this] { TamanoPor(Enlace().TamanoMas); });
    connect(button2_, &QToolButton::clicked, this, [this] { TamanoPor(Enlace().TamanoMenos); });
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(aceptar_);
    botones->addWidget(cancelar_);
    capas->addLayout(botones);
    connect(aceptar_, &QPushButton::clicked, this, [this] {
        OpcionesAceptar();
        hide();
    });
    connect(cancelar_, &QPushButton::clicked, this, &QDialog::hide);
    connect(combo1_, &QComboBox::activated, this, [this] { Combo1Click(); });
    // Only a pick by the user counts: the program's own refills of the list do not.
    connect(skinCombo_, &QComboBox::activated, this, [this] {
        if (!skinEnCambio_ && isVisible()) {
            if (auto& f = Enlace().SkinElegida) f(TextoSkin());
        }
    });
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    resize(320, 300);
}

void Opciones::TamanoPor(const std::function<std::string(const std::string&)>& regla) {
    if (regla) FijarTamano(regla(Tamano()));
}

bool Opciones::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto != text1_ || evento->type() != QEvent::KeyPress)
        return QDialog::eventFilter(objeto, evento);
    const auto* tecla = static_cast<QKeyEvent*>(evento);
    switch (tecla->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // Taken here, so that it does not accept the dialog.
        TamanoPor(Enlace().TamanoEnter);
        return true;
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return false;
    default:
        break;
    }
    // Keys that type nothing (arrows, Home, End) move the cursor as usual; of those that type,
    // only digits pass.
    const QString texto = tecla->text();
    if (texto.isEmpty() || (texto.size() == 1 && texto[0] >= '0' && texto[0] <= '9')) return false;
    QApplication::beep();
    return true;
}

void Opciones::AplicarIdioma() {
    setWindowTitle(Q(Texto("Opciones", "Titulo")));
    for (int i = 1; i <= 3; ++i) {
        frames_[i]->setTitle(Q(Texto("Opciones", "Frame" + std::to_string(i))));
        checks_[i]->setText(Q(Texto("Opciones", "Check" + std::to_string(i))));
    }
    label1_->setText(Q(Texto("Opciones", "Texto1")));
    aceptar_->setText(Q(Texto("Botones", "Aceptar")));
    cancelar_->setText(Q(Texto("Botones", "Cancelar")));
}

void Opciones::LlenarIdiomas() {
    combo1_->clear();
    auto lista = qa::LlenarIdiomas(LeerIni(FicheroOpciones, "Configuracion", "Idioma"));
    if (lista.primeroIncorrecto) {
        MostrarMensaje("Quintarena", "Versión del idioma incorrecto.", kIconoInformacion);
        SituarVentanas();
        if (Forms().mdi) Forms().mdi->Descargar();
    }
    for (const auto& n : lista.nombres) combo1_->addItem(Q(n));
    combo1_->setCurrentIndex(-1);
}

std::vector<std::string> Opciones::Idiomas() const {
    std::vector<std::string> v;
    for (int i = 0; i < combo1_->count(); ++i) v.push_back(combo1_->itemText(i).toStdString());
    return v;
}

std::string Opciones::TextoIdioma() const {
    return combo1_->currentText().toStdString();
}

void Opciones::FijarTextoIdioma(const std::string& nombre) {
    int i = combo1_->findText(Q(nombre));
    if (i >= 0) combo1_->setCurrentIndex(i);
}

void Opciones::Combo1Click() {
    CambiarIdioma();
    if (FinPrograma()) return;
    if (isVisible()) {
        const std::string antes = TextoSkin();
        ActualizarSkins();
        skinEnCambio_ = true;
        CargarApariencia(antes);
        skinEnCambio_ = false;
    }
    PrintPuntuacion();
}

void Opciones::ActualizarSkins() {
    namespace fs = std::filesystem;
    // The skin in use stays chosen: the list is refilled each time the dialog opens.
    const QString enUso = skinCombo_->currentText();
    skinCombo_->clear();
    skinCombo_->addItem(NombreBase());
    std::vector<std::string> carpetas;
    std::error_code ec;
    fs::directory_iterator it(RutaReal(DirectorioPrograma + "apariencias\\"), ec);
    for (; !ec && it != fs::directory_iterator(); it.increment(ec))
        if (it->is_directory(ec)) carpetas.push_back(Minusculas(it->path().filename().string()));
    std::sort(carpetas.begin(), carpetas.end());
    for (const auto& c : carpetas) skinCombo_->addItem(Q(c));
    const int i = EsNombreBase(enUso) ? 0 : skinCombo_->findText(enUso, Qt::MatchFixedString);
    skinCombo_->setCurrentIndex(std::max(i, 0));
}

void Opciones::CargarApariencia(const std::string& apariencia) {
    ActualizarSkins();
    if (EsNombreBase(Q(apariencia))) {
        skinCombo_->setCurrentIndex(0);
        return;
    }
    if (EsCarpeta(DirectorioPrograma + "apariencias\\" + apariencia)) {
        int i = skinCombo_->findText(Q(apariencia), Qt::MatchFixedString);
        if (i >= 0) skinCombo_->setCurrentIndex(i);
    }
}

std::string Opciones::TextoSkin() const {
    return skinCombo_->currentText().toStdString();
}

bool Opciones::Check(int i) const {
    return i >= 1 && i <= 3 && checks_[i]->isChecked();
}

void Opciones::FijarCheck(int i, bool marcada) {
    if (i >= 1 && i <= 3) checks_[i]->setChecked(marcada);
}

std::string Opciones::Tamano() const {
    return text1_->text().toStdString();
}

void Opciones::FijarTamano(const std::string& texto) {
    text1_->setText(Q(texto));
}

void Opciones::OpcionesAceptar() {
    const std::string& f = FicheroOpciones;
    EscribirIni(f, "Configuracion", "Idioma", TextoIdioma());
    EscribirIni(f, "Configuracion", "Apariencia", TextoSkin());
    for (int i = 1; i <= 3; ++i)
        EscribirIni(f, "Configuracion", "Check" + std::to_string(i), Check(i) ? "1" : "0");
    // The file keeps what was typed; the clamps below are for use only.
    EscribirIni(f, "Configuracion", "Tamaño", Tamano());
    double v = Val(Tamano());
    if (v == 0) FijarTamano("30");
    if (v > 100) FijarTamano("100");
    v = Val(Tamano());
    auto& en = Enlace();
    if (en.AlturaFichas && v != en.AlturaFichas()) Ejecutar(en.CambiarTamano);
    if (Cierto(en.SetTableroVisible)) Ejecutar(en.RepintarPaleta);
    Ejecutar(en.OpcionesAplicadas);
}

} // namespace qa
