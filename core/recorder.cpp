#include "core/recorder.h"

#include "core/promotion.h"

void EntornoRegistro::AvisoCargando(const std::string& texto) {
    llamadas.push_back("AvisoCargando " + texto);
}

void EntornoRegistro::MostrarCoronacion() {
    ++coronacionesMostradas;
    Coronacion::Activar();
    if (eleccionCoronacion < 0) return; // closed without a choice
    if (eleccionCoronacion >= 1) Coronacion::Elegir(eleccionCoronacion);
    Coronacion::Aceptar();
}

void EntornoRegistro::MostrarMensaje(const std::string& titulo, const std::string& texto, int icono,
                                     int, int) {
    mensajes.push_back({titulo, texto, icono});
}

void EntornoRegistro::CerrarListaPgn() {
    llamadas.push_back("CerrarListaPgn");
    listaPgnVisible = false;
}

void EntornoRegistro::EnviarMovimiento(int co, int fo, int cd, int fd, int32_t pieza) {
    alRival.push_back("EnviarMovimiento " + std::to_string(co) + " " + std::to_string(fo) + " " +
                      std::to_string(cd) + " " + std::to_string(fd) + " " + std::to_string(pieza));
}

void EntornoRegistro::EnviarLineaPartida(LineaPartida tipo, const std::string& linea) {
    static const char* const kTipos[] = {"T", "TB", "TN", "M"};
    alRival.push_back(std::string("EnviarLineaPartida ") + kTipos[static_cast<int>(tipo)] + " " +
                      linea);
}

void EntornoRegistro::EnviarLadoRival(int colorRival, int turnoRival) {
    alRival.push_back("EnviarLadoRival " + std::to_string(colorRival) + " " +
                      std::to_string(turnoRival));
}

int EntornoRegistro::PreguntarColor() {
    alRival.push_back("PreguntarColor");
    return colorRed;
}

void EntornoRegistro::SumaDePartidas(int resultado) {
    alRival.push_back("SumaDePartidas " + std::to_string(resultado));
    resultados.push_back(resultado);
}
