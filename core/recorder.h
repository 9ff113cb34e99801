#pragma once
// A headless stand-in for every role of the core's doors: promotion takes the form's default (or
// a preset choice), and what the core sends outwards is recorded in order, so the console, the
// fuzz drivers and the tests can run the rules without a window and look at what was asked.

#include "core/environment.h"
#include "core/peer.h"

#include <string>
#include <vector>

// The button a box answers with: an OK box 1; a yes/no box the first answer waiting (taken off
// the list), or its default button when none waits.
int RespuestaRegistrada(int botones, int extra, std::vector<int>& respuestas);

class EntornoRegistro : public EntornoDibujo,
                        public EntornoDialogos,
                        public EntornoMotor,
                        public EntornoListas,
                        public EntornoRed {
public:
    struct Mensaje {
        std::string titulo, texto;
        int icono = 0;
    };
    // 0: press the button at once (queen); 1..4: click that box first;
    // -1: close the form without a choice.
    int eleccionCoronacion = 0;
    bool invertido = false;
    bool listaPgnVisible = false;
    bool pointClick = false;
    bool cpuVisible = false;
    int colorRed = 1; // the answer to PreguntarColor

    std::vector<Mensaje> mensajes;
    std::vector<int> sonidos;
    std::vector<int> resultados;
    int coronacionesMostradas = 0;
    int marcadorVisible = -1; // last state asked for, -1 never
    int movimientosDibujados = 0, redibujos = 0;
    // Each call to the peer and the engine, and the rarer calls to the display and the lists,
    // as its name and its arguments: "EnviarMovimiento 5 2 5 4 0", "AvisoCargando 69".
    std::vector<std::string> alRival, alMotor, llamadas;

    bool PointClickMarcado() override { return pointClick; }
    bool TableroInvertido() override { return invertido; }
    void RedibujarTorreEnroque() override {}
    void MarcadorVisible(bool v) override { marcadorVisible = v ? 1 : 0; }
    void OcultarMarcasUltimaJugada() override {}
    void DibujarMovimiento() override { ++movimientosDibujados; }
    void RedibujarTablero() override { ++redibujos; }
    void QuitarFichaAlPaso(int, int) override {}
    void ListasCambiadas() override {}
    void AvisoCargando(const std::string& texto) override;
    void MostrarCoronacion() override;

    // Answers waiting for the next question and input boxes, in order; with none waiting a
    // question gets its default button and an input box is cancelled.
    std::vector<int> respuestas;
    std::vector<std::string> textos;
    int MostrarMensaje(const std::string& titulo, const std::string& texto, int icono, int botones,
                       int extra) override;
    std::string PedirTexto(const std::string& pregunta, const std::string& titulo) override;
    void Sonar(int n) override { sonidos.push_back(n); }
    std::string Mensaje(int n) override { return std::to_string(n); }
    std::string TextoReloj(int lado) override { return relojes_[lado == 2]; }
    void PonerTextoReloj(int lado, const std::string& texto) override {
        relojes_[lado == 2] = texto;
    }

    bool CpuVisible() override { return cpuVisible; }
    void DetenerTimersCpu() override { alMotor.push_back("DetenerTimersCpu"); }
    void GenerarMovimiento() override { alMotor.push_back("GenerarMovimiento"); }

    bool ListaPgnVisible() override { return listaPgnVisible; }
    void CerrarListaPgn() override;
    void MostrarVentanas() override { llamadas.push_back("MostrarVentanas"); }

    void EnviarMovimiento(int colOrigen, int filaOrigen, int colDestino, int filaDestino,
                          int32_t pieza) override;
    void EnviarInicioPartida() override { alRival.push_back("EnviarInicioPartida"); }
    void EnviarLineaPartida(LineaPartida tipo, const std::string& linea) override;
    void EnviarErrorPartida() override { alRival.push_back("EnviarErrorPartida"); }
    void EnviarLadoRival(int colorRival, int turnoRival) override;
    void EnviarFinPartida() override { alRival.push_back("EnviarFinPartida"); }
    void CancelarEpd() override { alRival.push_back("CancelarEpd"); }
    void EnviarPosicion() override { alRival.push_back("EnviarPosicion"); }
    int PreguntarColor() override;
    void SumaDePartidas(int resultado) override;

private:
    std::string relojes_[2] = {"00:00", "00:00"};
};

// Installs `r` in every role; nullptr gives them all back to the shared recorder.
void InstalarRegistro(EntornoRegistro* r);
