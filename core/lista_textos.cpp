#include "core/lista_textos.h"

namespace {

size_t LeerLargo(const std::string& d, size_t& pos) {
    size_t largo = 0;
    for (int desplazamiento = 0;; desplazamiento += 7) {
        const auto b = static_cast<unsigned char>(d[pos++]);
        largo |= static_cast<size_t>(b & 0x7F) << desplazamiento;
        if (!(b & 0x80)) return largo;
    }
}

} // namespace

ListaTextos::ListaTextos(std::initializer_list<std::string_view> textos) {
    for (auto t : textos) push_back(t);
}

void ListaTextos::clear() {
    cursorI_ = cursorPos_ = 0;
    if (datos_.capacity() <= kGuardado) {
        datos_.clear();
        marcas_.clear();
    } else {
        std::string().swap(datos_);
        std::vector<uint64_t>().swap(marcas_);
    }
    n_ = 0;
    ultima_ = 0;
}

void ListaTextos::swap(ListaTextos& o) noexcept {
    std::swap(datos_, o.datos_);
    std::swap(marcas_, o.marcas_);
    std::swap(n_, o.n_);
    std::swap(ultima_, o.ultima_);
    std::swap(cursorI_, o.cursorI_);
    std::swap(cursorPos_, o.cursorPos_);
}

void ListaTextos::push_back(std::string_view texto) {
    if (n_ % kPaso == 0) marcas_.push_back(datos_.size());
    ultima_ = datos_.size();
    // Length and text in one piece when short, as most entries are: one append.
    char entrada[64];
    size_t n = 0;
    size_t largo = texto.size();
    do {
        const auto b = static_cast<unsigned char>(largo & 0x7F);
        largo >>= 7;
        entrada[n++] = static_cast<char>(largo ? b | 0x80 : b);
    } while (largo);
    if (n + texto.size() <= sizeof entrada) {
        for (const char c : texto) entrada[n++] = c;
        datos_.append(entrada, n);
    } else {
        datos_.append(entrada, n);
        datos_.append(texto);
    }
    ++n_;
}

void ListaTextos::pop_back() {
    if (n_ == 0) return;
    if (cursorPos_ >= ultima_) cursorI_ = cursorPos_ = 0;
    datos_.resize(ultima_);
    --n_;
    if (n_ % kPaso == 0) marcas_.pop_back();
    if (n_ == 0) {
        ultima_ = 0;
        return;
    }
    size_t pos = marcas_[(n_ - 1) / kPaso];
    for (size_t k = (n_ - 1) / kPaso * kPaso; k < n_ - 1; ++k) pos = Siguiente(pos);
    ultima_ = pos;
}

std::string ListaTextos::operator[](size_t i) const {
    return std::string(Ver(i));
}

std::string_view ListaTextos::Ver(size_t i) const {
    if (i >= n_) return {};
    size_t k = i / kPaso * kPaso;
    size_t pos = marcas_[i / kPaso];
    if (cursorI_ <= i && cursorI_ > k && cursorPos_ < datos_.size()) {
        k = cursorI_;
        pos = cursorPos_;
    }
    for (; k < i; ++k) pos = Siguiente(pos);
    cursorI_ = i;
    cursorPos_ = pos;
    return En(pos);
}

std::string_view ListaTextos::En(size_t pos) const {
    const size_t largo = LeerLargo(datos_, pos);
    return std::string_view(datos_).substr(pos, largo);
}

size_t ListaTextos::Siguiente(size_t pos) const {
    const size_t largo = LeerLargo(datos_, pos);
    return pos + largo;
}

bool operator==(const ListaTextos& a, const std::vector<std::string>& b) {
    if (a.size() != b.size()) return false;
    size_t i = 0;
    for (auto it = a.begin(); it != a.end(); ++it, ++i)
        if (*it != b[i]) return false;
    return true;
}
