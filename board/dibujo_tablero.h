#pragma once
// The board's door from the game core: everything the rules ask to be drawn, the promotion form,
// the menu checks the board keeps, and the move list beside it.
#include "core/environment.h"

namespace qa {

class VistaTablero;
class ListaJugadas;

class DibujoTablero final : public EntornoDibujo {
public:
    explicit DibujoTablero(VistaTablero& vista) : vista_(vista) {}

    void PonerListaJugadas(ListaJugadas* lista) { lista_ = lista; }

    bool PointClickMarcado() override;
    bool TableroInvertido() override;
    void RedibujarTorreEnroque() override;
    void MarcadorVisible(bool visible) override;
    void OcultarMarcasUltimaJugada() override;
    void DibujarMovimiento() override;
    void RedibujarTablero() override;
    void QuitarFichaAlPaso(int col, int fila) override;
    void ListasCambiadas() override;
    void AvisoCargando(const std::string& texto) override;
    void MostrarCoronacion() override;

private:
    VistaTablero& vista_;
    ListaJugadas* lista_ = nullptr;
};

} // namespace qa
