#include "files/pgn_text.h"

#include <algorithm>
#include <cctype>

namespace PgnTexto {

namespace {
char Minuscula(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}
bool Digito(char c) {
    return c >= '0' && c <= '9';
}
} // namespace

bool EmpiezaCon(std::string_view linea, std::string_view prefijo) {
    if (linea.size() < prefijo.size()) return false;
    for (size_t i = 0; i < prefijo.size(); ++i)
        if (Minuscula(linea[i]) != prefijo[i]) return false;
    return true;
}

std::string_view ValorEntreComillas(std::string_view linea) {
    const size_t a = linea.find('"');
    if (a == std::string_view::npos) return {};
    const size_t b = linea.find('"', a + 1);
    return linea.substr(a + 1, b == std::string_view::npos ? std::string_view::npos : b - a - 1);
}

bool NombreEtiqueta(std::string_view linea, std::string& nombre) {
    const size_t blanco = linea.find(' ');
    if (linea.empty() || blanco == std::string_view::npos) return false;
    std::string_view n = RecortarBlancos(linea.substr(1, blanco - 1));
    nombre.assign(n);
    for (char& c : nombre) c = Minuscula(c);
    return true;
}

std::string_view RecortarBlancos(std::string_view s) {
    const size_t a = s.find_first_not_of(' ');
    if (a == std::string_view::npos) return {};
    const size_t b = s.find_last_not_of(' ');
    return s.substr(a, b - a + 1);
}

bool EsNumerico(std::string_view s) {
    s = RecortarBlancos(s);
    size_t i = 0;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
    size_t digitos = 0;
    while (i < s.size() && Digito(s[i])) ++i, ++digitos;
    if (i < s.size() && s[i] == '.') {
        ++i;
        while (i < s.size() && Digito(s[i])) ++i, ++digitos;
    }
    if (digitos == 0) return false;
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E' || s[i] == 'd' || s[i] == 'D')) {
        ++i;
        if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
        size_t exp = 0;
        while (i < s.size() && Digito(s[i])) ++i, ++exp;
        if (exp == 0) return false;
    }
    return i == s.size();
}

int64_t ValorNumero(std::string_view s) {
    s = RecortarBlancos(s);
    int64_t v = 0;
    for (char c : s) {
        if (!Digito(c)) break;
        if (v < INT64_C(100000000000000000)) v = v * 10 + (c - '0');
    }
    return v;
}

namespace {

// The end of the group opened at ini: its closing bracket, or the end of the text.
size_t FinDeGrupo(const std::string& t, size_t ini, char abre, char cierra) {
    int64_t nivel = 0;
    for (size_t i = ini + 1; i < t.size(); ++i) {
        if (t[i] == abre) ++nivel;
        if (t[i] == cierra && --nivel < 0) return i;
    }
    return t.size() - 1;
}

// One pass, each group replaced where it stands.
void RestoLineal(std::string& t, size_t cursor) {
    std::string out(t, 0, cursor);
    size_t i = cursor;
    size_t nl = t.find('{', i), np = t.find('(', i);
    while (i < t.size()) {
        if (nl != std::string::npos && nl < i) nl = t.find('{', i);
        if (np != std::string::npos && np < i) np = t.find('(', i);
        const size_t ini = std::min(nl, np);
        if (ini == std::string::npos) {
            out.append(t, i, std::string::npos);
            break;
        }
        out.append(t, i, ini - i);
        const bool llave = t[ini] == '{';
        i = FinDeGrupo(t, ini, llave ? '{' : '(', llave ? '}' : ')') + 1;
        out += "[!]";
    }
    t.swap(out);
}

} // namespace

void QuitarComentarios(std::string& t) {
    constexpr size_t kCentinela = 31999; // position 32000, counted from 1
    // Before the cursor there is no bracket left. A text that would take
    // quadratic time (a huge line full of different comments) is finished
    // in one pass instead.
    size_t cursor = 0;
    uint64_t trabajo = 0;
    const uint64_t presupuesto = 64 * static_cast<uint64_t>(t.size()) + (1u << 24);
    for (;;) {
        if (trabajo > presupuesto) {
            RestoLineal(t, cursor);
            return;
        }
        const size_t llave = t.find('{', cursor), paren = t.find('(', cursor);
        if (llave == std::string::npos && paren == std::string::npos) break;
        const size_t pl = llave == std::string::npos ? kCentinela : llave;
        const size_t pp = paren == std::string::npos ? kCentinela : paren;
        const bool esLlave = pl < pp;
        const char abre = esLlave ? '{' : '(', cierra = esLlave ? '}' : ')';
        const size_t ini = esLlave ? pl : pp;
        if (ini >= t.size()) break;
        const size_t fin = FinDeGrupo(t, ini, abre, cierra);
        const std::string hallado = t.substr(ini, fin - ini + 1);
        trabajo += t.size();
        // The missing kind's stand-in position need not hold a bracket, and
        // then copies may stand anywhere.
        const bool centinela = t[ini] != abre;
        std::string nuevo;
        nuevo.reserve(t.size());
        size_t desde = centinela ? 0 : ini;
        nuevo.append(t, 0, desde);
        for (;;) {
            const size_t p = t.find(hallado, desde);
            if (p == std::string::npos) break;
            nuevo.append(t, desde, p - desde);
            nuevo += "[!]";
            desde = p + hallado.size();
        }
        nuevo.append(t, desde, std::string::npos);
        t.swap(nuevo);
        cursor = centinela ? 0 : ini + 3;
    }
}

} // namespace PgnTexto
