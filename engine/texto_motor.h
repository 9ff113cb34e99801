#pragma once
// The small text steps the reader of engine lines and the session both take. Private to engine/.

#include <string>
#include <string_view>

namespace qa::motor {

inline bool Tiene(std::string_view texto, std::string_view parte) {
    return texto.find(parte) != std::string_view::npos;
}

// Engines write ASCII; other bytes are left as they are.
inline std::string MinusculasAscii(std::string texto) {
    for (char& c : texto)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return texto;
}

// Blanks only: a tab is part of the text.
inline std::string SinBlancosDelante(const std::string& texto) {
    const auto p = texto.find_first_not_of(' ');
    return p == std::string::npos ? std::string() : texto.substr(p);
}

// What stands behind the first `marca`; all of it when there is none.
inline std::string TrasPrimera(const std::string& texto, char marca) {
    const auto p = texto.find(marca);
    return p == std::string::npos ? texto : texto.substr(p + 1);
}

} // namespace qa::motor
