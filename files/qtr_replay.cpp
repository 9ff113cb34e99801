#include "files/qtr_replay.h"

#include "core/check_detection.h"
#include "core/clocks.h"
#include "core/environment.h"
#include "core/game_end.h"
#include "core/game_state.h"
#include "core/lista_textos.h"
#include "core/move_filter.h"
#include "core/move_list.h"
#include "core/move_sequence.h"
#include "core/peer.h"
#include "files/line_reader.h"
#include "files/pgn_scanner.h"
#include "files/pgn_text.h"
#include "platform/mensajes.h"

#include <string_view>
#include <vector>

namespace Variables {

namespace {

using qa::kIconoInformacion;

// The lines of the file read as tokens ended by a comma or a line end; a
// token in double quotes keeps its commas.
bool LeerTokens(const std::string& ruta, ListaTextos& tokens) {
    LectorLineas lector(ruta);
    if (!lector.Abierto()) return false;
    std::string_view linea;
    while (lector.Siguiente(linea)) {
        size_t i = 0;
        do {
            size_t a = linea.find_first_not_of(" \t", i);
            if (a == std::string_view::npos) a = linea.size();
            std::string token;
            size_t fin;
            if (a < linea.size() && linea[a] == '"') {
                const size_t cierra = linea.find('"', a + 1);
                token.assign(linea.substr(a + 1, cierra == std::string_view::npos
                                                     ? std::string_view::npos
                                                     : cierra - a - 1));
                fin = cierra == std::string_view::npos ? linea.size() : linea.find(',', cierra);
            } else {
                fin = linea.find(',', a);
                std::string_view t = linea.substr(
                    a, fin == std::string_view::npos ? std::string_view::npos : fin - a);
                const size_t b = t.find_last_not_of(" \t");
                token.assign(b == std::string_view::npos ? std::string_view{} : t.substr(0, b + 1));
            }
            tokens.push_back(token);
            if (fin == std::string_view::npos) break;
            i = fin + 1;
        } while (i <= linea.size());
    }
    return !lector.Fallo();
}

// The clock line of one side: at one machine the time is not kept.
void LineaReloj(int lado, const std::string& s) {
    int32_t& minutos = lado == 1 ? MinutosBlancas : MinutosNegras;
    int32_t& segundos = lado == 1 ? SegundosBlancas : SegundosNegras;
    minutos = Conectado ? ValorTexto(s.substr(0, 2)) : 0;
    segundos = Conectado ? ValorTexto(s.substr(2, 2)) : 0;
    if (lado == 1)
        PrintTimerB();
    else
        PrintTimerN();
    if (Conectado)
        red().EnviarLineaPartida(lado == 1 ? LineaPartida::RelojBlancas : LineaPartida::RelojNegras,
                                 s);
}

void Rehusar() {
    Turno = 0;
    ColorInicio = 0;
    MostrarAviso(27);
    if (Conectado) red().EnviarErrorPartida();
    LineasPartida.assign(2, std::string());
    dibujo().RedibujarTablero();
    Cargando = DesdePosicion = false;
    TipoPartida.clear();
    ColorJugador.clear();
    // The game as far as it played stays on the board and in the lists.
    MovimientoAnulado();
    EditandoTablero = false;
    if (!listas().ListaPgnVisible()) listas().MostrarVentanas();
    MostrarAviso(55);
    RelojesCero();
}

} // namespace

bool AbrirQtr(const std::string& ruta) {
    ListaTextos lineas;
    lineas.emplace_back();
    if (!LeerTokens(ruta, lineas)) {
        MostrarAviso(27);
        return false;
    }
    if (listas().ListaPgnVisible()) {
        FicheroPgn.clear();
        listas().CerrarListaPgn();
    }
    Jugadas::Vaciar();
    VariablesCero();
    MovimientoAnulado();
    Turno = 0;
    PonerFichas();
    if (Conectado) red().EnviarInicioPartida();
    dialogos().PonerTextoReloj(1, "");
    dialogos().PonerTextoReloj(2, "");
    lineas.emplace_back(); // the empty entry behind the last line
    LineasPartida.swap(lineas);
    dibujo().MarcadorVisible(false);
    LineaActual = 0;
    ColorInicio = 0;
    dibujo().AvisoCargando(dialogos().Mensaje(69));
    Cargando = true;
    return true;
}

PasoQtr SendQtr() {
    ++LineaActual;
    if (LineaActual < 1 || static_cast<size_t>(LineaActual) >= LineasPartida.size())
        return PasoQtr::Final;
    const std::string s = LineasPartida[static_cast<size_t>(LineaActual)];
    if (s.empty()) return PasoQtr::Sigue;
    if (s.size() == 1) {
        if (Conectado) {
            TipoPartida = s;
            red().EnviarLineaPartida(LineaPartida::Tipo, s);
        } else {
            TipoPartida = "A"; // a replay alone has no rating
        }
        return PasoQtr::Sigue;
    }
    if (s.size() == 4 && dialogos().TextoReloj(1).empty()) {
        LineaReloj(1, s);
        return PasoQtr::Sigue;
    }
    if (s.size() == 4 && dialogos().TextoReloj(2).empty()) {
        LineaReloj(2, s);
        return PasoQtr::Sigue;
    }
    if (s.size() < 4) return PasoQtr::Sigue;

    if (ColorInicio == 0) Turno = 1;
    if (ColorInicio == 1) Turno = 2;
    Origen = s.substr(0, 2);
    Destino = s.substr(2, 2);
    const bool legible = LeerCoronacion(s);
    if (legible) FiltroMovimiento();
    if (!legible || !MovimientoValido) {
        Rehusar();
        return PasoQtr::Rehusada;
    }
    if (Conectado) red().EnviarLineaPartida(LineaPartida::Jugada, s);
    if (!AlPasoTexto.empty()) SubComoFicha(AlPasoTexto);
    dibujo().DibujarMovimiento();
    if (ColorInicio == 0 && Turno == 1)
        ColorInicio = 1;
    else if (ColorInicio == 1 && Turno == 2)
        ColorInicio = 0;
    if (Mate || Ahogado) {
        Turno = 0;
        ColorJugador.clear();
        TipoPartida.clear();
        RelojesCero();
        if (Mate) FinPorMate();
        if (Ahogado) FinPorAhogado();
    }
    MovimientoAnulado();
    return PasoQtr::Sigue;
}

void TimerRetrasoQtr() {
    if (!TipoPartida.empty() && Conectado) Turno = static_cast<int16_t>(red().PreguntarColor());
    if (!TipoPartida.empty()) {
        ColorInicio = ColorInicio == 1 ? 2 : 1;
        if (!Conectado) Turno = static_cast<int16_t>(ColorInicio);
        ColorJugador = Turno == 1 ? "Blancas" : Turno == 2 ? "Negras" : "";
        if (Conectado) {
            // The peer takes the other colour, and the move if it is the side to move.
            const int colorRival = Turno == 1 ? 2 : 1;
            const int turnoRival = Turno != ColorInicio ? ColorInicio : 0;
            if (Turno != ColorInicio) Turno = 0;
            red().EnviarLadoRival(colorRival, turnoRival);
        }
    }
    if (!listas().ListaPgnVisible()) listas().MostrarVentanas();
    LineasPartida.assign(2, std::string());
    if (!Jugadas::List[1].empty() && Conectado) red().EnviarFinPartida();
    dibujo().RedibujarTablero();
    Cargando = false;
    if (Jugadas::List[1].empty()) {
        MostrarAviso(55);
        RelojesCero();
    }
}

bool LeerCoronacion(const std::string& linea) {
    if (linea.size() <= 4) return true;
    const int64_t pieza = PgnTexto::ValorNumero(linea.substr(4));
    if (pieza <= 12) {
        PiezaCoronacion = static_cast<int32_t>(pieza);
        return true;
    }
    PiezaCoronacion = 0;
    int co, fo, cd, fd;
    LeerCasilla(linea.substr(0, 2), co, fo);
    LeerCasilla(linea.substr(2, 2), cd, fd);
    const int32_t p = EnCasilla(co) && EnCasilla(fo) ? Tablero[co][fo] : 0;
    return !((p == PeonB && fd == 8) || (p == PeonN && fd == 1));
}

bool ReproducirQtr(const std::string& ruta) {
    if (!AbrirQtr(ruta)) return false;
    for (;;) {
        switch (SendQtr()) {
        case PasoQtr::Sigue:
            continue;
        case PasoQtr::Final:
            TimerRetrasoQtr();
            return true;
        case PasoQtr::Rehusada:
            return false;
        }
    }
}

} // namespace Variables
