#pragma once
// Makes a large PGN collection that looks like a real one: random legal
// games played through the game core, written in standard notation with the
// seven tags and a few more, comments and NAGs here and there.

#include <cstdint>
#include <string>
#include <vector>

// The moves of one random game in standard short algebraic notation, each
// checked to replay through ComFicha.
std::vector<std::string> PartidaAlAzar(uint32_t semilla);
// Writes games until the file holds at least bytes bytes.
bool GenerarColeccion(const std::string& ruta, uint64_t bytes);
