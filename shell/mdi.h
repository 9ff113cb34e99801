#pragma once
// The main window: a multi-document frame holding the board form and the panels, with the menu,
// the toolbar Toolbar1 and the status bar.
#include <QMainWindow>
#include <map>
#include <string>

class QMdiArea;
class QMenu;
class QTimer;
class QToolBar;

namespace qa {

class Altavoz;
class BarraEstado;

// Set by the close handler while a connection is still up; the network layer, when the link
// has ended, unloads the main window again and this time the close goes through.
extern bool CierrePendiente;

class Mdi : public QMainWindow {
    Q_OBJECT
public:
    Mdi();

    QMdiArea* Area() const { return area_; }
    BarraEstado* StatusBar() const { return barra_; }
    QToolBar* Toolbar1() const { return toolbar_; }
    QMenu* MenuJugadas() const { return menuJugadas_; }
    QMenu* MenuChatList() const { return menuChat_; }
    QAction* Entrada(const std::string& nombre) const;
    // Toolbar button by its index, 1 to 27; separators are buttons too.
    QAction* Boton(int indice) const;
    QTimer* TStatus() const { return tStatus_; }
    // The program's sounds play here, so they end with the main window.
    Altavoz* Sonido() const { return altavoz_; }

    void AplicarIdioma();
    // Unloads the main window: the close handler decides whether it goes.
    void Descargar();
    // Opens a file given by path; the main window lower-cases dropped names before this.
    void FileDrop(const std::string& fichero);
    // The open command: a path, or empty for the file dialog.
    void AbrirFichero(const std::string& ruta);
    // Every menu entry and toolbar button ends here, by the entry's name.
    void Comando(const std::string& entrada);

protected:
    void closeEvent(QCloseEvent* e) override;
    void changeEvent(QEvent* e) override;
    void dragEnterEvent(QDragEnterEvent* e) override;
    void dropEvent(QDropEvent* e) override;

private:
    void CrearMenus();
    void CrearToolbar();
    QAction* Nueva(QMenu* menu, const char* nombre, bool marcable = false);
    QMenu* Submenu(QMenu* padre, const char* nombre);
    void CambiarPanel(const std::string& entrada, const char* clave);
    void CambiarNotacion(int n);
    void RestaurarMdi();
    void MostrarAyuda();

    QMdiArea* area_;
    BarraEstado* barra_;
    QToolBar* toolbar_ = nullptr;
    QTimer* tStatus_;
    Altavoz* altavoz_;
    QMenu* menuJugadas_ = nullptr;
    QMenu* menuChat_ = nullptr;
    std::map<std::string, QAction*> entradas_;
    std::map<std::string, QMenu*> menus_;
    std::map<int, QAction*> botones_;
    bool maximizadaAntes_ = false;
};

// Start and close of the whole program (see arranque.cpp).
bool CerrarMdi();

} // namespace qa
