#pragma once
// The move texts and undo records of the Jugadas window. The history of the
// game lives here and nowhere else: take-back reads it, the game file writes it.

#include "core/lista_textos.h"
#include "platform/texto.h"

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace Jugadas {

using qa::FinLinea;

// The text of one move list. It reads like a string; inside, the two runs
// every half-move has are one byte each: the line end (CR LF) and the 18
// blanks that set off Black's moves. A huge game costs little per move.
class TextoJugadas {
public:
    TextoJugadas& operator+=(std::string_view texto);
    bool empty() const { return largo_ == 0; }
    size_t size() const { return largo_; }
    char back() const;
    void pop_back();
    void clear();
    std::string str() const;
    operator std::string() const { return str(); }
    // The text as lines split at LF: a last line without its end counts too.
    // Line i comes back without its CR LF, found from a note every kPaso lines.
    size_t Lineas() const;
    std::string Linea(size_t i) const;

    friend bool operator==(const TextoJugadas& a, std::string_view b) { return a.str() == b; }
    friend std::string operator+(std::string a, const TextoJugadas& b) { return a += b.str(); }
    friend std::ostream& operator<<(std::ostream& o, const TextoJugadas& t);

private:
    static constexpr size_t kPaso = 32;
    void LineaTerminada();
    void LineaQuitada();

    std::string codigo_;
    size_t largo_ = 0;
    size_t finales_ = 0;           // LFs in the text
    std::vector<uint64_t> marcas_; // where line kPaso * (k + 1) starts in codigo_
};

// List[1] coordinates, [2] Spanish, [3] English, [4] the game as squares,
// [5] the user's letters. Each half-move is one line ended by CR LF.
inline TextoJugadas List[6];
// One undo record per half-move.
inline ListaTextos List1;

// Appends one half-move: White's after its number, Black's set off by blanks.
void AnotarLista(const std::string& texto, int indice);
// Empties the five texts and the undo records.
void Vaciar();
// The lines of List[indice], without their line ends.
std::vector<std::string> Lineas(int indice);

} // namespace Jugadas
