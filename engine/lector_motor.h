#pragma once
// What a line from an engine means. One report is one line; it is sorted by substring tests in a
// fixed order, not by a grammar, and the order and the length limits are the protocol as this
// program speaks it. Plain functions of the line and the few flags they look at, so they can be
// tested and fuzzed alone; Motores acts on the answer.

#include <array>
#include <optional>
#include <string>

namespace qa {

// The state the sorting looks at.
struct EstadoLinea {
    bool motorBlancas = false, motorNegras = false;
    bool enroquePendiente = false, peticionPendiente = false;
    bool sinJugadas = true; // no move written yet
};

enum class ClaseLinea {
    Ignorada,
    RechazoNivel,    // a refused level command: fall back to "level 0 15 0"
    RechazoGrave,    // a refusal that ends the game
    RechazoPeticion, // the refusal of a pending offer, hint or move-now
    Movimiento,      // `texto` the move as written; `largo` a key past 16 characters
    Caracteristicas, // `texto` the answer, "accepted ..."
    OfertaTablas,
    Tablas,    // a bare "draw"
    Pista,     // `texto` the hint as shown
    Resultado, // `tablas` for 1/2-1/2, `rendicion` when it also says resign
    Rendicion, // a bare "resign"
    Otra,      // no refusal: clears a pending castling or request, else thinking output
};

struct LineaMotor {
    ClaseLinea clase = ClaseLinea::Ignorada;
    std::string linea; // the report without CR and LF, case kept
    std::string clave; // the same in lower case
    std::string texto;
    bool largo = false, tablas = false, rendicion = false;
};

// A longer move line is dropped: it lets "my move is: e2e4" through, at exactly 16.
inline constexpr std::size_t kLargoLineaMovimiento = 16;

LineaMotor LeerLinea(const std::string& texto, const EstadoLinea& estado);

// The thinking boxes 1 to 5 (index 1..5) a line of thinking output writes, each with the last
// text it gets; boxes left empty are not written.
using Pensamiento = std::array<std::optional<std::string>, 6>;
Pensamiento LeerPensamiento(const std::string& linea);

} // namespace qa
