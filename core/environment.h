#pragma once
// The doors from the game core to what it cannot do itself, one per role: the board's picture,
// the program's boxes and panels, the engine, and the lists beside the board. The peer has its
// own door in core/peer.h. The board and the shell each install the roles they own; a role not
// installed goes to a shared headless recorder (core/recorder.h), so the rules run the same with
// or without a window. Every call is pure virtual: a role the program forgets does not compile.

#include "platform/mensajes.h"

#include <string>

// The board's picture and the forms that belong to it.
class EntornoDibujo {
public:
    virtual ~EntornoDibujo() = default;
    virtual bool PointClickMarcado() = 0; // menu entry mnuPointClick
    virtual bool TableroInvertido() = 0;  // menu entry mnuInvertirTablero
    virtual void RedibujarTorreEnroque() = 0;
    virtual void MarcadorVisible(bool visible) = 0; // point-and-click selection shape
    virtual void OcultarMarcasUltimaJugada() = 0;
    virtual void DibujarMovimiento() = 0;
    virtual void RedibujarTablero() = 0;
    virtual void QuitarFichaAlPaso(int col, int fila) = 0;
    virtual void ListasCambiadas() = 0; // the move texts changed
    // `texto` over the empty board, in its middle, while a file loads.
    virtual void AvisoCargando(const std::string& texto) = 0;
    // The modal promotion form: on return it has done its work or was closed.
    virtual void MostrarCoronacion() = 0;
};

// The program's boxes, sounds and the captions of the clock panel.
class EntornoDialogos {
public:
    virtual ~EntornoDialogos() = default;
    // The answer is the button pressed (qa::kRespuestaSi, qa::kRespuestaNo, 1 for OK).
    virtual int MostrarMensaje(const std::string& titulo, const std::string& texto, int icono,
                               int botones, int extra) = 0;
    // The input box: the text typed, empty when it was cancelled.
    virtual std::string PedirTexto(const std::string& pregunta, const std::string& titulo) = 0;
    virtual void Sonar(int n) = 0;
    // The text of message n, for the boxes that add to it.
    virtual std::string Mensaje(int n) = 0;
    // Captions of White's (1) and Black's (2) clocks: a game file stores them, and a replay
    // tells its clock lines by whether they are empty.
    virtual std::string TextoReloj(int lado) = 0;
    virtual void PonerTextoReloj(int lado, const std::string& texto) = 0;
};

// The engine form. Its calls are reached only while an engine plays or the form is up.
class EntornoMotor {
public:
    virtual ~EntornoMotor() = default;
    virtual bool CpuVisible() = 0;
    virtual void DetenerTimersCpu() = 0;
    // The move just made goes to the engine, whose answer comes back by its own road.
    virtual void GenerarMovimiento() = 0;
};

// The PGN browser and the panels it and the replays hide.
class EntornoListas {
public:
    virtual ~EntornoListas() = default;
    virtual bool ListaPgnVisible() = 0;
    virtual void CerrarListaPgn() = 0;
    virtual void MostrarVentanas() = 0;
};

// The roles in force; never null.
EntornoDibujo& dibujo();
EntornoDialogos& dialogos();
EntornoMotor& motor();
EntornoListas& listas();
// nullptr gives the role back to the shared recorder.
void InstalarDibujo(EntornoDibujo* e);
void InstalarDialogos(EntornoDialogos* e);
void InstalarMotor(EntornoMotor* e);
void InstalarListas(EntornoListas* e);

// Message `numero` of the language file in the program's box, with one button.
inline void MostrarAviso(int numero, int icono = qa::kIconoInformacion) {
    dialogos().MostrarMensaje(qa::kTituloMensajes, std::to_string(numero), icono, qa::kBotonAceptar,
                              0);
}
