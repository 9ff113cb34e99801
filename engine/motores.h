#pragma once
// Games against console engines: the engines found in the program's "Motor" folder, starting and
// stopping them, the line dialogue with them, the moves both ways, the requests of the person at
// the board, the clocks of time-control games and the levels. The holder hands in its doors and
// five timers, installs this as the core's engine door, and calls the handlers below for the
// toolbar, the menus and the consoles' reports. The timers' ticks are wired here.

#include "core/environment.h"
#include "engine/entorno_cpu.h"
#include "platform/temporizador.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace qa {

// The dialogue's state, readable by holders and tests. Index 1 and 2 are engine 1 (White) and
// engine 2 (Black); whether each runs is the core's MotorBlancas / MotorNegras.
struct EstadoMotores {
    std::string ComandoMotor[3];   // last text handed over; also marks a pending request
    std::string RespuestaMotor[3]; // last move line accepted, lower case; "..." from each send
    std::string RutaMotor[3];
    std::string NivelMotor; // the level command sent at start
    int32_t CentesimasBlancas = 0, CentesimasNegras = 0;
    std::string MovimientoCPU;
    // Entry i of both lists is NombresMotor[i], found at RutasMotor[i]; entry 0 is no engine.
    std::vector<std::string> NombresMotor, RutasMotor;
    bool EnroquePendiente = false, CerrandoMotor = false, ParandoMotores = false,
         PeticionPendiente = false;
    int UltimoSegundoBlancas = -1, UltimoSegundoNegras = -1;
};

class Motores final : public EntornoMotor {
public:
    // Timers: 1 a request's answer, 2 the castling fallback, 3 the delayed start, 4 and 5
    // White's and Black's clock. They must outlive this.
    Motores(EntornoCpu& cpu, Temporizador& timer1, Temporizador& timer2, Temporizador& timer3,
            Temporizador& timer4, Temporizador& timer5);
    ~Motores() override;
    Motores(const Motores&) = delete;
    Motores& operator=(const Motores&) = delete;

    const EstadoMotores& Estado() const { return e_; }

    // The core's door.
    bool CpuVisible() override;
    void DetenerTimersCpu() override;
    void GenerarMovimiento() override;

    // Both lists refilled from the "Motor" folder beside the program.
    void ActualizarCPU();

    // Toolbar buttons by index: 1 start, 2 stop, 4 resign, 5 offer a draw, 7 take back, 9 hint,
    // 10 move now. 12 (levels) is the holder's; PuedeAbrirNiveles says whether it may open.
    void Boton(int indice);
    // "2" stop both engines, "3" the person resigns, "4" offers a draw, "5" takes back: the
    // toolbar's and the main menu's commands during an engine game.
    void ToolboxComand(const std::string& codigo);
    bool PuedeAbrirNiveles() const;

    // The levels dialog's choice becomes the level command: at the dialog's accept and after
    // the settings are read.
    void CargarLevel();

    // The consoles' reports, by engine (1 or 2).
    void DatoRecibido(int motor, const std::string& texto);
    void ErrorRecibido(int motor, const std::string& texto);

    // The engine form closed (it only hides): engines stopped, game ended, consoles dropped.
    void CerrarFormulario();
    // The program closes: with the form up, engines stopped and the game ended; consoles
    // dropped in any case.
    void CerrarPrograma();

private:
    struct Impl;
    EstadoMotores e_;
    std::unique_ptr<Impl> impl_;
};

} // namespace qa
