#pragma once
// The narrow door from the game core to everything it cannot do itself:
// drawing, dialogs, sounds, message boxes, the rating record, engine timers.
// The program installs its forms here; without them a headless stand-in
// records what was asked, so the rules run the same with or without a window.

#include <string>
#include <vector>

class Entorno {
public:
    virtual ~Entorno() = default;

    // Questions about the display.
    virtual bool ListaPgnVisible() { return false; }
    virtual bool CpuVisible() { return false; }
    virtual bool PointClickMarcado() { return false; } // menu entry mnuPointClick
    virtual bool TableroInvertido() { return false; }  // menu entry mnuInvertirTablero

    // Display work the rules ask for.
    virtual void RedibujarTorreEnroque() {}           // show the castling rook's move
    virtual void MarcadorVisible(bool /*visible*/) {} // point-and-click selection shape
    virtual void OcultarMarcasUltimaJugada() {}
    virtual void DibujarMovimiento() {}
    virtual void RedibujarTablero() {} // after a take-back
    virtual void QuitarFichaAlPaso(int /*col*/, int /*fila*/) {}
    virtual void ListasCambiadas() {} // the move texts changed

    // The modal promotion form: on return it has done its work or was closed.
    virtual void MostrarCoronacion();

    virtual void MostrarMensaje(const std::string& titulo, const std::string& texto, int icono,
                                int botones, int extra);
    virtual void Sonar(int n);
    virtual void SumaDePartidas(int resultado);
    virtual void DetenerTimersCpu() {}
    // The peer and the engine, once they exist.
    virtual void EnviarMensaje(const std::string& /*texto*/) {}
    virtual void GenerarMovimiento() {}

    // Opening a position as a new game.
    virtual void CerrarListaPgn() {}
    virtual void ReiniciarRelojes() {}
    // Over the network: which side the local player takes, 1 or 2.
    virtual int PreguntarColorRed() { return 1; }
    virtual void EnviarPosicionRed() {}

    // Game files. The text of message n, for the boxes that add to it.
    virtual std::string Mensaje(int n) { return std::to_string(n); }
    // Captions of White's (1) and Black's (2) clocks: a game file stores
    // them, and a replay tells its clock lines by whether they are empty.
    virtual std::string TextoReloj(int lado) { return relojes_[lado == 2]; }
    virtual void PonerTextoReloj(int lado, const std::string& texto) {
        relojes_[lado == 2] = texto;
    }
    virtual void AvisoCargando() {}   // message 69 over the board while a file loads
    virtual void MostrarVentanas() {} // the panels a replay or a browser hid come back

private:
    std::string relojes_[2] = {"00:00", "00:00"};
};

// A headless environment: promotion takes the form's default (or a preset
// choice), and messages, sounds and results are recorded in order.
class EntornoRegistro : public Entorno {
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

    std::vector<Mensaje> mensajes;
    std::vector<int> sonidos;
    std::vector<int> resultados;
    int coronacionesMostradas = 0;
    int marcadorVisible = -1; // last state asked for, -1 never

    bool ListaPgnVisible() override { return listaPgnVisible; }
    bool PointClickMarcado() override { return pointClick; }
    bool TableroInvertido() override { return invertido; }
    void MarcadorVisible(bool v) override { marcadorVisible = v ? 1 : 0; }
    void MostrarCoronacion() override;
    void MostrarMensaje(const std::string& titulo, const std::string& texto, int icono, int botones,
                        int extra) override;
    void Sonar(int n) override { sonidos.push_back(n); }
    void SumaDePartidas(int resultado) override { resultados.push_back(resultado); }
};

// The environment in force; never null (a shared EntornoRegistro by default).
Entorno& entorno();
void InstalarEntorno(Entorno* e); // nullptr restores the default
