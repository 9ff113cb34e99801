#include "shell/puntuacion.h"

#include "language/idioma.h"
#include "platform/escritura.h"
#include "platform/ini_file.h"
#include "platform/programa.h"
#include "platform/ruta.h"
#include "platform/texto.h"
#include "shell/configuracion.h"
#include "shell/formularios.h"
#include "shell/ranking.h"
#include "shell/servicios.h"

#include <QLabel>

namespace qa {

RegistroPuntuacion Puntuacion;
RegistroPuntuacion PuntuacionRemota;

namespace {

void Reiniciar() {
    Puntuacion = RegistroPuntuacion{};
    Puntuacion.Puntos = kPuntosIniciales;
}

std::int32_t* Campos(RegistroPuntuacion& r, int i) {
    std::int32_t* c[] = {&r.PartidasJugadas, &r.PartidasGanadas, &r.PartidasPerdidas,
                         &r.PartidasTablas, &r.Puntos};
    return c[i];
}

} // namespace

std::string FicheroPuntuacion() {
    if (TerminaEn(DirectorioDatos, "\\")) return DirectorioDatos + "Puntuacion.dat";
    return DirectorioDatos + "\\Puntuacion.dat";
}

void LeerPuntuacion() {
    const std::string fichero = FicheroPuntuacion();
    std::string bytes;
    // A FIFO or a folder in its place would block or fail: it counts as no record at all.
    if (ExisteFichero(fichero) && LeerFicheroRegular(RutaReal(fichero), bytes)) {
        bytes.resize(20); // a short file reads as zeros
        const auto* b = reinterpret_cast<const unsigned char*>(bytes.data());
        for (int i = 0; i < 5; ++i) {
            std::uint32_t v = b[i * 4] | (b[i * 4 + 1] << 8) | (b[i * 4 + 2] << 16) |
                              (static_cast<std::uint32_t>(b[i * 4 + 3]) << 24);
            *Campos(Puntuacion, i) = static_cast<std::int32_t>(v);
        }
        ComprobarPuntuacion();
    }
    PrintPuntuacion();
}

void ComprobarPuntuacion() {
    const auto& p = Puntuacion;
    const std::int64_t suma =
        std::int64_t{p.PartidasGanadas} + p.PartidasTablas + p.PartidasPerdidas;
    if (suma == p.PartidasJugadas) return;
    Reiniciar();
    GrabarPuntuacion();
}

void GrabarPuntuacion() {
    const std::string fichero = FicheroPuntuacion();
    const std::string ruta = RutaEscritura(fichero);
    if (ExisteRuta(fichero)) {
        if (!QuitarSoloLectura(ruta)) {
            AvisoNoEscribible(ruta);
            return;
        }
    } else {
        Reiniciar();
    }
    if (Puntuacion.Puntos == 0 && Puntuacion.PartidasJugadas == 0) return;
    char b[20];
    for (int i = 0; i < 5; ++i) {
        auto v = static_cast<std::uint32_t>(*Campos(Puntuacion, i));
        for (int k = 0; k < 4; ++k) b[i * 4 + k] = static_cast<char>((v >> (8 * k)) & 0xFF);
    }
    if (!EscribirFichero(ruta, std::string_view(b, sizeof b))) {
        AvisoNoEscribible(ruta);
        return;
    }
    PrintPuntuacion();
}

void PrintPuntuacion() {
    Ranking* r = Forms().ranking;
    if (!r) return;
    for (int i = 0; i < 10; ++i) {
        QLabel* l = r->Label(i);
        QString t = l->text();
        int dos = static_cast<int>(t.indexOf(':'));
        if (dos >= 0) t.truncate(dos + 1);
        auto& reg = i < 5 ? Puntuacion : PuntuacionRemota;
        l->setText(t + " " + QString::number(*Campos(reg, i % 5)));
    }
}

} // namespace qa
