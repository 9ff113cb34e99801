#include "shell/cli/traza.h"

std::string TextoVisible(const std::string& texto) {
    static const char kHex[] = "0123456789ABCDEF";
    std::string r;
    r.reserve(texto.size());
    for (unsigned char c : texto) {
        if (c < 0x20 || c == 0x7f || c == '\\') {
            r += "\\x";
            r += kHex[c >> 4];
            r += kHex[c & 15];
        } else {
            r += static_cast<char>(c);
        }
    }
    return r;
}
