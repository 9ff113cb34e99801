#include "core/check_detection.h"

#include "core/game_state.h"

#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace Variables {

namespace {

struct Paso {
    int dc, df;
};
// Ray orders decide the oddities of the search; they must not change.
constexpr Paso kRectas[4] = {{0, 1}, {0, -1}, {-1, 0}, {1, 0}}; // north, south, west, east
constexpr Paso kDiagonales[4] = {{1, 1}, {1, -1}, {-1, -1}, {-1, 1}};
constexpr Paso kCaballo[8] = {{1, 2}, {-1, 2}, {1, -2}, {-1, -2},
                              {2, 1}, {2, -1}, {-2, 1}, {-2, -1}};
constexpr Paso kRey[8] = {{0, -1}, {0, 1}, {1, 0}, {-1, 0}, {-1, -1}, {1, -1}, {-1, 1}, {1, 1}};

constexpr bool Dentro(int c, int f) {
    return c >= 1 && c <= 8 && f >= 1 && f <= 8;
}
inline bool EsPieza(int32_t v) {
    return v != 0 && v != -1;
}
inline int32_t& Copia(int c, int f) {
    return TableroCopia[c][f];
}

// Squares a ray takes from (c, f) before it leaves the board.
inline int PasosHastaBorde(int c, int f, const Paso& p) {
    if (!Dentro(c, f)) {
        int n = 0;
        while (Dentro(c + (n + 1) * p.dc, f + (n + 1) * p.df)) ++n;
        return n;
    }
    int n = p.dc > 0 ? 8 - c : p.dc < 0 ? c - 1 : 8;
    int m = p.df > 0 ? 8 - f : p.df < 0 ? f - 1 : 8;
    return n < m ? n : m;
}
// TableroCopia as one row of cells: (c, f) is cell c * 9 + f.
inline int32_t* const kCeldas = &TableroCopia[0][0];
inline int Salto(const Paso& p) {
    return p.dc * 9 + p.df;
}

// Per square (bit (column - 1) * 8 + (row - 1)): the cells of TableroCopia
// (column * 9 + row) along each ray, ending at cell 0, which is off the board.
struct Alrededor {
    uint8_t rayo[8][8]; // north, south, west, east, then the diagonals in walker order
};
constexpr auto kAlrededor = [] {
    struct Tabla {
        Alrededor a[64];
    } t{};
    for (int c = 1; c <= 8; ++c)
        for (int f = 1; f <= 8; ++f)
            for (int i = 0; i < 8; ++i) {
                const Paso& p = i < 4 ? kRectas[i] : kDiagonales[i - 4];
                for (int n = 1; Dentro(c + n * p.dc, f + n * p.df); ++n)
                    t.a[(c - 1) * 8 + (f - 1)].rayo[i][n - 1] =
                        uint8_t((c + n * p.dc) * 9 + f + n * p.df);
            }
    return t;
}();

// Walks rays from a piece, marking touched empty squares, until the king sought or a piece.
void AtaqueRayos(int col, int fila, int32_t rey, const Paso* pasos, int n) {
    if (Dentro(col, fila)) {
        const Alrededor& a = kAlrededor.a[(col - 1) * 8 + (fila - 1)];
        const int primero = pasos == kRectas ? 0 : 4;
        for (int i = 0; i < n; ++i)
            for (const uint8_t* p = a.rayo[primero + i]; *p; ++p) {
                const int32_t v = kCeldas[*p];
                if (v == rey) {
                    Ataque = true;
                    break;
                }
                if (EsPieza(v)) break;
                kCeldas[*p] = -1;
            }
        return;
    }
    for (int i = 0; i < n; ++i) {
        const int salto = Salto(pasos[i]);
        for (int k = PasosHastaBorde(col, fila, pasos[i]), q = col * 9 + fila; k > 0; --k) {
            q += salto;
            const int32_t v = kCeldas[q];
            if (v == rey) {
                Ataque = true;
                break;
            }
            if (EsPieza(v)) break;
            kCeldas[q] = -1;
        }
    }
}

void AtaqueSaltos(int col, int fila, int32_t rey, const Paso* pasos) {
    for (int i = 0; i < 8; ++i) {
        int c = col + pasos[i].dc, f = fila + pasos[i].df;
        if (!Dentro(c, f)) continue;
        int32_t& v = Copia(c, f);
        if (v == rey)
            Ataque = true;
        else if (v == 0 || v == -1)
            v = -1;
    }
}

void AtaquePeon(int col, int fila, int df, int32_t rey) {
    int f = fila + df;
    if (f < 1 || f > 8) return;
    for (int c : {col - 1, col + 1})
        if (c >= 1 && c <= 8 && Copia(c, f) == 0) Copia(c, f) = -1;
    for (int c : {col - 1, col + 1})
        if (c >= 1 && c <= 8 && Copia(c, f) == rey) Ataque = true;
}

// The attack walkers of one piece of the attacking side.
void AtacarDesde(int c, int f, int32_t pieza) {
    switch (pieza) {
    case PeonB:
        AtaquePeonBlanco(c, f);
        break;
    case TorreB:
        AtaqueRecto(c, f, ReyN);
        break;
    case CaballoB:
        AtaqueCaballo(c, f, ReyN);
        break;
    case AlfilB:
        AtaqueDiagonal(c, f, ReyN);
        break;
    case DamaB:
        AtaqueRecto(c, f, ReyN);
        AtaqueDiagonal(c, f, ReyN);
        break;
    case ReyB:
        AtaqueRey(c, f, ReyN);
        break;
    case PeonN:
        AtaquePeonNegro(c, f);
        break;
    case TorreN:
        AtaqueRecto(c, f, ReyB);
        break;
    case CaballoN:
        AtaqueCaballo(c, f, ReyB);
        break;
    case AlfilN:
        AtaqueDiagonal(c, f, ReyB);
        break;
    case DamaN:
        AtaqueRecto(c, f, ReyB);
        AtaqueDiagonal(c, f, ReyB);
        break;
    case ReyN:
        AtaqueRey(c, f, ReyB);
        break;
    default:
        break;
    }
}

// Every piece of one colour attacks, rows outer and columns inner.
void EscanearAtaque(bool blancas) {
    for (int f = 1; f <= 8; ++f)
        for (int c = 1; c <= 8; ++c) {
            int32_t p = Copia(c, f);
            if (blancas ? EsBlanca(p) : EsNegra(p)) AtacarDesde(c, f, p);
        }
}

// Sets of squares, bit (column - 1) * 8 + (row - 1).
constexpr uint64_t Bit(int c, int f) {
    return uint64_t{1} << ((c - 1) * 8 + (f - 1));
}
// Per square: the squares along each ray (in Alrededor's order), the knight's
// and king's squares, and where a white (0) or black (1) pawn takes it from.
struct Alcances {
    uint64_t rayo[64][8];
    uint64_t lineas[64], diagonales[64]; // the first four rays, and the last four, together
    uint64_t caballo[64], rey[64];
    uint64_t peon[2][64];
};
constexpr auto kAlcances = [] {
    Alcances t{};
    for (int c = 1; c <= 8; ++c)
        for (int f = 1; f <= 8; ++f) {
            const int s = (c - 1) * 8 + (f - 1);
            for (int i = 0; i < 8; ++i) {
                if (Dentro(c + kCaballo[i].dc, f + kCaballo[i].df))
                    t.caballo[s] |= Bit(c + kCaballo[i].dc, f + kCaballo[i].df);
                if (Dentro(c + kRey[i].dc, f + kRey[i].df))
                    t.rey[s] |= Bit(c + kRey[i].dc, f + kRey[i].df);
                const Paso& p = i < 4 ? kRectas[i] : kDiagonales[i - 4];
                for (int n = 1; Dentro(c + n * p.dc, f + n * p.df); ++n)
                    t.rayo[s][i] |= Bit(c + n * p.dc, f + n * p.df);
                (i < 4 ? t.lineas : t.diagonales)[s] |= t.rayo[s][i];
            }
            for (int cc : {c - 1, c + 1}) {
                if (Dentro(cc, f - 1)) t.peon[0][s] |= Bit(cc, f - 1);
                if (Dentro(cc, f + 1)) t.peon[1][s] |= Bit(cc, f + 1);
            }
        }
    return t;
}();

// TableroCopia as sets of squares, one per value: the copy narrowed to a
// byte a square, saturated, which keeps apart every value that decides
// anything. The sets follow the copy square by square: from one test to the
// next only a few squares change.
struct Mapa {
    alignas(16) int8_t bytes[64]; // (column - 1) * 8 + (row - 1)
    uint64_t con[15];             // value v at index v + 1 for -1 to 12; the rest at 14
};
Mapa mapa;
bool mapaTomado = false;

inline int Indice(int8_t v) {
    return v >= -1 && v <= 12 ? v + 1 : 14;
}

const Mapa& MapaDeLaCopia() {
    alignas(16) int8_t nuevo[64];
    uint64_t cambiadas = ~uint64_t{0};
#ifdef __SSE2__
    auto columna = [](int c) {
        const auto* p = reinterpret_cast<const __m128i*>(&TableroCopia[c][1]);
        return _mm_packs_epi32(_mm_loadu_si128(p), _mm_loadu_si128(p + 1));
    };
    if (mapaTomado) cambiadas = 0;
    for (int k = 0; k < 4; ++k) {
        const __m128i b = _mm_packs_epi16(columna(2 * k + 1), columna(2 * k + 2));
        _mm_store_si128(reinterpret_cast<__m128i*>(nuevo) + k, b);
        if (!mapaTomado) continue;
        const __m128i viejo = _mm_load_si128(reinterpret_cast<const __m128i*>(mapa.bytes) + k);
        cambiadas |= uint64_t(~unsigned(_mm_movemask_epi8(_mm_cmpeq_epi8(b, viejo))) & 0xFFFFu)
                     << (16 * k);
    }
#else
    if (mapaTomado) cambiadas = 0;
    for (int c = 1; c <= 8; ++c)
        for (int f = 1; f <= 8; ++f) {
            const int32_t v = TableroCopia[c][f];
            const int i = (c - 1) * 8 + (f - 1);
            nuevo[i] = int8_t(v < -128 ? -128 : v > 127 ? 127 : v);
            if (mapaTomado && nuevo[i] != mapa.bytes[i]) cambiadas |= uint64_t{1} << i;
        }
#endif
    if (!mapaTomado) {
        for (uint64_t& m : mapa.con) m = 0;
        for (int i = 0; i < 64; ++i) mapa.con[Indice(nuevo[i])] |= uint64_t{1} << i;
        mapaTomado = true;
    } else {
        for (; cambiadas; cambiadas &= cambiadas - 1) {
            const int i = __builtin_ctzll(cambiadas);
            mapa.con[Indice(mapa.bytes[i])] &= ~(uint64_t{1} << i);
            mapa.con[Indice(nuevo[i])] |= uint64_t{1} << i;
        }
    }
    std::memcpy(mapa.bytes, nuevo, sizeof nuevo);
    return mapa;
}

// The pieces of one colour whose walkers reach square s: those that would
// hit a king there, or mark it if it is empty. `piezas` are the squares that
// stop a ray, and the pieces on `fuera` take no part. Looking out from the
// square finds the same pieces as walking out from every piece: a ray ends at
// the first square that holds anything but 0 or -1 from either side.
uint64_t Alcanzan(const Mapa& m, int s, bool blancas, uint64_t piezas, uint64_t fuera = 0) {
    const uint64_t* con = m.con + (blancas ? PeonB : PeonN) + 1; // from the colour's pawn
    const uint64_t dama = con[DamaB - 1];
    const uint64_t* rayo = kAlcances.rayo[s];
    // The nearest square of a ray: its lowest set bit towards higher bits,
    // its highest towards lower ones; nothing for an empty ray.
    auto bajo = [&](int d) {
        const uint64_t t = rayo[d] & piezas;
        return t & (0 - t);
    };
    auto alto = [&](int d) {
        const uint64_t t = rayo[d] & piezas;
        return (uint64_t{1} << (63 - __builtin_clzll(t | 1))) & t;
    };
    const uint64_t torres = (con[TorreB - 1] | dama) & ~fuera;
    const uint64_t alfiles = (con[AlfilB - 1] | dama) & ~fuera;
    uint64_t r = ((kAlcances.peon[blancas ? 0 : 1][s] & con[PeonB - 1]) |
                  (kAlcances.caballo[s] & con[CaballoB - 1]) | (kAlcances.rey[s] & con[ReyB - 1])) &
                 ~fuera;
    // The rays are followed only where such a piece stands on their lines.
    if (kAlcances.lineas[s] & torres) r |= (bajo(0) | alto(1) | alto(2) | bajo(3)) & torres;
    if (kAlcances.diagonales[s] & alfiles) r |= (bajo(4) | bajo(5) | alto(6) | alto(7)) & alfiles;
    return r;
}

// The squares of TableroCopia that hold `rey`, a king's code.
uint64_t Reyes(const Mapa& m, int32_t rey) {
    return m.con[rey + 1];
}
// The squares that stop a ray.
uint64_t Piezas(const Mapa& m) {
    return ~(m.con[0] | m.con[1]);
}

// The pieces of one colour that would hit any square of the map holding `rey`.
uint64_t PiezasQueAtacan(const Mapa& m, bool blancas, int32_t rey) {
    uint64_t piezas = 0;
    for (uint64_t reyes = Reyes(m, rey); reyes; reyes &= reyes - 1)
        piezas |= Alcanzan(m, __builtin_ctzll(reyes), blancas, Piezas(m));
    return piezas;
}
uint64_t PiezasQueAtacan(bool blancas, int32_t rey) {
    return PiezasQueAtacan(MapaDeLaCopia(), blancas, rey);
}

enum class Tras { Sigue, FinRayo, Sale };
enum class Clase { Recta, Diagonal, Salto };

bool EsCodigoPropio(Clase clase, int32_t objetivo) {
    switch (clase) {
    case Clase::Recta:
        return objetivo == 2 || objetivo == 8 || objetivo == 5 || objetivo == 11;
    case Clase::Diagonal:
        return objetivo == 4 || objetivo == 10 || objetivo == 5 || objetivo == 11;
    case Clase::Salto:
        return objetivo == 3 || objetivo == 9;
    }
    return false;
}

int32_t PiezaDefensora(Clase clase) {
    bool blanco = EsBlanca(FichaMovida);
    switch (clase) {
    case Clase::Recta:
        return blanco ? TorreN : TorreB;
    case Clase::Diagonal:
        return blanco ? AlfilN : AlfilB;
    case Clase::Salto:
        return blanco ? CaballoN : CaballoB;
    }
    return 0;
}

// What a reach walker from (pc, pf) does on a square (c, f) that holds its target.
Tras Alcanzado(int pc, int pf, int c, int f, int32_t objetivo, Clase clase, bool oeste) {
    if (BuscandoCaptura) {
        if (Atacantes.size() == 2 && Atacantes[0] == char('0' + c) &&
            Atacantes[1] == char('0' + f)) {
            Capturadores += TextoCasilla(pc, pf);
            Mate = false;
        }
        return Tras::FinRayo;
    }
    if (EsCodigoPropio(clase, objetivo)) {
        OtraCol.assign(1, char('0' + c)); // a square of the board: one digit each
        OtraFila.assign(1, char('0' + f));
        OtraPieza = true;
        return Tras::Sale;
    }
    if (objetivo == 0) {
        Mate = false;
        return Tras::FinRayo;
    }
    if (objetivo == -1) {
        if (oeste) {
            // Nothing is moved before the scan, so the checker is still found
            // and the walk goes on; only its marks are left behind.
            Atacantes.clear();
            BuscarAtacantes();
            if (Atacantes.empty()) {
                Mate = false;
                return Tras::FinRayo;
            }
            return Tras::Sigue;
        }
        Copia(c, f) = PiezaDefensora(clase);
        Mate = false;
        return Tras::FinRayo;
    }
    EsPrimerAtacante(c, f);
    if (CasillaCoincide) Mate = false;
    return Tras::FinRayo;
}

void AlcanceRayos(int col, int fila, int32_t objetivo, const Paso* pasos, int n, Clase clase) {
    if (Dentro(col, fila)) {
        const Alrededor& a = kAlrededor.a[(col - 1) * 8 + (fila - 1)];
        const int primero = pasos == kRectas ? 0 : 4;
        for (int i = 0; i < n; ++i) {
            const bool oeste = clase == Clase::Recta && i == 2;
            for (const uint8_t* p = a.rayo[primero + i]; *p; ++p) {
                const int32_t v = kCeldas[*p];
                if (v == objetivo) {
                    Tras t = Alcanzado(col, fila, *p / 9, *p % 9, objetivo, clase, oeste);
                    if (t == Tras::Sale) return;
                    if (t == Tras::FinRayo) break;
                    continue;
                }
                if (EsPieza(v)) break;
            }
        }
        return;
    }
    for (int i = 0; i < n; ++i) {
        const bool oeste = clase == Clase::Recta && i == 2;
        const int salto = Salto(pasos[i]);
        int c = col, f = fila;
        for (int k = PasosHastaBorde(col, fila, pasos[i]), q = col * 9 + fila; k > 0; --k) {
            q += salto;
            c += pasos[i].dc;
            f += pasos[i].df;
            const int32_t v = kCeldas[q];
            if (v == objetivo) {
                Tras t = Alcanzado(col, fila, c, f, objetivo, clase, oeste);
                if (t == Tras::Sale) return;
                if (t == Tras::FinRayo) break;
                continue;
            }
            if (EsPieza(v)) break;
        }
    }
}

// A pawn push tried on the copy: it counts only if it leaves no attacker.
bool ProbarAvance(int col, int fila, int filaNueva, int32_t peon) {
    Atacantes.clear();
    Ataque = false;
    Copia(col, fila) = 0;
    Copia(col, filaNueva) = peon;
    BuscarAtacantes();
    if (Atacantes.empty()) {
        Mate = false;
        return true;
    }
    Copia(col, fila) = peon;
    Copia(col, filaNueva) = -1;
    return false;
}

void AvancePeon(int col, int fila, int32_t objetivo, int df, int filaInicio, int32_t peon) {
    int f1 = fila + df;
    if (f1 >= 1 && f1 <= 8 && Copia(col, f1) == objetivo) {
        if (ProbarAvance(col, fila, f1, peon)) return;
    }
    int f2 = fila + 2 * df;
    if (fila == filaInicio && Copia(col, f1) == 0 && Copia(col, f2) == 0 &&
        Copia(col, f2) == objetivo)
        ProbarAvance(col, fila, f2, peon);
}

void CapturaPeon(int col, int fila, int32_t codigo, int df, int filaAlPaso, int32_t victima) {
    int f = fila + df;
    if (f >= 1 && f <= 8) {
        for (int c : {col - 1, col + 1}) {
            if (c < 1 || c > 8 || Copia(c, f) != codigo) continue;
            EsPrimerAtacante(c, f);
            if (CasillaCoincide) {
                Capturadores += TextoCasilla(col, fila);
                Mate = false;
                return;
            }
        }
    }
    if (AlPasoPosible && fila == filaAlPaso) {
        for (int c : {col - 1, col + 1}) {
            if (c < 1 || c > 8 || Copia(c, fila) != victima) continue;
            EsPrimerAtacante(c, fila);
            if (CasillaCoincide) {
                Capturadores += TextoCasilla(col, fila);
                Mate = false;
                return;
            }
        }
    }
}

// Every non-king piece of a colour walks towards the target, rows outer.
// With `hastaLibre` the walk ends at the first piece that clears Mate.
void MoverBando(bool blancas, int32_t objetivo, bool captura, bool hastaLibre = false) {
    int32_t base = blancas ? 0 : 6;
    for (int f = 1; f <= 8; ++f)
        for (int c = 1; c <= 8; ++c) {
            if (hastaLibre && !Mate) return;
            int32_t p = Copia(c, f) - base;
            switch (p) {
            case 1:
                if (captura)
                    blancas ? CapturaPeonBlanco(c, f, objetivo) : CapturaPeonNegro(c, f, objetivo);
                else
                    blancas ? AvancePeonBlanco(c, f, objetivo) : AvancePeonNegro(c, f, objetivo);
                break;
            case 2:
                AlcanceRecto(c, f, objetivo);
                break;
            case 3:
                AlcanceCaballo(c, f, objetivo);
                break;
            case 4:
                AlcanceDiagonal(c, f, objetivo);
                break;
            case 5:
                AlcanceRecto(c, f, objetivo);
                AlcanceDiagonal(c, f, objetivo);
                break;
            default:
                break;
            }
        }
}

// Marks the empty squares between a line checker and the king; gives up a
// ray at any other piece.
void MarcarLinea(int col, int fila, int32_t rey, const Paso* pasos) {
    for (int i = 0; i < 4; ++i) {
        for (int c = col + pasos[i].dc, f = fila + pasos[i].df; Dentro(c, f);
             c += pasos[i].dc, f += pasos[i].df) {
            int32_t v = Copia(c, f);
            if (v == rey) {
                Mate = false;
                break;
            }
            if (EsPieza(v)) break;
        }
        if (!Mate) {
            for (int c = col + pasos[i].dc, f = fila + pasos[i].df; Dentro(c, f);
                 c += pasos[i].dc, f += pasos[i].df) {
                if (Copia(c, f) == rey || EsPieza(Copia(c, f))) break;
                Copia(c, f) = -1;
            }
            return;
        }
    }
}

void RondaInterposicion() {
    CopiarYJugar();
    int c, f;
    LeerCasilla(Atacantes, c, f);
    int32_t codigo = Dentro(c, f) ? Copia(c, f) : 0;
    switch (codigo) {
    case TorreB:
        MarcarLineaRecta(c, f, ReyN);
        break;
    case AlfilB:
        MarcarLineaDiagonal(c, f, ReyN);
        break;
    case DamaB:
        MarcarLineaRecta(c, f, ReyN);
        Mate = true;
        MarcarLineaDiagonal(c, f, ReyN);
        break;
    case TorreN:
        MarcarLineaRecta(c, f, ReyB);
        break;
    case AlfilN:
        MarcarLineaDiagonal(c, f, ReyB);
        break;
    case DamaN:
        MarcarLineaRecta(c, f, ReyB);
        Mate = true;
        MarcarLineaDiagonal(c, f, ReyB);
        break;
    default:
        break;
    }
    Mate = true;
    if (EsBlanca(FichaMovida))
        MoverNegras(-1);
    else if (EsNegra(FichaMovida))
        MoverBlancas(-1);
}

void CapturarDestino() {
    int32_t v = TableroCopia[ColDestino][FilaDestino];
    if (EsBlanca(FichaMovida))
        CapturaNegras(v);
    else if (EsNegra(FichaMovida))
        CapturaBlancas(v);
}

} // namespace

