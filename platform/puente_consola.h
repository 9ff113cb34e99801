#pragma once
// One console program (a chess engine) with its standard input and output on pipes: text goes in
// as commands, comes back one whole line at a time. It knows nothing of chess.
//
// The child runs in a process group of its own, so a launcher script or an adapter and whatever
// they start end together when the program ends them, and never outlive the program.

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <string>

class QProcess;

namespace qa {

class PuenteConsola {
public:
    PuenteConsola();
    ~PuenteConsola(); // ends the program, if one runs, silently
    PuenteConsola(const PuenteConsola&) = delete;
    PuenteConsola& operator=(const PuenteConsola&) = delete;

    // Starts `ruta` in its own folder and waits for it to run. False when it could not be
    // started; that is reported here only, never through `alErrorRecibido`. A program that
    // still runs is ended first.
    bool Ejecutar(const std::string& ruta);
    // Ends the program for sure before it returns: closes its input, then terminates and at last
    // kills its whole process group. Nothing is reported afterwards for that program.
    void Terminar();
    // Each "\r\n" of the text reaches the program as a line end, and a line end follows the last
    // line. Ignored when nothing runs.
    void Enviar(const std::string& texto);
    bool Ejecutando() const;

    // One line of output, without its line end (LF or CR LF). Reports never nest: while a
    // handler runs, even one that runs the event loop, the next report waits for its return.
    std::function<void(const std::string&)> alDatoRecibido;
    // The program ended by itself, after its last lines.
    std::function<void(const std::string&)> alErrorRecibido;

    // A line longer than this without a line end is dropped whole, up to its end.
    static constexpr std::size_t kLineaMaxima = 64 * 1024;
    // Lines waiting for a handler that runs the event loop beyond this many bytes are dropped.
    static constexpr std::size_t kColaMaxima = 4 * 1024 * 1024;
    // Bound of each wait inside `Terminar`, in milliseconds.
    static constexpr int kEsperaPedir = 300;
    static constexpr int kEsperaTerminar = 700;

private:
    struct Aviso {
        bool error;
        std::string texto;
    };

    void Leer();
    void Partir(const char* datos, std::size_t n);
    void Encolar(std::string linea);
    void Entregar();
    void AlAcabar(int codigo, bool caido);
    void Soltar();

    std::unique_ptr<QProcess> proceso_;
    long long grupo_ = 0;
    std::string pendiente_;        // the start of a line whose end has not come
    bool descartando_ = false;     // inside an over-long line, until its end
    std::deque<Aviso> cola_;       // reports not yet delivered
    std::size_t bytesCola_ = 0;    // bytes of the lines among them
    bool entregando_ = false;      // a handler of ours runs
    int enAviso_ = 0;              // depth of our own handlers of the process's signals
    std::shared_ptr<bool> vivo_;   // false once the run is over: deliveries stop
    std::shared_ptr<bool> existe_; // false once this object is gone
};

// Kills the process groups of every program still running (for the end of the program).
void TerminarTodasLasConsolas();

} // namespace qa
