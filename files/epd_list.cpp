#include "files/epd_list.h"

#include "core/environment.h"
#include "core/game_state.h"
#include "core/move_list.h"
#include "core/peer.h"
#include "files/fen.h"
#include "files/line_reader.h"
#include "platform/mensajes.h"

namespace FEpd {

using namespace Variables;

namespace {

using qa::kIconoInformacion;

// A fresh game at one machine, as the new-game dialog makes it.
void NuevoAceptado() {
    LineasPartida.assign(2, std::string());
    Cargando = false;
    Jugadas::Vaciar();
    PonerFichas();
    if (!Conectado) dibujo().RedibujarTablero();
    VariablesCero();
    MovimientoAnulado();
    EditandoTablero = false;
}

// Read to the end before any line goes through the position reader, which sets the board: a
// file that cannot be read whole is left alone.
bool Legible(const std::string& ruta) {
    LectorLineas lector(ruta);
    if (!lector.Abierto()) return false;
    std::string_view linea;
    while (lector.Siguiente(linea)) {
    }
    return !lector.Fallo();
}

} // namespace

bool LeerEPD(const std::string& ruta) {
    Eventos.clear();
    EventosIndice = -1;
    EventosTag.clear();
    if (!Legible(ruta)) return false;
    LectorLineas lector(ruta);
    std::string_view linea;
    while (lector.Siguiente(linea)) {
        PosicionFen.assign(linea);
        if (LeerFen(PosicionFen)) {
            Eventos.push_back(PosicionFen);
        } else if (Eventos.empty()) {
            MostrarAviso(55);
            if (Conectado) red().CancelarEpd();
            return true;
        }
    }
    Jugadas::Vaciar();
    LineasPartida.assign(2, std::string());
    Turno = 0;
    Cargando = VistaEpd = true;
    dibujo().MarcadorVisible(false);
    dibujo().OcultarMarcasUltimaJugada();
    dibujo().AvisoCargando(dialogos().Mensaje(69));
    if (!Eventos.empty()) {
        CasillasEpd c;
        EventosClick(0, c);
    }
    return true;
}

bool EventosClick(int32_t i, CasillasEpd& casillas, bool formularioVisible) {
    if (i < 0 || i >= static_cast<int32_t>(Eventos.size()) || EventosTag == std::to_string(i))
        return false;
    EventosIndice = i;
    EventosTag = std::to_string(i);
    PosicionFen = Eventos[static_cast<size_t>(i)];
    LeerFen(PosicionFen);
    for (int k = 0; k < 64; ++k) casillas[static_cast<size_t>(k)] = Tablero[k % 8 + 1][8 - k / 8];
    if (formularioVisible) PosicionFen.clear();
    return true;
}

bool EventosDblClick(int32_t i) {
    if (i < 0 || i >= static_cast<int32_t>(Eventos.size())) return false;
    PosicionFen = Eventos[static_cast<size_t>(i)];
    EpdEnviado = true;
    // Over the network the opening asks for a colour and sends the position to the peer.
    AbrirEpd();
    Cerrar();
    return true;
}

void Cerrar() {
    if (Conectado && !EpdEnviado) {
        red().CancelarEpd();
        CancelarEPD();
    }
    if (!Conectado && !EpdEnviado) CancelarEPD();
    EpdEnviado = false;
    Cargando = false;
    VistaEpd = false;
}

void CancelarEPD() {
    NuevoAceptado();
    dibujo().RedibujarTablero();
    listas().MostrarVentanas();
}

} // namespace FEpd
