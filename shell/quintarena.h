#pragma once
// The board form. Its load brings the program up; the board picture itself (PicBuffer) is
// a widget the board library puts in with PonerTablero.
#include "shell/formulario_hijo.h"

namespace qa {

class Quintarena : public FormularioHijo {
    Q_OBJECT
public:
    Quintarena();
    void AplicarIdioma() override;
    // The load of the board form, in its order: settings, language, ranking, display checks,
    // file registration, pictures and window places.
    void Cargar();
    QWidget* PicBuffer() const { return picBuffer_; }
    // The board library's picture replaces the empty one; the old one is deleted.
    void PonerTablero(QWidget* tablero);

    // The colour and width checks of the screen; false unloads the main window.
    static bool ComprobarColores(int bitsPorPixel);
    static bool ComprobarResolucion(int ancho);

protected:
    void dragEnterEvent(QDragEnterEvent* e) override;
    void dropEvent(QDropEvent* e) override;
    // The board form stays: its close does nothing.
    void closeEvent(QCloseEvent* e) override;

private:
    void Activada();
    QWidget* picBuffer_;
    bool activadaUnaVez_ = false;
};

} // namespace qa
