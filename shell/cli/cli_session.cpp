#include "shell/cli/cli_session.h"

#include "core/game_state.h"
#include "core/local_move.h"
#include "core/move_list.h"
#include "core/recorder.h"
#include "core/takeback.h"
#include "files/epd_list.h"
#include "files/fen.h"
#include "files/game_file.h"
#include "files/line_reader.h"
#include "files/pgn_browser.h"
#include "files/pgn_moves.h"
#include "files/pgn_scanner.h"
#include "files/qtr_replay.h"
#include "platform/texto.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <map>
#include <ostream>
#include <sstream>
#include <vector>

using namespace Variables;

namespace {

std::string Bandera(bool b) {
    return b ? "-1" : "0";
}

using Lector = std::function<std::string()>;

// The scalar variables of the shared state, by name, from their one list.
const std::map<std::string, Lector>& TablaVariables() {
    static const std::map<std::string, Lector> tabla = [] {
        std::map<std::string, Lector> t;
        auto b = [&](const char* n, const bool& v) {
            t[qa::Minusculas(n)] = [&v] { return Bandera(v); };
        };
        auto i = [&](const char* n, const auto& v) {
            t[qa::Minusculas(n)] = [&v] { return std::to_string(v); };
        };
        auto s = [&](const char* n, const std::string& v) {
            t[qa::Minusculas(n)] = [&v] { return v; };
        };
#define CASILLAS(n)
#define TEXTO(n) s(#n, n);
#define ENTERO(tipo, n) i(#n, n);
#define BANDERA(n) b(#n, n);
#define PAR(n) b(#n "(1)", n[1]), b(#n "(2)", n[2]);
#define LINEAS(n)
#include "core/game_state_list.h"
        return t;
    }();
    return tabla;
}

// Splits "move 5254" into the command and its argument, trimming blanks.
void Partir(const std::string& linea, std::string& orden, std::string& resto) {
    size_t a = linea.find_first_not_of(" \t\r");
    if (a == std::string::npos) {
        orden.clear();
        resto.clear();
        return;
    }
    size_t b = linea.find_first_of(" \t\r", a);
    orden = linea.substr(a, b == std::string::npos ? std::string::npos : b - a);
    resto.clear();
    if (b == std::string::npos) return;
    size_t c = linea.find_first_not_of(" \t", b);
    if (c == std::string::npos) return;
    resto = linea.substr(c);
    while (!resto.empty() && (resto.back() == '\r' || resto.back() == ' ' || resto.back() == '\t'))
        resto.pop_back();
}

} // namespace

// Message boxes become lines on standard error; the promotion form takes its default.
// Nothing printed is kept, and sounds and results have nowhere to go: a session of any
// length holds no record of what it showed.
class SesionCli::Entorno : public EntornoRegistro {
public:
    Entorno(std::ostream& salida, std::ostream& errores, Traductor& traductor)
        : salida_(salida), errores_(errores), traductor_(traductor) {}
    int MostrarMensaje(const std::string& titulo, const std::string& texto, int, int botones,
                       int extra) override {
        errores_ << "message " << titulo << ": " << (traductor_ ? traductor_(texto) : texto)
                 << std::endl;
        return RespuestaRegistrada(botones, extra, respuestas);
    }
    // With no text waiting the box is cancelled; its caller is told not to ask again
    // (SinRespuesta), so nothing loops on an empty answer.
    std::string PedirTexto(const std::string& pregunta, const std::string& titulo) override {
        errores_ << "input " << titulo << ": " << pregunta << std::endl;
        sinTexto_ = textos.empty();
        if (sinTexto_) {
            salida_ << "error no answer waiting for the input box" << std::endl;
            return {};
        }
        std::string t = textos.front();
        textos.erase(textos.begin());
        return t;
    }
    void Responder(std::vector<int> si, std::vector<std::string> t) {
        respuestas.insert(respuestas.end(), si.begin(), si.end());
        textos.insert(textos.end(), t.begin(), t.end());
    }
    bool SinRespuesta() const { return sinTexto_; }
    void Sonar(int) override {}
    void SumaDePartidas(int) override {}
    void AvisoCargando(const std::string&) override {}
    void MostrarVentanas() override {}
    void CerrarListaPgn() override { listaPgnVisible = false; }
    // The text of a message that a caller adds to, as the game files do.
    std::string Mensaje(int n) override {
        return traductor_ ? traductor_(std::to_string(n)) : std::to_string(n);
    }

private:
    std::ostream& salida_;
    std::ostream& errores_;
    Traductor& traductor_;
    bool sinTexto_ = false;
};

