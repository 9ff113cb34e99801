#pragma once
// ColorRgb: the colour dialog. Every change is shown at once on all forms; accept hands the
// two settings back, cancel puts the colours as they were.
#include <QDialog>

class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollBar;

namespace qa {

class ColorRgb : public QDialog {
    Q_OBJECT
public:
    explicit ColorRgb(QWidget* parent = nullptr);

    QScrollBar* Scrl_RGB[3] = {};
    QLineEdit* Txt_RGB[3] = {};
    QRadioButton* Option1;
    QRadioButton* Option2;
    QPushButton* Command1;
    QPushButton* Command2;

signals:
    // The keys Color ("r:g:b") and Fondo ("1" or "2") are to be written.
    void Aceptado(const QString& color, const QString& fondo);
    void Cancelado();

protected:
    void changeEvent(QEvent* e) override;
    void showEvent(QShowEvent* e) override;

private:
    void Cambio();

    int antes_[4] = {};
    bool leyendo_ = false;
};

} // namespace qa
