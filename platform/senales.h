#pragma once
// SIGTERM and SIGINT end the program the way closing its window does, settings saved, instead
// of killing it on the spot (a session logout, a Ctrl+C in the terminal).
#include <functional>

namespace qa {

// `cerrar` runs on the event loop after the signal has come; the handler itself only writes a
// byte to a pipe.
void AlTerminar(std::function<void()> cerrar);

} // namespace qa
