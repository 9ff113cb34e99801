#include "files/game_file.h"

#include "core/environment.h"
#include "core/game_state.h"
#include "core/move_list.h"
#include "files/fen.h"
#include "files/line_reader.h"
#include "files/pgn_scanner.h"
#include "platform/escritura.h"
#include "platform/mensajes.h"
#include "platform/texto.h"

#include <ctime>

namespace Variables {

namespace {

using qa::kIconoInformacion;

// Minutes and seconds of a clock caption such as "05:30": its first two and
// last two characters.
std::string Tiempo(const std::string& rotulo) {
    if (rotulo.empty()) return {};
    const std::string a = rotulo.substr(0, 2);
    const std::string b = rotulo.size() >= 2 ? rotulo.substr(rotulo.size() - 2) : rotulo;
    return a + b;
}

Guardado Escribir(const std::string& texto) {
    if (!qa::EscribirFichero(RutaPartida, texto)) return Guardado::Fallo;
    MostrarAviso(34);
    RutaPartida.clear();
    return Guardado::Hecho;
}

} // namespace

std::vector<std::pair<std::string, std::string>> FiltrosGuardar() {
    if (DesdePosicion) return {{" Epd (*.epd)", "*.epd"}};
    return {{" (*.qtr)", "*.qtr"}, {" Pgn (*.pgn)", "*.pgn"}, {" Epd (*.epd)", "*.epd"}};
}

std::string TextoQtr() {
    const std::string b = Tiempo(dialogos().TextoReloj(1));
    const std::string n = Tiempo(dialogos().TextoReloj(2));
    std::string t = b + qa::FinLinea + n + qa::FinLinea;
    if (!TipoPartida.empty()) {
        t += TipoPartida + qa::FinLinea;
    } else {
        if (b != "0000" || n != "0000") t += std::string("R") + qa::FinLinea;
        if (b == "0000" || n == "0000") t += std::string("A") + qa::FinLinea;
    }
    return t + Jugadas::List[4];
}

std::string ConstruirTextoPgn(const std::string& lista3) {
    std::string out;
    size_t linea = 0; // characters on the current output line
    for (size_t i = 0; i < lista3.size(); ++i) {
        const char c = lista3[i];
        if (c == ' ' || c == '\r') continue;
        if (c == '\n') {
            if (linea < 71) {
                out += ' ';
                ++linea;
            } else {
                out += qa::FinLinea;
                linea = 0;
            }
            continue;
        }
        out += c;
        ++linea;
        if (c == '.' && (i + 1 >= lista3.size() || lista3[i + 1] != 'p')) {
            out += ' ';
            ++linea;
        }
    }
    return out;
}

Guardado GuardarPartida(const std::string& ruta) {
    RutaPartida.clear();
    if (EditandoTablero || ruta.empty()) return Guardado::Nada;
    RutaPartida = ruta;
    if (!qa::QuitarSoloLectura(ruta)) {
        const std::string t =
            qa::ReemplazarDolar(dialogos().Mensaje(28), qa::FinLinea + ruta + qa::FinLinea);
        dialogos().MostrarMensaje(qa::kTituloMensajes, t, kIconoInformacion, 0, 0);
        RutaPartida.clear();
        return Guardado::Fallo;
    }
    TextoPgn.clear();
    TextoPartida.clear();
    const std::string ext = Ficheros::Extension3(ruta);
    if (ext == "epd") {
        EscribirFen();
        return Escribir(TextoFen + qa::FinLinea);
    }
    if (ext == "qtr") {
        TextoPartida = TextoQtr();
        return Escribir(TextoPartida);
    }
    if (ext == "pgn") {
        TextoPgn = ConstruirTextoPgn(Jugadas::List[3]);
        GuardandoPgn = true;
        return Guardado::Etiquetas;
    }
    RutaPartida.clear();
    return Guardado::Nada;
}

EtiquetasPgn EtiquetasIniciales() {
    EtiquetasPgn e;
    const std::time_t ahora = std::time(nullptr);
    std::tm t{};
    localtime_r(&ahora, &t);
    e.valor[0] = "Quintarena";
    e.valor[1] = "Internet";
    e.valor[2] = std::to_string(t.tm_year + 1900) + "." + std::to_string(t.tm_mon + 1) + "." +
                 std::to_string(t.tm_mday);
    e.valor[3] = e.valor[4] = e.valor[5] = "?";
    e.valor[6] = "*";
    return e;
}

Guardado ConfirmarEtiquetasPgn(const EtiquetasPgn& e) {
    static constexpr const char* nombres[7] = {"[Event ", "[Site ",  "[Date ",  "[Round ",
                                               "[White ", "[Black ", "[Result "};
    GuardandoPgn = false;
    if (RutaPartida.empty()) return Guardado::Nada;
    std::string t;
    for (int i = 0; i < 7; ++i)
        t += std::string(nombres[i]) + "\"" + e.valor[i] + "\"]" + qa::FinLinea;
    t += qa::FinLinea + TextoPgn + e.valor[6] + qa::FinLinea;
    TextoPartida = t;
    const Guardado g = Escribir(t);
    RutaPartida.clear();
    return g;
}

void CancelarEtiquetasPgn() {
    GuardandoPgn = false;
    RutaPartida.clear();
}

} // namespace Variables