std::string TextoCasilla(int col, int fila) {
    if (col >= 0 && col <= 9 && fila >= 0 && fila <= 9) return {char('0' + col), char('0' + fila)};
    return std::to_string(col) + std::to_string(fila);
}

void LeerCasilla(const std::string& texto, int& col, int& fila) {
    auto digito = [](char ch) { return (ch >= '0' && ch <= '9') ? ch - '0' : 0; };
    col = texto.empty() ? 0 : digito(texto.front());
    fila = texto.empty() ? 0 : digito(texto.back());
}

void CopiarTablero() {
    for (int c = 1; c <= 8; ++c)
        for (int f = 1; f <= 8; ++f) TableroCopia[c][f] = Tablero[c][f];
}

void CopiarYJugar() {
    CopiarTablero();
    if (Dentro(ColOrigen, FilaOrigen)) TableroCopia[ColOrigen][FilaOrigen] = 0;
    if (Dentro(ColDestino, FilaDestino)) TableroCopia[ColDestino][FilaDestino] = FichaMovida;
}

void AtaqueRecto(int col, int fila, int32_t rey) {
    AtaqueRayos(col, fila, rey, kRectas, 4);
}
void AtaqueDiagonal(int col, int fila, int32_t rey) {
    AtaqueRayos(col, fila, rey, kDiagonales, 4);
}
void AtaqueCaballo(int col, int fila, int32_t rey) {
    AtaqueSaltos(col, fila, rey, kCaballo);
}
void AtaqueRey(int col, int fila, int32_t rey) {
    AtaqueSaltos(col, fila, rey, kRey);
}
void AtaquePeonNegro(int col, int fila) {
    AtaquePeon(col, fila, -1, ReyB);
}
void AtaquePeonBlanco(int col, int fila) {
    AtaquePeon(col, fila, 1, ReyN);
}

