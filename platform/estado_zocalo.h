#pragma once
// The states of a stream socket, by the numbers the network logic compares with (above 0 is in
// use): the platform's socket answers them, the logic reads them.

namespace qa {

enum EstadoZocalo : int {
    kZocaloCerrado = 0,
    kZocaloAbierto = 1,
    kZocaloEscuchando = 2,
    kZocaloPendiente = 3,
    kZocaloResolviendo = 4,
    kZocaloResuelto = 5,
    kZocaloConectando = 6,
    kZocaloConectado = 7,
    kZocaloCerrando = 8, // the peer has closed; closing ends it here too
    kZocaloError = 9,
};

} // namespace qa
