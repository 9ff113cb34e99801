#pragma once
// The rating record "Puntuacion.dat": five little-endian 32-bit numbers, 20 bytes.
#include <cstdint>
#include <string>

namespace qa {

struct RegistroPuntuacion {
    std::int32_t PartidasJugadas = 0, PartidasGanadas = 0, PartidasPerdidas = 0, PartidasTablas = 0,
                 Puntos = 0;
};

extern RegistroPuntuacion Puntuacion;
extern RegistroPuntuacion PuntuacionRemota;

inline constexpr std::int32_t kPuntosIniciales = 1200;

std::string FicheroPuntuacion();
void LeerPuntuacion();
// A record whose counters do not add up starts again at 1200, and is written.
void ComprobarPuntuacion();
void GrabarPuntuacion();
// The ten labels of the ranking panel: the text up to its ":", a blank and the number.
void PrintPuntuacion();

} // namespace qa
