#pragma once
// The texts on the wire: building every message, telling a received text's kind in the order
// the receiver tests them, and reading its fields. No framing: one text is one message, and a
// keyword matches as an exact text or as a prefix, whatever follows. Plain functions, no state.

#include "net/puntuacion.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qa::wire {

// Received kinds, in the receiver's order of tests after "Ping" and "Pong".
enum class Clase {
    Ninguna,
    Retroceso,
    RetrocesoAceptado,
    RetrocesoCancelado,
    Close,
    AbrirPartidaEpd,
    AbrirAceptadoEpd,
    AbrirCanceladoEpd,
    CancelarEpd,
    Epd,
    AbrirPartida,
    AbrirAceptado,
    AbrirCancelado,
    NuevoJuego,
    NuevoCancelado,
    NuevoAceptado,
    Rendirse,
    OfrecerTablas,
    TablasAceptadas,
    TablasCancelado,
    VersionQt,
    Mensaje,
    Time,
    Movimiento,
    Ranking,
    Qtr,
};

// The first kind at or after test `desde` (0 is the first) that `texto` matches; `siguiente`
// gets the test after it. Ninguna when none does.
Clase Clasificar(std::string_view texto, std::size_t desde, std::size_t* siguiente = nullptr);
// The keywords of the messages that may open a box: the board's pending input is cut off first.
bool AbreCaja(std::string_view texto);

// A decimal number as a field of a message converts: blanks around it, a sign, digits, within
// 32 bits. Nothing when it does not.
std::optional<int32_t> Entero(std::string_view s);
// The leading number of a text, 0 when there is none: how a version text is weighed.
double ValorVersion(std::string_view s);

// Fields of the received messages; nothing when a number in them does not convert.
struct Movimiento {
    std::string origen, destino;
    int32_t pieza = 0;
};
std::optional<Movimiento> LeerMovimiento(std::string_view texto);
struct Tiempo {
    int32_t minutos = 0, segundos = 0;
};
std::optional<Tiempo> LeerTiempo(std::string_view texto);
struct Oferta {
    char color = 0; // '1' the offerer plays White, '2' Black, anything else as it came
    char modo = 0;  // 'R' or 'A' as it came
    int32_t minutos = 0;
};
std::optional<Oferta> LeerNuevoJuego(std::string_view texto);
std::optional<RegistroPuntuacion> LeerRanking(std::string_view texto);

// The game transfer's lines ("QTR ...").
enum class TipoQtr { Otra, Clase, Relojes, Jugada, Error };
struct LineaQtr {
    TipoQtr tipo = TipoQtr::Otra;
    bool iniciar = false;   // ends in "Iniciar"
    bool terminado = false; // ends in "Terminado"
    char valor = 0;         // Clase: the character
    int lado = 0;           // Relojes: 1 White's, 2 Black's
    int32_t minutos = 0, segundos = 0;
    std::string origen, destino;
    bool conPieza = false;
    int32_t pieza = 0;
};
// Nothing when a number in a recognised line does not convert.
std::optional<LineaQtr> LeerQtr(std::string_view texto);

// A position: "EPD " with the sender's turn or "EPD T" with the side to move, the sender's
// colour letter and the line.
struct Posicion {
    char forma = 0;      // the first character after "EPD ": '1', '2', 'T' or another
    int32_t turno = 0;   // after "T": the side to move
    bool negras = false; // the sender's colour letter is "B": the receiver plays Black
    std::string fen;
};
std::optional<Posicion> LeerEpd(std::string_view texto);

// Outgoing texts.
inline constexpr const char* kPing = "Ping";
inline constexpr const char* kPong = "Pong";
std::string TextoMovimiento(int colOrigen, int filaOrigen, int colDestino, int filaDestino,
                            int32_t pieza);
std::string TextoTime(int32_t minutos, int32_t segundos);
// The minutes as the dialog's box holds them; a free game's are "0".
std::string TextoNuevoJuego(bool blancas, bool puntuable, const std::string& minutos);
std::string TextoRanking(const RegistroPuntuacion& r);
// The sender's turn (or, with `turnoDelRival`, the side to move), its colour's first letter.
std::string TextoEpd(bool turnoDelRival, int turno, const std::string& colorJugador,
                     const std::string& fen);

} // namespace qa::wire
