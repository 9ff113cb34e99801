#include "files/pgn_scanner.h"

#include "core/clocks.h"
#include "core/environment.h"
#include "core/game_state.h"
#include "core/move_list.h"
#include "files/fen.h"
#include "files/line_reader.h"
#include "files/pgn_text.h"

#include <algorithm>
#include <charconv>
#include <deque>
#include <optional>

namespace {

using namespace Variables;
using namespace PgnTexto;

// Where each listed game (by the search tag) and each "[event " line begins.
struct Indice {
    std::string ruta;
    std::vector<uint64_t> etiquetas, eventos;
};
Indice indice;

// The lines the first pass keeps for the first game's tags when listing by
// another tag than Event. Only their effect is kept: the last value per box,
// cut where a "fen" line stands, since working them off stops there.
struct Tramo {
    std::optional<std::string> cajas[7];
    std::optional<std::string> fen;
};
std::deque<Tramo> tabla;

int CajaDe(std::string_view nombre) {
    static constexpr std::string_view nombres[7] = {"event", "site",  "date",  "round",
                                                    "white", "black", "result"};
    for (int i = 0; i < 7; ++i)
        if (nombre == nombres[i]) return i;
    return -1;
}

void AnadirATabla(std::string_view linea) {
    std::string nombre;
    if (!NombreEtiqueta(linea, nombre)) return; // a line with no name changes nothing
    if (tabla.empty() || tabla.back().fen) tabla.emplace_back();
    if (nombre == "fen") {
        tabla.back().fen = std::string(ValorEntreComillas(linea));
        return;
    }
    const int caja = CajaDe(nombre);
    if (caja >= 0) tabla.back().cajas[caja] = std::string(ValorEntreComillas(linea));
}

// The selected game starts from a position: its moves are not replayed.
void CasoFen(std::string_view valor) {
    VariablesCero();
    dibujo().RedibujarTablero();
    RelojesCero();
    TorreA1Movida = TorreH1Movida = TorreA8Movida = TorreH8Movida = true;
    PosicionPgn = -1;
    Turno = 0;
    Jugadas::Vaciar();
    PgnConFen = true;
    LeerFen(std::string(valor));
    dibujo().RedibujarTablero();
}

// True when a "fen" line was met: reading stops.
bool TrabajarTabla() {
    while (!tabla.empty()) {
        Tramo t = std::move(tabla.front());
        tabla.pop_front();
        for (int i = 0; i < 7; ++i)
            if (t.cajas[i]) ListaPgn::PrintText(i, *t.cajas[i]);
        if (t.fen) {
            CasoFen(*t.fen);
            return true;
        }
    }
    return false;
}

// One line of the selected game's tags; true to stop reading.
bool LineaDeCabecera(std::string_view linea) {
    if (EmpiezaCon(linea, "[event ")) {
        ListaPgn::PrintText(0, ValorEntreComillas(linea));
        return false;
    }
    if (linea.empty() || linea[0] != '[') return false;
    if (ListaPgn::Buscar != 0 && !tabla.empty() && TrabajarTabla()) return true;
    std::string nombre;
    if (!NombreEtiqueta(linea, nombre)) return false;
    const int caja = CajaDe(nombre);
    if (caja >= 1) ListaPgn::PrintText(caja, ValorEntreComillas(linea));
    if (nombre == "fen") {
        CasoFen(ValorEntreComillas(linea));
        return true;
    }
    return false;
}

// A file that cannot be read to its end lists nothing, as one that cannot be opened: what the
// pass took from its first lines goes.
void SinPartidas() {
    indice = Indice{indice.ruta, {}, {}};
    tabla.clear();
    TotalPartidas = 0;
    ListaPgn::Eventos.clear();
    ListaPgn::EventosIndice = -1;
    for (auto& t : ListaPgn::Text1) t.clear();
    ListaPgn::Combo1.clear();
    if (PgnConFen) {
        PgnConFen = false;
        VariablesCero();
        PonerFichas();
        Turno = 0;
        dibujo().RedibujarTablero();
    }
}

std::string HastaDosPuntos(const std::string& s) {
    const size_t p = s.find(':');
    return p == std::string::npos ? s : s.substr(0, p + 1);
}

void PrimeraPasada(const std::string& ruta) {
    indice = Indice{ruta, {}, {}};
    LectorLineas lector(ruta);
    const std::string_view buscada = ListaPgn::kEtiquetasBuscar[ListaPgn::Buscar];
    const bool porEvento = ListaPgn::Buscar == 0;
    int32_t cuenta = -1;
    bool parado = false; // a "fen" line stopped the reading of tags
    std::string_view linea;
    while (lector.Siguiente(linea)) {
        if (linea.empty() || linea[0] != '[') continue;
        const bool esEvento = EmpiezaCon(linea, "[event ");
        if (esEvento) indice.eventos.push_back(lector.Posicion());
        if (!porEvento && !parado) AnadirATabla(linea);
        if (porEvento ? esEvento : EmpiezaCon(linea, buscada)) {
            if (TotalPartidas == INT32_MAX) break;
            ++TotalPartidas;
            ++cuenta;
            indice.etiquetas.push_back(lector.Posicion());
            ListaPgn::Eventos.emplace_back(ValorEntreComillas(linea));
            if (ListaPgn::EventosIndice < 0) {
                ListaPgn::EventosTag = "0";
                ListaPgn::EventosIndice = 0;
                ListaPgn::Label2 = HastaDosPuntos(ListaPgn::Label2) + " 1";
            }
        }
        // Reading the tags stops at a position; the list is still read to the end.
        if (!parado && cuenta == ListaPgn::EventosIndice && LineaDeCabecera(linea)) parado = true;
    }
    if (lector.Fallo()) SinPartidas();
    const std::string& c = ListaPgn::EtiquetaCuenta;
    if (c.empty() || c.back() != '.')
        ListaPgn::EtiquetaCuenta +=
            " " + std::to_string(TotalPartidas) + " " + dialogos().Mensaje(50);
    ListaLeida = true;
}

// The lines of one listed game: from its search-tag line to the next one.
void CabecerasElegida(const std::string& ruta) {
    const int32_t k = ListaPgn::EventosIndice;
    const auto& e = indice.etiquetas;
    if (k < -1 || k >= static_cast<int32_t>(e.size())) return;
    const uint64_t desde = k < 0 ? 0 : e[static_cast<size_t>(k)];
    const uint64_t hasta =
        k + 1 < static_cast<int32_t>(e.size()) ? e[static_cast<size_t>(k + 1)] : LectorLineas::kFin;
    LectorLineas lector(ruta, desde, hasta);
    std::string_view linea;
    while (lector.Siguiente(linea))
        if (LineaDeCabecera(linea)) break;
}

} // namespace

