#pragma once
// What the engine session's files share: its doors, its timers and the steps every subject takes.
// Private to engine/; the holders see engine/motores.h only.

#include "engine/motores.h"

#include "core/game_state.h"
#include "core/move_list.h"
#include "engine/lector_motor.h"
#include "engine/niveles.h"
#include "engine/texto_motor.h"
#include "platform/mensajes.h"

#include <string>

namespace qa {

using namespace Variables;

namespace motor {

inline constexpr const char* kCrLf = "\r\n";

inline void Aviso(const std::string& texto, int icono = kIconoInformacion) {
    dialogos().MostrarMensaje(kTituloMensajes, texto, icono, kBotonAceptar, 0);
}
inline void Aviso(int numero, int icono = kIconoInformacion) {
    Aviso(std::to_string(numero), icono);
}

} // namespace motor

struct Motores::Impl {
    Impl(Motores& m, EntornoCpu& c, Temporizador& t1, Temporizador& t2, Temporizador& t3,
         Temporizador& t4, Temporizador& t5)
        : self(m), e(m.e_), cpu(c), timer1(t1), timer2(t2), timer3(t3), timer4(t4), timer5(t5) {}

    Motores& self;
    EstadoMotores& e;
    EntornoCpu& cpu;
    Temporizador &timer1, &timer2, &timer3, &timer4, &timer5;
    ConsolaMotor* consola[3] = {};

    static bool Corre(int motor) { return motor == 1 ? MotorBlancas : MotorNegras; }
    static bool DosMotores() { return MotorBlancas && MotorNegras; }
    bool ConReloj() { return cpu.OpcionNivel() == kNivelReloj; }

    // The entry a list shows, and whether it names an engine rather than a person.
    std::string NombreLista(int lista);
    bool NombraMotor(int lista) { return Nombra(cpu.IndiceLista(lista)); }
    bool Nombra(int i) const;

    // Consoles (consolas.cpp).
    void EnviarMotor(int motor);
    void Enviar(int motor, const std::string& comando);
    void ArrancarMotor(int motor);
    bool Lanzar(int motor);
    void CmdTerminar(int motor);
    void DescargarDLL();
    void VariableCPUCero(bool relojes = true);
    void Terminar();

    // Clocks (relojes_motor.cpp).
    void PararRelojes();
    void TimeMilisegundos();
    std::string Relojes(int motor);
    void PrintTimerCPU(int lado);
    void RelojesANivel();
    void EsperarSegundo(Temporizador& t);
    static void EncenderReloj(Temporizador& t);
    void TickReloj(int lado);

    // Moves both ways (intercambio.cpp).
    void ConvertirMovimiento(const std::string& texto);
    static void TurnoDelJugador();
    void RamaMovimiento(const LineaMotor& l, int m);
    void EnroqueEnviado();
    void Timer2();

    // The dialogue (dialogo.cpp).
    void Saludar();
    void LeerLineaMotor(const std::string& texto, int m);

    // Match control (partida_motor.cpp).
    void CerrarPartidaCPU();
    void OfertaTablas(int m);
    void MotorRendido(int m);
    void Empezar();
    void Timer3();
    void Timer1();
    void Peticion(const std::string& comando);
};

} // namespace qa
