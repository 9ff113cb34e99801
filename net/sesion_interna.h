#pragma once
// What the session's files share: its state and the small steps every subject takes. Private to
// net/; the holders see net/sesion.h only.

#include "net/sesion.h"

#include "core/clocks.h"
#include "core/environment.h"
#include "core/game_end.h"
#include "core/game_state.h"
#include "core/move_filter.h"
#include "core/move_list.h"
#include "core/move_sequence.h"
#include "core/takeback.h"
#include "files/fen.h"
#include "files/pgn_scanner.h"
#include "files/qtr_replay.h"
#include "net/puntuacion.h"
#include "net/texto_red.h"
#include "platform/mensajes.h"
#include "platform/texto.h"

#include <array>
#include <climits>

namespace qa {

using namespace Variables;
using wire::Clase;

namespace red {

// A rated result, as the record adds it.
inline constexpr int kGanada = 2, kPerdida = 1, kTablas = 3;

// No game any more: no kind, no colour, nobody to move.
inline void TerminarPartida() {
    TipoPartida.clear();
    ColorJugador.clear();
    Turno = 0;
}

} // namespace red

using namespace red;

struct SesionRed::Impl {
    Impl(SesionRed& sesion, Zocalo& cli, Zocalo& ser, VistaRed& v, TemporizadoresRed tr, Hora& h)
        : s(sesion), wcli(cli), wser(ser), vista(v), t(tr), hora(h) {}

    SesionRed& s;
    Zocalo& wcli;
    Zocalo& wser;
    VistaRed& vista;
    TemporizadoresRed t;
    Hora& hora;

    DialogoConexion conexion;
    DialogoNuevo nuevo;
    // Places 1 to 40; 0 is not used and 41 stays empty, so the shift reads one past the last.
    std::array<std::string, kCola + 2> cola{};
    int32_t cuenta = 0;
    bool esCliente = false, esServidor = false;
    bool envioEnCurso = false, pingEnCurso = false;
    bool relojTrasMovimiento = false, relojTrasRetroceso = false;
    bool nuevoPendiente = false, ofertaPendiente = false, cierrePendiente = false;
    std::string archivoPendiente, versionRemota;
    // The text under dispatch. A message dispatched while a box is open overwrites it, and the
    // tests after the box read the new one.
    std::string recibido;
    int32_t pingInicio = 0, pingContador = 0, pingDelta = 0, pingSegundos = 0;
    int ultimoSegundoBlancas = 0, ultimoSegundoNegras = 0;
    int cajas = 0; // boxes of ours open, one inside the other

    std::string M(int n) { return dialogos().Mensaje(n); }

    // A box of ours. Beyond the nesting limit a question is answered no and a notice is not shown:
    // a flood of offers must not pile up nested loops without end.
    int Caja(const std::string& texto, int icono, int botones, int extra = 0) {
        if (cajas >= kPreguntasAnidadas) return botones == kBotonesSiNo ? kRespuestaNo : 1;
        ++cajas;
        const int r = dialogos().MostrarMensaje(kTituloMensajes, texto, icono, botones, extra);
        --cajas;
        return r;
    }
    bool Preguntar(int n, int extra = 0) {
        return Caja(std::to_string(n), kIconoPregunta, kBotonesSiNo, extra) == kRespuestaSi;
    }
    void Avisar(int n, int icono = kIconoInformacion) {
        Caja(std::to_string(n), icono, kBotonAceptar);
    }

    void VaciarCola() {
        for (int i = 1; i <= kCola; ++i) cola[static_cast<size_t>(i)].clear();
    }

    void OcultarMarcas() { dibujo().MarcadorVisible(false); }
    void QuitaMarco() { dibujo().OcultarMarcasUltimaJugada(); }

