#pragma once
// The levels dialog's rules, for its holders: the level command of each kind, and the value
// boxes' spin buttons, keys and corrections. Settings section "CPU", keys "St", "Sd", "Tiempo",
// "Jugadas" and "Option", hold the boxes and the option on.

#include <string>

namespace qa {

inline constexpr int kNivelProfundidad = 0; // "sd N", box 2, 1..20
inline constexpr int kNivelTiempo = 1;      // "st N", box 1, 1..60
inline constexpr int kNivelReloj = 2;       // "level MOVES MINUTES 0", box 3, 1..60

// The limit of value box 1, 2 or 3.
int LimiteNivel(int caja);
// The level command of the option on, from the boxes as they stand.
std::string ComandoNivel(int opcion, const std::string& texto1, const std::string& texto2,
                         const std::string& texto3, const std::string& jugadas);
// A stored option: 0, 1 or 2, anything else 0.
int OpcionGuardada(const std::string& valor);

// The spin buttons: the box's new text.
std::string SubirNivel(const std::string& texto, int limite);
std::string BajarNivel(const std::string& texto, int limite);
// A typed key passes (digits and backspace, code 8) or is swallowed with a beep.
bool TeclaNivel(int codigo);
// A changed box: above the limit the limit, below 1 "1"; otherwise as it is.
std::string CorregirNivel(const std::string& texto, int limite);

} // namespace qa