void ProbarAtaque() {
    if (EsBlanca(FichaMovida))
        EscanearAtaque(false);
    else if (EsNegra(FichaMovida))
        EscanearAtaque(true);
}

namespace {

// ProbarReyPropio; the sets of the copy it drew when the king is not attacked.
const Mapa* ReyPropio() {
    CopiarTablero();
    if (MovimientoValido) {
        if (Dentro(ColOrigen, FilaOrigen)) TableroCopia[ColOrigen][FilaOrigen] = 0;
        if (Dentro(ColDestino, FilaDestino)) TableroCopia[ColDestino][FilaDestino] = FichaMovida;
    }
    // Every caller copies the board again before it reads marks, so the map
    // is drawn only for a king that is attacked.
    const Mapa& m = MapaDeLaCopia();
    if (EsBlanca(FichaMovida) && PiezasQueAtacan(m, false, ReyB) == 0) return &m;
    if (EsNegra(FichaMovida) && PiezasQueAtacan(m, true, ReyN) == 0) return &m;
    ProbarAtaque();
    return nullptr;
}

void Veredicto(const Mapa& m);

} // namespace

void ProbarReyPropio() {
    ReyPropio();
}

bool ReyPropioYVeredictoEnCopia() {
    const Mapa* m = ReyPropio();
    if (Ataque) return false;
    Veredicto(m ? *m : MapaDeLaCopia());
    return true;
}

