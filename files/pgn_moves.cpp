#include "files/pgn_moves.h"

#include "core/check_detection.h"
#include "core/environment.h"
#include "core/game_state.h"
#include "core/move_filter.h"
#include "core/move_sequence.h"
#include "files/pgn_scanner.h"
#include "platform/mensajes.h"

namespace Variables {

namespace {

using qa::kIconoInformacion;

int Columna(char c) {
    return (c >= 'a' && c <= 'h') ? c - 'a' + 1 : 0;
}
int Fila(char c) {
    return (c >= '1' && c <= '8') ? c - '0' : 0;
}
bool EsPiezaCoronacion(char c) {
    return c == 'Q' || c == 'B' || c == 'N' || c == 'R';
}
int32_t CodigoCoronacion(char letra, int color) {
    int32_t blanco = letra == 'Q'   ? DamaB
                     : letra == 'B' ? AlfilB
                     : letra == 'N' ? CaballoB
                                    : TorreB;
    return color == 2 ? blanco + 6 : blanco;
}
char Minuscula(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}
// Character n of the text, counted from 1; nothing past its end.
char En(const std::string& s, size_t n) {
    return n >= 1 && n <= s.size() ? s[n - 1] : '\0';
}

void Anotar() {
    if (PiezaCoronacion != 0) {
        ListaPgn::PgnJugadas.push_back(Origen + Destino + std::to_string(PiezaCoronacion));
        return;
    }
    char e[8]; // two squares of two digits each
    if (Origen.size() + Destino.size() > sizeof e) {
        ListaPgn::PgnJugadas.push_back(Origen + Destino);
        return;
    }
    size_t n = 0;
    for (const char c : Origen) e[n++] = c;
    for (const char c : Destino) e[n++] = c;
    ListaPgn::PgnJugadas.push_back(std::string_view(e, n));
}

void Fallo(const std::string& jugada) {
    dialogos().MostrarMensaje(qa::kTituloMensajes, dialogos().Mensaje(52) + " " + jugada,
                              kIconoInformacion, 0, 0);
    FallaPgn = true;
}

void Jugar(int colO, int filaO, int colD, int filaD) {
    Origen = TextoCasilla(colO, filaO);
    Destino = TextoCasilla(colD, filaD);
    FiltroMovimiento();
}

void Peon(const std::string& j, int color) {
    OtraCol.clear();
    OtraFila.clear();
    const size_t n = j.size();
    const bool x2 = En(j, 2) == 'x';
    int cd = 0, fd = 0;
    auto destino = [&](size_t a) {
        cd = Columna(En(j, a));
        fd = Fila(En(j, a + 1));
    };
    const bool empuje = n == 2 || (n > 2 && (En(j, 3) == '#' || En(j, 3) == '+'));
    char letra = '\0';
    if (n > 2) {
        if (EsPiezaCoronacion(En(j, 5)) && x2)
            letra = En(j, 5);
        else if (EsPiezaCoronacion(En(j, 3)) && !x2)
            letra = En(j, 3);
        else if (EsPiezaCoronacion(En(j, 6)) && x2)
            letra = En(j, 6);
        else if (EsPiezaCoronacion(En(j, 4)) && !x2)
            letra = En(j, 4);
    }
    if (empuje)
        destino(1);
    else if (n > 2 && x2)
        destino(3);
    else if (letra)
        destino(1);
    // A square off the board, or no pattern at all: nothing to play.
    if (!cd || !fd) return;

    int co = 0, fo = 0;
    const int paso = color == 2 ? -1 : 1;
    const int32_t peon = color == 2 ? PeonN : PeonB;
    if (empuje) {
        const int f1 = fd - paso, f2 = fd - 2 * paso;
        if (EnCasilla(f1) && Tablero[cd][f1] == peon) co = cd, fo = f1;
        const bool lejos = color == 2 ? fd < 7 : fd > 2;
        if (lejos && EnCasilla(f2) && Tablero[cd][f2] == peon && Tablero[cd][f1] == 0)
            co = cd, fo = f2;
    }
    if (x2) co = Columna(En(j, 1)), fo = fd - paso;
    if (letra) {
        if (x2)
            co = Columna(En(j, 1)), fo = fd - paso;
        else
            co = cd, fo = fd - paso;
        PiezaCoronacion = CodigoCoronacion(letra, color);
    }
    if (!EnCasilla(co) || !EnCasilla(fo)) return;
    OtraCol.assign(1, char('0' + co)); // on the board: one digit each
    OtraFila.assign(1, char('0' + fo));
    OtraPieza = false;
    Jugar(co, fo, cd, fd);
    if (!AlPasoTexto.empty()) {
        if (!MovimientoValido) {
            // The victim comes back as code 1 for Black's move and 2 for White's, on purpose.
            if (EnCasilla(ColDestino) && EnCasilla(FilaOrigen))
                Tablero[ColDestino][FilaOrigen] = color == 2 ? PeonB : TorreB;
        } else {
            SubComoFicha(AlPasoTexto);
        }
    }
    if (MovimientoValido) Anotar();
}

void Figura(const std::string& j, int color) {
    const char letra = Minuscula(j[0]);
    const int32_t blanco = letra == 'n'   ? CaballoB
                           : letra == 'r' ? TorreB
                           : letra == 'b' ? AlfilB
                                          : DamaB;
    const int32_t codigo = color == 2 ? blanco + 6 : blanco;
    auto buscar = [&](int c, int f) {
        if (letra == 'n') AlcanceCaballo(c, f, codigo);
        if (letra == 'r') AlcanceRecto(c, f, codigo);
        if (letra == 'b' || letra == 'q') AlcanceDiagonal(c, f, codigo);
        if (letra == 'q') AlcanceRecto(c, f, codigo);
    };

    OtraCol.clear();
    OtraFila.clear();
    // A rival found by an earlier search (the notation writer's too) must not
    // send a queen with a written origin to another square.
    OtraPieza = false;
    size_t a = En(j, 2) == 'x' ? 3 : 2;
    const char comoFila = En(j, a + 1);
    if ((comoFila >= 'a' && comoFila <= 'h') || comoFila == 'x') {
        if (En(j, 2) != 'x') a = 3;
        if (En(j, 3) == 'x') a = 4;
        const char segundo = En(j, 2);
        if (Columna(segundo)) OtraCol = std::to_string(Columna(segundo));
        if (Fila(segundo)) OtraFila = std::to_string(Fila(segundo));
        Turno = static_cast<int16_t>(color);
        for (int i = 1; i <= 8; ++i) {
            if (!OtraFila.empty() && Tablero[i][OtraFila[0] - '0'] == codigo) {
                OtraCol = std::to_string(i);
                break;
            }
            if (!OtraCol.empty() && Tablero[OtraCol[0] - '0'][i] == codigo) {
                OtraFila = std::to_string(i);
                break;
            }
        }
    }
    const int cd = Columna(En(j, a)), fd = Fila(En(j, a + 1));
    if (!cd || !fd) {
        Fallo(j);
        return;
    }
    if (OtraCol.empty()) buscar(cd, fd);
    if (letra == 'q' && OtraPieza && OtraCol.size() == 1 && OtraFila.size() == 1) {
        const int c = OtraCol[0] - '0', f = OtraFila[0] - '0';
        const int32_t guardada = TableroCopia[c][f];
        TableroCopia[c][f] = 0;
        OtraPieza = false;
        buscar(cd, fd);
        TableroCopia[c][f] = guardada;
    }
    Turno = static_cast<int16_t>(color);
    for (int intento = 0; intento < 2; ++intento) {
        // No origin could be told: the move is refused like any other.
        if (OtraCol.size() != 1 || OtraFila.size() != 1) break;
        const int co = OtraCol[0] - '0', fo = OtraFila[0] - '0';
        Jugar(co, fo, cd, fd);
        if (MovimientoValido) break;
        if (intento == 0) PgnCandidata(co, fo, codigo);
    }
    if (MovimientoValido) {
        Anotar();
        Turno = 0;
    } else {
        Fallo(j);
    }
}

void Enroque(const std::string& j, int color) {
    std::string m;
    for (char c : j) m += Minuscula(c);
    const bool corto = m == "0-0+" || m == "0-0" || m == "o-o+" || m == "o-o";
    const bool largo = m == "0-0-0+" || m == "0-0-0" || m == "o-o-o+" || m == "o-o-o";
    if (!corto && !largo) return;
    const int fila = color == 2 ? 8 : 1;
    OtraPieza = false;
    Jugar(5, fila, corto ? 7 : 3, fila);
    if (MovimientoValido)
        Anotar();
    else if (corto)
        Fallo(j); // a refused long castling goes unreported, as a pawn move does
}

} // namespace

void PgnCandidata(int col, int fila, int32_t pieza) {
    for (int c = 1; c <= 8; ++c)
        for (int f = 1; f <= 8; ++f)
            if (Tablero[c][f] == pieza && (c != col || f != fila)) {
                OtraCol = std::to_string(c);
                OtraFila = std::to_string(f);
            }
}

void MoverRey(int col, int fila, int color) {
    static constexpr int pasos[8][2] = {{0, -1}, {0, 1},   {-1, 0}, {1, 0},
                                        {-1, 1}, {-1, -1}, {1, 1},  {1, -1}};
    const int32_t rey = color == 2 ? ReyN : ReyB;
    int co = 0, fo = 0;
    for (const auto& p : pasos) {
        const int c = col + p[0], f = fila + p[1];
        if (EnCasilla(c) && EnCasilla(f) && Tablero[c][f] == rey) co = c, fo = f;
    }
    if (!co) return;
    Jugar(co, fo, col, fila);
    if (MovimientoValido) Anotar();
}

void ComFicha(const std::string& jugada, int color) {
    CopiarTablero();
    if (jugada.empty()) return;
    const char primero = jugada[0];
    if (primero >= 'a' && primero <= 'h') {
        Peon(jugada, color);
    } else {
        const char letra = Minuscula(primero);
        if (letra == 'n' || letra == 'r' || letra == 'b' || letra == 'q') {
            Figura(jugada, color);
        } else if (letra == 'k') {
            const size_t a = En(jugada, 2) == 'x' ? 3 : 2;
            const int c = Columna(En(jugada, a)), f = Fila(En(jugada, a + 1));
            if (c && f) MoverRey(c, f, color);
        } else {
            Enroque(jugada, color);
        }
    }
    MovimientoAnulado();
}

} // namespace Variables