SesionCli::SesionCli(std::ostream& salida, std::ostream& errores, Traductor traductor)
    : salida_(salida), errores_(errores), traductor_(std::move(traductor)),
      entorno_(new Entorno(salida_, errores_, traductor_)) {
    InstalarRegistro(entorno_);
}

SesionCli::~SesionCli() {
    InstalarRegistro(nullptr);
    delete entorno_;
}

void SesionCli::Ejecutar(const std::string& linea) {
    std::string orden, arg;
    Partir(linea, orden, arg);
    if (orden.empty() || orden[0] == '#') return;

    if (ordenes_ && ordenes_->Ejecutar(orden, arg)) {
        // the holder answered
    } else if (orden == "answer") {
        Responder(arg);
    } else if (orden == "new" && arg.empty()) {
        NuevaPartidaLocal();
        salida_ << "ok\n";
    } else if (orden == "move") {
        Mover(arg);
    } else if (orden == "probe") {
        Probar(arg);
    } else if (orden == "takeback" && arg.empty()) {
        RetrocesoFuncion();
        salida_ << "ok\n";
    } else if (orden == "get") {
        Obtener(arg);
    } else if (orden == "board" && arg.empty()) {
        for (int f = 8; f >= 1; --f) {
            for (int c = 1; c <= 8; ++c) salida_ << (c > 1 ? " " : "") << Tablero[c][f];
            salida_ << '\n';
        }
        salida_ << ".\n";
    } else if (orden == "list") {
        Lista(arg);
    } else if (orden == "fen" && arg.empty()) {
        EscribirFen();
        salida_ << TextoFen << '\n';
    } else if (orden == "setfen" && !arg.empty()) {
        PosicionFen = arg;
        salida_ << (AbrirEpd() ? "ok" : "refused") << '\n';
    } else if (orden == "undo" && arg.empty()) {
        for (const auto& r : Jugadas::List1) salida_ << r << '\n';
        salida_ << ".\n";
    } else if (orden == "save" && !arg.empty()) {
        Guardar(arg);
    } else if (orden == "open" && !arg.empty()) {
        Abrir(arg);
    } else if (orden == "pgn" && !arg.empty()) {
        Pgn(arg);
    } else if (orden == "pgngame" && !arg.empty()) {
        PgnPartida(arg);
    } else {
        salida_ << "error unknown command: " << orden << '\n';
    }
    salida_.flush();
}

void SesionCli::Mover(const std::string& arg) {
    int32_t pieza = 0;
    if (arg.size() < 4) {
        salida_ << "error move needs OODD\n";
        return;
    }
    if (arg.size() > 4) {
        const char* ini = arg.data() + 4;
        const char* fin = arg.data() + arg.size();
        auto [p, ec] = std::from_chars(ini, fin, pieza);
        if (ec != std::errc() || p != fin || *ini == '-' || *ini == '+') {
            salida_ << "error bad promotion piece\n";
            return;
        }
    }
    if (Turno == 0) {
        salida_ << "ignored\n";
        return;
    }
    Respuesta r = SoltarFicha(arg.substr(0, 2), arg.substr(2, 2), pieza);
    if (r.tipo != Respuesta::Legal) {
        salida_ << "refused\n";
        return;
    }
    salida_ << "legal" << (r.jaque ? " check" : "") << (r.mate ? " mate" : "")
            << (r.ahogado ? " stalemate" : "") << '\n';
}

void SesionCli::Probar(const std::string& arg) {
    if (arg.size() != 4) {
        salida_ << "error probe needs OODD\n";
        return;
    }
    salida_ << (ProbarJugada(arg.substr(0, 2), arg.substr(2, 2)) ? "legal" : "refused") << '\n';
}

void SesionCli::Obtener(const std::string& nombre) {
    const auto& tabla = TablaVariables();
    const std::string clave = qa::Minusculas(nombre);
    auto it = tabla.find(clave);
    std::string valor;
    if (it == tabla.end() && ordenes_ && ordenes_->Obtener(clave, valor)) {
        salida_ << valor << '\n';
        return;
    }
    if (it == tabla.end()) {
        salida_ << "error unknown variable: " << nombre << '\n';
        return;
    }
    salida_ << it->second() << '\n';
}

