// The game transfer: the "QTR" lines both ways and the pace of a replayed file.

#include "net/sesion_interna.h"

namespace qa {

void SesionRed::Impl::Qtr(const wire::LineaQtr& l) {
    if (l.iniciar) {
        OcultarMarcas();
        Cargando = true;
        ColorInicio = 0;
        TerminarPartida();
        dibujo().AvisoCargando(M(69));
        Jugadas::Vaciar();
        VariablesCero();
        MovimientoAnulado();
        PonerFichas();
        dialogos().PonerTextoReloj(1, "");
        dialogos().PonerTextoReloj(2, "");
        RelojesCero();
        LineasPartida.assign(2, std::string());
        LineasPartida[1] = "E";
    }
    if (l.terminado) {
        LineasPartida.assign(2, std::string());
        dibujo().RedibujarTablero();
        Cargando = false;
        vista.GirarTablero(ColorJugador == "Negras");
        QuitaMarco();
        return;
    }
    switch (l.tipo) {
    case wire::TipoQtr::Otra:
        break;
    case wire::TipoQtr::Error:
        ErrorQtr();
        break;
    case wire::TipoQtr::Clase:
        if (l.valor == 'B') ColorJugador = "Blancas";
        if (l.valor == 'N') ColorJugador = "Negras";
        if (l.valor == 'A' || l.valor == 'R') TipoPartida = std::string(1, l.valor);
        if (l.valor >= '0' && l.valor <= '2') Turno = static_cast<int16_t>(l.valor - '0');
        break;
    case wire::TipoQtr::Relojes:
        if (l.lado == 1) {
            MinutosBlancas = l.minutos;
            SegundosBlancas = l.segundos;
            Turno = 0;
            PrintReloj(1);
        } else {
            MinutosNegras = l.minutos;
            SegundosNegras = l.segundos;
            PrintReloj(2);
        }
        break;
    case wire::TipoQtr::Jugada:
        if (ColorInicio == 0) Turno = 1;
        if (ColorInicio == 1) Turno = 2;
        Origen = l.origen;
        Destino = l.destino;
        if (l.conPieza) PiezaCoronacion = l.pieza;
        FiltroMovimiento();
        // The sender played the line already; its result is not looked at, but a pawn taken
        // en passant leaves this board too.
        if (MovimientoValido && !AlPasoTexto.empty()) SubComoFicha(AlPasoTexto);
        if (ColorInicio == 0 && Turno == 1)
            ColorInicio = 1;
        else if (ColorInicio == 1 && Turno == 2)
            ColorInicio = 0;
        if (Mate || Ahogado) {
            TerminarPartida();
            RelojesCero();
            if (Mate) FinPorMate();
            if (Ahogado) FinPorAhogado();
        }
        break;
    }
}

void SesionRed::Impl::ErrorQtr() {
    LineasPartida.assign(2, std::string());
    dibujo().RedibujarTablero();
    Cargando = DesdePosicion = false;
    TerminarPartida();
    ColorInicio = 0;
    NuevoAceptado();
    if (!listas().ListaPgnVisible()) listas().MostrarVentanas();
    vista.GirarTablero(false);
    QuitaMarco();
    Avisar(55);
    RelojesCero();
}

void SesionRed::Impl::EmpezarReplay(const std::string& ruta) {
    t.sendQtr.Habilitar(false);
    t.retrasoQtr.Habilitar(false);
    if (!Variables::AbrirQtr(ruta)) return;
    vista.GirarTablero(false);
    dibujo().RedibujarTablero();
    t.sendQtr.Intervalo(100);
    t.sendQtr.Habilitar(true);
}

void SesionRed::TickSendQtr() {
    Impl& d = *p_;
    // The feeder slows as the send queue fills, and waits while it is nearly full.
    const int32_t n = d.cuenta;
    int ms = 100;
    if (Conectado) {
        if (n >= 6) ms = 300;
        if (n > 10) ms = 500;
        if (n > 15) ms = 700;
        if (n > 20) ms = 1000;
        if (n > 25) ms = 1500;
    }
    if (d.t.sendQtr.Intervalo() != ms) d.t.sendQtr.Intervalo(ms);
    if (Conectado && n >= 31) return;
    const PasoQtr paso = SendQtr();
    dibujo().RedibujarTablero();
    if (paso == PasoQtr::Final) d.t.retrasoQtr.Habilitar(true);
    if (paso == PasoQtr::Rehusada) d.t.sendQtr.Habilitar(false);
}

void SesionRed::TickRetrasoQtr() {
    Impl& d = *p_;
    d.t.retrasoQtr.Habilitar(false);
    // The end waits until every line has gone out.
    if (d.cuenta > 0) return;
    d.t.sendQtr.Habilitar(false);
    TimerRetrasoQtr();
    d.vista.GirarTablero(Conectado && ColorJugador == "Negras");
    d.QuitaMarco();
    dibujo().RedibujarTablero();
}

void SesionRed::AbrirQtr(const std::string& ruta) {
    TerminarPartida();
    dialogos().PonerTextoReloj(1, "");
    dialogos().PonerTextoReloj(2, "");
    p_->EmpezarReplay(ruta);
}

void SesionRed::EnviarInicioPartida() {
    EnviarMensaje("QTR Iniciar");
}

void SesionRed::EnviarLineaPartida(LineaPartida tipo, const std::string& linea) {
    switch (tipo) {
    case LineaPartida::Tipo:
        EnviarMensaje("QTR T " + linea);
        break;
    case LineaPartida::RelojBlancas:
        EnviarMensaje("QTR TB " + linea);
        break;
    case LineaPartida::RelojNegras:
        EnviarMensaje("QTR TN " + linea);
        break;
    case LineaPartida::Jugada:
        EnviarMensaje("QTR M " + linea);
        break;
    }
}

void SesionRed::EnviarErrorPartida() {
    EnviarMensaje("QTR ERROR");
}

void SesionRed::EnviarLadoRival(int colorRival, int turnoRival) {
    EnviarMensaje(colorRival == 2 ? "QTR T N" : "QTR T B");
    EnviarMensaje("QTR T " + std::to_string(turnoRival));
}

void SesionRed::EnviarFinPartida() {
    EnviarMensaje("QTR Terminado");
}

} // namespace qa