namespace ListaPgn {

void PrintText(int i, std::string_view texto) {
    if (i >= 0 && i <= 5) Text1[i] = texto;
    if (i == 6) Combo1 = texto;
}

void Descargar() {
    Eventos.clear();
    EventosIndice = -1;
    EventosTag.clear();
    for (auto& t : Text1) t.clear();
    Combo1.clear();
    Label2 = HastaDosPuntos(Label2);
    EtiquetaCuenta.clear();
    PgnMovimientos.clear();
    PgnMovimientosIndice = -1;
    PgnJugadas.clear();
    indice = Indice{};
    tabla.clear();
    Variables::FicheroPgn.clear();
    Variables::ListaLeida = Variables::PgnConFen = false;
    Variables::TotalPartidas = 0;
    Variables::PosicionPgn = -1;
}

} // namespace ListaPgn

namespace Variables {

void AbrirPgn(const std::string& ruta) {
    FicheroPgn = ruta;
    ListaLeida = GuardandoPgn = false;
    TotalPartidas = 0;
    ListaPgn::PgnMovimientos.clear();
    ListaPgn::PgnMovimientosIndice = -1;
    for (auto& t : ListaPgn::Text1) t.clear();
    ListaPgn::Combo1.clear();
    dibujo().AvisoCargando(dialogos().Mensaje(69));
    const size_t barra = ruta.find_last_of("/\\");
    ListaPgn::Titulo = " - " + (barra == std::string::npos ? ruta : ruta.substr(barra + 1));
    ListaPgn::Eventos.clear();
    ListaPgn::EventosIndice = -1;
    ListaPgn::Label2 = HastaDosPuntos(ListaPgn::Label2) + " 0";
    ListaPgn::EventosTag = "-1";
}

void LeerCabecerasPgn(const std::string& ruta) {
    PgnConFen = false;
    if (ListaLeida && indice.ruta != ruta) { // another file: its list starts afresh
        ListaLeida = false;
        TotalPartidas = 0;
        ListaPgn::Eventos.clear();
        ListaPgn::EventosIndice = -1;
    }
    if (!ListaLeida)
        PrimeraPasada(ruta);
    else
        CabecerasElegida(ruta);
}

void BuscarClick(int i) {
    if (i < 0 || i > 6) return;
    ListaPgn::Buscar = i;
    if (FicheroPgn.empty()) return;
    ListaPgn::Label2 = HastaDosPuntos(ListaPgn::Label2) + " 0";
    TotalPartidas = 0;
    ListaPgn::Eventos.clear();
    ListaPgn::EventosIndice = -1;
    ListaLeida = false;
    LeerCabecerasPgn(FicheroPgn);
}

void LeerMovimientosPgn(const std::string& ruta) {
    const int32_t k = ListaPgn::EventosIndice;
    if (indice.ruta != ruta || k < 0 || k >= static_cast<int32_t>(indice.eventos.size())) return;
    const size_t i = static_cast<size_t>(k);
    const uint64_t hasta =
        i + 1 < indice.eventos.size() ? indice.eventos[i + 1] : LectorLineas::kFin;
    LectorLineas lector(ruta, indice.eventos[i], hasta);
    std::string texto;
    std::string_view linea;
    lector.Siguiente(linea); // the "[event " line itself
    while (lector.Siguiente(linea)) {
        if (linea.empty() || linea[0] == '%' || linea[0] == '[') continue;
        texto.append(linea);
        texto += ' ';
    }
    ListaPgn::PgnMovimientos.clear();
    ListaPgn::PgnMovimientosIndice = -1;
    ListarMovimientosPgn(std::move(texto));
}

void ListarMovimientosPgn(std::string texto) {
    if (texto.find_first_not_of(' ') == std::string::npos) return;
    QuitarComentarios(texto);
    int64_t numero = 0;
    bool blancas = true;
    size_t ini = 0;
    for (;;) {
        size_t fin = texto.find(' ', ini);
        if (fin == std::string::npos) fin = texto.size();
        const std::string_view token(texto.data() + ini, fin - ini);
        switch (TipoTokenPgn(token)) {
        case 2:
            numero = ValorNumero(token);
            blancas = true;
            break;
        case 3:
            if (PgnConFen) break;
            AgregarJugadaPgn(numero, blancas, token);
            blancas = false;
            break;
        case 5: {
            const size_t punto = token.find('.');
            numero = ValorNumero(token.substr(0, punto));
            AgregarJugadaPgn(numero, true, token.substr(punto + 1));
            blancas = false;
            break;
        }
        default:
            break;
        }
        if (fin >= texto.size()) break;
        ini = fin + 1;
    }
}

int TipoTokenPgn(std::string_view token) {
    // Most tokens are plain moves: with none of the characters the tests below
    // look for, and not starting as a number might, each of them fails.
    static constexpr auto kSenal = [] {
        struct Tabla {
            bool s[256];
        } t{};
        for (unsigned char c : std::string_view(".$-*[ ")) t.s[c] = true;
        return t;
    }();
    if (!token.empty() && !(token[0] >= '0' && token[0] <= '9') && token[0] != '+' &&
        std::none_of(token.begin(), token.end(),
                     [](char c) { return kSenal.s[static_cast<unsigned char>(c)]; }))
        return 3;
    if (token.empty() || token.find("...") != std::string_view::npos) return 0;
    if (RecortarBlancos(token) == "[!]") return 1;
    const size_t punto = token.find('.');
    if (punto != std::string_view::npos && punto + 1 < token.size()) return 5;
    if (EsNumerico(token)) return 2;
    if (token.find('$') != std::string_view::npos) return 4;
    const bool guion = token.find('-') != std::string_view::npos;
    const bool uno = token.find('1') != std::string_view::npos;
    if ((guion && uno) || token.find('*') != std::string_view::npos) return 6;
    return 3;
}

void AgregarJugadaPgn(int64_t numero, bool blancas, std::string_view texto) {
    if (numero == 0) return;
    static std::string fila; // one buffer for every row
    if (blancas) {
        char cifras[24];
        const auto r = std::to_chars(cifras, cifras + sizeof cifras, numero);
        fila.assign(cifras, r.ptr);
        fila += ". ";
    } else {
        fila.assign(18, ' ');
    }
    fila.append(texto);
    ListaPgn::PgnMovimientos.push_back(fila);
    ListaPgn::PgnMovimientosIndice = static_cast<int32_t>(ListaPgn::PgnMovimientos.size()) - 1;
}

} // namespace Variables
