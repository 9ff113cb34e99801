// The rating record to and from the peer.

#include "net/sesion_interna.h"

namespace qa {

void SesionRed::TickRanking() {
    EnviarMensaje(wire::TextoRanking(Puntuacion));
    p_->t.ranking.Habilitar(false);
}

void SesionRed::SumaDePartidas(int resultado) {
    SumarResultado(resultado);
    p_->vista.MostrarPuntuacion();
    GrabarPuntuacion();
}

} // namespace qa
