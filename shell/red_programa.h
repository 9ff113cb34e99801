#pragma once
// Network play in the program: the board form's two sockets and its network timers, the clock
// panel's two timers, and the session they drive, installed as the game core's peer. The forms
// of network play show what the session tells them.

namespace qa {

class SesionRed;

// Sets the hooks and the peer; after the board and the files have set theirs.
void InstalarRedPrograma();
// Ends the sockets and the timers; before the application goes.
void TerminarRedPrograma();
// The session in force, or null before the install.
SesionRed* Sesion();

} // namespace qa
