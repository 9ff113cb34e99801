#include "files/pgn_browser.h"

#include "core/check_detection.h"
#include "core/environment.h"
#include "core/game_state.h"
#include "core/move_filter.h"
#include "core/move_list.h"
#include "core/move_sequence.h"
#include "files/line_reader.h"
#include "files/pgn_moves.h"
#include "files/pgn_scanner.h"
#include "files/pgn_text.h"
#include "files/qtr_replay.h"
#include "platform/mensajes.h"

#include <algorithm>

namespace Variables {

namespace {

using qa::kIconoInformacion;

int32_t Ultima() {
    return static_cast<int32_t>(ListaPgn::PgnJugadas.size()) - 1;
}

void PosicionInicial() {
    VariablesCero();
    PonerFichas();
    Turno = 0;
}

void Seleccionar(int32_t i) {
    ListaPgn::PgnMovimientosIndice = i;
}

// Entries 0 to hasta, from the initial position; 27 for one that does not play.
void JugarHasta(int32_t hasta) {
    PosicionInicial();
    for (int32_t i = 0; i <= hasta && i <= Ultima(); ++i)
        if (!JugarEntradaPgn(static_cast<size_t>(i))) MostrarAviso(27);
    dibujo().RedibujarTablero();
}

} // namespace

bool JugarEntradaPgn(size_t i) {
    const std::string& e = ListaPgn::PgnJugadas[i];
    if (e.size() < 4) return false;
    Origen = e.substr(0, 2);
    Destino = e.substr(2, 2);
    if (!LeerCoronacion(e)) {
        MovimientoAnulado();
        return false;
    }
    FiltroMovimiento();
    const bool valido = MovimientoValido;
    if (!AlPasoTexto.empty() && valido) SubComoFicha(AlPasoTexto);
    MovimientoAnulado();
    return valido;
}

bool ElegirPartidaPgn(int32_t i) {
    if (AutoPlay) {
        AutoPlay = false;
        BotonesNavegacion = true;
    }
    if (ListaPgn::EventosTag == std::to_string(i)) return false;
    ListaPgn::EventosIndice = i;
    ListaPgn::EventosTag = std::to_string(i);
    ListaPgn::PgnMovimientos.clear();
    ListaPgn::PgnMovimientosIndice = -1;
    for (auto& t : ListaPgn::Text1) t.clear();
    ListaPgn::Combo1.clear();
    const std::string& l = ListaPgn::Label2;
    const size_t p = l.find(':');
    ListaPgn::Label2 =
        (p == std::string::npos ? l : l.substr(0, p + 1)) + " " + std::to_string(i + 1);
    return true;
}

void CargarPartidaPgn() {
    Jugadas::Vaciar();
    PosicionPgn = 0;
    if (!ListaLeida) TotalPartidas = 0;
    ListaPgn::PgnJugadas.clear();
    PosicionInicial();
    CopiarTablero();
    {
        const FicheroCompartido abierto(FicheroPgn); // for both passes
        LeerCabecerasPgn(FicheroPgn);
        if (!PgnConFen && TotalPartidas != 0) LeerMovimientosPgn(FicheroPgn);
    }
    if (PgnConFen) return;
    if (TotalPartidas == 0) {
        MostrarAviso(55);
    } else {
        const auto& filas = ListaPgn::PgnMovimientos;
        // Copies, reused from row to row: a message box may let the list change under them.
        std::string blancas, negras;
        for (size_t i = 0; i < filas.size(); i += 2) {
            const std::string_view b = filas.Ver(i);
            const size_t blanco = b.find(' ');
            blancas.assign(blanco == std::string_view::npos ? b : b.substr(blanco + 1));
            const std::string_view n = i + 1 < filas.size() ? filas.Ver(i + 1) : std::string_view();
            negras.assign(n.size() > 18 ? n.substr(18) : std::string_view());
            if (blancas.empty()) continue;
            FallaPgn = false;
            ComFicha(blancas, 1);
            if (!FallaPgn) ComFicha(negras, 2);
            if (FallaPgn) break;
        }
    }
    PosicionPgn = static_cast<int32_t>(ListaPgn::PgnJugadas.size());
    dibujo().RedibujarTablero();
}

void AvanzarPgn() {
    if (AutoPlay && PosicionPgn >= Ultima()) {
        AutoPlay = false;
        BotonesNavegacion = true;
    }
    if (PosicionPgn >= Ultima()) return;
    ++PosicionPgn;
    Seleccionar(PosicionPgn);
    if (!JugarEntradaPgn(static_cast<size_t>(PosicionPgn))) MostrarAviso(27);
    dibujo().RedibujarTablero();
}

void RetrocederPgn() {
    if (PosicionPgn == -1) return;
    --PosicionPgn;
    JugarHasta(PosicionPgn);
    Seleccionar(PosicionPgn);
}

void IrInicioPgn() {
    PosicionPgn = -1;
    Seleccionar(ListaPgn::PgnMovimientos.empty() ? -1 : 0);
    PosicionInicial();
    dibujo().RedibujarTablero();
}

void IrFinalPgn() {
    if (PosicionPgn == Ultima()) return;
    JugarHasta(Ultima());
    PosicionPgn = Ultima();
    Seleccionar(PosicionPgn);
}

bool AlternarAutoPlay() {
    if (!AutoPlay) {
        if (PosicionPgn >= Ultima()) IrInicioPgn();
        AutoPlay = true;
        BotonesNavegacion = false;
    } else {
        AutoPlay = false;
        BotonesNavegacion = true;
    }
    return AutoPlay;
}

void PulsarBotonPgn(int elemento) {
    TorreA1Movida = TorreH1Movida = TorreA8Movida = TorreH8Movida = false;
    switch (elemento) {
    case 1:
        IrInicioPgn();
        break;
    case 2:
        RetrocederPgn();
        break;
    case 3:
        AvanzarPgn();
        break;
    case 4:
        IrFinalPgn();
        break;
    case 5:
        AlternarAutoPlay();
        break;
    default:
        break;
    }
}

bool TeclaPgn(int codigo) {
    if (codigo < 37 || codigo > 40) return false;
    if (PgnConFen) return true;
    if (codigo >= 39)
        AvanzarPgn();
    else
        RetrocederPgn();
    return true;
}

void IrAFilaPgn(int32_t fila) {
    if (fila < 0) return;
    PosicionPgn = std::min(fila, Ultima());
    JugarHasta(PosicionPgn);
    Seleccionar(fila);
}

} // namespace Variables
