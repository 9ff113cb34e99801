#pragma once
// PicBuffer: the visible board. It is one picture, painted by block transfers from the
// pictures of the present size, and it takes the mouse: a pixel becomes a square, a square
// becomes Origen or Destino, and the filter decides.
#include "board/imagenes.h"

#include <QWidget>
#include <memory>
#include <utility>

namespace qa {

class PicBuffer : public QWidget {
    Q_OBJECT
public:
    explicit PicBuffer(QWidget* parent = nullptr);

    // Menu checks and options the board reads.
    bool invertido = false;  // mnuInvertirTablero
    bool pointClick = false; // mnuPointClick
    bool marcos = true;      // mark the last move
    bool lineas = false;     // grid lines

    int AnchoCasilla = 0, AltoCasilla = 0;
    bool RedibujoCompleto = false;
    bool MarcoActivo = false; // the next Marco is skipped

    // The skin's full-size pictures, or none for the built-in set. Takes effect at the next
    // ResiceImagenes.
    void PonerSkin(std::shared_ptr<const JuegoFichas> skin) { skin_ = std::move(skin); }
    bool ConSkin() const { return skin_ != nullptr; }
    const JuegoFichas* Skin() const { return skin_.get(); }
    // The working pictures, at the present size.
    const JuegoFichas& R() const { return r_; }

    void ResiceImagenes(int tamano);
    void Resice();
    void PaintTablero();
    void PaintFichas();
    void PaintFichasResice();
    void IdibujoFicha(int col, int fila);
    void DibujarMovimiento();
    void Marco(int colOrigen, int filaOrigen, int colDestino, int filaDestino);
    void QuitaMarco();
    // The board's part of mnuInvertirTablero: squares, pieces and frames turn.
    void Invertir(bool invertir);

    void InvertirCasilla(int col, int fila);
    void MarcadorVisible(bool visible);
    void QuitarFichaAlPaso(int col, int fila);
    void RedibujarTorreEnroque();
    void RedibujarTablero(); // also ImprimeFichas of the set-up
    // The empty board with `texto` in its middle; it stays over the repaints while Cargando.
    void AvisoCargando(const QString& texto);
    const QString& Aviso() const { return aviso_; }
    void OcultarRey() { rey_.visible = false, update(); }
    // The promotion form hides the piece under the cursor while it asks.
    void RestaurarArrastre();
    // What the core's DibujarMovimiento reaches: the click path has drawn already.
    void DibujarMovimientoPedido();
    // A message from the peer cuts the user's move short. A drag ends with the piece back on
    // its square, never dropped where the cursor happens to be: that would play a whole move,
    // promotion box and all, inside the handling of the peer's message.
    void CancelarArrastre();
    // Point-and-click: the selection's marker goes and the pointer is the default again.
    void SoltarSeleccion();

    // The four events of the picture, in pixels of the picture.
    void MouseDown(Qt::MouseButton boton, int x, int y);
    void MouseMove(Qt::MouseButtons botones, int x, int y);
    void DragOver(int x, int y, bool fuera);
    void DragDrop(int x, int y);

    // What can be seen, for the tests and the picture saver.
    const QImage& Imagen() const { return buffer_; }
    bool Arrastrando() const { return arrastrando_; }
    bool MarcadorMostrado() const { return marcador_.visible; }
    bool MarcosMostrados() const { return marcoVisible_; }
    QPoint MarcoEn(int i) const { return marco_[i & 1]; } // screen square (col, row)
    bool ReyMarcado() const { return rey_.visible; }
    // A screen square's top left pixel.
    QPoint Esquina(int col, int fila) const;
    // Screen square to board square and back: the same turn both ways.
    std::pair<int, int> Convertir(int col, int fila) const;

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void leaveEvent(QEvent* e) override;

private:
    struct Forma {
        bool visible = false;
        QPoint casilla; // screen square
    };

    int Columna(int x) const;
    int Fila(int y) const;
    void CuadroDesdeFondo(int col, int fila);        // screen square
    void PintarPieza(int codigo, int col, int fila); // screen square
    void EncogerTemporales();
    void PintarAviso();
    class ManoArrastre;
    class ManoClic;
    void DevolverTablero(); // BoardTemp(0) back, temporaries shrunk
    void Anular();          // and the move's state cleared
    void InicioArrastre(int x, int y);
    void Clic();
    void MarcarCasilla(int col, int fila);
    void MouseDownSet(Qt::MouseButton boton);
    bool Probar(int col, int fila); // SoloProbar, board square
    void PonerCursor(int forma);

    std::shared_ptr<const JuegoFichas> skin_;
    JuegoFichas r_;
    QImage buffer_, fondo_;
    QImage boardTemp_[2];
    QString aviso_; // the loading notice over the board
    bool arrastrando_ = false;
    bool dibujoHecho_ = false;
    QPoint marco_[2];
    bool marcoVisible_ = false;
    Forma marcador_; // the point-and-click selection
    Forma rey_;      // the king picked up in set-up
};

} // namespace qa
