#pragma once
// The file commands of the program: a game file replayed on the board by its two timers, the
// save command, and the colour dialog.

namespace qa {

void InstalarFicheros();

} // namespace qa
