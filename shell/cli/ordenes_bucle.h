#pragma once
// Which commands of the console tool need its event loop (network, engines, waiting), and
// which `get` names belong to the network's and the engines' state. The loop, with Qt, is loaded
// only at the first of them, so a session of board commands answers as fast as a plain program.

#include <string>

bool OrdenDeRed(const std::string& orden, const std::string& arg);
bool VariableDeRed(const std::string& nombreMinusculas);
bool VariableDeMotor(const std::string& nombreMinusculas);
// Any command that the loop answers, `wait` included.
bool NecesitaBucle(const std::string& orden, const std::string& arg);

// The loop's entry: it runs `pendiente` (the command that asked for it and what was read after
// it) and then standard input, unless `fin` says the input has ended; returns the exit code.
extern "C" int QaCorrerBucle(void* sesion, const char* pendiente, unsigned long longitud, bool fin);
using FuncionBucle = int (*)(void*, const char*, unsigned long, bool);
inline constexpr const char* kModuloBucle = "quintarena-cli-bucle.so";
