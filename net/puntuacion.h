#pragma once
// The rating record "Puntuacion.dat": five little-endian 32-bit numbers, 20 bytes, kept for
// rated network games only; and the peer's record as its "Ranking " message told it.
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

// Field i (0 to 4) in file order.
std::int32_t& CampoPuntuacion(RegistroPuntuacion& r, int i);

// The record's file, in the folder of the written files.
std::string FicheroPuntuacion();
// The record from the file's bytes; a short file reads as zeros.
RegistroPuntuacion DesdeBytes(const std::string& bytes);
std::string ABytes(const RegistroPuntuacion& r);
// A record whose counters do not add up starts again at 1200.
bool PuntuacionValida(const RegistroPuntuacion& r);
void ReiniciarPuntuacion();
// At start: the file read and checked (a damaged or missing record is written anew). False
// when there is no file to read.
bool LeerPuntuacion();
// The record written through the one safe write; a record of 0 points and 0 games is not
// written. False, after message 28, when the file cannot be written.
bool GrabarPuntuacion();
// A rated result for the local player, 1 lost, 2 won, 3 drawn: both records change by the fixed
// steps (no formula), no record goes below 0. Neither is shown nor written here.
void SumarResultado(int resultado);

} // namespace qa