    // A clock caption shown; white marks the clock that ticks (lado 1 White, 2 Black).
    void PrintReloj(int lado);
    // Both counters to 0, shown.
    void RelojesCero() {
        MinutosBlancas = SegundosBlancas = MinutosNegras = SegundosNegras = 0;
        PrintReloj(1);
        PrintReloj(2);
    }
    void Relojes(bool blancas, bool negras) {
        t.relojBlancas.Habilitar(blancas);
        t.relojNegras.Habilitar(negras);
    }
    // The mover's clock stops and the other one runs.
    void CambiarRelojes() {
        if (ColorJugador == "Negras") Relojes(true, false);
        if (ColorJugador == "Blancas") Relojes(false, true);
    }

    // A fresh game, as the new game dialog makes it.
    void NuevoAceptado() {
        LineasPartida.assign(2, std::string());
        Cargando = false;
        Jugadas::Vaciar();
        PonerFichas();
        if (!Conectado) {
            dibujo().RedibujarTablero();
            vista.GirarTablero(false);
        }
        VariablesCero();
        MovimientoAnulado();
        EditandoTablero = false;
    }

    // A line for the chat history; one that the history cannot take any more asks to save it,
    // and empties it.
    void AnadirChat(std::string linea) {
        if (linea.size() > kLimiteChat) linea.resize(kLimiteChat);
        if (vista.LongitudChat() + linea.size() > kLimiteChat) {
            if (Caja("7", kIconoPregunta, kBotonesSiNo) == kRespuestaSi) vista.GuardarChat();
            vista.VaciarChat();
            return;
        }
        vista.AnadirChat(linea);
    }

    void InterrumpirEntrada() {
        if (!dibujo().PointClickMarcado()) {
            ArrastreCancelado = true;
            vista.CancelarArrastre();
        } else if (!Atacantes.empty()) {
            Destino.clear();
            Origen.clear();
            dibujo().MarcadorVisible(false);
            vista.SoltarPuntoClick();
        }
    }

    void ConexionEstablecida();
    void OlvidarEnlace();
    void ConexionCerrada();
    void ConexionError(const std::string& descripcion);
    void CerradoServidor() {
        wser.Cerrar();
        ConexionCerrada();
    }
    void Animacion() {
        if (conexion.esperando)
            conexion.esperando = false;
        else if (conexion.llamando)
            conexion.llamando = false;
    }

    void EnviarSocket(const std::string& texto) {
        if (!Conectado) return;
        Zocalo* z = esServidor ? &wser : esCliente ? &wcli : nullptr;
        if (z && !z->EnviarDatos(texto)) Avisar(6, kIconoStop);
    }
    void PrioridadCola() {
        const auto adelantar = [this](size_t i) {
            std::string guardado = std::move(cola[i]);
            for (size_t j = i; j > 1; --j) cola[j] = std::move(cola[j - 1]);
            cola[1] = std::move(guardado);
        };
        for (size_t i = 2; i <= kCola; ++i)
            if (cola[i] == wire::kPing) adelantar(i);
        for (size_t i = 2; i <= kCola; ++i)
            if (cola[i].starts_with("TIME")) adelantar(i);
        for (size_t i = 2; i <= kCola; ++i)
            if (cola[i].starts_with("Movimiento")) adelantar(i);
    }

    // The guards of resign, draw and take-back; false when the command stops here.
    bool Guardias(int boton) {
        if (motor().CpuVisible()) {
            vista.ComandoMotor(boton);
            return false;
        }
        if (listas().ListaPgnVisible()) return false;
        if (Cargando) {
            Avisar(80);
            return false;
        }
        if (ofertaPendiente || nuevoPendiente || !archivoPendiente.empty()) {
            Avisar(81);
            return false;
        }
        return !EditandoTablero;
    }

    void Despachar();
    bool Atender(Clase c);
    void Pong();
    void VersionQt();
    void VersionEnSaludo();
    bool Movimiento();
    void Epd(const wire::Posicion& p);
    void Qtr(const wire::LineaQtr& l);
    void ErrorQtr();
    bool NuevoJuego(const wire::Oferta& o);
    void NuevoAceptadoRecibido();
    void TickReloj(int lado);
    void EmpezarReplay(const std::string& ruta);
};

} // namespace qa
