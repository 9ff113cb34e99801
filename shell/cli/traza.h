#pragma once
// The console tool's trace of what goes over a wire or a pipe, one line per text: control
// bytes and the backslash are written as \xNN, so a text always stays on its own line and reads
// back unambiguously.

#include <string>

std::string TextoVisible(const std::string& texto);
