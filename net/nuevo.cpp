// The new game dialog.

#include "net/sesion_interna.h"

namespace qa {

namespace {

// The dialog's box after a change: at most 180, leading zeros gone.
std::string MinutosCorregidos(const std::string& texto) {
    const double v = wire::ValorVersion(texto);
    if (v > 180) return "180";
    if (texto.empty()) return texto;
    return std::to_string(static_cast<int32_t>(v));
}

int32_t ValorMinutos(const std::string& texto) {
    const double v = wire::ValorVersion(texto);
    return v > 1000 ? 1000 : v < -1000 ? -1000 : static_cast<int32_t>(v);
}

} // namespace

void SesionRed::CargarNuevo() {
    p_->nuevo.blancas = true;
    NuevoOpcion3();
}

void SesionRed::NuevoOpcionColor(bool blancas) {
    p_->nuevo.blancas = blancas;
    p_->vista.PintarNuevo(p_->nuevo);
}

void SesionRed::NuevoOpcion3() {
    Impl& d = *p_;
    d.nuevo.puntuable = true;
    d.nuevo.minutosHabilitado = true;
    std::string tiempo = d.vista.LeerTiempo();
    if (wire::ValorVersion(tiempo) < 1) tiempo = "1";
    d.nuevo.minutos = MinutosCorregidos(tiempo);
    d.vista.PintarNuevo(d.nuevo);
}

void SesionRed::NuevoOpcion4() {
    Impl& d = *p_;
    d.nuevo.puntuable = false;
    d.nuevo.minutosHabilitado = false;
    d.vista.GuardarTiempo(d.vista.LeerTiempo());
    d.nuevo.minutos = "0"; // a free game has no time
    d.vista.PintarNuevo(d.nuevo);
}

void SesionRed::NuevoMinutos(const std::string& texto) {
    p_->nuevo.minutos = MinutosCorregidos(texto);
    p_->vista.PintarNuevo(p_->nuevo);
}

void SesionRed::NuevoEnter() {
    if (ValorMinutos(p_->nuevo.minutos) == 0) p_->nuevo.minutos = "1";
    NuevoCommand1();
}

void SesionRed::NuevoSubir() {
    const int32_t v = ValorMinutos(p_->nuevo.minutos);
    if (v <= 180) NuevoMinutos(std::to_string(v + 1));
}

void SesionRed::NuevoBajar() {
    const int32_t v = ValorMinutos(p_->nuevo.minutos);
    if (v > 180)
        NuevoMinutos("180");
    else if (v != 1)
        NuevoMinutos(std::to_string(v - 1));
}

void SesionRed::NuevoCommand1() {
    Impl& d = *p_;
    if (Conectado) {
        if (ValorMinutos(d.nuevo.minutos) == 0) d.nuevo.minutos = "1";
        if (!d.nuevo.puntuable) d.nuevo.minutos = "0";
        EnviarMensaje(wire::TextoNuevoJuego(d.nuevo.blancas, d.nuevo.puntuable, d.nuevo.minutos));
        EditandoTablero = false;
        d.nuevoPendiente = true;
    }
    d.vista.PintarNuevo(d.nuevo);
    d.vista.CerrarNuevo();
}

void SesionRed::NuevoCommand2() {
    p_->nuevoPendiente = false;
    p_->vista.CerrarNuevo();
}

} // namespace qa
