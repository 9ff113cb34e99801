#include "net/texto_red.h"

#include <cctype>
#include <cstdlib>

namespace qa::wire {

namespace {

struct Regla {
    Clase clase;
    std::string_view clave;
    bool prefijo;
};

// The receiver's tests, in their order.
constexpr Regla kReglas[] = {
    {Clase::Retroceso, "Retroceso", false},
    {Clase::RetrocesoAceptado, "RetrocesoAceptado", false},
    {Clase::RetrocesoCancelado, "RetrocesoCancelado", false},
    {Clase::Close, "Close", false},
    {Clase::AbrirPartidaEpd, "AbrirPartidaEPD", false},
    {Clase::AbrirAceptadoEpd, "AbrirAceptadoEPD", false},
    {Clase::AbrirCanceladoEpd, "AbrirCanceladoEPD", false},
    {Clase::CancelarEpd, "CancelarEPD", false},
    {Clase::Epd, "EPD", true},
    {Clase::AbrirPartida, "AbrirPartida", false},
    {Clase::AbrirAceptado, "AbrirAceptado", false},
    {Clase::AbrirCancelado, "AbrirCancelado", false},
    {Clase::NuevoJuego, "NuevoJuego", true},
    {Clase::NuevoCancelado, "NuevoCancelado", true},
    {Clase::NuevoAceptado, "NuevoAceptado", true},
    {Clase::Rendirse, "Rendirse", true},
    {Clase::OfrecerTablas, "OfrecerTablas", true},
    {Clase::TablasAceptadas, "TablasAceptadas", true},
    {Clase::TablasCancelado, "TablasCancelado", true},
    {Clase::VersionQt, "VersionQT", true},
    {Clase::Mensaje, "Mensaje", true},
    {Clase::Time, "TIME", true},
    {Clase::Movimiento, "Movimiento", true},
    {Clase::Ranking, "Ranking", true},
    {Clase::Qtr, "QTR", true},
};
constexpr std::size_t kNumReglas = sizeof kReglas / sizeof kReglas[0];

// Characters from 1-based position `desde`, at most `n` of them; empty past the end.
std::string_view Mid(std::string_view s, std::size_t desde,
                     std::size_t n = std::string_view::npos) {
    if (desde < 1 || desde > s.size()) return {};
    return s.substr(desde - 1, n);
}

bool Digito(char c) {
    return c >= '0' && c <= '9';
}

// A promotion piece: a piece code, or 0 for none. Any other number would put on the board a
// piece that nothing can draw or move.
std::optional<int32_t> Pieza(std::string_view s) {
    const auto v = Entero(s);
    if (!v || *v < 0 || *v > 12) return std::nullopt;
    return v;
}

} // namespace

Clase Clasificar(std::string_view texto, std::size_t desde, std::size_t* siguiente) {
    for (std::size_t i = desde; i < kNumReglas; ++i) {
        const Regla& r = kReglas[i];
        if (r.prefijo ? texto.starts_with(r.clave) : texto == r.clave) {
            if (siguiente) *siguiente = i + 1;
            return r.clase;
        }
    }
    if (siguiente) *siguiente = kNumReglas;
    return Clase::Ninguna;
}

bool AbreCaja(std::string_view t) {
    for (std::string_view p :
         {"TablasCancelado", "TablasAceptadas", "NuevoCancelado", "OfrecerTablas"})
        if (t.starts_with(p)) return true;
    for (std::string_view e : {"AbrirCancelado", "AbrirPartida", "CancelarEPD", "AbrirCanceladoEPD",
                               "AbrirPartidaEPD", "RetrocesoAceptado", "Retroceso"})
        if (t == e) return true;
    return false;
}

std::optional<int32_t> Entero(std::string_view s) {
    while (!s.empty() && s.front() == ' ') s.remove_prefix(1);
    while (!s.empty() && s.back() == ' ') s.remove_suffix(1);
    bool negativo = false;
    if (!s.empty() && (s.front() == '-' || s.front() == '+')) {
        negativo = s.front() == '-';
        s.remove_prefix(1);
    }
    if (s.empty()) return std::nullopt;
    int64_t v = 0;
    for (char c : s) {
        if (!Digito(c)) return std::nullopt;
        v = v * 10 + (c - '0');
        if (v > int64_t{INT32_MAX} + 1) return std::nullopt;
    }
    if (negativo) v = -v;
    if (v > INT32_MAX || v < INT32_MIN) return std::nullopt;
    return static_cast<int32_t>(v);
}

double ValorVersion(std::string_view s) {
    std::size_t i = 0;
    while (i < s.size() && s[i] == ' ') ++i;
    std::string num;
    if (i < s.size() && (s[i] == '-' || s[i] == '+')) num += s[i++];
    bool punto = false;
    for (; i < s.size() && num.size() < 40; ++i) {
        if (Digito(s[i])) {
            num += s[i];
        } else if (s[i] == '.' && !punto) {
            punto = true;
            num += '.';
        } else {
            break;
        }
    }
    return num.empty() ? 0.0 : std::strtod(num.c_str(), nullptr);
}

std::optional<Movimiento> LeerMovimiento(std::string_view t) {
    const std::string_view casillas = Mid(t, 12, 4);
    if (casillas.size() < 4) return std::nullopt;
    for (char c : casillas)
        if (!Digito(c)) return std::nullopt;
    const auto pieza = Pieza(Mid(t, 16));
    if (!pieza) return std::nullopt;
    return Movimiento{std::string(casillas.substr(0, 2)), std::string(casillas.substr(2, 2)),
                      *pieza};
}

std::optional<Tiempo> LeerTiempo(std::string_view t) {
    const std::size_t espacio = t.find(' ');
    const std::size_t dos = t.find(':');
    if (espacio == std::string_view::npos || dos == std::string_view::npos || dos < espacio)
        return std::nullopt;
    const auto m = Entero(t.substr(espacio + 1, dos - espacio - 1));
    const auto s = Entero(t.substr(dos + 1));
    if (!m || !s) return std::nullopt;
    return Tiempo{*m, *s};
}

std::optional<Oferta> LeerNuevoJuego(std::string_view t) {
    const auto minutos = Entero(Mid(t, 16));
    if (!minutos) return std::nullopt;
    const std::string_view color = Mid(t, 12, 1), modo = Mid(t, 14, 1);
    return Oferta{color.empty() ? '\0' : color[0], modo.empty() ? '\0' : modo[0], *minutos};
}

std::optional<RegistroPuntuacion> LeerRanking(std::string_view t) {
    RegistroPuntuacion r;
    std::string campo;
    int i = 0;
    for (char c : Mid(t, 9)) {
        if (c == '-') {
            ++i;
            campo.clear();
            continue;
        }
        if (i >= 5) continue; // past the fifth field
        campo += c;
        const auto v = Entero(campo);
        // A blank or a sign alone is no digit: the field's text would not convert.
        if (!v || !Digito(c)) return std::nullopt;
        CampoPuntuacion(r, i) = *v;
    }
    return r;
}

std::optional<LineaQtr> LeerQtr(std::string_view t) {
    LineaQtr l;
    l.iniciar = t.ends_with("Iniciar");
    l.terminado = t.ends_with("Terminado");
    if (l.terminado) return l;
    if (t == "QTR ERROR") {
        l.tipo = TipoQtr::Error;
    } else if (t.size() == 7) {
        l.tipo = TipoQtr::Clase;
        l.valor = t[6];
    } else if (t.size() == 11 && (Mid(t, 5, 2) == "TB" || Mid(t, 5, 2) == "TN")) {
        const auto m = Entero(Mid(t, 8, 2)), s = Entero(Mid(t, 10, 2));
        if (!m || !s) return std::nullopt;
        l.tipo = TipoQtr::Relojes;
        l.lado = t[5] == 'B' ? 1 : 2;
        l.minutos = *m;
        l.segundos = *s;
    } else if (Mid(t, 5, 1) == "M" && t.size() >= 10) {
        l.tipo = TipoQtr::Jugada;
        l.origen = std::string(Mid(t, 7, 2));
        l.destino = std::string(Mid(t, 9, 2));
        if (t.size() >= 11) {
            const auto p = Pieza(Mid(t, 11));
            if (!p) return std::nullopt;
            l.conPieza = true;
            l.pieza = *p;
        }
    }
    return l;
}

std::optional<Posicion> LeerEpd(std::string_view t) {
    const std::string_view resto = Mid(t, 5);
    Posicion p;
    p.forma = resto.empty() ? '\0' : resto[0];
    std::size_t letra = 2;
    if (p.forma == 'T') {
        const auto turno = Entero(Mid(resto, 2, 1));
        if (!turno) return std::nullopt;
        p.turno = *turno;
        letra = 3;
    }
    p.negras = Mid(resto, letra, 1) == "B";
    p.fen = std::string(Mid(resto, letra + 2));
    return p;
}

std::string TextoMovimiento(int colOrigen, int filaOrigen, int colDestino, int filaDestino,
                            int32_t pieza) {
    return "Movimiento " + std::to_string(colOrigen) + std::to_string(filaOrigen) +
           std::to_string(colDestino) + std::to_string(filaDestino) + std::to_string(pieza);
}

std::string TextoTime(int32_t minutos, int32_t segundos) {
    return "TIME " + std::to_string(minutos) + ":" + std::to_string(segundos);
}

std::string TextoNuevoJuego(bool blancas, bool puntuable, const std::string& minutos) {
    return std::string("NuevoJuego ") + (blancas ? "1" : "2") + " " + (puntuable ? "R" : "A") +
           " " + (puntuable ? minutos : "0");
}

std::string TextoRanking(const RegistroPuntuacion& r) {
    return "Ranking " + std::to_string(r.PartidasJugadas) + "-" +
           std::to_string(r.PartidasGanadas) + "-" + std::to_string(r.PartidasPerdidas) + "-" +
           std::to_string(r.PartidasTablas) + "-" + std::to_string(r.Puntos);
}

std::string TextoEpd(bool turnoDelRival, int turno, const std::string& colorJugador,
                     const std::string& fen) {
    return std::string("EPD ") + (turnoDelRival ? "T" : "") + std::to_string(turno) +
           colorJugador.substr(0, 1) + " " + fen;
}

} // namespace qa::wire