void BuscarAtacantes() {
    bool blancas = EsBlanca(FichaMovida);
    if (!blancas && !EsNegra(FichaMovida)) {
        Ataque = !Atacantes.empty();
        return;
    }
    for (int f = 1; f <= 8; ++f)
        for (int c = 1; c <= 8; ++c) {
            int32_t p = Copia(c, f);
            if (!(blancas ? EsBlanca(p) : EsNegra(p))) continue;
            Ataque = false;
            AtacarDesde(c, f, p);
            if (Ataque) Atacantes += TextoCasilla(c, f);
        }
    Ataque = !Atacantes.empty();
}

void ProbarJaque() {
    CopiarYJugar();
    ProbarJaqueEnCopia();
}

namespace {

// The tests of the verdict on one map of the copy: the check test only reads
// the copy, so the king's escape after it finds the copy as the map shows it.
void JaqueEnCopia(const Mapa& m);
void HuidaRey(const Mapa& m);
void MateEnCopia(const Mapa& m);
void AhogadoEnCopia(const Mapa& m);

} // namespace

void ProbarJaqueEnCopia() {
    JaqueEnCopia(MapaDeLaCopia());
}

void ProbarHuidaRey() {
    HuidaRey(MapaDeLaCopia());
}

void ProbarMateEnCopia() {
    MateEnCopia(MapaDeLaCopia());
}

