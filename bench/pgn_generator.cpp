#include "pgn_generator.h"

#include "core/environment.h"
#include "core/game_state.h"
#include "core/local_move.h"
#include "core/move_filter.h"
#include "core/move_list.h"
#include "files/pgn_moves.h"
#include "files/pgn_scanner.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <random>

using namespace Variables;

namespace {

std::string Sq(int c, int f) {
    return std::to_string(c) + std::to_string(f);
}

// Only squares the piece could reach by its shape are put to the filter.
bool Forma(int32_t p, int dc, int df) {
    const int ac = dc < 0 ? -dc : dc, af = df < 0 ? -df : df;
    switch (p > 6 ? p - 6 : p) {
    case 1:
        return ac <= 1 && af >= 1 && af <= 2;
    case 2:
        return ac == 0 || af == 0;
    case 3:
        return (ac == 1 && af == 2) || (ac == 2 && af == 1);
    case 4:
        return ac == af;
    case 5:
        return ac == 0 || af == 0 || ac == af;
    default:
        return ac <= 2 && af <= 1;
    }
}

bool Probar(int c, int f, int c2, int f2) {
    int32_t copia[9][9];
    std::memcpy(copia, Tablero, sizeof copia); // a probed en passant takes the victim off
    const bool legal = ProbarJugada(Sq(c, f), Sq(c2, f2));
    std::memcpy(Tablero, copia, sizeof copia);
    return legal;
}

// The English list's moves in standard form: "#" for mate, no "ep".
std::string Estandar(std::string s) {
    const size_t ep = s.find("ep");
    if (ep != std::string::npos) s.erase(ep, 2);
    const size_t mate = s.find("++");
    if (mate != std::string::npos) s.replace(mate, 2, "#");
    return s;
}

const char* kNombres[] = {"Alvarez, Pedro",  "Berg, Anna",     "Chen, Wei",      "Dubois, Marc",
                          "Eriksen, Lars",   "Fischer, Karl",  "Garcia, Lucia",  "Horvath, Peter",
                          "Ivanov, Sergei",  "Jensen, Mette",  "Kowalski, Jan",  "Lopez, Maria",
                          "Mueller, Thomas", "Nakamura, Hiro", "Oliveira, Joao", "Petrov, Ivan",
                          "Quinn, Sean",     "Rossi, Marco",   "Schmidt, Eva",   "Tanaka, Yuki"};
const char* kSitios[] = {"Madrid ESP",  "Wijk aan Zee NED", "Reykjavik ISL", "Moscow RUS",
                         "Linares ESP", "Dortmund GER",     "Biel SUI",      "Hastings ENG"};
const char* kComentarios[] = {"{The main line.}",
                              "{A novelty.}",
                              "{Better was Nf3.}",
                              "{Time trouble.}",
                              "$1",
                              "$2",
                              "$14",
                              "{White resigns later.}"};

} // namespace

