#pragma once
// The levels dialog: how far the engines may go, as a fixed depth, a fixed time per move or a
// time control. Closing it by its frame keeps the level in use; only the accept button applies.
#include <QDialog>
#include <functional>
#include <string>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace qa {

class FormLevel2 : public QDialog {
    Q_OBJECT
public:
    explicit FormLevel2(QWidget* padre);
    void AplicarIdioma();

    // The boxes and the option on, from the settings read at start.
    void CargarDeControles();
    // The dialog as it stands, accepted or not.
    int Opcion() const;
    std::string Texto(int caja) const; // 1 seconds per move, 2 depth, 3 minutes
    std::string Jugadas() const;       // moves of the time control
    // Shows the value frame of option 0, 1 or 2.
    void MuestraDatos(int indice);

    QRadioButton* Option1(int i) const { return option1_[i]; }
    QLineEdit* TextBox(int caja) const { return textos_[caja]; }
    QComboBox* Combo1() const { return combo1_; }
    // Spin buttons: Button1 up and Button2 down for box 1; SweetButton1 down and 2 up for box
    // 2; SweetButton3 down and 4 up for box 3.
    QPushButton* Boton(const char* nombre) const;
    QPushButton* Command2() const { return command2_; }

    // The accept: the choice becomes the engines' level.
    std::function<void()> alAceptar;

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void closeEvent(QCloseEvent* e) override;

private:
    void Guardar();
    QRadioButton* option1_[3] = {};
    QLineEdit* textos_[4] = {};
    QComboBox* combo1_;
    QGroupBox* frame1_;
    QGroupBox* frames_[6] = {}; // 3, 4 and 5: the value frames
    QLabel* labels_[6] = {};    // 1 caption of the option, 2 its note, 3 to 5 the value boxes'
    QPushButton* command2_;
    bool cargando_ = false;
};

} // namespace qa
