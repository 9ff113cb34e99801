#pragma once
// Helpers that let tests speak in squares like "e2" and set up positions from
// a board diagram, while every move still goes through the real entry points.

#include "core/game_state.h"
#include "core/local_move.h"
#include "core/recorder.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <string>

namespace prueba {

// "e2" -> "52".
std::string Casilla(const std::string& algebraica);
// "e2e4" -> "5254"; a trailing piece letter (q, r, n, b) is dropped.
std::string Jugada(const std::string& algebraica);

// A fresh program: all state reset, a recording environment installed.
class Partida : public ::testing::Test {
protected:
    EntornoRegistro entorno;
    void SetUp() override;
    void TearDown() override;

    // New local game from the initial position, White to move.
    void Nueva();
    // Board from a diagram in FEN piece placement ("r3k2r/8/.../R3K2R"); the
    // rights flags stay as VariablesCero leaves them.
    void Colocar(const std::string& diagrama, int turno = 1);
    // A board drop as a person makes it; pieza is PiezaCoronacion (0: dialog).
    Variables::Respuesta Mover(const std::string& algebraica, int pieza = 0);
    // Every move must be legal.
    void Jugar(std::initializer_list<const char*> jugadas);
    // The filter in test-only mode, as under a dragged piece.
    bool Probar(const std::string& algebraica);
    int32_t En(const std::string& algebraica) const;
    std::string Ultima(int lista) const; // last line of List(lista), trimmed
};

} // namespace prueba
