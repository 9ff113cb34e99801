#pragma once
#include <string>

namespace qa {

// Plays a WAV file in the background. A machine without a sound device stays silent: that is
// not an error.
void ReproducirSonido(const std::string& rutaReal);

} // namespace qa
