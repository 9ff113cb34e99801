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

int EntornoRegistro::MostrarMensaje(const std::string& titulo, const std::string& texto, int icono,
                                    int botones, int extra) {
    mensajes.push_back({titulo, texto, icono});
    return RespuestaRegistrada(botones, extra, respuestas);
}

std::string EntornoRegistro::PedirTexto(const std::string& pregunta, const std::string&) {
    llamadas.push_back("PedirTexto " + pregunta);
    if (textos.empty()) return {};
    std::string t = textos.front();
    textos.erase(textos.begin());
    return t;
}

int RespuestaRegistrada(int botones, int extra, std::vector<int>& respuestas) {
    if (botones != qa::kBotonesSiNo) return 1;
    if (!respuestas.empty()) {
        int r = respuestas.front();
        respuestas.erase(respuestas.begin());
        return r;
    }
    return extra == qa::kSegundoPorDefecto ? qa::kRespuestaNo : qa::kRespuestaSi;
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