void ProbarAhogadoEnCopia() {
    AhogadoEnCopia(MapaDeLaCopia());
}

void VeredictoEnCopia() {
    Veredicto(MapaDeLaCopia());
}

namespace {

void Veredicto(const Mapa& m) {
    Jaque = false;
    Ataque = false;
    JaqueEnCopia(m);
    if (Jaque) {
        Mate = true;
        MateEnCopia(m);
    } else {
        Ahogado = false;
        AhogadoEnCopia(m);
    }
}

void JaqueEnCopia(const Mapa& m) {
    Atacantes.clear();
    // What BuscarAtacantes would collect, without its marks: mate and
    // stalemate tests copy the board afresh.
    if (EsBlanca(FichaMovida) || EsNegra(FichaMovida)) {
        const bool blancas = EsBlanca(FichaMovida);
        // In scan order: rows outer, columns inner.
        uint64_t enOrden = 0;
        for (uint64_t p = PiezasQueAtacan(m, blancas, blancas ? ReyN : ReyB); p; p &= p - 1) {
            const int i = __builtin_ctzll(p);
            enOrden |= uint64_t{1} << (i % 8 * 8 + i / 8);
        }
        for (; enOrden; enOrden &= enOrden - 1) {
            const int i = __builtin_ctzll(enOrden);
            Atacantes += char('1' + i % 8);
            Atacantes += char('1' + i / 8);
        }
    }
    Ataque = !Atacantes.empty();
    if (!Atacantes.empty()) Jaque = true;
}

void HuidaRey(const Mapa& m) {
    bool moverBlanco = EsBlanca(FichaMovida);
    if (!moverBlanco && !EsNegra(FichaMovida)) return;
    int32_t rey = moverBlanco ? ReyN : ReyB;
    int32_t primero = moverBlanco ? 1 : 7; // the mover's codes, which the king may take
    const uint64_t reyes = Reyes(m, rey);
    // With one king on the board, each trial's only king stands on the square tried.
    const bool solo = reyes && (reyes & (reyes - 1)) == 0;
    if (solo) {
        const int i = __builtin_ctzll(reyes);
        ReyCol = i / 8 + 1;
        ReyFila = i % 8 + 1;
    } else if (reyes) {
        // Several kings: the last one in scan order is the one tried.
        for (int f = 1; f <= 8; ++f)
            for (int c = 1; c <= 8; ++c)
                if (Copia(c, f) == rey) {
                    ReyCol = c;
                    ReyFila = f;
                }
    }
    if (ReyCol < 0 || ReyCol > 8 || ReyFila < 0 || ReyFila > 8) return;
    constexpr Paso vecinos[8] = {{0, -1}, {-1, -1}, {-1, 0}, {-1, 1},
                                 {0, 1},  {1, 1},   {1, 0},  {1, -1}};
    if (solo) {
        // A marked square is one the mover reaches, so its trial would fail as
        // well: the first square the king keeps is found without the marks.
        // Only when every trial fails do they matter, for FichaGuardada below.
        bool probada = false;
        for (const Paso& p : vecinos) {
            const int c = ReyCol + p.dc, f = ReyFila + p.df;
            if (!Dentro(c, f)) continue;
            const int32_t v = Copia(c, f);
            if (v != 0 && !(v >= primero && v < primero + 6)) continue;
            probada = true;
            const uint64_t piezas = (Piezas(m) & ~Bit(ReyCol, ReyFila)) | Bit(c, f);
            if (Alcanzan(m, (c - 1) * 8 + (f - 1), moverBlanco, piezas, Bit(c, f)) != 0) continue;
            Copia(ReyCol, ReyFila) = 0;
            FichaGuardada = v;
            Copia(c, f) = rey;
            Ataque = false;
            Jaque = true;
            Mate = false;
            return;
        }
        if (!probada) return;
    }
    // The map a failed trial draws marks every empty square the mover reaches,
    // and a marked neighbour is not tried. Both callers copy the board again
    // afterwards, so of each map only its marks on the neighbours still to be
    // tried count: they are kept here, and the map is not drawn.
    unsigned marcadas = 0;
    for (int i = 0; i < 8; ++i) {
        const int c = ReyCol + vecinos[i].dc, f = ReyFila + vecinos[i].df;
        if (!Dentro(c, f)) continue;
        // An empty square passes the test for each of the six codes, but a
        // failed trial leaves the board as it found it apart from marks, which
        // read as empty: the repeats would find the same, so it is tried once.
        const int32_t v = Copia(c, f);
        if ((v == 0 && !(marcadas >> i & 1u)) || (v >= primero && v < primero + 6)) {
            Copia(ReyCol, ReyFila) = 0;
            FichaGuardada = Copia(c, f);
            Copia(c, f) = rey;
            Ataque = false;
            // With one king the sets taken before the trials serve, with the
            // king moved and the piece it took left out. Without one, ReyCol and
            // ReyFila may be off the board.
            const uint64_t piezas = solo ? (Piezas(m) & ~Bit(ReyCol, ReyFila)) | Bit(c, f) : 0;
            const bool atacada =
                solo ? Alcanzan(m, (c - 1) * 8 + (f - 1), moverBlanco, piezas, Bit(c, f)) != 0
                     : PiezasQueAtacan(moverBlanco, rey) != 0;
            if (!atacada) {
                Jaque = true;
                Mate = false;
                return;
            }
            Ataque = true;
            for (int j = i + 1; j < 8; ++j) {
                const int cj = ReyCol + vecinos[j].dc, fj = ReyFila + vecinos[j].df;
                if (!Dentro(cj, fj) || Copia(cj, fj) != 0) continue;
                const int sj = (cj - 1) * 8 + (fj - 1);
                if (solo ? Alcanzan(m, sj, moverBlanco, piezas, Bit(c, f)) != 0
                         : Alcanzan(MapaDeLaCopia(), sj, moverBlanco, Piezas(MapaDeLaCopia())) != 0)
                    marcadas |= 1u << j;
            }
            Copia(ReyCol, ReyFila) = rey;
            Copia(c, f) = FichaGuardada;
        }
    }
}

} // namespace

