#pragma once
// What the set-up palette and the board share while a position is being built.
#include <cstdint>
#include <string>

namespace qa {

inline int32_t FichaSet = 0;   // the palette's piece, 0 for none
inline std::string CasillaSet; // the two digits of the king being moved

} // namespace qa
