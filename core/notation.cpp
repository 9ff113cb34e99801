#include "core/notation.h"

#include "core/check_detection.h"
#include "core/environment.h"
#include "core/game_state.h"
#include "core/move_filter.h"
#include "core/move_list.h"

#include <charconv>
#include <string_view>

namespace Variables {

namespace {

// A line written with no move in it (a position with Black to move) shows
// nothing where the squares would be.
std::string LetraColumna(int col) {
    return EnCasilla(col) ? std::string(1, char('a' + col - 1)) : std::string();
}
std::string LetraColumnaMayuscula(int col) {
    return EnCasilla(col) ? std::string(1, char('A' + col - 1)) : std::string();
}
std::string DigitoFila(int fila) {
    return EnCasilla(fila) ? std::string(1, char('0' + fila)) : std::string();
}

const char* LetraPieza(int32_t p) {
    switch (p) {
    case TorreB:
    case TorreN:
        return "R";
    case CaballoB:
    case CaballoN:
        return "N";
    case AlfilB:
    case AlfilN:
        return "B";
    case DamaB:
    case DamaN:
        return "Q";
    case ReyB:
    case ReyN:
        return "K";
    default:
        return "";
    }
}

// Which rights a king's take-back gives back: bit 0 the a-rook, bit 1 the h-rook.
char DigitoDerechos() {
    const bool* d = FichaMovida == ReyN ? DerechosNegras : DerechosBlancas;
    return char('0' + (d[1] ? 0 : 1) + (d[2] ? 0 : 2));
}

bool EsRey(int32_t p) {
    return p == ReyB || p == ReyN;
}

void TextoAlgebraico() {
    if (PiezaCoronacion >= 2 && PiezaCoronacion <= 5) FichaMovida = PeonB;
    if (PiezaCoronacion >= 8 && PiezaCoronacion <= 11) FichaMovida = PeonN;
    const char letra = *LetraPieza(FichaMovida);
    Notacion.assign(letra ? 1 : 0, letra);
    if (letra == 'B' || letra == 'N' || letra == 'R' || letra == 'Q') Desambiguar();

    const bool ocupado = Tablero[ColDestino][FilaDestino] != 0;
    if (ocupado && PiezaCoronacion == 0 && (FichaMovida == PeonB || FichaMovida == PeonN))
        Notacion = LetraColumna(ColOrigen);
    if (FichaComidaCoronacion != 0) Notacion = LetraColumna(ColOrigen);
    if (ocupado && PiezaCoronacion == 0) Notacion += "x";
    if (FichaComidaCoronacion != 0) Notacion += "x";
    if (!AlPasoTexto.empty()) Notacion = LetraColumna(ColOrigen) + "x";
    if (EnCasilla(ColDestino)) Notacion += char('a' + ColDestino - 1);
    if (EnCasilla(FilaDestino)) Notacion += char('0' + FilaDestino);
    if (!AlPasoTexto.empty()) Notacion += "ep";
    if (TipoEnroque == 1) Notacion = "O-O";
    if (TipoEnroque == 2) Notacion = "O-O-O";

    if (PiezaCoronacion != 0) {
        switch (PiezaCoronacion) {
        case TorreB:
        case TorreN:
            Notacion += "=R";
            break;
        case CaballoB:
        case CaballoN:
            Notacion += "=N";
            break;
        case AlfilB:
        case AlfilN:
            Notacion += "=B";
            break;
        case DamaB:
        case DamaN:
            Notacion += "=Q";
            break;
        default:
            break;
        }
        FichaMovida = PiezaCoronacion;
    }
    if (Jaque) Notacion += "+";
    if (Mate) Notacion += "+";
}

// Walks for a rival of the moving piece; clears OtraPieza first.
template <typename Walker>
bool Buscar(Walker walker, int col, int fila, int32_t codigo, bool bandera) {
    OtraPieza = false;
    walker(col, fila, codigo);
    if (OtraPieza) ProbarOtra(bandera);
    return OtraPieza;
}

} // namespace

namespace {
// Appends a number as std::to_string writes it; one digit without a temporary.
void Anadir(std::string& s, int32_t n) {
    if (n >= 0 && n <= 9)
        s += char('0' + n);
    else
        s += std::to_string(n);
}

// A short text built in place, for the records written at every move.
class Texto {
public:
    void operator+=(char ch) {
        if (n_ < sizeof b_) b_[n_++] = ch;
    }
    // As std::to_string writes it.
    void Numero(int32_t v) {
        if (v >= 0 && v <= 9)
            *this += char('0' + v);
        else
            n_ = static_cast<size_t>(std::to_chars(b_ + n_, b_ + sizeof b_, v).ptr - b_);
    }
    std::string_view Ver() const { return {b_, n_}; }

private:
    char b_[96];
    size_t n_ = 0;
};
} // namespace

std::string RegistroDeshacer() {
    // At most six numbers of eleven characters and four letters.
    Texto c;
    c.Numero(ColOrigen);
    c.Numero(FilaOrigen);
    c.Numero(ColDestino);
    c.Numero(FilaDestino);
    const int32_t destino = Tablero[ColDestino][FilaDestino];
    // The first case that fits, top down: odd moves (a castling king landing
    // on a piece, en passant onto a piece) take the capture form.
    if (destino == 0 && TipoEnroque == 0 && AlPasoTexto.empty() && PiezaCoronacion == 0) {
        if (EsRey(FichaMovida)) {
            c += 't';
            c += DigitoDerechos();
        }
        return std::string(c.Ver());
    }
    if (destino != 0 && PiezaCoronacion == 0) {
        c += 'x';
        c.Numero(destino);
        if (EsRey(FichaMovida)) {
            c += 't';
            c += DigitoDerechos();
        }
        return std::string(c.Ver());
    }
    if (TipoEnroque != 0) {
        c += 'e';
        c += DigitoDerechos();
        return std::string(c.Ver());
    }
    if (!AlPasoTexto.empty()) return std::string(c.Ver()) + "p" + AlPasoTexto;
    c += 'c';
    c.Numero(FichaMovida);
    if (FichaComidaCoronacion != 0) {
        c += 'x';
        c.Numero(FichaComidaCoronacion);
    }
    return std::string(c.Ver());
}

void EscribirJugada() {
    const bool mostrar = !listas().ListaPgnVisible();
    if (!MedioTurno) ++NumeroJugada;
    if (mostrar) {
        std::string cuatro;
        Anadir(cuatro, ColOrigen);
        Anadir(cuatro, FilaOrigen);
        Anadir(cuatro, ColDestino);
        Anadir(cuatro, FilaDestino);
        if (PiezaCoronacion != 0) Anadir(cuatro, PiezaCoronacion);
        cuatro += Jugadas::FinLinea;
        Jugadas::List[4] += cuatro;
    }
    if (ColOrigen != 0 && FilaOrigen != 0 && ColDestino != 0 && FilaDestino != 0)
        Jugadas::List1.push_back(RegistroDeshacer());

    Notacion.clear();
    TextoAlgebraico();
    if (mostrar) Jugadas::AnotarLista(Notacion, 3);
    if (mostrar) { // otherwise the user's letters below overwrite it unseen
        TraducirNotacion(Notacion, LetrasEspanol);
        Jugadas::AnotarLista(NotacionTraducida, 2);
    }
    TraducirNotacion(Notacion, LetrasUsuario);
    if (mostrar) Jugadas::AnotarLista(NotacionTraducida, 5);

    Notacion.clear();
    if (mostrar) {
        if (ColOrigen || FilaOrigen || ColDestino || FilaDestino)
            Notacion = LetraColumnaMayuscula(ColOrigen) + DigitoFila(FilaOrigen) + "-" +
                       LetraColumnaMayuscula(ColDestino) + DigitoFila(FilaDestino);
        Jugadas::AnotarLista(Notacion, 1);
    }
    MedioTurno = !MedioTurno;
}

void TraducirNotacion(const std::string& texto, const std::string (&letras)[7]) {
    NotacionTraducida.clear();
    size_t igual = 0; // start of the text not yet copied, which stays as it is
    for (size_t i = 0; i < texto.size(); ++i) {
        const std::string* letra = nullptr;
        switch (texto[i]) {
        case 'B':
            letra = &letras[3];
            break;
        case 'N':
            letra = &letras[2];
            break;
        case 'R':
            letra = &letras[1];
            break;
        case 'Q':
            letra = &letras[4];
            break;
        case 'K':
            letra = &letras[5];
            break;
        case 'e':
            if (i + 1 < texto.size() && texto[i + 1] == 'p') letra = &letras[6];
            break;
        default:
            break;
        }
        if (!letra) continue;
        NotacionTraducida.append(texto, igual, i - igual);
        NotacionTraducida += *letra;
        if (letra == &letras[6]) ++i;
        igual = i + 1;
    }
    NotacionTraducida.append(texto, igual, std::string::npos);
}

void PonerFila() {
    Notacion += std::to_string(FilaOrigen);
}
void PonerColumna() {
    Notacion += LetraColumna(ColOrigen);
}

void Desambiguar() {
    CopiarTablero();
    TableroCopia[ColOrigen][FilaOrigen] = 0;
    TableroCopia[ColDestino][FilaDestino] = 0;

    const std::string letra = Notacion;
    int32_t codigo = 0;
    if (Turno == 1 || Turno == 2) {
        const bool blanco = Turno == 1;
        if (letra == "N") codigo = blanco ? CaballoB : CaballoN;
        if (letra == "R") codigo = blanco ? TorreB : TorreN;
        if (letra == "Q") codigo = blanco ? DamaB : DamaN;
        if (letra == "B") codigo = blanco ? AlfilB : AlfilN;
    }
    auto otraCol = [] { return ValorTexto(OtraCol); };
    auto otraFila = [] { return ValorTexto(OtraFila); };
    auto nadaAnadido = [&] { return Notacion == letra; };
    auto comoAlfil = [&] {
        if (otraFila() != FilaOrigen && otraCol() == ColOrigen) PonerFila();
        if (otraCol() != ColOrigen) PonerColumna();
    };
    auto segundaRecta = [&] {
        if (otraFila() != FilaDestino && otraCol() == ColOrigen) PonerFila();
        if (otraCol() != ColDestino && otraFila() == FilaDestino) PonerColumna();
        if (nadaAnadido() && otraCol() == ColDestino && otraFila() != FilaDestino) PonerColumna();
    };

    if (letra == "N") {
        if (Buscar(AlcanceCaballo, ColDestino, FilaDestino, codigo, false)) {
            if (otraCol() == ColOrigen)
                PonerFila();
            else
                PonerColumna();
        }
    } else if (letra == "B") {
        if (Buscar(AlcanceDiagonal, ColDestino, FilaDestino, codigo, false)) comoAlfil();
    } else if (letra == "R") {
        if (Buscar(AlcanceRecto, ColOrigen, FilaOrigen, codigo, true)) {
            if (otraFila() != FilaOrigen && otraCol() == ColOrigen) PonerFila();
            if (otraCol() != ColDestino && otraFila() == FilaDestino) PonerColumna();
            if (nadaAnadido() && otraCol() != ColDestino && otraFila() != FilaDestino)
                PonerColumna();
        }
        if (nadaAnadido() && Buscar(AlcanceRecto, ColDestino, FilaDestino, codigo, false))
            segundaRecta();
    } else if (letra == "Q") {
        if (Buscar(AlcanceRecto, ColOrigen, FilaOrigen, codigo, true)) {
            if (otraFila() != FilaOrigen && otraCol() == ColOrigen) PonerFila();
            if (nadaAnadido() && otraCol() != ColDestino) PonerColumna();
        }
        if (nadaAnadido() && Buscar(AlcanceRecto, ColDestino, FilaDestino, codigo, false))
            segundaRecta();
        if (nadaAnadido() && Buscar(AlcanceDiagonal, ColDestino, FilaDestino, codigo, false))
            comoAlfil();
    }
}

void ProbarOtra(bool bandera) {
    const int co = ColOrigen, fo = FilaOrigen, cd = ColDestino, fd = FilaDestino;
    const int oc = ValorTexto(OtraCol), of = ValorTexto(OtraFila);
    if (bandera && (Notacion == "R" || Notacion == "T")) {
        if (FilaOrigen == FilaDestino) FilaDestino = of;
        if (ColOrigen == ColDestino) ColDestino = oc;
    }
    ColOrigen = oc;
    FilaOrigen = of;
    // The rival's walk must stay on the board for the rules to read it.
    if (!EnCasilla(ColOrigen) || !EnCasilla(FilaOrigen) || !EnCasilla(ColDestino) ||
        !EnCasilla(FilaDestino)) {
        ColOrigen = co, FilaOrigen = fo, ColDestino = cd, FilaDestino = fd;
        OtraPieza = false;
        MovimientoValido = true;
        return;
    }
    ReglasPieza();
    if (!MovimientoValido) {
        ColOrigen = co, FilaOrigen = fo, ColDestino = cd, FilaDestino = fd;
        OtraPieza = false;
        MovimientoValido = true;
        return;
    }
    Ataque = false;
    ProbarReyPropio();
    ColOrigen = co;
    FilaOrigen = fo;
    ColDestino = cd;
    FilaDestino = fd;
    if (Ataque) {
        OtraPieza = false;
        Ataque = false;
    }
}

} // namespace Variables
