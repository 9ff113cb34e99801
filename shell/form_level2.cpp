#include "shell/form_level2.h"

#include "engine/niveles.h"
#include "language/idioma.h"
#include "shell/configuracion.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace qa {

namespace {

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

// The moves of a time control the list offers; a stored value not among them is added.
constexpr const char* kJugadas[] = {"10", "20", "30", "40", "50", "60"};

} // namespace

FormLevel2::FormLevel2(QWidget* padre) : QDialog(padre) {
    setObjectName("FormLevel2");
    auto* raiz = new QVBoxLayout(this);
    frame1_ = new QGroupBox;
    frame1_->setObjectName("Frame1");
    auto* opciones = new QVBoxLayout(frame1_);
    for (int i = 0; i < 3; ++i) {
        option1_[i] = new QRadioButton;
        option1_[i]->setObjectName(QString("Option1_%1").arg(i));
        opciones->addWidget(option1_[i]);
        connect(option1_[i], &QRadioButton::clicked, this, [this, i] {
            MuestraDatos(i);
            Guardar();
        });
    }
    raiz->addWidget(frame1_);
    for (int i = 1; i <= 5; ++i) {
        labels_[i] = new QLabel;
        labels_[i]->setObjectName(QString("Label%1").arg(i));
        labels_[i]->setWordWrap(i == 2);
    }
    raiz->addWidget(labels_[1]);
    raiz->addWidget(labels_[2]);

    auto caja = [this](int n) {
        auto* t = new QLineEdit;
        t->setObjectName(QString("Text%1").arg(n));
        t->setMaximumWidth(60);
        t->installEventFilter(this);
        textos_[n] = t;
        const int limite = LimiteNivel(n);
        connect(t, &QLineEdit::textChanged, this, [this, t, limite](const QString& texto) {
            const std::string corregido = CorregirNivel(texto.toStdString(), limite);
            if (corregido != texto.toStdString()) t->setText(Q(corregido));
            Guardar();
        });
        return t;
    };
    auto boton = [this](const char* nombre, const char* flecha, int n, bool sube) {
        auto* b = new QPushButton(flecha);
        b->setObjectName(nombre);
        b->setMaximumWidth(30);
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, [this, n, sube] {
            const std::string texto = textos_[n]->text().toStdString();
            const int limite = LimiteNivel(n);
            textos_[n]->setText(Q(sube ? SubirNivel(texto, limite) : BajarNivel(texto, limite)));
        });
        return b;
    };
    // Frame 3: seconds per move; 4: depth; 5: minutes and moves of the time control.
    struct Marco {
        int frame, caja, etiqueta;
        const char *abajo, *arriba;
    };
    const Marco marcos[] = {{3, 1, 4, "Button2", "Button1"},
                            {4, 2, 3, "SweetButton1", "SweetButton2"},
                            {5, 3, 5, "SweetButton3", "SweetButton4"}};
    for (const auto& m : marcos) {
        frames_[m.frame] = new QGroupBox;
        frames_[m.frame]->setObjectName(QString("Frame%1").arg(m.frame));
        auto* fila = new QHBoxLayout(frames_[m.frame]);
        fila->addWidget(labels_[m.etiqueta]);
        fila->addWidget(caja(m.caja));
        fila->addWidget(boton(m.abajo, "-", m.caja, false));
        fila->addWidget(boton(m.arriba, "+", m.caja, true));
        if (m.frame == 5) {
            combo1_ = new QComboBox;
            combo1_->setObjectName("Combo1");
            for (auto j : kJugadas) combo1_->addItem(j);
            combo1_->installEventFilter(this);
            connect(combo1_, &QComboBox::currentTextChanged, this, [this] { Guardar(); });
            fila->addWidget(combo1_);
        }
        raiz->addWidget(frames_[m.frame]);
    }
    command2_ = new QPushButton("OK");
    command2_->setObjectName("Command2");
    connect(command2_, &QPushButton::clicked, this, [this] {
        if (alAceptar) alAceptar();
        hide();
    });
    raiz->addWidget(command2_, 0, Qt::AlignRight);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
}