void ContarAtacantes() {
    CopiarYJugar();
    CasillaJaque = TextoCasilla(ColDestino, FilaDestino);
    Atacantes.clear();
    BuscarAtacantes();
    if (Atacantes.size() >= 3) {
        Atacantes = CasillaJaque;
        Ataque = Mate = true;
        return;
    }
    Ataque = Mate = false;
    if (Atacantes != CasillaJaque) JaqueDescubierto = Atacantes;
    Atacantes = CasillaJaque;
}

void MarcarLineaRecta(int col, int fila, int32_t rey) {
    MarcarLinea(col, fila, rey, kRectas);
}
void MarcarLineaDiagonal(int col, int fila, int32_t rey) {
    MarcarLinea(col, fila, rey, kDiagonales);
}

void EsPrimerAtacante(int col, int fila) {
    CasillaCoincide = !Atacantes.empty() && Atacantes.front() == char('0' + col) &&
                      Atacantes.back() == char('0' + fila);
}

void BuscarInterposicion() {
    if (Mate) RondaInterposicion();
    if (!JaqueDescubierto.empty()) {
        Mate = true;
        Atacantes = JaqueDescubierto;
        RondaInterposicion();
    }
}

void MoverNegras(int32_t objetivo) {
    MoverBando(false, objetivo, false);
}
void MoverBlancas(int32_t objetivo) {
    MoverBando(true, objetivo, false);
}
void CapturaNegras(int32_t codigo) {
    MoverBando(false, codigo, true);
}
void CapturaBlancas(int32_t codigo) {
    MoverBando(true, codigo, true);
}