std::vector<std::string> PartidaAlAzar(uint32_t semilla) {
    std::mt19937 azar(semilla);
    RestablecerTodo();
    NuevaPartidaLocal();
    const int largo = 40 + static_cast<int>(azar() % 140);
    for (int ply = 0; ply < largo && Turno != 0; ++ply) {
        // Shapes first, then the filter on them in random order until one plays.
        std::vector<std::string> formas;
        for (int c = 1; c <= 8; ++c)
            for (int f = 1; f <= 8; ++f) {
                if (!EsFichaPropia(c, f)) continue;
                for (int c2 = 1; c2 <= 8; ++c2)
                    for (int f2 = 1; f2 <= 8; ++f2)
                        if ((c2 != c || f2 != f) && Forma(Tablero[c][f], c2 - c, f2 - f))
                            formas.push_back(Sq(c, f) + Sq(c2, f2));
            }
        std::shuffle(formas.begin(), formas.end(), azar);
        std::string m;
        for (const auto& x : formas)
            if (Probar(x[0] - '0', x[1] - '0', x[2] - '0', x[3] - '0')) {
                m = x;
                break;
            }
        if (m.empty()) break;
        const int32_t movida = Tablero[m[0] - '0'][m[1] - '0'];
        const bool corona = (movida == PeonB && m[3] == '8') || (movida == PeonN && m[3] == '1');
        const int32_t pieza =
            corona ? static_cast<int32_t>(2 + azar() % 4) + (Turno == 2 ? 6 : 0) : 0;
        SoltarFicha(m.substr(0, 2), m.substr(2, 2), pieza);
    }
    std::vector<std::string> san;
    for (const auto& l : Jugadas::Lineas(3)) {
        const size_t blanco = l.find_last_of(' ');
        san.push_back(Estandar(blanco == std::string::npos ? l : l.substr(blanco + 1)));
    }
    // Kept only if the reader takes every move back.
    VariablesCero();
    PonerFichas();
    Turno = 0;
    ListaPgn::PgnJugadas.clear();
    FallaPgn = false;
    for (size_t i = 0; i < san.size(); ++i) ComFicha(san[i], i % 2 ? 2 : 1);
    if (FallaPgn || ListaPgn::PgnJugadas.size() != san.size()) san.clear();
    return san;
}

bool GenerarColeccion(const std::string& ruta, uint64_t bytes) {
    std::vector<std::vector<std::string>> partidas;
    for (uint32_t s = 1; partidas.size() < 300 && s < 3000; ++s) {
        auto p = PartidaAlAzar(s);
        if (!p.empty()) partidas.push_back(std::move(p));
    }
    if (partidas.empty()) return false;
    FILE* f = std::fopen(ruta.c_str(), "wb");
    if (!f) return false;
    std::mt19937 azar(11);
    uint64_t escritos = 0;
    for (uint64_t n = 0; escritos < bytes; ++n) {
        const auto& p = partidas[azar() % partidas.size()];
        const char* resultados[] = {"1-0", "0-1", "1/2-1/2", "*"};
        const char* res = resultados[azar() % 4];
        std::string t;
        t += "[Event \"Open " + std::to_string(1950 + azar() % 75) + "\"]\n";
        t += std::string("[Site \"") + kSitios[azar() % 8] + "\"]\n";
        t += "[Date \"" + std::to_string(1950 + azar() % 75) + "." +
             std::to_string(10 + azar() % 3) + "." + std::to_string(10 + azar() % 19) + "\"]\n";
        t += "[Round \"" + std::to_string(1 + azar() % 13) + "\"]\n";
        t += std::string("[White \"") + kNombres[azar() % 20] + "\"]\n";
        t += std::string("[Black \"") + kNombres[azar() % 20] + "\"]\n";
        t += std::string("[Result \"") + res + "\"]\n";
        t += "[WhiteElo \"" + std::to_string(1800 + azar() % 1000) + "\"]\n";
        t += "[BlackElo \"" + std::to_string(1800 + azar() % 1000) + "\"]\n";
        t += "[ECO \"" + std::string(1, static_cast<char>('A' + azar() % 5)) +
             std::to_string(10 + azar() % 90) + "\"]\n";
        t += "[PlyCount \"" + std::to_string(p.size()) + "\"]\n\n";
        std::string linea;
        for (size_t i = 0; i < p.size(); ++i) {
            std::string pieza = i % 2 == 0 ? std::to_string(i / 2 + 1) + ". " + p[i] : p[i];
            if (azar() % 25 == 0) pieza += std::string(" ") + kComentarios[azar() % 8];
            if (linea.size() + pieza.size() + 1 > 79) {
                t += linea + "\n";
                linea.clear();
            }
            linea += (linea.empty() ? "" : " ") + pieza;
        }
        t += linea + (linea.empty() ? "" : " ") + res + "\n\n";
        if (std::fwrite(t.data(), 1, t.size(), f) != t.size()) {
            std::fclose(f);
            return false;
        }
        escritos += t.size();
    }
    return std::fclose(f) == 0;
}
