#pragma once
// The board's side of the door from the game core: everything the rules ask to be drawn, the
// promotion form and the menu checks. What is not the board's (messages, sounds, the peer, the
// engine, the rating) goes on to `resto`, the program's own environment, when there is one.
#include "core/environment.h"

namespace qa {

class VistaTablero;
class ListaJugadas;

class EntornoTablero : public Entorno {
public:
    explicit EntornoTablero(VistaTablero& vista, Entorno* resto = nullptr);

    void PonerListaJugadas(ListaJugadas* lista) { lista_ = lista; }
    void PonerResto(Entorno* resto) { resto_ = resto; }

    bool PointClickMarcado() override;
    bool TableroInvertido() override;
    void RedibujarTorreEnroque() override;
    void MarcadorVisible(bool visible) override;
    void OcultarMarcasUltimaJugada() override;
    void DibujarMovimiento() override;
    void RedibujarTablero() override;
    void QuitarFichaAlPaso(int col, int fila) override;
    void ListasCambiadas() override;
    void MostrarCoronacion() override;

    bool ListaPgnVisible() override { return resto().ListaPgnVisible(); }
    bool CpuVisible() override { return resto().CpuVisible(); }
    void MostrarMensaje(const std::string& titulo, const std::string& texto, int icono, int botones,
                        int extra) override {
        resto().MostrarMensaje(titulo, texto, icono, botones, extra);
    }
    void Sonar(int n) override { resto().Sonar(n); }
    void SumaDePartidas(int resultado) override { resto().SumaDePartidas(resultado); }
    void DetenerTimersCpu() override { resto().DetenerTimersCpu(); }
    void EnviarMensaje(const std::string& texto) override { resto().EnviarMensaje(texto); }
    void GenerarMovimiento() override { resto().GenerarMovimiento(); }
    void CerrarListaPgn() override { resto().CerrarListaPgn(); }
    void ReiniciarRelojes() override { resto().ReiniciarRelojes(); }
    int PreguntarColorRed() override { return resto().PreguntarColorRed(); }
    void EnviarPosicionRed() override { resto().EnviarPosicionRed(); }
    std::string Mensaje(int n) override { return resto().Mensaje(n); }
    std::string TextoReloj(int lado) override { return resto().TextoReloj(lado); }
    void PonerTextoReloj(int lado, const std::string& texto) override {
        resto().PonerTextoReloj(lado, texto);
    }
    void AvisoCargando() override { resto().AvisoCargando(); }
    void MostrarVentanas() override { resto().MostrarVentanas(); }

private:
    Entorno& resto() { return resto_ ? *resto_ : ninguno_; }

    VistaTablero& vista_;
    Entorno* resto_;
    Entorno ninguno_;
    ListaJugadas* lista_ = nullptr;
};

} // namespace qa
