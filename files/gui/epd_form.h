#pragma once
// The EPD browser, fEpd: the file's valid lines and the chosen one on a
// small board of its own; a double click opens it on the main board.
#include <QWidget>

class QListView;

namespace qa {

class ModeloLista;
class TableroMini;

class EpdF : public QWidget {
    Q_OBJECT
public:
    explicit EpdF(QWidget* padre = nullptr);
    void Abrir(const QString& ruta);
    TableroMini* Tablero() const { return mini_; }

signals:
    void PosicionAbierta(); // AbrirEpd ran: repaint the main board
    void Cerrado();

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    QListView* eventos_;
    ModeloLista* modelo_;
    TableroMini* mini_;
};

} // namespace qa
