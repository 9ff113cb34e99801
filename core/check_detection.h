#pragma once
// Check, mate and stalemate tests over TableroCopia. There is no move
// generator: attack walkers fill an attack map (-1 on touched empty squares),
// reach walkers ask whether a defender can get to a square. The verdicts have
// gaps on purpose: two copies of the program must judge every position alike.

#include <cstdint>
#include <string>

namespace Variables {

void ProbarReyPropio();
void ProbarJaque();
void ProbarMate();
void ProbarAhogado();
// The same three on a TableroCopia that holds the move already and no marks,
// as ProbarReyPropio leaves it when the move stands.
void ProbarJaqueEnCopia();
void ProbarMateEnCopia();
void ProbarAhogadoEnCopia();
// Check, then mate or stalemate, on such a copy: the filter's verdict on the opponent.
void VeredictoEnCopia();
// ProbarReyPropio for a move that stands on the copy it draws; false when the
// own king is left attacked, else the verdict made on that copy.
bool ReyPropioYVeredictoEnCopia();

void ProbarAtaque();
void BuscarAtacantes();
void ProbarHuidaRey();
void ContarAtacantes();
void BuscarInterposicion();
void BuscarCaptura();

void MoverNegras(int32_t objetivo);
void MoverBlancas(int32_t objetivo);
void CapturaNegras(int32_t codigo);
void CapturaBlancas(int32_t codigo);

void AlcanceRecto(int col, int fila, int32_t objetivo);
void AlcanceCaballo(int col, int fila, int32_t objetivo);
void AlcanceDiagonal(int col, int fila, int32_t objetivo);
void AvancePeonNegro(int col, int fila, int32_t objetivo);
void AvancePeonBlanco(int col, int fila, int32_t objetivo);
void CapturaPeonNegro(int col, int fila, int32_t codigo);
void CapturaPeonBlanco(int col, int fila, int32_t codigo);

void AtaqueRecto(int col, int fila, int32_t rey);
void AtaqueCaballo(int col, int fila, int32_t rey);
void AtaqueDiagonal(int col, int fila, int32_t rey);
void AtaqueRey(int col, int fila, int32_t rey);
void AtaquePeonNegro(int col, int fila);
void AtaquePeonBlanco(int col, int fila);

void MarcarLineaRecta(int col, int fila, int32_t rey);
void MarcarLineaDiagonal(int col, int fila, int32_t rey);
void EsPrimerAtacante(int col, int fila);

// The first step of every top-level test: Tablero over TableroCopia, then the
// move of Origen/Destino played on the copy.
void CopiarYJugar();
// Tablero over TableroCopia, without the move.
void CopiarTablero();

// A square as its two-digit text, column first.
std::string TextoCasilla(int col, int fila);
// The square named by the first and last characters of a text; 0 where a
// character is no digit.
void LeerCasilla(const std::string& texto, int& col, int& fila);

} // namespace Variables