void FormLevel2::AplicarIdioma() {
    setWindowTitle(Q(qa::Texto("CPU", "11")));
    frame1_->setTitle(Q(qa::Texto("CPU", "12")));
    for (int i = 0; i < 3; ++i) option1_[i]->setText(Q(qa::Texto("CPU", std::to_string(13 + i))));
    for (int i = 3; i <= 5; ++i) labels_[i]->setText(Q(qa::Texto("CPU", std::to_string(13 + i))));
    MuestraDatos(Opcion());
}

void FormLevel2::CargarDeControles() {
    // Each box's change writes the settings back: take them all before the first is set.
    const ControlesPendientes c = Controles();
    cargando_ = true;
    // A box left empty in the file shows 1, as it would after any change.
    textos_[1]->setText(Q(CorregirNivel(c.Level2Text1, LimiteNivel(1))));
    textos_[2]->setText(Q(CorregirNivel(c.Level2Text2, LimiteNivel(2))));
    textos_[3]->setText(Q(CorregirNivel(c.Level2Text3, LimiteNivel(3))));
    if (!c.Level2Combo1.empty()) {
        if (combo1_->findText(Q(c.Level2Combo1)) < 0) combo1_->addItem(Q(c.Level2Combo1));
        combo1_->setCurrentText(Q(c.Level2Combo1));
    }
    option1_[OpcionGuardada(std::to_string(c.Level2Option))]->setChecked(true);
    cargando_ = false;
    MuestraDatos(Opcion());
    Guardar();
}

int FormLevel2::Opcion() const {
    for (int i = 0; i < 3; ++i)
        if (option1_[i]->isChecked()) return i;
    return 0;
}

std::string FormLevel2::Texto(int caja) const {
    return caja >= 1 && caja <= 3 ? textos_[caja]->text().toStdString() : std::string();
}

std::string FormLevel2::Jugadas() const {
    return combo1_->currentText().toStdString();
}

QPushButton* FormLevel2::Boton(const char* nombre) const {
    return findChild<QPushButton*>(nombre);
}

void FormLevel2::MuestraDatos(int indice) {
    frames_[3]->setVisible(indice == kNivelTiempo);
    frames_[4]->setVisible(indice == kNivelProfundidad);
    frames_[5]->setVisible(indice == kNivelReloj);
    labels_[2]->setText(indice == kNivelProfundidad ? Q(TitulosMotor[1])
                        : indice == kNivelTiempo    ? Q(TitulosMotor[2])
                                                    : QString());
    if (indice >= 0 && indice <= 2) labels_[1]->setText(option1_[indice]->text());
}

void FormLevel2::Guardar() {
    if (cargando_) return;
    // The settings written at the close hold the boxes as they stand.
    auto& c = Controles();
    c.Level2Text1 = Texto(1);
    c.Level2Text2 = Texto(2);
    c.Level2Text3 = Texto(3);
    c.Level2Combo1 = Jugadas();
    c.Level2Option = Opcion();
}

bool FormLevel2::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() != QEvent::KeyPress) return QDialog::eventFilter(objeto, evento);
    auto* tecla = static_cast<QKeyEvent*>(evento);
    const QString texto = tecla->text();
    // Keys that type no character (arrows, Tab, Delete) work as anywhere else.
    if (texto.isEmpty() || tecla->key() == Qt::Key_Tab || tecla->key() == Qt::Key_Backtab ||
        tecla->key() == Qt::Key_Delete)
        return QDialog::eventFilter(objeto, evento);
    const bool pasa = objeto != combo1_ && texto.size() == 1 && TeclaNivel(texto[0].unicode());
    if (pasa) return false;
    QApplication::beep();
    return true;
}

void FormLevel2::closeEvent(QCloseEvent* e) {
    e->ignore();
    hide();
}

} // namespace qa
