#pragma once
// The board as the board form shows it: the picture, the file and rank labels around it, the
// outer border, and the resize that runs 30 ms after the size or the skin has changed.
#include "board/pic_buffer.h"

#include <QLabel>
#include <QTimer>

namespace qa {

class VistaTablero : public QWidget {
    Q_OBJECT
public:
    explicit VistaTablero(QWidget* parent = nullptr);

    PicBuffer* Picture() const { return pic_; }
    int Tamano() const { return tamano_; }
    bool Coordenadas() const { return coordenadas_; }
    // The skin in force: NombreBase, or the folder that loaded.
    const QString& Apariencia() const { return apariencia_; }
    const QString& NombreBase() const { return nombreBase_; }
    // The size of the skin's square, or an empty size for the built-in set.
    QSize TamanoSkin() const;

    void PonerCarpetaApariencias(const QString& carpeta) { carpeta_ = carpeta; }
    const QString& CarpetaApariencias() const { return carpeta_; }
    void PonerNombreBase(const QString& nombre);
    // The skins for the options' list: NombreBase first.
    QStringList ActualizarSkins() const;

    // The whole resize at once, as start-up does it.
    void Redimensionar();

public slots:
    // Tamaño: starts the resize timer. `cambio` forgets nothing but says the size was changed
    // by hand (CambioTamano).
    void PonerTamano(int tamano, bool cambio = true);
    // The size box of the options and its two spin buttons: each takes the box's text and
    // returns what the box is to show, and starts the resize when the size changes.
    QString TamanoEnter(const QString& texto);
    QString TamanoMas(const QString& texto);
    QString TamanoMenos(const QString& texto);
    // mnuInvertirTablero.
    void PonerInvertido(bool invertido);
    // mnuPointClick: a selection being held is dropped.
    void PonerPointClick(bool pointClick);
    // The three board options.
    void PonerMarcos(bool marcos);
    void PonerCoordenadas(bool coordenadas);
    void PonerLineas(bool lineas);
    // The skin's name, as SkinCombo's click. False when it was refused: the board is back on
    // the built-in set, message 25 has been shown and AparienciaCambiada tells the new name.
    bool PonerApariencia(const QString& nombre);

signals:
    // The outer size changed: the board form follows.
    void TamanoCambiado(QSize tamano);
    // The skin in force differs from the one asked for; the setting Apariencia follows it.
    void AparienciaCambiada(const QString& nombre);
    // After each resize, and after a skin change (the set-up palette repaints).
    void ImagenesCambiadas();

protected:
    void changeEvent(QEvent* e) override;
    void paintEvent(QPaintEvent* e) override;

private:
    void LetrasNumeros();
    void Colocar();

    PicBuffer* pic_;
    QLabel* letras_[8];
    QLabel* numeros_[8];
    QTimer timer1_;
    int tamano_ = 60;
    bool cambioTamano_ = false;
    bool coordenadas_ = true;
    QString carpeta_;
    QString nombreBase_ = QStringLiteral("(Classic)");
    QString apariencia_ = nombreBase_;
};

} // namespace qa
