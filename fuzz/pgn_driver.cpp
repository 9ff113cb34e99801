#include "fuzz/pgn_driver.h"

#include "core/game_state.h"
#include "core/recorder.h"
#include "files/epd_list.h"
#include "files/pgn_browser.h"
#include "files/pgn_moves.h"
#include "files/pgn_scanner.h"
#include "files/qtr_replay.h"

#include <cstdlib>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

using namespace Variables;

namespace {

void ComprobarTablero() {
    for (int i = 0; i <= 8; ++i)
        if (Tablero[0][i] != 0 || Tablero[i][0] != 0) std::abort();
    for (int c = 1; c <= 8; ++c)
        for (int f = 1; f <= 8; ++f)
            if (Tablero[c][f] < 0 || Tablero[c][f] > 12) std::abort();
}

// The bytes as a file the readers can open by name, kept in memory.
class FicheroMemoria {
public:
    FicheroMemoria(const uint8_t* d, size_t n) {
        fd_ = memfd_create("partida", MFD_CLOEXEC);
        if (fd_ < 0) std::abort();
        for (size_t hecho = 0; hecho < n;) {
            ssize_t w = write(fd_, d + hecho, n - hecho);
            if (w <= 0) std::abort();
            hecho += static_cast<size_t>(w);
        }
        ruta_ = "/proc/self/fd/" + std::to_string(fd_);
    }
    ~FicheroMemoria() { close(fd_); }
    const std::string& Ruta() const { return ruta_; }

private:
    int fd_;
    std::string ruta_;
};

} // namespace

void EjecutarEntradaPgn(const uint8_t* datos, size_t tam) {
    static EntornoRegistro entorno;
    InstalarRegistro(&entorno);
    RestablecerTodo();
    entorno = EntornoRegistro();
    ListaPgn::Descargar();
    if (tam == 0) return;
    const uint8_t modo = datos[0];
    ++datos;
    --tam;
    FicheroMemoria f(datos, tam);
    const std::string texto(reinterpret_cast<const char*>(datos), tam);

    // The browser: a search tag, the first pass, a few games, stepping.
    entorno.listaPgnVisible = true;
    ListaPgn::Buscar = modo % 7;
    AbrirPgn(f.Ruta());
    CargarPartidaPgn();
    ComprobarTablero();
    for (int32_t i = 1; i < 4 && i < TotalPartidas; ++i) {
        ElegirPartidaPgn(TotalPartidas - i);
        CargarPartidaPgn();
        ComprobarTablero();
    }
    for (int b = 1; b <= 5; ++b) {
        PulsarBotonPgn(b);
        ComprobarTablero();
    }
    TeclaPgn(37);
    IrAFilaPgn(1);
    BuscarClick((modo / 7) % 7);
    ComprobarTablero();

    // Every token as a move, from the initial position, both colours.
    VariablesCero();
    PonerFichas();
    Turno = 0;
    size_t ini = 0;
    for (int n = 0; n < 300 && ini < texto.size(); ++n) {
        size_t fin = texto.find_first_of(" \n", ini);
        if (fin == std::string::npos) fin = texto.size();
        const std::string token = texto.substr(ini, fin - ini);
        TipoTokenPgn(token);
        ComFicha(token, 1 + n % 2);
        ComprobarTablero();
        ini = fin + 1;
    }
    ListarMovimientosPgn(texto);
    entorno.listaPgnVisible = false;

    // The same bytes as an EPD list and as a game file.
    FEpd::LeerEPD(f.Ruta());
    FEpd::Cerrar();
    ComprobarTablero();
    if (modo & 0x80) ReproducirQtr(f.Ruta());
    ComprobarTablero();
    InstalarRegistro(nullptr);
}
