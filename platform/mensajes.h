#pragma once
// What every message box of the program is called with: its title, the icons, the buttons and
// the answers, by the numbers the boxes have always taken and given.
namespace qa {

inline constexpr const char* kTituloMensajes = "Quintarena";

inline constexpr int kIconoStop = 16;
inline constexpr int kIconoPregunta = 32;
inline constexpr int kIconoInformacion = 64;

inline constexpr int kBotonAceptar = 0;
inline constexpr int kBotonesSiNo = 4;
inline constexpr int kSegundoPorDefecto = 256;

inline constexpr int kRespuestaSi = 6;
inline constexpr int kRespuestaNo = 7;

} // namespace qa
