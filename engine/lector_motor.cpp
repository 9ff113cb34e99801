#include "engine/lector_motor.h"

#include "engine/texto_motor.h"

#include <initializer_list>
#include <string_view>

namespace qa {

using namespace motor;

namespace {

bool TieneAlguna(std::string_view texto, std::initializer_list<std::string_view> partes) {
    for (auto p : partes)
        if (Tiene(texto, p)) return true;
    return false;
}

} // namespace

LineaMotor LeerLinea(const std::string& texto, const EstadoLinea& estado) {
    LineaMotor r;
    // An engine playing Black may offer a hint before anything was played: not one we asked.
    if (Tiene(texto, "hint") && !estado.motorBlancas && estado.sinJugadas) return r;

    r.linea.reserve(texto.size());
    for (char c : texto)
        if (c != '\n' && c != '\r') r.linea += c;
    r.clave = MinusculasAscii(r.linea);
    const std::string& k = r.clave;

    if (TieneAlguna(k, {"null", "killer"})) return r;

    if (TieneAlguna(k, {"warning", "illegal", "error", "invalid", "unknown", "unkown"})) {
        // A refused castling form is the castling fallback's business.
        if (estado.enroquePendiente) return r;
        if (estado.peticionPendiente) {
            r.clase = ClaseLinea::RechazoPeticion;
            return r;
        }
        if (Tiene(k, "protover")) return r;
        if (Tiene(k, "st")) {
            r.clase = ClaseLinea::RechazoNivel;
            return r;
        }
        if (TieneAlguna(
                k, {"random", "open", "offer draw", "offer", "hint", "?", "ics", "sd", "level"}))
            return r;
        r.clase = ClaseLinea::RechazoGrave;
        return r;
    }

    if (Tiene(k, "move ")) {
        r.clase = ClaseLinea::Movimiento;
        r.largo = k.size() > kLargoLineaMovimiento;
        const auto dosPuntos = k.find(':');
        const std::size_t p = dosPuntos != std::string::npos ? dosPuntos + 2 : k.find(' ') + 1;
        r.texto = p < k.size() ? k.substr(p) : std::string();
        return r;
    }

    if (Tiene(k, "feature")) {
        // Only features switched on are answered, all of one line at once.
        if (k.back() != '1') return r;
        r.clase = ClaseLinea::Caracteristicas;
        r.texto = "accepted " + TrasPrimera(k, ' ');
        return r;
    }

    if (Tiene(k, "offer draw")) {
        r.clase = ClaseLinea::OfertaTablas;
        return r;
    }
    if (Tiene(k, "draw") && k.size() <= 5) {
        r.clase = ClaseLinea::Tablas;
        return r;
    }
    if (Tiene(k, "hint")) {
        r.clase = ClaseLinea::Pista;
        r.texto = TrasPrimera(k, ':');
        return r;
    }
    if (TieneAlguna(k, {"0-1", "1-0", "1/2-1/2"})) {
        r.clase = ClaseLinea::Resultado;
        r.tablas = Tiene(k, "1/2-1/2");
        r.rendicion = Tiene(k, "resign");
        return r;
    }
    if (Tiene(k, "resign") && k.size() <= 7) {
        r.clase = ClaseLinea::Rendicion;
        return r;
    }
    r.clase = ClaseLinea::Otra;
    return r;
}

Pensamiento LeerPensamiento(const std::string& entrada) {
    Pensamiento cajas;
    if (entrada.size() < 11) return cajas;
    std::string linea = SinBlancosDelante(entrada);
    for (char cifra = '0'; cifra <= '9'; ++cifra) {
        if (linea.empty() || linea[0] != cifra) continue;
        // "1. e2e4": a move list, not thinking.
        if (linea.size() > 1 && linea[1] == '.') return cajas;

        // Four fields, each ended by "/", in front of the rest; a line of fewer fields
        // repeats its last one.
        std::string campos;
        for (int n = 1; n < 5; ++n) {
            const auto blanco = linea.find(' ');
            if (blanco == std::string::npos) {
                campos += linea + "/";
                continue;
            }
            campos += linea.substr(0, blanco) + "/";
            linea = SinBlancosDelante(linea.substr(blanco + 1));
        }
        std::string resto = campos + linea;
        if (resto.size() < 5 && Tiene(resto, "{")) {
            cajas[5] = resto;
            return cajas;
        }
        for (int caja = 1; caja <= 4; ++caja) {
            const auto barra = resto.find('/');
            cajas[caja] = resto.substr(0, barra);
            resto = barra == std::string::npos ? std::string() : resto.substr(barra + 1);
        }
        // The move number in front of the variation ("12. e2e4") goes.
        do {
            if (const auto b = resto.find(' '); b != std::string::npos && b < 3)
                resto = resto.substr(b + 1);
            if (const auto p = resto.find('.'); p != std::string::npos && p < 3)
                resto = resto.substr(p + 1);
        } while (!resto.empty() && (resto[0] == '.' || resto[0] == ' '));
        if (!resto.empty()) cajas[5] = resto;
        linea = resto;
    }
    return cajas;
}

} // namespace qa
