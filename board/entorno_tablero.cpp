#include "board/entorno_tablero.h"

#include "board/coronacion.h"
#include "board/lista_jugadas.h"
#include "board/vista_tablero.h"

namespace qa {

EntornoTablero::EntornoTablero(VistaTablero& vista, Entorno* resto)
    : vista_(vista), resto_(resto) {}

bool EntornoTablero::PointClickMarcado() {
    return vista_.Picture()->pointClick;
}
bool EntornoTablero::TableroInvertido() {
    return vista_.Picture()->invertido;
}
void EntornoTablero::RedibujarTorreEnroque() {
    vista_.Picture()->RedibujarTorreEnroque();
}
void EntornoTablero::MarcadorVisible(bool visible) {
    vista_.Picture()->MarcadorVisible(visible);
}
void EntornoTablero::OcultarMarcasUltimaJugada() {
    vista_.Picture()->QuitaMarco();
}
void EntornoTablero::DibujarMovimiento() {
    vista_.Picture()->DibujarMovimientoPedido();
}
void EntornoTablero::RedibujarTablero() {
    vista_.Picture()->RedibujarTablero();
}
void EntornoTablero::QuitarFichaAlPaso(int col, int fila) {
    vista_.Picture()->QuitarFichaAlPaso(col, fila);
}
void EntornoTablero::ListasCambiadas() {
    if (lista_) lista_->Actualizar();
}
void EntornoTablero::MostrarCoronacion() {
    Coronacion forma(*vista_.Picture(), vista_.window());
    forma.exec();
}

} // namespace qa
