#include "board/dibujo_tablero.h"

#include "board/coronacion.h"
#include "board/lista_jugadas.h"
#include "board/vista_tablero.h"

namespace qa {

bool DibujoTablero::PointClickMarcado() {
    return vista_.Picture()->pointClick;
}
bool DibujoTablero::TableroInvertido() {
    return vista_.Picture()->invertido;
}
void DibujoTablero::RedibujarTorreEnroque() {
    vista_.Picture()->RedibujarTorreEnroque();
}
void DibujoTablero::MarcadorVisible(bool visible) {
    vista_.Picture()->MarcadorVisible(visible);
}
void DibujoTablero::OcultarMarcasUltimaJugada() {
    vista_.Picture()->QuitaMarco();
}
void DibujoTablero::DibujarMovimiento() {
    vista_.Picture()->DibujarMovimientoPedido();
}
void DibujoTablero::RedibujarTablero() {
    vista_.Picture()->RedibujarTablero();
}
void DibujoTablero::QuitarFichaAlPaso(int col, int fila) {
    vista_.Picture()->QuitarFichaAlPaso(col, fila);
}
void DibujoTablero::ListasCambiadas() {
    if (lista_) lista_->Actualizar();
}
void DibujoTablero::AvisoCargando(const std::string& texto) {
    vista_.Picture()->AvisoCargando(QString::fromStdString(texto));
}
void DibujoTablero::MostrarCoronacion() {
    Coronacion forma(*vista_.Picture(), vista_.window());
    forma.exec();
}

} // namespace qa