void SesionCli::Lista(const std::string& arg) {
    if (arg.size() != 1 || arg[0] < '1' || arg[0] > '5') {
        salida_ << "error list needs a number from 1 to 5\n";
        return;
    }
    for (const auto& l : Jugadas::Lineas(arg[0] - '0')) salida_ << l << '\n';
    salida_ << ".\n";
}

void SesionCli::Guardar(const std::string& ruta) {
    Guardado g = GuardarPartida(ruta);
    if (g == Guardado::Etiquetas) g = ConfirmarEtiquetasPgn(EtiquetasIniciales());
    salida_ << (g == Guardado::Hecho ? "ok" : g == Guardado::Nada ? "ignored" : "failed") << '\n';
}

void SesionCli::Abrir(const std::string& ruta) {
    const std::string ext = Ficheros::Extension3(ruta);
    bool bien = false;
    if (!Ficheros::Existe(ruta)) {
        bien = false; // the open command does nothing for a missing file
    } else if (ext == "qtr") {
        bien = ReproducirQtr(ruta);
    } else if (ext == "pgn") {
        AbrirListaPgn(ruta);
        bien = TotalPartidas > 0;
    } else if (ext == "epd") {
        bien = FEpd::LeerEPD(ruta) && FEpd::EventosDblClick(0);
        if (!bien) FEpd::Cerrar();
    }
    salida_ << (bien ? "ok" : "refused") << '\n';
}

// The browser's first pass, as the form's timer runs it after opening a file.
void SesionCli::AbrirListaPgn(const std::string& ruta) {
    entorno_->listaPgnVisible = true;
    ListaPgn::Descargar();
    AbrirPgn(ruta);
    CargarPartidaPgn();
    entorno_->listaPgnVisible = false;
}

void SesionCli::Pgn(const std::string& ruta) {
    // As the open command: a file that is not there changes nothing.
    if (!Ficheros::Existe(ruta)) {
        salida_ << "0\n";
        return;
    }
    AbrirListaPgn(ruta);
    salida_ << TotalPartidas << '\n';
}

void SesionCli::PgnPartida(const std::string& arg) {
    const size_t blanco = arg.find_last_of(' ');
    int32_t n = -1;
    if (blanco != std::string::npos) {
        const char* ini = arg.data() + blanco + 1;
        const char* fin = arg.data() + arg.size();
        auto [p, ec] = std::from_chars(ini, fin, n);
        if (ec != std::errc() || p != fin) n = -1;
    }
    if (n < 0) {
        salida_ << "error pgngame needs PATH N\n";
        return;
    }
    const std::string ruta = arg.substr(0, blanco);
    const bool existe = Ficheros::Existe(ruta);
    if (existe && (FicheroPgn != ruta || !ListaLeida)) AbrirListaPgn(ruta);
    if (!existe || n >= static_cast<int32_t>(ListaPgn::Eventos.size())) {
        salida_ << "error no game " << n << '\n';
        return;
    }
    entorno_->listaPgnVisible = true;
    ElegirPartidaPgn(n);
    FallaPgn = false;
    CargarPartidaPgn();
    entorno_->listaPgnVisible = false;
    salida_ << (FallaPgn ? "failed " : "ok ") << ListaPgn::PgnJugadas.size() << '\n';
}

void SesionCli::ResponderTexto(const std::string& texto) {
    entorno_->Responder({}, {texto});
}

bool SesionCli::CajaSinRespuesta() const {
    return entorno_->SinRespuesta();
}

// "answer yes no text Ana": the answers the next boxes get, checked whole before any is kept.
void SesionCli::Responder(const std::string& arg) {
    std::vector<int> si;
    std::vector<std::string> textos;
    std::istringstream palabras(arg);
    std::string p;
    while (palabras >> p) {
        if (p == "yes") {
            si.push_back(qa::kRespuestaSi);
        } else if (p == "no") {
            si.push_back(qa::kRespuestaNo);
        } else if (p == "text" && palabras >> p) {
            textos.push_back(p);
        } else {
            salida_ << "error answer takes yes, no or text WORD\n";
            return;
        }
    }
    if (si.empty() && textos.empty()) {
        salida_ << "error answer takes yes, no or text WORD\n";
        return;
    }
    entorno_->Responder(std::move(si), std::move(textos));
    salida_ << "ok\n";
}
