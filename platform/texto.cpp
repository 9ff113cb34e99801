#include "platform/texto.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace qa {

namespace {

bool EsBlanco(char c) {
    return c == ' ' || c == '\t';
}

// Windows-1252 0x80..0x9F to Unicode; 0 where the code page has a hole.
constexpr char16_t kCp1252[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                  0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

void PonerUtf8(std::string& s, char32_t c) {
    if (c < 0x80) {
        s += static_cast<char>(c);
    } else if (c < 0x800) {
        s += static_cast<char>(0xC0 | (c >> 6));
        s += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        s += static_cast<char>(0xE0 | (c >> 12));
        s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        s += static_cast<char>(0x80 | (c & 0x3F));
    }
}

// Length of the UTF-8 sequence starting at i, 0 if it is not a valid one.
std::size_t Secuencia(std::string_view s, std::size_t i) {
    auto b = static_cast<unsigned char>(s[i]);
    std::size_t n = b < 0x80 ? 1 : (b >> 5) == 6 ? 2 : (b >> 4) == 14 ? 3 : (b >> 3) == 30 ? 4 : 0;
    if (n == 0 || (n > 1 && b < 0xC2) || i + n > s.size()) return 0;
    for (std::size_t k = 1; k < n; ++k)
        if ((static_cast<unsigned char>(s[i + k]) & 0xC0) != 0x80) return 0;
    return n;
}

} // namespace

std::string Minusculas(std::string_view texto) {
    std::string r(texto);
    for (std::size_t i = 0; i < r.size(); ++i) {
        auto c = static_cast<unsigned char>(r[i]);
        if (c >= 'A' && c <= 'Z') {
            r[i] = static_cast<char>(c + 32);
        } else if (c == 0xC3 && i + 1 < r.size()) {
            auto d = static_cast<unsigned char>(r[i + 1]);
            if (d >= 0x80 && d <= 0x9E && d != 0x97) r[i + 1] = static_cast<char>(d + 0x20);
            ++i;
        }
    }
    return r;
}

bool IgualSinCaso(std::string_view a, std::string_view b) {
    return Minusculas(a) == Minusculas(b);
}

bool EmpiezaSinCaso(std::string_view texto, std::string_view inicio) {
    return texto.size() >= inicio.size() && IgualSinCaso(texto.substr(0, inicio.size()), inicio);
}

bool TerminaEn(std::string_view texto, std::string_view fin) {
    return texto.size() >= fin.size() && texto.substr(texto.size() - fin.size()) == fin;
}

bool EsUtf8(std::string_view bytes) {
    for (std::size_t i = 0; i < bytes.size();) {
        std::size_t n = Secuencia(bytes, i);
        if (n == 0) return false;
        i += n;
    }
    return true;
}

std::string Latin1AUtf8(std::string_view bytes) {
    std::string r;
    r.reserve(bytes.size() + bytes.size() / 8);
    for (char ch : bytes) {
        auto c = static_cast<unsigned char>(ch);
        char32_t u = c;
        if (c >= 0x80 && c < 0xA0) u = kCp1252[c - 0x80] ? kCp1252[c - 0x80] : U'?';
        PonerUtf8(r, u);
    }
    return r;
}

std::string Utf8ALatin1(std::string_view texto) {
    std::string r;
    for (std::size_t i = 0; i < texto.size();) {
        std::size_t n = Secuencia(texto, i);
        if (n == 0) { // not UTF-8: pass the byte on as it is
            r += texto[i++];
            continue;
        }
        char32_t u = static_cast<unsigned char>(texto[i]);
        if (n > 1) {
            u &= (0x7F >> n);
            for (std::size_t k = 1; k < n; ++k)
                u = (u << 6) | (static_cast<unsigned char>(texto[i + k]) & 0x3F);
        }
        i += n;
        char out = '?';
        if (u < 0x80 || (u >= 0xA0 && u <= 0xFF)) {
            out = static_cast<char>(u);
        } else {
            for (int k = 0; k < 32; ++k)
                if (kCp1252[k] == u) out = static_cast<char>(0x80 + k);
        }
        r += out;
    }
    return r;
}

std::size_t Longitud(std::string_view texto) {
    std::size_t n = 0;
    for (char c : texto)
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) ++n;
    return n;
}

std::string Izquierda(std::string_view texto, std::size_t caracteres) {
    std::size_t vistos = 0;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if ((static_cast<unsigned char>(texto[i]) & 0xC0) != 0x80) {
            if (vistos == caracteres) return std::string(texto.substr(0, i));
            ++vistos;
        }
    }
    return std::string(texto);
}

std::string ReemplazarDolar(std::string_view texto, std::string_view por) {
    std::string r;
    for (char c : texto) {
        if (c == '$')
            r += por;
        else
            r += c;
    }
    return r;
}

std::optional<double> ANumero(std::string_view texto) {
    std::size_t a = 0, b = texto.size();
    while (a < b && EsBlanco(texto[a])) ++a;
    while (b > a && EsBlanco(texto[b - 1])) --b;
    if (a == b) return std::nullopt;
    std::string s(texto.substr(a, b - a));
    // Only plain decimal text: strtod would also take hex, "inf" and "nan".
    for (char c : s)
        if (!((c >= '0' && c <= '9') || c == '.' || c == '-' || c == '+' || c == 'e' || c == 'E'))
            return std::nullopt;
    char* fin = nullptr;
    double v = std::strtod(s.c_str(), &fin);
    if (fin != s.c_str() + s.size() || !std::isfinite(v)) return std::nullopt;
    return v;
}

std::optional<long> AEntero(std::string_view texto) {
    auto v = ANumero(texto);
    if (!v || *v < -2147483648.0 || *v > 2147483647.0) return std::nullopt;
    return std::lround(*v);
}

double Val(std::string_view texto) {
    std::size_t i = 0;
    while (i < texto.size() && EsBlanco(texto[i])) ++i;
    std::size_t j = i;
    if (j < texto.size() && (texto[j] == '-' || texto[j] == '+')) ++j;
    bool punto = false;
    while (j < texto.size() &&
           ((texto[j] >= '0' && texto[j] <= '9') || (texto[j] == '.' && !punto))) {
        punto = punto || texto[j] == '.';
        ++j;
    }
    auto v = ANumero(texto.substr(i, j - i));
    return v ? *v : 0.0;
}

std::string TextoNumero(double valor) {
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.7g", static_cast<double>(static_cast<float>(valor)));
    return buf;
}

} // namespace qa
