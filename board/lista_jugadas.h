#pragma once
// The move list: one of the texts List(1) to List(5) shown at a time, copied to the
// clipboard, with the context menu of the Jugadas window. The rows are read from the
// game's own lists as they come into view, so a huge game costs the view next to nothing.
#include <QListView>

class QAction;
class QMenu;

namespace qa {

class ModeloJugadas;

class ListaJugadas : public QListView {
    Q_OBJECT
public:
    explicit ListaJugadas(QWidget* parent = nullptr);

    // The notation setting Check: 1 Spanish, 2 English, 3 coordinates, 4 the user's letters.
    void PonerNotacion(int check);
    int Notacion() const { return check_; }
    // The list shown, 1 to 5; List(4) is never shown.
    int Indice() const { return indice_; }
    // Reads the text again after a move, a take-back or a new game.
    void Actualizar();
    // mnuCopiarJugadas: the selected lines, or the whole game when nothing is selected.
    void CopiarJugadas();
    // The lines shown, joined by LF.
    QString Texto() const;
    QMenu* MenuJugadas() const { return menu_; }

signals:
    // The user chose a notation: the setting Check is to be written.
    void NotacionElegida(int check);
    // mnuGuardarComo: the game is to be saved.
    void GuardarComo();

protected:
    void changeEvent(QEvent* e) override;
    void contextMenuEvent(QContextMenuEvent* e) override;

private:
    // The menu's texts from the language file, again at each change of language.
    void AplicarIdioma();
    ModeloJugadas* modelo_;
    QMenu* menu_;
    QMenu* mnuNotacion_;
    QAction *copiar_, *guardarComo_;
    QAction* notaciones_[5] = {};
    int check_ = 1;
    int indice_ = 2;
    bool desplazar_ = false;
};

} // namespace qa
