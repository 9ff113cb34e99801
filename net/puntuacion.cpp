#include "net/puntuacion.h"

#include "core/environment.h"
#include "platform/escritura.h"
#include "platform/ini_file.h"
#include "platform/mensajes.h"
#include "platform/programa.h"
#include "platform/ruta.h"
#include "platform/texto.h"

#include <algorithm>

namespace qa {

RegistroPuntuacion Puntuacion;
RegistroPuntuacion PuntuacionRemota;

std::int32_t& CampoPuntuacion(RegistroPuntuacion& r, int i) {
    std::int32_t* c[] = {&r.PartidasJugadas, &r.PartidasGanadas, &r.PartidasPerdidas,
                         &r.PartidasTablas, &r.Puntos};
    return *c[std::clamp(i, 0, 4)];
}

std::string FicheroPuntuacion() {
    if (TerminaEn(DirectorioDatos, "\\")) return DirectorioDatos + "Puntuacion.dat";
    return DirectorioDatos + "\\Puntuacion.dat";
}

RegistroPuntuacion DesdeBytes(const std::string& bytes) {
    std::string b = bytes;
    b.resize(20); // a short file reads as zeros
    RegistroPuntuacion r;
    for (int i = 0; i < 5; ++i) {
        std::uint32_t v = 0;
        for (int k = 3; k >= 0; --k) v = (v << 8) | static_cast<unsigned char>(b[i * 4 + k]);
        CampoPuntuacion(r, i) = static_cast<std::int32_t>(v);
    }
    return r;
}

std::string ABytes(const RegistroPuntuacion& r) {
    std::string b(20, '\0');
    RegistroPuntuacion copia = r;
    for (int i = 0; i < 5; ++i) {
        const auto v = static_cast<std::uint32_t>(CampoPuntuacion(copia, i));
        for (int k = 0; k < 4; ++k) b[i * 4 + k] = static_cast<char>((v >> (8 * k)) & 0xFF);
    }
    return b;
}

bool PuntuacionValida(const RegistroPuntuacion& p) {
    const std::int64_t suma =
        std::int64_t{p.PartidasGanadas} + p.PartidasTablas + p.PartidasPerdidas;
    return suma == p.PartidasJugadas;
}

void ReiniciarPuntuacion() {
    Puntuacion = RegistroPuntuacion{};
    Puntuacion.Puntos = kPuntosIniciales;
}

bool LeerPuntuacion() {
    const std::string fichero = FicheroPuntuacion();
    std::string bytes;
    // A FIFO or a folder in its place would block or fail: it counts as no record at all.
    if (!ExisteRuta(fichero)) {
        GrabarPuntuacion();
        return false;
    }
    if (!LeerFicheroRegular(RutaReal(fichero), bytes)) return false;
    Puntuacion = DesdeBytes(bytes);
    if (!PuntuacionValida(Puntuacion)) {
        ReiniciarPuntuacion();
        GrabarPuntuacion();
    }
    return true;
}

bool GrabarPuntuacion() {
    const std::string fichero = FicheroPuntuacion();
    const std::string ruta = RutaEscritura(fichero);
    const auto aviso = [&ruta] {
        const std::string t =
            ReemplazarDolar(dialogos().Mensaje(28), std::string(FinLinea) + ruta + FinLinea);
        if (!t.empty()) dialogos().MostrarMensaje(kTituloMensajes, t, kIconoInformacion, 0, 0);
        return false;
    };
    if (ExisteRuta(fichero)) {
        if (!QuitarSoloLectura(ruta)) return aviso();
    } else {
        ReiniciarPuntuacion();
    }
    if (Puntuacion.Puntos == 0 && Puntuacion.PartidasJugadas == 0) return true;
    if (!EscribirFichero(ruta, ABytes(Puntuacion))) return aviso();
    return true;
}

namespace {
// A peer may tell any record: the counts stop at the top instead of wrapping.
void Uno(std::int32_t& v) {
    if (v < INT32_MAX) ++v;
}
std::int32_t Sumar(std::int32_t v, int d) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(std::int64_t{v} + d, 0, INT32_MAX));
}
} // namespace

void SumarResultado(int resultado) {
    RegistroPuntuacion& p = Puntuacion;
    RegistroPuntuacion& r = PuntuacionRemota;
    const std::int32_t P = p.Puntos, R = r.Puntos;
    int paso = 0; // of the local points; the peer's go the other way by as much
    switch (resultado) {
    case 2:
        Uno(p.PartidasGanadas);
        Uno(r.PartidasPerdidas);
        paso = P > R ? 50 : 100;
        break;
    case 1:
        Uno(p.PartidasPerdidas);
        Uno(r.PartidasGanadas);
        paso = P < R ? -50 : -100;
        break;
    case 3:
        Uno(p.PartidasTablas);
        Uno(r.PartidasTablas);
        paso = P > R ? -50 : P < R ? 50 : 0;
        break;
    default:
        return;
    }
    Uno(p.PartidasJugadas);
    Uno(r.PartidasJugadas);
    p.Puntos = Sumar(P, paso);
    r.Puntos = Sumar(R, -paso);
}

} // namespace qa
