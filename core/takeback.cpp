#include "core/takeback.h"

#include "core/environment.h"
#include "core/game_state.h"
#include "core/move_list.h"

#include <string>

namespace Variables {

namespace {

// Rights come back by the digit: 0 sets both flags, the others clear.
void RestaurarDerechos(int32_t rey, int32_t digito) {
    bool& a = rey == ReyB ? TorreA1Movida : TorreA8Movida;
    bool& h = rey == ReyB ? TorreH1Movida : TorreH8Movida;
    if (digito == 0) {
        a = h = true;
        return;
    }
    if (digito & 1) a = false;
    if (digito & 2) h = false;
}

bool Digito18(char ch) {
    return ch >= '1' && ch <= '8';
}

void Deshacer(const std::string& s) {
    if (s.size() < 4 || !Digito18(s[0]) || !Digito18(s[1]) || !Digito18(s[2]) || !Digito18(s[3]))
        return;
    const int c1 = s[0] - '0', r1 = s[1] - '0', c2 = s[2] - '0', r2 = s[3] - '0';
    const char tipo = s.size() > 4 ? s[4] : '\0';
    const std::string resto = s.size() > 5 ? s.substr(5) : std::string();

    if (s.size() == 4 || tipo == 't') {
        if (s.size() > 4) {
            const int32_t pieza = Tablero[c2][r2];
            if (pieza == ReyB || pieza == ReyN) RestaurarDerechos(pieza, ValorTexto(resto));
        }
        Tablero[c1][r1] = Tablero[c2][r2];
        Tablero[c2][r2] = 0;
    } else if (tipo == 'x') {
        const size_t t = resto.find('t');
        Tablero[c1][r1] = Tablero[c2][r2];
        Tablero[c2][r2] = ValorTexto(resto.substr(0, t));
        if (t != std::string::npos) {
            const int32_t pieza = Tablero[c1][r1];
            if (pieza == ReyB || pieza == ReyN)
                RestaurarDerechos(pieza, ValorTexto(resto.substr(t + 1)));
        }
    } else if (tipo == 'e') {
        if (c2 == 7 && r2 == 8) Tablero[6][8] = 0, Tablero[8][8] = TorreN;
        if (c2 == 3 && r2 == 8) Tablero[4][8] = 0, Tablero[1][8] = TorreN;
        if (c2 == 7 && r2 == 1) Tablero[6][1] = 0, Tablero[8][1] = TorreB;
        if (c2 == 3 && r2 == 1) Tablero[4][1] = 0, Tablero[1][1] = TorreB;
        const int32_t rey = Tablero[c2][r2];
        Tablero[c1][r1] = rey;
        Tablero[c2][r2] = 0;
        if (rey == ReyB || rey == ReyN) RestaurarDerechos(rey, ValorTexto(resto));
    } else if (tipo == 'p') {
        const int32_t pieza = Tablero[c2][r2];
        Tablero[c1][r1] = pieza;
        Tablero[c2][r2] = 0;
        if (!resto.empty() && Digito18(resto.front()) && Digito18(resto.back()))
            Tablero[resto.front() - '0'][resto.back() - '0'] = pieza != PeonB ? PeonB : PeonN;
        AlPasoPosible = true;
        AlPasoCasilla = ValorTexto(resto);
        AlPasoCaduca = true;
    } else if (tipo == 'c') {
        // The side now to move tells whose pawn comes back.
        Tablero[c1][r1] = Turno == 2 ? PeonB : PeonN;
        const size_t x = resto.find('x');
        Tablero[c2][r2] = x == std::string::npos ? 0 : ValorTexto(resto.substr(x + 1));
    } else {
        return;
    }
    BorrarUltimaJugada();
    dibujo().RedibujarTablero();
}

} // namespace

void RetrocesoFuncion() {
    Retrocediendo = true;
    const std::string s = Jugadas::List1.empty() ? std::string() : Jugadas::List1.back();
    if (s == "0000") return;
    Deshacer(s);
    Retrocediendo = false;
    if (!AlPasoFen.empty() && Jugadas::List1.empty()) {
        const char letra = AlPasoFen[0];
        const int col = (letra >= 'a' && letra <= 'h') ? letra - 'a' + 1 : 0;
        const char f = AlPasoFen.size() > 1 ? AlPasoFen[1] : '\0';
        const int fila = f == '3' ? 4 : f == '6' ? 5 : 0;
        if (col && fila) {
            AlPasoCasilla = col * 10 + fila;
            AlPasoPosible = AlPasoCaduca = true;
        } else {
            AlPasoCasilla = 0;
            AlPasoPosible = AlPasoCaduca = false;
        }
    }
    if (Turno == 1)
        Turno = 2;
    else if (Turno == 2)
        Turno = 1;
}

void BorrarUltimaJugada() {
    for (int k = 1; k <= 5; ++k) {
        Jugadas::TextoJugadas& t = Jugadas::List[k];
        // At most 30 characters, back to the line feed that ends the line before.
        for (int quitados = 0; quitados < 30 && !t.empty(); ++quitados) {
            if (quitados > 0 && t.back() == '\n') break;
            t.pop_back();
        }
    }
    if (MedioTurno) {
        --NumeroJugada;
        MedioTurno = false;
    } else {
        MedioTurno = true;
    }
    dibujo().OcultarMarcasUltimaJugada();
    if (!Jugadas::List1.empty()) Jugadas::List1.pop_back();
    dibujo().ListasCambiadas();
}

} // namespace Variables
