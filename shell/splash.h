#pragma once
// The start picture, and later the about box. It is never destroyed: closing hides it.
#include <QWidget>

class QLabel;

namespace qa {

class Descarga;

class Splash : public QWidget {
    Q_OBJECT
public:
    explicit Splash(QWidget* padre);
    void AplicarIdioma();
    // A status word of the start, in Label2.
    void Estado(const QString& texto);
    bool EstadoVisible() const;
    // From start picture to about box: the status line goes, the addresses come.
    void Tshow();
    Descarga* rkDownload1() const { return descarga_; }
    QLabel* Label(int i) const { return etiquetas_[i]; }

    // Sets the caption, then shrinks the font a point at a time until the label fits.
    static void Lsize(QLabel* etiqueta, const QString& texto, int limite);

protected:
    void paintEvent(QPaintEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void changeEvent(QEvent* e) override;
    void closeEvent(QCloseEvent* e) override;

private:
    QLabel* etiquetas_[7] = {};
    Descarga* descarga_;
};

} // namespace qa
