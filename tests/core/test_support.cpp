#include "test_support.h"

#include "core/move_list.h"

#include <cctype>

using namespace Variables;

namespace prueba {

std::string Casilla(const std::string& a) {
    return std::string(1, char('1' + (a.at(0) - 'a'))) + a.at(1);
}

std::string Jugada(const std::string& a) {
    return Casilla(a.substr(0, 2)) + Casilla(a.substr(2, 2));
}

void Partida::SetUp() {
    InstalarRegistro(&entorno);
    RestablecerTodo();
}

void Partida::TearDown() {
    RestablecerTodo();
    InstalarRegistro(nullptr);
}

void Partida::Nueva() {
    NuevaPartidaLocal();
}

void Partida::Colocar(const std::string& diagrama, int turno) {
    VariablesCero();
    Jugadas::Vaciar();
    LimpiarTablero();
    const std::string letras = "PRNBQKprnbqk";
    int fila = 8, col = 1;
    for (char ch : diagrama) {
        if (ch == '/') {
            --fila;
            col = 1;
        } else if (std::isdigit(static_cast<unsigned char>(ch))) {
            col += ch - '0';
        } else {
            size_t i = letras.find(ch);
            ASSERT_NE(i, std::string::npos) << ch;
            Tablero[col++][fila] = static_cast<int32_t>(i + 1);
        }
    }
    Turno = static_cast<int16_t>(turno);
}

Respuesta Partida::Mover(const std::string& a, int pieza) {
    return SoltarFicha(Casilla(a.substr(0, 2)), Casilla(a.substr(2, 2)), pieza);
}

void Partida::Jugar(std::initializer_list<const char*> jugadas) {
    for (const char* j : jugadas) ASSERT_EQ(Mover(j).tipo, Respuesta::Legal) << j;
}

bool Partida::Probar(const std::string& a) {
    return ProbarJugada(Casilla(a.substr(0, 2)), Casilla(a.substr(2, 2)));
}

int32_t Partida::En(const std::string& a) const {
    return Tablero[a.at(0) - 'a' + 1][a.at(1) - '0'];
}

std::string Partida::Ultima(int lista) const {
    auto lineas = Jugadas::Lineas(lista);
    if (lineas.empty()) return "";
    std::string l = lineas.back();
    size_t a = l.find_first_not_of(' ');
    return a == std::string::npos ? "" : l.substr(a);
}

} // namespace prueba
