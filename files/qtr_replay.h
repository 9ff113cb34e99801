#pragma once
// Opening a .qtr game file: its lines are replayed through the move filter,
// one per tick of the board form's SendQtr timer; when they run out,
// TimerRetrasoQTR ends the replay. A line the filter refuses stops it with
// message 27, the moves before it left on the board.

#include <string>

namespace Variables {

enum class PasoQtr {
    Sigue,   // tick again
    Final,   // the lines ran out: start TimerRetrasoQTR
    Rehusada // a line did not play: the replay is over, SendQtr off
};

// False, with message 27 and nothing changed, if the file cannot be read.
bool AbrirQtr(const std::string& ruta);
// One tick of SendQtr.
PasoQtr SendQtr();
// The tick of TimerRetrasoQTR that ends a replay.
void TimerRetrasoQtr();
// PiezaCoronacion from the digits behind the four of a stored move. False
// when they name no piece and the move would promote: a damaged line.
bool LeerCoronacion(const std::string& linea);
// The whole replay at once, for the console: true if it reached the end.
bool ReproducirQtr(const std::string& ruta);

} // namespace Variables
