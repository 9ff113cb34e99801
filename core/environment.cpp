#include "core/environment.h"

#include "core/promotion.h"

namespace {
EntornoRegistro& registroPorDefecto() {
    static EntornoRegistro r;
    return r;
}
Entorno* actual = nullptr;
} // namespace

Entorno& entorno() {
    return actual ? *actual : registroPorDefecto();
}
void InstalarEntorno(Entorno* e) {
    actual = e;
}

void Entorno::MostrarCoronacion() {
    Coronacion::Activar();
    Coronacion::Aceptar();
}
void Entorno::MostrarMensaje(const std::string&, const std::string&, int, int, int) {}
void Entorno::Sonar(int) {}
void Entorno::SumaDePartidas(int) {}

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
