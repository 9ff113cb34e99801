#include "files/fen.h"

#include "core/clocks.h"
#include "core/environment.h"
#include "core/game_state.h"
#include "core/move_list.h"
#include "core/notation.h"
#include "core/peer.h"
#include "platform/texto.h"

#include <cctype>
#include <vector>

namespace Variables {

namespace {

std::vector<std::string> Campos(const std::string& linea) {
    std::vector<std::string> c(1);
    for (char ch : linea) {
        if (ch == ' ')
            c.emplace_back();
        else
            c.back() += ch;
    }
    return c;
}

int32_t CodigoLetra(char ch) {
    switch (ch) {
    case 'P':
        return PeonB;
    case 'R':
        return TorreB;
    case 'N':
        return CaballoB;
    case 'B':
        return AlfilB;
    case 'Q':
        return DamaB;
    case 'K':
        return ReyB;
    case 'p':
        return PeonN;
    case 'r':
        return TorreN;
    case 'n':
        return CaballoN;
    case 'b':
        return AlfilN;
    case 'q':
        return DamaN;
    case 'k':
        return ReyN;
    default:
        return 0;
    }
}

} // namespace

std::string FichaTexto(int32_t codigo) {
    static const char* letras[13] = {".", "P", "R", "N", "B", "Q", "K",
                                     "p", "r", "n", "b", "q", "k"};
    return (codigo >= 1 && codigo <= 12) ? letras[codigo] : ".";
}

void EscribirFen() {
    CasillasFen casillas;
    for (int i = 0; i < 64; ++i) casillas[i] = std::to_string(Tablero[i % 8 + 1][8 - i / 8]);

    std::string s;
    int blancos = 0;
    auto vaciar = [&] {
        if (blancos) s += std::to_string(blancos);
        blancos = 0;
    };
    for (int i = 0; i < 64; ++i) {
        if (i % 8 == 0) {
            vaciar();
            s += "/";
        }
        if (casillas[i] != "0") {
            vaciar();
            s += FichaTexto(std::stoi(casillas[i]));
        } else {
            ++blancos;
        }
    }
    vaciar();
    s.erase(0, 1);

    if (Turno == 1)
        s += " w";
    else if (Turno == 2)
        s += " b";
    else
        s += MedioTurno ? " b" : " w";

    s += " ";
    if (!TorreA8Movida) s += "K";
    if (!TorreH8Movida) s += "Q";
    if (!TorreA1Movida) s += "k";
    if (!TorreH1Movida) s += "q";

    const int col = AlPasoCasilla / 10, fila = AlPasoCasilla % 10;
    if (AlPasoPosible && EnCasilla(col)) {
        s += " ";
        s += char('a' + col - 1);
        if (fila == 4) s += "3";
        if (fila == 5) s += "6";
    } else {
        s += " -";
    }
    s += " 0 1";
    TextoFen = s;
}

bool LeerFen(const std::string& linea) {
    const auto campos = Campos(linea);
    if (campos.size() < 4) return false;
    CasillasFen casillas;
    casillas.fill("0");

    size_t i = 0;
    for (char ch : campos[0]) {
        if (const int32_t codigo = CodigoLetra(ch)) {
            if (i >= 64) return false; // more than 64 squares
            casillas[i++] = std::to_string(codigo);
        } else if (ch != '/') {
            i += std::isdigit(static_cast<unsigned char>(ch)) ? ch - '0' : 0;
        }
    }
    if (i != 64) return false;

    const std::string lado = qa::Minusculas(campos[1]);
    if (lado == "w")
        ColorInicio = 1;
    else if (lado == "b")
        ColorInicio = 2;
    else
        return false;

    for (char ch : campos[2]) {
        if (ch == 'K')
            TorreA8Movida = false;
        else if (ch == 'Q')
            TorreH8Movida = false;
        else if (ch == 'k')
            TorreA1Movida = false;
        else if (ch == 'q')
            TorreH1Movida = false;
        else if (ch == '-')
            break;
        else
            return false;
    }

    const std::string& alPaso = campos[3];
    if (alPaso == "-") {
        AlPasoFen.clear();
    } else {
        AlPasoFen = alPaso;
        const char primera = alPaso.empty() ? '\0' : qa::Minusculas(alPaso.substr(0, 1)).front();
        const char ultima = alPaso.empty() ? '\0' : alPaso.back();
        const int col = (primera >= 'a' && primera <= 'h') ? primera - 'a' + 1 : 0;
        const int fila = ultima == '3' ? 4 : ultima == '6' ? 5 : 0;
        if (col && fila) {
            AlPasoCasilla = col * 10 + fila;
            AlPasoPosible = AlPasoCaduca = true;
        } else {
            AlPasoPosible = AlPasoCaduca = false;
            AlPasoCasilla = 0;
        }
    }

    LimpiarTablero();
    for (int k = 0; k < 64; ++k) Tablero[k % 8 + 1][8 - k / 8] = std::stoi(casillas[k]);
    return true;
}

void JugadaVaciaBlancas() {
    MedioTurno = false;
    NumeroJugada = 0;
    ColOrigen = FilaOrigen = ColDestino = FilaDestino = 0;
    PiezaCoronacion = 0;
    EscribirJugada();
}

void VaciarParaPosicion() {
    Jugadas::Vaciar();
    VariablesCero();
    MovimientoAnulado();
    RelojesCero();
    TorreA1Movida = TorreH1Movida = TorreA8Movida = TorreH8Movida = true;
    LineasPartida.assign(2, std::string());
    LineaActual = 0;
}

bool AbrirEpd() {
    Cargando = true;
    TipoPartida.clear();
    ColorJugador.clear();
    Turno = 0;
    if (listas().ListaPgnVisible()) listas().CerrarListaPgn();
    VaciarParaPosicion();
    Turno = 0;
    TipoPartida = "A";
    ColorJugador.clear();
    const bool aceptada = LeerFen(PosicionFen);
    if (Conectado) Turno = static_cast<int16_t>(red().PreguntarColor() == 2 ? 2 : 1);
    dibujo().RedibujarTablero();
    if (ColorInicio == 2) JugadaVaciaBlancas();
    if (!Conectado) Turno = static_cast<int16_t>(ColorInicio);
    if (Turno == 1) ColorJugador = "Blancas";
    if (Turno == 2) ColorJugador = "Negras";
    if (Turno != ColorInicio) Turno = 0;
    Cargando = false;
    if (Conectado) red().EnviarPosicion();
    DesdePosicion = true;
    if (AlPasoCasilla != 0 && AlPasoPosible) AlPasoCaduca = true;
    return aceptada;
}

} // namespace Variables
