#pragma once
// The PGN browser, ListaPgn with its move list PgnMovimientos, and the same
// form as the tag dialog of a PGN save. The logic lives in files/; this form
// shows its state and turns clicks, keys and timers into its calls.
#include <QWidget>

#include <QTimer>

#include <string>

class QComboBox;
class QLabel;
class QLineEdit;
class QListView;
class QPushButton;
class QTabWidget;

namespace qa {

class ModeloLista;
class TableroMini;

class ListaPgnF : public QWidget {
    Q_OBJECT
public:
    explicit ListaPgnF(QWidget* padre = nullptr);
    // A new file: cleared at once, the first pass 300 ms later.
    void Abrir(const QString& ruta);
    // After GuardarPartida answered Etiquetas: the seven boxes preset.
    void AbrirComoDialogo();
    TableroMini* Miniatura() const { return mini_; }

signals:
    void TableroCambiado(); // Tablero changed: repaint the main board
    void Guardado(bool hecho);
    void Cerrado(); // the board went back to the initial position

protected:
    void changeEvent(QEvent* e) override;
    void closeEvent(QCloseEvent* e) override;
    bool eventFilter(QObject* o, QEvent* e) override;

private:
    void Cargar();
    void Elegir(int fila);
    void Boton(int elemento);
    void Mostrar();
    void ModoDialogo(bool dialogo);
    // The texts of the language file, read again at each change of language.
    void AplicarIdioma();

    QComboBox* buscar_;
    QListView* eventos_;
    ModeloLista* modelo_;
    QLabel *label2_, *cuenta_, *frame2_, *label3_;
    QLabel* campos_[7];
    QLineEdit* text1_[6];
    QComboBox *combo1_, *combo2_;
    QPushButton* command1_[6] = {};
    QPushButton *guardar_, *cancelar_;
    QListView* movimientos_;
    ModeloLista* modeloMovimientos_;
    size_t movimientosMostrados_ = 0;
    std::string primeraMostrada_;
    QTabWidget* pestanas_;
    TableroMini* mini_;
    QTimer timer_, autoPlay_;
    QString tituloBase_ = "PGN";
    size_t filasMostradas_ = 0;
    bool mostrando_ = false; // the program itself is setting the list's current row
};

} // namespace qa
