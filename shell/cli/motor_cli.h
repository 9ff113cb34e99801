#pragma once
// Engine play in the console tool: the engine form with no window. The form counts as up from
// the first engine command to `engine close`. Every line to an engine is printed as "to1 TEXT"
// or "to2 TEXT", every line from one as "from1 TEXT" or "from2 TEXT".

#include "engine/entorno_cpu.h"
#include "engine/motores.h"
#include "platform/puente_consola.h"
#include "platform/temporizador_qt.h"

#include <QObject>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class SesionCli;

class MotorCli final : public qa::EntornoCpu {
public:
    // `ceder` runs the events that wait.
    MotorCli(SesionCli& cli, std::function<void()> ceder);
    ~MotorCli() override;
    MotorCli(const MotorCli&) = delete;
    MotorCli& operator=(const MotorCli&) = delete;

    // "engine …" commands, and the main menu's resign, draw and take-back while the form is up.
    bool Ejecutar(const std::string& orden, const std::string& arg);
    bool Obtener(const std::string& nombre, std::string& valor);
    void CerrarPrograma() { motores_.CerrarPrograma(); }
    // The network session's calls to the toolbar.
    void ToolboxComand(int boton) { motores_.ToolboxComand(std::to_string(boton)); }

    // EntornoCpu
    qa::ConsolaMotor& NuevaConsola(int motor) override;
    void SoltarConsolas() override;
    void Ceder() override;
    bool Visible() override { return visible_; }
    void LlenarListas(const std::vector<std::string>& entradas) override;
    int IndiceLista(int lista) override { return indice_[lista == 2]; }
    void PonerTexto(int caja, const std::string& texto) override;
    void RelojEncendido(int, bool) override {}
    void MarcarInvertirTablero(bool) override {}
    void QuitarMarcoActivo() override {}
    void Player2() override;
    int OpcionNivel() override { return opcion_; }
    std::string TextoNivel(int caja) override;
    std::string JugadasNivel() override { return jugadas_; }
    int64_t MilisegundosDelDia() override;

private:
    // One engine's console over the process bridge, printing the lines both ways.
    class Consola final : public qa::ConsolaMotor {
    public:
        Consola(MotorCli& cpu, int motor);
        int Ejecutar(const std::string& ruta) override;
        void Terminar() override;
        void Enviar(const std::string& texto) override;
        // Reports nothing more; the program ends when the object goes.
        void Callar();

    private:
        MotorCli& cpu_;
        int motor_;
        qa::PuenteConsola puente_;
    };

    void Elegir(int lista, const std::string& nombre);
    void Nivel(const std::string& arg);
    void Soltar(int motor);
    void LimpiarSoltadas();

    SesionCli& cli_;
    std::function<void()> ceder_;
    qa::TemporizadorQt t1_, t2_, t3_, t4_, t5_;
    std::unique_ptr<Consola> consola_[2];
    std::vector<std::unique_ptr<Consola>> soltadas_; // deleted once the loop runs free
    QObject contexto_;                               // the deferred deletes die with us
    int enInforme_ = 0;                              // consoles' reports running

    bool visible_ = false;
    std::vector<std::string> entradas_;
    int indice_[2] = {0, 0};
    std::string cajas_[8];
    int opcion_ = 0;
    std::string texto_[4]; // value boxes 1 (seconds per move), 2 (depth), 3 (minutes)
    std::string jugadas_ = "40";
    qa::Motores motores_; // last: it goes first, while all it may call is still there
};
