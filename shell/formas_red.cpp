#include "shell/formas_red.h"

#include "language/idioma.h"

#include <QApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace qa {

namespace {

QString T(const char* seccion, const char* clave) {
    return QString::fromStdString(Texto(seccion, clave));
}

template <typename W> W* Nombrado(W* w, const char* nombre) {
    w->setObjectName(nombre);
    return w;
}

bool EsEnter(QEvent* e) {
    if (e->type() != QEvent::KeyPress) return false;
    const int k = static_cast<QKeyEvent*>(e)->key();
    return k == Qt::Key_Return || k == Qt::Key_Enter;
}

// The OK and Cancel buttons at the foot of a dialog.
QHBoxLayout* Botones(QPushButton* aceptar, QPushButton* cancelar) {
    auto* fila = new QHBoxLayout;
    fila->addStretch(1);
    fila->addWidget(aceptar);
    fila->addWidget(cancelar);
    return fila;
}

} // namespace

Conexion::Conexion(QWidget* padre)
    : QDialog(padre), Option1(Nombrado(new QRadioButton, "Option1")),
      Option2(Nombrado(new QRadioButton, "Option2")), Ip(Nombrado(new QLineEdit, "Ip")),
      Command1(Nombrado(new QPushButton, "Command1")),
      Command2(Nombrado(new QPushButton, "Command2")), Frame1(Nombrado(new QGroupBox, "Frame1")),
      Frame2(Nombrado(new QGroupBox, "Frame2")), Label1(Nombrado(new QLabel, "Label1")),
      Label2(Nombrado(new QLabel, "Label2")) {
    setObjectName("Conexion");
    setModal(true);
    auto* capas = new QVBoxLayout(this);
    auto* tipo = new QVBoxLayout(Frame1);
    tipo->addWidget(Option1);
    tipo->addWidget(Option2);
    tipo->addWidget(Label1);
    tipo->addWidget(Label2);
    (new QVBoxLayout(Frame2))->addWidget(Ip);
    capas->addWidget(Frame1);
    capas->addWidget(Frame2);
    capas->addLayout(Botones(Command1, Command2));
    Label1->hide();
    Label2->hide();
    Option1->setChecked(true);
    Command1->setAutoDefault(false);
    Command2->setAutoDefault(false);
    Ip->installEventFilter(this);
    connect(Option1, &QRadioButton::clicked, this, [this] {
        if (alElegir) alElegir(true);
    });
    connect(Option2, &QRadioButton::clicked, this, [this] {
        if (alElegir) alElegir(false);
    });
    connect(Command1, &QPushButton::clicked, this, [this] {
        if (alIr) alIr(TextoIp());
    });
    connect(Command2, &QPushButton::clicked, this, [this] {
        if (alCancelar) alCancelar();
    });
    setMinimumWidth(320);
}

void Conexion::AplicarIdioma() {
    setWindowTitle(T("Conexion", "Titulo"));
    Frame1->setTitle(T("Conexion", "Frame1"));
    Frame2->setTitle(T("Conexion", "Frame2"));
    Option1->setText(T("Conexion", "Opcion1"));
    Option2->setText(T("Conexion", "Opcion2"));
    Label1->setText(T("Conexion", "Texto1"));
    Label2->setText(T("Conexion", "Texto2"));
    Command1->setText(T("Botones", "Aceptar"));
    Command2->setText(T("Botones", "Cancelar"));
}

void Conexion::Pintar(const DialogoConexion& d) {
    const bool ocupado = d.esperando || d.llamando;
    Option1->setChecked(d.llamar);
    Option2->setChecked(!d.llamar);
    Option1->setVisible(!ocupado);
    Option2->setVisible(!ocupado);
    Frame2->setVisible(!ocupado);
    Label1->setVisible(d.esperando);
    Label2->setVisible(d.llamando);
    Ip->setEnabled(d.llamar);
    QPalette p = Ip->palette();
    p.setColor(QPalette::Base, d.llamar ? QColor(0xFF, 0xFF, 0xFF) : QColor(0xE0, 0xE0, 0xE0));
    Ip->setPalette(p);
    Command1->setEnabled(d.command1);
    if (d.llamar && Ip->isVisible())
        Ip->setFocus();
    else if (!d.llamar && Command1->isEnabled() && Command1->isVisible())
        Command1->setFocus();
}

std::string Conexion::TextoIp() const {
    return Ip->text().toStdString();
}

void Conexion::VaciarIp() {
    Ip->clear();
}

void Conexion::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    if (alActivar) alActivar();
}

bool Conexion::eventFilter(QObject* objeto, QEvent* evento) {
    // Enter in the address box is swallowed and goes.
    if (objeto == Ip && EsEnter(evento)) {
        if (alIr) alIr(TextoIp());
        return true;
    }
    return QDialog::eventFilter(objeto, evento);
}

Ip::Ip(QWidget* padre)
    : QDialog(padre), Text1(Nombrado(new QLineEdit, "Text1")),
      frame1_(Nombrado(new QGroupBox, "Frame1")) {
    setObjectName("Ip");
    setModal(true);
    (new QVBoxLayout(frame1_))->addWidget(Text1);
    (new QVBoxLayout(this))->addWidget(frame1_);
    Text1->setAlignment(Qt::AlignCenter);
    setMinimumWidth(260);
}

void Ip::AplicarIdioma() {
    setWindowTitle(T("Ip", "Titulo"));
    frame1_->setTitle(T("Ip", "Frame1"));
}

void Ip::Poner(const std::string& ip) {
    const QString t = QString::fromStdString(ip);
    Text1->setMaxLength(static_cast<int>(std::max<qsizetype>(t.size(), 1)));
    Text1->setText(t);
    Text1->selectAll();
}

