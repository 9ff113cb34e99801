#pragma once
// A list of short texts kept end to end in one buffer: a game of millions of
// half-moves costs a few bytes per entry instead of a string object each.
// It reads like a vector of strings; an entry comes back as a new string.

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

class ListaTextos {
public:
    class const_iterator {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type = std::string;
        using difference_type = std::ptrdiff_t;
        using pointer = void;
        using reference = std::string;

        const_iterator() = default;
        std::string operator*() const { return std::string(lista_->En(pos_)); }
        const_iterator& operator++() {
            pos_ = lista_->Siguiente(pos_);
            return *this;
        }
        const_iterator operator++(int) {
            const_iterator antes = *this;
            ++*this;
            return antes;
        }
        bool operator==(const const_iterator& o) const { return pos_ == o.pos_; }
        bool operator!=(const const_iterator& o) const { return pos_ != o.pos_; }

    private:
        friend class ListaTextos;
        const_iterator(const ListaTextos* lista, size_t pos) : lista_(lista), pos_(pos) {}
        const ListaTextos* lista_ = nullptr;
        size_t pos_ = 0; // offset of the entry in the buffer
    };
    using iterator = const_iterator;
    using value_type = std::string;
    using size_type = size_t;

    ListaTextos() = default;
    ListaTextos(std::initializer_list<std::string_view> textos);

    size_t size() const { return n_; }
    bool empty() const { return n_ == 0; }
    void clear();
    void push_back(std::string_view texto);
    void emplace_back(std::string_view texto = {}) { push_back(texto); }
    void assign(size_t n, std::string_view texto) {
        clear();
        for (size_t i = 0; i < n; ++i) push_back(texto);
    }
    void swap(ListaTextos& o) noexcept;
    void pop_back();
    std::string operator[](size_t i) const;
    // Entry i in place, valid until the list next changes; empty past the end.
    std::string_view Ver(size_t i) const;
    std::string front() const { return (*this)[0]; }
    std::string back() const { return n_ ? std::string(En(ultima_)) : std::string(); }
    const_iterator begin() const { return {this, 0}; }
    const_iterator end() const { return {this, datos_.size()}; }

    friend bool operator==(const ListaTextos& a, const ListaTextos& b) {
        return a.n_ == b.n_ && a.datos_ == b.datos_;
    }
    friend bool operator==(const ListaTextos& a, const std::vector<std::string>& b);
    friend bool operator==(const std::vector<std::string>& a, const ListaTextos& b) {
        return b == a;
    }

private:
    // Every kPaso-th entry's offset is noted, so entry i is at most kPaso - 1 hops away.
    static constexpr size_t kPaso = 32;
    // A list emptied keeps a buffer up to this size for the next one: games are refilled
    // move by move many times over, and a huge one still gives its memory back.
    static constexpr size_t kGuardado = 64 << 10;
    std::string_view En(size_t pos) const;
    size_t Siguiente(size_t pos) const;

    // Each entry is its length in 7-bit groups (one byte below 128) and then its bytes.
    std::string datos_;
    std::vector<uint64_t> marcas_;
    size_t n_ = 0;
    size_t ultima_ = 0; // offset of the last entry
    // The entry last read, so that reading in order takes no hops.
    mutable size_t cursorI_ = 0, cursorPos_ = 0;
};
