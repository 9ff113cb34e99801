#pragma once
// The options dialog: language (Combo1), skin (SkinCombo), the three board options and the
// square size (Text1).
#include <QDialog>
#include <functional>
#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace qa {

class Opciones : public QDialog {
    Q_OBJECT
public:
    explicit Opciones(QWidget* padre);
    void AplicarIdioma();

    // Combo1: the languages of the program's folder.
    void LlenarIdiomas();
    std::vector<std::string> Idiomas() const;
    std::string TextoIdioma() const;
    void FijarTextoIdioma(const std::string& nombre);

    void ActualizarSkins();
    void CargarApariencia(const std::string& apariencia);
    std::string TextoSkin() const;

    bool Check(int i) const;
    void FijarCheck(int i, bool marcada);
    std::string Tamano() const;
    void FijarTamano(const std::string& texto);

    // Accepts the dialog: writes its settings, then clamps the size for use.
    void OpcionesAceptar();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void Combo1Click();
    // Text1 through one of the board's size rules, the box showing the answer.
    void TamanoPor(const std::function<std::string(const std::string&)>& regla);
    QComboBox* combo1_;
    QComboBox* skinCombo_;
    QCheckBox* checks_[4] = {};
    QLineEdit* text1_;
    QToolButton *button1_, *button2_; // up and down
    QLabel* label1_;
    QGroupBox* frames_[4] = {};
    QPushButton* aceptar_;
    QPushButton* cancelar_;
    bool skinEnCambio_ = false;
};

} // namespace qa