void Ip::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    Text1->selectAll();
    Text1->setFocus();
}

Nuevo::Nuevo(QWidget* padre)
    : QDialog(padre), Option1(Nombrado(new QRadioButton, "Option1")),
      Option2(Nombrado(new QRadioButton, "Option2")),
      Option3(Nombrado(new QRadioButton, "Option3")),
      Option4(Nombrado(new QRadioButton, "Option4")),
      Text1(Nombrado(new QLineEdit, "Text1")), Command4{Nombrado(new QToolButton, "Command4_0"),
                                                        Nombrado(new QToolButton, "Command4_1")},
      Command1(Nombrado(new QPushButton, "Command1")),
      Command2(Nombrado(new QPushButton, "Command2")), frame1_(Nombrado(new QGroupBox, "Frame1")),
      frame2_(Nombrado(new QGroupBox, "Frame2")), label1_(Nombrado(new QLabel, "Label1")) {
    setObjectName("Nuevo");
    setModal(true);
    auto* capas = new QVBoxLayout(this);
    auto* colores = new QVBoxLayout(frame1_);
    colores->addWidget(Option1);
    colores->addWidget(Option2);
    auto* modos = new QVBoxLayout(frame2_);
    modos->addWidget(Option3);
    modos->addWidget(Option4);
    auto* minutos = new QHBoxLayout;
    minutos->addWidget(label1_);
    minutos->addWidget(Text1);
    auto* flechas = new QVBoxLayout;
    flechas->setSpacing(0);
    for (int i = 0; i < 2; ++i) {
        Command4[i]->setArrowType(i == 0 ? Qt::UpArrow : Qt::DownArrow);
        Command4[i]->setFixedSize(18, 12);
        flechas->addWidget(Command4[i]);
    }
    minutos->addLayout(flechas);
    modos->addLayout(minutos);
    capas->addWidget(frame1_);
    capas->addWidget(frame2_);
    capas->addLayout(Botones(Command1, Command2));
    // The two pairs are separate choices.
    for (auto* o : {Option1, Option2, Option3, Option4}) o->setAutoExclusive(false);
    Option1->setChecked(true);
    Option3->setChecked(true);
    Text1->setMaxLength(4);
    Text1->installEventFilter(this);
    Command1->setAutoDefault(false);
    Command2->setAutoDefault(false);

    auto llamar = [](const std::function<void()>& f) {
        if (f) f();
    };
    connect(Option1, &QRadioButton::clicked, this, [this] {
        if (alColor) alColor(true);
    });
    connect(Option2, &QRadioButton::clicked, this, [this] {
        if (alColor) alColor(false);
    });
    connect(Option3, &QRadioButton::clicked, this, [this, llamar] { llamar(alPuntuable); });
    connect(Option4, &QRadioButton::clicked, this, [this, llamar] { llamar(alLibre); });
    connect(Text1, &QLineEdit::textChanged, this, [this](const QString& t) {
        if (!pintando_ && alMinutos) alMinutos(t.toStdString());
    });
    connect(Command4[0], &QToolButton::clicked, this, [this, llamar] { llamar(alSubir); });
    connect(Command4[1], &QToolButton::clicked, this, [this, llamar] { llamar(alBajar); });
    connect(Command1, &QPushButton::clicked, this, [this, llamar] { llamar(alAceptar); });
    connect(Command2, &QPushButton::clicked, this, [this, llamar] { llamar(alCancelar); });
}

void Nuevo::AplicarIdioma() {
    setWindowTitle(T("Nuevo", "Titulo"));
    frame1_->setTitle(T("Nuevo", "Frame1"));
    frame2_->setTitle(T("Nuevo", "Frame2"));
    label1_->setText(T("Nuevo", "Text1"));
    Option1->setText(T("Nuevo", "Opcion1"));
    Option2->setText(T("Nuevo", "Opcion2"));
    Option3->setText(T("Nuevo", "Opcion3"));
    Option4->setText(T("Nuevo", "Opcion4"));
    Command1->setText(T("Botones", "Aceptar"));
    Command2->setText(T("Botones", "Cancelar"));
}

void Nuevo::Pintar(const DialogoNuevo& d) {
    pintando_ = true;
    Option1->setChecked(d.blancas);
    Option2->setChecked(!d.blancas);
    Option3->setChecked(d.puntuable);
    Option4->setChecked(!d.puntuable);
    const QString minutos = QString::fromStdString(d.minutos);
    if (Text1->text() != minutos) {
        Text1->setText(minutos);
        Text1->setCursorPosition(static_cast<int>(minutos.size()));
    }
    Text1->setEnabled(d.minutosHabilitado);
    Command4[0]->setEnabled(d.minutosHabilitado);
    Command4[1]->setEnabled(d.minutosHabilitado);
    pintando_ = false;
}

void Nuevo::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    if (!cargado_) {
        cargado_ = true;
        if (alCargar) alCargar();
    }
    Command1->setFocus();
}

bool Nuevo::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto != Text1 || evento->type() != QEvent::KeyPress)
        return QDialog::eventFilter(objeto, evento);
    auto* tecla = static_cast<QKeyEvent*>(evento);
    if (EsEnter(evento)) {
        if (alEnter) alEnter();
        return true;
    }
    // Digits and the backspace pass; any other key that types something is dropped, with a beep.
    const QString t = tecla->text();
    if (tecla->key() == Qt::Key_Backspace || t.isEmpty() ||
        (t.size() == 1 && t[0] >= '0' && t[0] <= '9'))
        return QDialog::eventFilter(objeto, evento);
    QApplication::beep();
    return true;
}

void Nuevo::reject() {
    if (alCancelar)
        alCancelar();
    else
        QDialog::reject();
}

} // namespace qa
