// Chat.

#include "net/sesion_interna.h"

namespace qa {

TeclaChat SesionRed::EnterChat(const std::string& texto) {
    Impl& d = *p_;
    if (!Conectado) return TeclaChat::Vaciar;
    if (d.cuenta > 35) return TeclaChat::Pasa;
    if (Cargando) {
        d.Avisar(79);
        return TeclaChat::Vaciar;
    }
    if (texto.empty()) return TeclaChat::Vaciar;
    if (d.cuenta >= 38) {
        d.Avisar(73);
        d.Caja(d.M(74) + FinLinea + texto, kIconoInformacion, kBotonAceptar);
        return TeclaChat::Vaciar;
    }
    const std::string linea = "<" + Nick + ">" + texto;
    EnviarMensaje("Mensaje " + linea);
    d.AnadirChat(linea + FinLinea);
    return TeclaChat::Vaciar;
}

} // namespace qa
