#pragma once
// The engine form and its consoles without Qt: a console follows a script of the lines it
// expects and the lines it answers (the same scripts the fake engine program reads), its answers
// arrive when the logic yields, and the timers tick by hand.

#include "engine/motores.h"
#include "platform/temporizador.h"
#include "test_support.h"

#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace prueba {

// One step of a script: '<' a line the engine expects, '>' a line it writes, '!' a failure its
// console reports.
struct Paso {
    char tipo;
    std::string texto;
};
std::vector<Paso> LeerGuion(const std::string& nombre); // a file of tests/engine/guiones
std::vector<Paso> Guion(const std::string& texto);      // the same from a text

class ConsolaGuion final : public qa::ConsolaMotor {
public:
    int Ejecutar(const std::string& ruta) override;
    void Terminar() override;
    void Enviar(const std::string& texto) override;

    // Lines waiting to be reported, and what the script expects next.
    void Seguir(std::vector<Paso> pasos);
    void Decir(const std::string& linea) { salida.push_back({'>', linea}); }
    bool GuionCumplido() const { return paso == pasos.size(); }

    int resultadoEjecutar = 1;
    std::string ruta;
    bool terminada = false;
    int ejecuciones = 0;
    bool informando = false;           // a report of this console is under way
    std::vector<std::string> enviados; // each send as it came
    std::vector<std::string> lineas;   // the same split at line ends
    std::deque<Paso> salida;

private:
    void Avanzar();
    std::vector<Paso> pasos;
    std::size_t paso = 0;
};

class CpuPrueba final : public qa::EntornoCpu {
public:
    qa::Motores* motores = nullptr;
    ConsolaGuion* consola[3] = {};
    std::vector<std::unique_ptr<ConsolaGuion>> todas; // kept to the end, as a holder's are
    std::vector<Paso> guion[3];                       // the script each new console follows
    int resultadoEjecutar[3] = {1, 1, 1};

    bool visible = true;
    std::vector<std::string> entradas;
    int indice[3] = {0, 0, 0};
    std::string texto[8];
    bool encendido[8] = {};
    std::vector<int> invertir;
    int player2 = 0, marcosQuitados = 0, cesiones = 0, consolasSoltadas = 0;
    int opcion = 1;
    std::string nivel[4] = {"", "5", "6", "5"};
    std::string jugadas = "40";
    int64_t ms = 0;

    qa::ConsolaMotor& NuevaConsola(int motor) override;
    void SoltarConsolas() override;
    void Ceder() override;
    bool Visible() override { return visible; }
    void LlenarListas(const std::vector<std::string>& e) override {
        entradas = e;
        indice[1] = indice[2] = 0;
    }
    int IndiceLista(int lista) override { return indice[lista == 2 ? 2 : 1]; }
    void PonerTexto(int caja, const std::string& t) override { texto[caja] = t; }
    void RelojEncendido(int caja, bool e) override { encendido[caja] = e; }
    void MarcarInvertirTablero(bool marcada) override { invertir.push_back(marcada); }
    void QuitarMarcoActivo() override { ++marcosQuitados; }
    void Player2() override;
    int OpcionNivel() override { return opcion; }
    std::string TextoNivel(int caja) override { return nivel[caja]; }
    std::string JugadasNivel() override { return jugadas; }
    int64_t MilisegundosDelDia() override { return ms; }
};

// A board with the engine form up: the recorder for the core's doors, the form's stand-in, the
// play logic installed as the core's engine.
class PartidaMotor : public Partida {
protected:
    class Registro final : public EntornoRegistro {
    public:
        // Texts with a "$" where the messages that take a name have one.
        std::string Mensaje(int n) override;
    };
    Registro registro;
    CpuPrueba cpu;
    qa::TemporizadorManual t1{1000}, t2{2000}, t3{1000}, t4{1}, t5{1};
    std::unique_ptr<qa::Motores> motores;

    void SetUp() override;
    void TearDown() override;

    const qa::EstadoMotores& E() const { return motores->Estado(); }
    // Lists holding "fairy" (1) and "phalanx" (2), found in a program folder of our own; the
    // entries chosen for White and Black.
    void Listas(int blanco, int negro);
    // The start button and the delayed start's tick; the consoles follow their scripts.
    void Empezar(int blanco, int negro);
    // A line from engine `motor`, as its console reports it, and the events after it.
    void Dice(int motor, const std::string& linea);
    // Everything waiting is delivered.
    void Ceder() { cpu.Ceder(); }
    ConsolaGuion& C(int motor) { return *cpu.consola[motor]; }
    // The last send to engine `motor`, and all of them since the last call.
    std::string Ultimo(int motor) const;
    std::vector<std::string> Nuevos(int motor);
    std::vector<std::string> Textos() const; // message box texts, in order
    std::size_t vistos[3] = {};
    const ConsolaGuion* visto[3] = {};
};

} // namespace prueba
