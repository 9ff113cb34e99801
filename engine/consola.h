#pragma once
// One console engine as the play logic sees it: a program started with its standard streams
// redirected. The holder makes one per engine (platform's process bridge in the program and the
// console tool, a scripted stand-in in tests) and hands its output back as whole lines through
// Motores::DatoRecibido, its failures through Motores::ErrorRecibido. One console's reports do
// not nest: the next line is reported after the report of the one before has returned, even
// when the logic yields to pending events inside it. A program that ends on its own, not by
// Terminar, is a failure to report: the game then ends with a message whichever side the
// engine plays, with or without clocks.

#include <string>

namespace qa {

class ConsolaMotor {
public:
    virtual ~ConsolaMotor() = default;
    // Starts the program and waits until it runs; 0 when it could not be started, and then no
    // failure is reported besides.
    virtual int Ejecutar(const std::string& ruta) = 0;
    // Ends the program for sure before it returns; nothing it said or did is reported after.
    virtual void Terminar() = 0;
    // Writes the text to the program's input. "\r\n" inside it ends lines, and the text is
    // ended with a line end of the console's own: commands come without one.
    virtual void Enviar(const std::string& texto) = 0;
};

} // namespace qa
