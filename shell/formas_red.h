#pragma once
// The dialogs of network play: Conexion (call a host or wait for a call), Ip (this machine's
// address, to copy) and Nuevo (the terms of a new game). They only show what the session tells
// them and pass on what the user does; the session decides everything.
#include "net/puertas.h"

#include <QDialog>
#include <functional>
#include <string>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QToolButton;

namespace qa {

class Conexion : public QDialog {
    Q_OBJECT
public:
    explicit Conexion(QWidget* padre);
    void AplicarIdioma();
    void Pintar(const DialogoConexion& d);
    std::string TextoIp() const;
    void VaciarIp();

    std::function<void()> alActivar;              // shown again: the chosen option's handler
    std::function<void(bool llamar)> alElegir;    // Option1 / Option2
    std::function<void(const std::string&)> alIr; // Command1, with the address typed
    std::function<void()> alCancelar;             // Command2

    QRadioButton *Option1, *Option2;
    QLineEdit* Ip;
    QPushButton *Command1, *Command2;
    QGroupBox *Frame1, *Frame2;
    QLabel *Label1, *Label2;

protected:
    void showEvent(QShowEvent* e) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;
};

class Ip : public QDialog {
    Q_OBJECT
public:
    explicit Ip(QWidget* padre);
    void AplicarIdioma();
    // The address, all of it selected for copying; the box takes no more than it.
    void Poner(const std::string& ip);

    QLineEdit* Text1;

protected:
    void showEvent(QShowEvent* e) override;

private:
    QGroupBox* frame1_;
};

class Nuevo : public QDialog {
    Q_OBJECT
public:
    explicit Nuevo(QWidget* padre);
    void AplicarIdioma();
    void Pintar(const DialogoNuevo& d);

    std::function<void()> alCargar; // the first show
    std::function<void(bool blancas)> alColor;
    std::function<void()> alPuntuable, alLibre;
    std::function<void(const std::string&)> alMinutos; // Text1 changed by the user
    std::function<void()> alEnter, alSubir, alBajar, alAceptar, alCancelar;

    QRadioButton *Option1, *Option2, *Option3, *Option4;
    QLineEdit* Text1;
    QToolButton* Command4[2];
    QPushButton *Command1, *Command2;

protected:
    void showEvent(QShowEvent* e) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    // Escape and the close box are the cancel button.
    void reject() override;

private:
    QGroupBox *frame1_, *frame2_;
    QLabel* label1_;
    bool cargado_ = false;
    bool pintando_ = false;
};

} // namespace qa
