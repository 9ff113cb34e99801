#include "core/move_filter.h"

#include "core/check_detection.h"
#include "core/environment.h"
#include "core/game_state.h"
#include "core/notation.h"

#include <string>

namespace Variables {

namespace {

inline bool EnRango(int32_t v, int32_t primero, int32_t ultimo) {
    return v >= primero && v <= ultimo;
}

// A square text the rules can read: two digits 1..8 in front. Anything else
// would index outside the board, so the move is refused untouched.
bool CasillaLegible(const std::string& s) {
    return s.size() >= 2 && s[0] >= '1' && s[0] <= '8' && s[1] >= '1' && s[1] <= '8';
}

void ReglaPeon(bool blanco) {
    const int df = blanco ? 1 : -1;
    const int filaDoble = blanco ? 2 : 7;
    const int filaAlPaso = blanco ? 5 : 4;
    const int32_t primero = blanco ? 7 : 1, ultimo = blanco ? 12 : 6;
    const int32_t destino = Tablero[ColDestino][FilaDestino];

    if (ColDestino == ColOrigen && FilaDestino == FilaOrigen + df && destino == 0) {
        MovimientoValido = true;
        AlPasoCaduca = true;
        return;
    }
    if (ColDestino == ColOrigen && FilaDestino == FilaOrigen + 2 * df && FilaOrigen == filaDoble &&
        Tablero[ColOrigen][FilaOrigen + df] == 0 && Tablero[ColOrigen][FilaOrigen + 2 * df] == 0) {
        MovimientoValido = true;
        AlPasoCaduca = false;
        AlPasoPosible = true;
        AlPasoCasilla = ColDestino * 10 + FilaDestino;
        return;
    }
    // En passant looks at no piece: the column digit and the flag are all.
    const std::string casilla = std::to_string(AlPasoCasilla);
    const bool columnaAlPaso = casilla[0] == char('0' + ColDestino);
    const int lados[2] = {blanco ? -1 : 1, blanco ? 1 : -1}; // Black tries the right first
    for (int lado : lados) {
        if (columnaAlPaso && ColOrigen + lado == ColDestino && FilaOrigen + df == FilaDestino &&
            AlPasoPosible && FilaOrigen == filaAlPaso) {
            MovimientoValido = true;
            AlPasoTexto = casilla;
            Tablero[ColDestino][FilaOrigen] = 0;
            return;
        }
    }
    for (int lado : {-1, 1}) {
        if (ColOrigen + lado == ColDestino && FilaOrigen + df == FilaDestino &&
            EnRango(FichaDestino, primero, ultimo)) {
            MovimientoValido = true;
            AlPasoCaduca = true;
            return;
        }
    }
}

// The mover's own king must not be left attacked; then the verdict on the
// opponent. False when the move is refused.
bool ReyPropioYVeredicto() {
    Ataque = false;
    if (MovimientoValido) { // then the copy holds the move, as the verdict's
        if (ReyPropioYVeredictoEnCopia()) return true;
    } else {
        ProbarReyPropio();
        if (!Ataque) {
            VeredictoRival();
            return true;
        }
    }
    MovimientoValido = false;
    Ataque = false;
    return false;
}

// Promotion of a pawn that reached its last row.
void Coronar(bool blanco) {
    if (SoloProbar) return;
    if (PiezaCoronacion != 0) {
        Tablero[ColOrigen][FilaOrigen] = 0;
        if (Tablero[ColDestino][FilaDestino] != 0)
            FichaComidaCoronacion = Tablero[ColDestino][FilaDestino];
        FichaMovida = PiezaCoronacion;
        Tablero[ColDestino][FilaDestino] = FichaMovida;
        if (dibujo().PointClickMarcado()) dibujo().MarcadorVisible(!blanco);
    } else {
        dibujo().MostrarCoronacion();
    }
    ReyPropioYVeredicto();
}

void Enroque(bool blanco) {
    if (!(MovimientoValido && EnroqueIntento)) return;
    const int fila = blanco ? 1 : 8;
    bool& torreA = blanco ? TorreA1Movida : TorreA8Movida;
    bool& torreH = blanco ? TorreH1Movida : TorreH8Movida;
    bool* derechos = blanco ? DerechosBlancas : DerechosNegras;
    const int32_t torre = blanco ? TorreB : TorreN;
    const int32_t rey = blanco ? ReyB : ReyN;

    if (SoloProbar) {
        if ((torreH && ColDestino == 7) || (torreA && ColDestino == 3)) MovimientoValido = false;
        return;
    }
    CopiarTablero();
    Jaque = false;
    Ataque = false;
    ProbarAtaque();
    if (Ataque) {
        MovimientoValido = false;
        EnroqueIntento = false;
        return;
    }
    // Rook and king land on fixed columns, wherever the king stood.
    auto enrocar = [&](int torreDesde, int torreHasta, int reyHasta, int tipo) {
        ColOrigen = torreDesde;
        FilaOrigen = fila;
        ColDestino = torreHasta;
        FilaDestino = fila;
        FichaMovida = torre;
        AplicarMovimiento();
        if (!listas().ListaPgnVisible() && !ReproduciendoPartida())
            dibujo().RedibujarTorreEnroque();
        derechos[1] = torreA;
        derechos[2] = torreH;
        ColOrigen = 5;
        FilaOrigen = fila;
        ColDestino = reyHasta;
        FilaDestino = fila;
        FichaMovida = rey;
        TipoEnroque = tipo;
        torreA = torreH = true;
        MovimientoValido = true;
    };
    if (ColDestino == ColOrigen + 2 && FilaOrigen == fila) {
        MovimientoValido = false;
        if (TableroCopia[ColOrigen + 1][fila] == 0 && TableroCopia[ColOrigen + 2][fila] == 0 &&
            !torreH)
            enrocar(8, 6, 7, 1);
    }
    if (ColDestino == ColOrigen - 2 && FilaOrigen == fila) {
        MovimientoValido = false;
        if (TableroCopia[ColOrigen - 1][fila] == 0 && TableroCopia[ColOrigen - 2][fila] == 0 &&
            !torreA)
            enrocar(1, 4, 3, 2);
    }
    ReyPropioYVeredicto();
}

// Rights are saved before a rook's flag changes. Both pairs take the white
// flags for a black rook: that is how the records have always been written.
void BanderasTorre() {
    const bool blanca = FichaMovida == TorreB && FilaOrigen == 1;
    const bool negra = FichaMovida == TorreN && FilaOrigen == 8;
    if ((!blanca && !negra) || (ColOrigen != 1 && ColOrigen != 8)) return;
    bool* pareja = blanca ? DerechosBlancas : DerechosNegras;
    pareja[1] = TorreA1Movida;
    pareja[2] = TorreH1Movida;
    bool& movida = blanca ? (ColOrigen == 1 ? TorreA1Movida : TorreH1Movida)
                          : (ColOrigen == 1 ? TorreA8Movida : TorreH8Movida);
    movida = true;
}

} // namespace

void InvertirMovimiento() {
    if (!dibujo().TableroInvertido()) return;
    ColOrigen = 9 - ColOrigen;
    FilaOrigen = 9 - FilaOrigen;
    ColDestino = 9 - ColDestino;
    FilaDestino = 9 - FilaDestino;
}

void AplicarMovimiento() {
    if (!EnCasilla(ColOrigen) || !EnCasilla(FilaOrigen) || !EnCasilla(ColDestino) ||
        !EnCasilla(FilaDestino))
        return;
    Tablero[ColOrigen][FilaOrigen] = 0;
    Tablero[ColDestino][FilaDestino] = FichaMovida;
}

void CancelarAlPaso() {
    AlPasoPosible = false;
    AlPasoCaduca = false;
}

void ReglaCaballo(int32_t primero, int32_t ultimo) {
    static constexpr int saltos[8][2] = {{1, 2}, {-1, 2}, {1, -2}, {-1, -2},
                                         {2, 1}, {2, -1}, {-2, 1}, {-2, -1}};
    for (const auto& s : saltos) {
        if (ColOrigen + s[0] != ColDestino || FilaOrigen + s[1] != FilaDestino) continue;
        int32_t v = Tablero[ColDestino][FilaDestino];
        if (v == 0 || EnRango(v, primero, ultimo)) MovimientoValido = true;
    }
    if (MovimientoValido) AlPasoCaduca = true;
}

void ReglaTorre(int32_t primero, int32_t ultimo) {
    static constexpr int lineas[4][2] = {{0, 1}, {0, -1}, {-1, 0}, {1, 0}};
    for (const auto& l : lineas) {
        const int dc = l[0], df = l[1];
        bool enLinea = dc == 0 ? (ColDestino == ColOrigen && (FilaDestino - FilaOrigen) * df > 0)
                               : (FilaDestino == FilaOrigen && (ColDestino - ColOrigen) * dc > 0);
        if (!enLinea) continue;
        bool terminado = false;
        for (int c = ColOrigen + dc, f = FilaOrigen + df; EnCasilla(c) && EnCasilla(f);
             c += dc, f += df) {
            int32_t v = Tablero[c][f];
            if (c == ColDestino && f == FilaDestino && EnRango(v, primero, ultimo)) {
                MovimientoValido = true;
                terminado = true;
                break;
            }
            if (v != 0) {
                MovimientoValido = false;
                terminado = true;
                break;
            }
            if (c == ColDestino && f == FilaDestino) break;
        }
        if (!terminado) MovimientoValido = true;
        AlPasoCaduca = true;
    }
}

void ReglaAlfil(int32_t primero, int32_t ultimo) {
    const int dc = ColDestino > ColOrigen ? 1 : ColDestino < ColOrigen ? -1 : 0;
    const int df = FilaDestino > FilaOrigen ? 1 : FilaDestino < FilaOrigen ? -1 : 0;
    if (dc == 0 || df == 0) return;
    int col = ColOrigen + dc;
    int fila = FilaOrigen;
    bool terminado = false, rehusado = false;
    for (; dc > 0 ? col <= ColDestino : col >= ColDestino; col += dc) {
        fila += df;
        if (col == ColDestino && fila == FilaDestino &&
            EnRango(Tablero[col][fila], primero, ultimo)) {
            MovimientoValido = true;
            terminado = true;
            break;
        }
        // A walk that leaves the board before its last column counts as legal;
        // downwards one row later, since row 0 exists and reads empty.
        if (df > 0 ? fila > 8 : fila < 0) {
            MovimientoValido = true;
            terminado = true;
            break;
        }
        if (Tablero[col][fila] != 0) {
            MovimientoValido = false;
            rehusado = true;
            terminado = true;
            break;
        }
    }
    if (!terminado && col == ColDestino + dc && fila == FilaDestino && !rehusado)
        MovimientoValido = true;
    AlPasoCaduca = true;
}

void ReglaRey(int32_t primero, int32_t ultimo) {
    for (int fila : {1, 8}) {
        if (FilaOrigen != fila) continue;
        if (ColOrigen < 6 && ColDestino == ColOrigen + 2 && FilaDestino == fila &&
            Tablero[ColOrigen + 1][fila] == 0 && Tablero[ColOrigen + 2][fila] == 0) {
            MovimientoValido = true;
            EnroqueIntento = true;
        }
        if (ColOrigen >= 4 && ColDestino == ColOrigen - 2 && FilaDestino == fila &&
            Tablero[ColOrigen - 1][fila] == 0 && Tablero[ColOrigen - 2][fila] == 0 &&
            Tablero[ColOrigen - 3][fila] == 0) {
            MovimientoValido = true;
            EnroqueIntento = true;
        }
    }
    static constexpr int vecinos[8][2] = {{0, -1},  {0, 1},  {1, 0},  {-1, 0},
                                          {-1, -1}, {1, -1}, {-1, 1}, {1, 1}};
    for (const auto& v : vecinos) {
        if (ColOrigen + v[0] != ColDestino || FilaOrigen + v[1] != FilaDestino) continue;
        int32_t d = Tablero[ColDestino][FilaDestino];
        if (d == 0 || EnRango(d, primero, ultimo)) MovimientoValido = true;
    }
}

void ReglasPieza() {
    MovimientoValido = false;
    if (!EsBlanca(FichaMovida) && !EsNegra(FichaMovida)) return;
    const bool blanco = EsBlanca(FichaMovida);
    const int32_t primero = blanco ? 7 : 1, ultimo = blanco ? 12 : 6; // the enemy's codes
    switch (blanco ? FichaMovida : FichaMovida - 6) {
    case PeonB:
        ReglaPeon(blanco);
        break;
    case TorreB:
        ReglaTorre(primero, ultimo);
        break;
    case CaballoB:
        ReglaCaballo(primero, ultimo);
        break;
    case AlfilB:
        ReglaAlfil(primero, ultimo);
        break;
    case DamaB:
        ReglaAlfil(primero, ultimo);
        ReglaTorre(primero, ultimo);
        break;
    case ReyB:
        ReglaRey(primero, ultimo);
        break;
    default:
        break;
    }
}

void VeredictoRival() {
    CopiarYJugar();
    VeredictoEnCopia();
}

void FiltroMovimiento() {
    if (!CasillaLegible(Origen) || !CasillaLegible(Destino)) {
        MovimientoValido = false;
        return;
    }
    ColOrigen = Origen[0] - '0';
    FilaOrigen = Origen[1] - '0';
    ColDestino = Destino[0] - '0';
    FilaDestino = Destino[1] - '0';
    FichaMovida = Tablero[ColOrigen][FilaOrigen];
    FichaDestino = Tablero[ColDestino][FilaDestino];

    // Over the network Turno is 0 while the peer moves, so there is no turn test.
    if (!Conectado &&
        ((EsBlanca(FichaMovida) && Turno == 2) || (EsNegra(FichaMovida) && Turno == 1))) {
        MovimientoValido = false;
        return;
    }
    ReglasPieza();
    if (!MovimientoValido) return;

    if (!ReyPropioYVeredicto()) return;

    if (FichaMovida == PeonB && FilaDestino == 8) Coronar(true);
    if (FichaMovida == PeonN && FilaDestino == 1) Coronar(false);
    if (FichaMovida == ReyB)
        Enroque(true);
    else if (FichaMovida == ReyN)
        Enroque(false);

    if (SoloProbar) return;

    BanderasTorre();
    if (MovimientoValido) EscribirJugada();
    // King moves save the pair after the record is written, so a king's undo
    // record holds the pair of the previous save.
    if (FichaMovida == ReyB && MovimientoValido && TipoEnroque == 0) {
        DerechosBlancas[1] = TorreA1Movida;
        DerechosBlancas[2] = TorreH1Movida;
        TorreA1Movida = TorreH1Movida = true;
    }
    if (FichaMovida == ReyN) {
        if (!MovimientoValido) return;
        if (TipoEnroque == 0) {
            DerechosBlancas[1] = TorreA1Movida;
            DerechosBlancas[2] = TorreH1Movida;
            TorreA8Movida = TorreH8Movida = true;
        }
    }
    if (!MovimientoValido) return;
    if (AlPasoCaduca && AlPasoPosible) CancelarAlPaso();
    AplicarMovimiento();
}

} // namespace Variables
