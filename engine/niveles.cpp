#include "engine/niveles.h"

#include "platform/texto.h"

namespace qa {

namespace {

// A box's value as a whole number; boxes hold digits only, but a long run of them must not
// overflow: anything past the limits reads as a large value.
long Valor(const std::string& texto) {
    const double v = Val(texto);
    if (v > 1e6) return 1000000;
    if (v < -1e6) return -1000000;
    return static_cast<long>(v);
}

} // namespace

int LimiteNivel(int caja) {
    return caja == 2 ? 20 : 60;
}

std::string ComandoNivel(int opcion, const std::string& texto1, const std::string& texto2,
                         const std::string& texto3, const std::string& jugadas) {
    switch (opcion) {
    case kNivelProfundidad:
        return "sd " + texto2;
    case kNivelTiempo:
        return "st " + texto1;
    case kNivelReloj:
        return "level " + jugadas + " " + texto3 + " 0";
    default:
        return {};
    }
}

int OpcionGuardada(const std::string& valor) {
    const auto n = AEntero(valor);
    return n && *n >= 0 && *n <= 2 ? static_cast<int>(*n) : kNivelProfundidad;
}

std::string SubirNivel(const std::string& texto, int limite) {
    const long v = Valor(texto);
    if (v + 1 > limite) return std::to_string(limite);
    return v < 1 ? "1" : std::to_string(v + 1);
}

std::string BajarNivel(const std::string& texto, int limite) {
    const long v = Valor(texto);
    if (v > limite) return std::to_string(limite);
    return v - 1 < 1 ? "1" : std::to_string(v - 1);
}

bool TeclaNivel(int codigo) {
    return (codigo >= '0' && codigo <= '9') || codigo == 8;
}

std::string CorregirNivel(const std::string& texto, int limite) {
    const long v = Valor(texto);
    if (v > limite) return std::to_string(limite);
    if (v < 1) return "1";
    return texto;
}

} // namespace qa