void AlcanceRecto(int col, int fila, int32_t objetivo) {
    AlcanceRayos(col, fila, objetivo, kRectas, 4, Clase::Recta);
}
void AlcanceDiagonal(int col, int fila, int32_t objetivo) {
    AlcanceRayos(col, fila, objetivo, kDiagonales, 4, Clase::Diagonal);
}
void AlcanceCaballo(int col, int fila, int32_t objetivo) {
    for (const Paso& p : kCaballo) {
        int c = col + p.dc, f = fila + p.df;
        if (!Dentro(c, f) || Copia(c, f) != objetivo) continue;
        if (Alcanzado(col, fila, c, f, objetivo, Clase::Salto, false) == Tras::Sale) return;
    }
}

void AvancePeonNegro(int col, int fila, int32_t objetivo) {
    AvancePeon(col, fila, objetivo, -1, 7, PeonN);
}
void AvancePeonBlanco(int col, int fila, int32_t objetivo) {
    AvancePeon(col, fila, objetivo, 1, 2, PeonB);
}
void CapturaPeonNegro(int col, int fila, int32_t codigo) {
    CapturaPeon(col, fila, codigo, -1, 4, PeonB);
}
void CapturaPeonBlanco(int col, int fila, int32_t codigo) {
    CapturaPeon(col, fila, codigo, 1, 5, PeonN);
}

