#pragma once
// The PGN browser's scanner: lists the games of a file by one tag, fetches
// the tags and the move text of the selected game, and breaks the move text
// into rows of moves. Matching is on the lower-cased start of a line.
//
// The first pass notes where each listed game and each "[event " line
// starts, so a selection reads only its own lines; what a selection shows is
// what a scan from the first line would show, the odd parts included (a list
// out of step with the games when a tag is missing, tags of the first game
// mixed with the second's when listing by another tag than Event).

#include "core/lista_textos.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The controls of the ListaPgn and PgnMovimientos forms that carry logic;
// the windows show them.
namespace ListaPgn {

inline std::vector<std::string> Eventos; // the list; an entry's ItemData is its index
inline int32_t EventosIndice = -1;       // the selected entry
inline std::string EventosTag;           // the index last shown, as text
inline int Buscar = 0;                   // which of the seven tags Eventos lists
inline std::string Text1[6];             // Event, Site, Date, Round, White, Black
inline std::string Combo1;               // Result
inline std::string Label2 = "Partida:";  // position in the list
inline std::string EtiquetaCuenta;       // the count of games, once per form
inline std::string Titulo;               // caption: "Titulo" key, " - ", file name
inline ListaTextos PgnMovimientos;       // rows "12. e4" and 18 blanks + "e5"
inline int32_t PgnMovimientosIndice = -1;
inline ListaTextos PgnJugadas; // the game in replay form

// The line starts Buscar chooses from.
inline constexpr const char* kEtiquetasBuscar[7] = {"[event ", "[site ",  "[date ",  "[round ",
                                                    "[white ", "[black ", "[result "};

// Text1 0 to 5, Combo1 for 6.
void PrintText(int i, std::string_view texto);
// Empties the boxes, the lists and the index; the form as when loaded.
void Descargar();

} // namespace ListaPgn

namespace Variables {

inline std::string FicheroPgn;
inline bool ListaLeida, PgnConFen, GuardandoPgn;
inline int32_t TotalPartidas;
inline int32_t PosicionPgn = -1;

// Clears the browser for a new file; the form's timer then runs the first pass.
void AbrirPgn(const std::string& ruta);
// The scanner: the first pass while ListaLeida is false, then the selected game's tags.
void LeerCabecerasPgn(const std::string& ruta);
// A new search tag: the list is read again at once.
void BuscarClick(int indice);
void LeerMovimientosPgn(const std::string& ruta);
void ListarMovimientosPgn(std::string texto);
// 0 nothing, 1 a comment mark, 2 a move number, 3 a move, 4 a NAG,
// 5 number and move in one, 6 a result.
int TipoTokenPgn(std::string_view token);
void AgregarJugadaPgn(int64_t numero, bool blancas, std::string_view texto);

} // namespace Variables
