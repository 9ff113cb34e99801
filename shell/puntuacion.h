#pragma once
// The ranking panel's view of the rating records; the records and their file are the network
// game's (net/puntuacion.h).
#include "net/puntuacion.h"

namespace qa {

// The ten labels of the ranking panel: the text up to its ":", a blank and the number.
void PrintPuntuacion();

} // namespace qa