void BuscarCaptura() {
    Capturadores.clear();
    CopiarYJugar();
    CapturarDestino();
    if (!Capturadores.empty()) {
        int32_t guardada = FichaMovida;
        while (!Capturadores.empty()) {
            int c = Capturadores[0] - '0', f = Capturadores[1] - '0';
            if (!Dentro(c, f)) break;
            FichaMovida = Copia(c, f);
            TableroCopia[ColDestino][FilaDestino] = FichaMovida;
            Copia(c, f) = 0;
            Ataque = false;
            ProbarAtaque();
            if (!Ataque) {
                Mate = false;
                break;
            }
            Mate = true;
            if (Capturadores.size() > 2) {
                Copia(c, f) = FichaMovida;
                Capturadores.erase(0, 2);
            } else {
                Capturadores.clear();
            }
        }
        FichaMovida = guardada;
    }
    if (JaqueDescubierto.empty()) return;
    Mate = true;
    Atacantes = JaqueDescubierto;
    BuscandoCaptura = true;
    CopiarYJugar();
    CapturarDestino();
}

void ProbarMate() {
    CopiarYJugar();
    ProbarMateEnCopia();
}

namespace {

void MateEnCopia(const Mapa& m) {
    HuidaRey(m);
    if (!Mate) return;
    Ataque = false;
    ContarAtacantes();
    if (Ataque) {
        Mate = true;
        return;
    }
    Mate = true;
    BuscarInterposicion();
    BuscandoCaptura = true;
    BuscarCaptura();
    BuscandoCaptura = false;
    Capturadores.clear();
    JaqueDescubierto.clear();
}

} // namespace

void ProbarAhogado() {
    CopiarYJugar();
    ProbarAhogadoEnCopia();
}

namespace {

void AhogadoEnCopia(const Mapa& m) {
    Ataque = false;
    Mate = true;
    HuidaRey(m);
    if (!Mate) {
        Ataque = Jaque = Mate = Ahogado = false;
        return;
    }
    CopiarYJugar();
    // Mate only goes from true to false here, and the marks left behind are
    // never read: the first piece that can move settles it.
    if (EsBlanca(FichaMovida))
        MoverBando(false, 0, false, true);
    else if (EsNegra(FichaMovida))
        MoverBando(true, 0, false, true);
    if (Mate) Ahogado = true;
    Ataque = Jaque = Mate = false;
}

} // namespace

} // namespace Variables
