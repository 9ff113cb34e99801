#pragma once
// The console tool's standard input read from the event loop, so sockets, timers and engines
// go on while no command comes. Whole lines run as they arrive; `wait MS` holds back the lines
// after it for that long while the loop runs. At the end of the input the last partial line is
// still a command, and the program ends once every command before it, waits included, is done.

#include <QSocketNotifier>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>
#include <string>

class SesionCli;

class EntradaCli {
public:
    // `leido` was read before the loop began; with `fin` the input ended there. `alTerminar`
    // runs once, when the input has ended and nothing is left to run.
    EntradaCli(SesionCli& sesion, const std::string& leido, bool fin,
               std::function<void()> alTerminar);
    EntradaCli(const EntradaCli&) = delete;
    EntradaCli& operator=(const EntradaCli&) = delete;

    // While held (a yield to pending events inside a command or an event), lines wait.
    static void Retener(bool retener);

private:
    void Leer();
    void Tomar(const char* datos, size_t n);
    void Acabar();
    void Avanzar();
    bool Esperar(const std::string& arg);

    SesionCli& sesion_;
    std::function<void()> alTerminar_;
    std::unique_ptr<QSocketNotifier> notificador_;
    QTimer espera_;
    std::string resto_;
    std::deque<std::string> lineas_;
    bool fin_ = false;
    bool esperando_ = false;
    bool terminado_ = false;
    bool enCurso_ = false;
    QObject contexto_;
    static int retenida_;
};
