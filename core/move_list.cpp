#include "core/move_list.h"

#include "core/environment.h"
#include "core/game_state.h"

#include <ostream>

namespace Jugadas {

namespace {

// A byte that the text itself may hold where a code would stand goes behind kLiteral.
constexpr char kFinLinea = '\n';
constexpr char kBlancos = '\x01';
constexpr char kLiteral = '\x02';
constexpr size_t kRacha = 18;

} // namespace

TextoJugadas& TextoJugadas::operator+=(std::string_view texto) {
    for (const char c : texto) {
        ++largo_;
        if (c == '\n' && !codigo_.empty() && codigo_.back() == '\r') {
            // Only the line end's CR is ever kept alone, as a literal.
            codigo_.resize(codigo_.size() - 2);
            codigo_ += kFinLinea;
            LineaTerminada();
        } else if (c == '\r' || c == '\n' || c == kBlancos || c == kLiteral) {
            codigo_ += kLiteral;
            codigo_ += c;
            if (c == '\n') LineaTerminada();
        } else {
            codigo_ += c;
            if (c != ' ' || codigo_.size() < kRacha) continue;
            if (codigo_.find_last_not_of(' ') + 1 + kRacha == codigo_.size()) {
                codigo_.resize(codigo_.size() - kRacha);
                codigo_ += kBlancos;
            }
        }
    }
    return *this;
}

namespace {

// Whether the last byte is the second of a literal pair: the kLiteral bytes in front of it
// pair up from the left, and an odd one out is its prefix.
bool UltimoLiteral(const std::string& c) {
    size_t k = 0;
    while (k + 1 < c.size() && c[c.size() - 2 - k] == kLiteral) ++k;
    return k % 2 == 1;
}

} // namespace

char TextoJugadas::back() const {
    if (codigo_.empty()) return '\0';
    const char b = codigo_.back();
    if (UltimoLiteral(codigo_)) return b;
    return b == kFinLinea ? '\n' : b == kBlancos ? ' ' : b;
}

void TextoJugadas::pop_back() {
    if (codigo_.empty()) return;
    --largo_;
    const char b = codigo_.back();
    if (UltimoLiteral(codigo_)) {
        codigo_.resize(codigo_.size() - 2);
        if (b == '\n') LineaQuitada();
    } else if (b == kFinLinea) {
        codigo_.back() = kLiteral;
        codigo_ += '\r';
        LineaQuitada();
    } else if (b == kBlancos) {
        codigo_.pop_back();
        codigo_.append(kRacha - 1, ' ');
    } else {
        codigo_.pop_back();
    }
}

void TextoJugadas::clear() {
    std::string().swap(codigo_);
    std::vector<uint64_t>().swap(marcas_);
    largo_ = 0;
    finales_ = 0;
}

void TextoJugadas::LineaTerminada() {
    if (++finales_ % kPaso == 0) marcas_.push_back(codigo_.size());
}

void TextoJugadas::LineaQuitada() {
    --finales_;
    if (marcas_.size() > finales_ / kPaso) marcas_.pop_back();
}

size_t TextoJugadas::Lineas() const {
    return finales_ + (largo_ > 0 && back() != '\n' ? 1 : 0);
}

std::string TextoJugadas::Linea(size_t i) const {
    std::string linea;
    if (i >= Lineas()) return linea;
    size_t pos = i < kPaso ? 0 : static_cast<size_t>(marcas_[i / kPaso - 1]);
    for (size_t saltar = i % kPaso; saltar > 0; ++pos) {
        if (codigo_[pos] == kLiteral)
            saltar -= codigo_[++pos] == '\n' ? 1 : 0;
        else if (codigo_[pos] == kFinLinea)
            --saltar;
    }
    for (; pos < codigo_.size(); ++pos) {
        const char b = codigo_[pos];
        if (b == kFinLinea) break;
        if (b == kLiteral && pos + 1 < codigo_.size()) {
            const char c = codigo_[++pos];
            if (c == '\n') break;
            linea += c;
        } else if (b == kBlancos) {
            linea.append(kRacha, ' ');
        } else {
            linea += b;
        }
    }
    return linea;
}

std::string TextoJugadas::str() const {
    std::string t;
    t.reserve(largo_);
    for (size_t i = 0; i < codigo_.size(); ++i) {
        const char b = codigo_[i];
        if (b == kLiteral && i + 1 < codigo_.size())
            t += codigo_[++i];
        else if (b == kFinLinea)
            t += FinLinea;
        else if (b == kBlancos)
            t.append(kRacha, ' ');
        else
            t += b;
    }
    return t;
}

std::ostream& operator<<(std::ostream& o, const TextoJugadas& t) {
    return o << t.str();
}

void AnotarLista(const std::string& texto, int indice) {
    if (indice < 1 || indice > 5) return;
    TextoJugadas& t = List[indice];
    if (!Variables::MedioTurno)
        t += std::to_string(Variables::NumeroJugada) + ". ";
    else
        t += std::string(18, ' ');
    t += texto;
    t += FinLinea;
    dibujo().ListasCambiadas();
}

void Vaciar() {
    for (auto& t : List) t.clear();
    List1.clear();
    dibujo().ListasCambiadas();
}

std::vector<std::string> Lineas(int indice) {
    std::vector<std::string> out;
    if (indice < 1 || indice > 5) return out;
    const std::string t = List[indice].str();
    size_t inicio = 0;
    while (inicio < t.size()) {
        size_t fin = t.find('\n', inicio);
        if (fin == std::string::npos) fin = t.size();
        std::string linea = t.substr(inicio, fin - inicio);
        if (!linea.empty() && linea.back() == '\r') linea.pop_back();
        out.push_back(linea);
        inicio = fin + 1;
    }
    return out;
}

} // namespace Jugadas
