// The dispatcher: what a received text is taken for and what it does; the moves both ways.

#include "net/sesion_interna.h"

namespace qa {

void SesionRed::Impl::Despachar() {
    if (recibido == wire::kPing) {
        s.EnviarMensaje(wire::kPong);
        return;
    }
    if (recibido == wire::kPong) {
        Pong();
        return;
    }
    if (!recibido.starts_with("TIME") && !vista.EnPrimerPlano()) vista.Destellar();
    if (wire::AbreCaja(recibido)) InterrumpirEntrada();
    std::size_t prueba = 0;
    for (;;) {
        const Clase c = wire::Clasificar(recibido, prueba, &prueba);
        if (c == Clase::Ninguna || Atender(c)) return;
    }
}

// One test of the dispatcher that matched; true when the dispatch ends with it.
bool SesionRed::Impl::Atender(Clase c) {
    const bool rated = TipoPartida == "R";
    switch (c) {
    case Clase::Ninguna:
        return true;
    case Clase::Retroceso:
        if (!Preguntar(103)) {
            s.EnviarMensaje("RetrocesoCancelado");
            return false;
        }
        Turno = 0;
        s.EnviarMensaje("RetrocesoAceptado");
        RetrocesoFuncion();
        return true;
    case Clase::RetrocesoAceptado:
        ofertaPendiente = false;
        RetrocesoFuncion();
        Turno = 0;
        if (ColorJugador == "Blancas") Turno = 1;
        if (ColorJugador == "Negras") Turno = 2;
        if (rated && Turno == 1) Relojes(true, false);
        if (rated && Turno == 2) Relojes(false, true);
        Avisar(104);
        return true;
    case Clase::RetrocesoCancelado:
        ofertaPendiente = false;
        Avisar(105);
        return true;
    case Clase::Close:
        esCliente = esServidor = Conectado = false;
        TipoPartida.clear();
        ColorJugador.clear();
        t.bomba.Habilitar(false);
        t.ping.Habilitar(false);
        VaciarCola();
        cuenta = 0;
        CerradoServidor();
        return false;
    case Clase::AbrirPartidaEpd:
        if (Preguntar(35)) {
            TerminarPartida();
            DesdePosicion = Cargando = true;
            OcultarMarcas();
            dibujo().AvisoCargando(M(69));
            s.EnviarMensaje("AbrirAceptadoEPD");
        } else {
            s.EnviarMensaje("AbrirCanceladoEPD");
        }
        return false;
    case Clase::AbrirAceptadoEpd:
        vista.LeerEpd(archivoPendiente);
        Cargando = false;
        archivoPendiente.clear();
        return false;
    case Clase::AbrirCanceladoEpd:
        archivoPendiente.clear();
        Cargando = false;
        Avisar(20);
        return false;
    case Clase::CancelarEpd:
        vista.CancelarEpd();
        Avisar(102);
        return false;
    case Clase::Epd: {
        const auto p = wire::LeerEpd(recibido);
        if (!p) return true;
        Epd(*p);
        return false;
    }
    case Clase::AbrirPartida:
        if (Preguntar(35)) {
            DesdePosicion = false;
            Cargando = true;
            OcultarMarcas();
            s.EnviarMensaje("AbrirAceptado");
        } else {
            s.EnviarMensaje("AbrirCancelado");
        }
        return false;
    case Clase::AbrirAceptado:
        if (archivoPendiente.size() >= 3 &&
            Minusculas(archivoPendiente.substr(archivoPendiente.size() - 3)) == "qtr") {
            DesdePosicion = false;
            OcultarMarcas();
            const std::string ruta = std::move(archivoPendiente);
            archivoPendiente.clear();
            s.AbrirQtr(ruta);
        }
        return false;
    case Clase::AbrirCancelado:
        archivoPendiente.clear();
        Avisar(20);
        return false;
    case Clase::NuevoJuego: {
        const auto o = wire::LeerNuevoJuego(recibido);
        if (o) NuevoJuego(*o);
        return true;
    }
    case Clase::NuevoCancelado:
        nuevoPendiente = false;
        Avisar(11);
        return false;
    case Clase::NuevoAceptado:
        NuevoAceptadoRecibido();
        return false;
    case Clase::Rendirse:
        if (rated) s.SumaDePartidas(kGanada);
        TerminarPartida();
        Avisar(16);
        return false;
    case Clase::OfrecerTablas:
        if (Preguntar(18) && Conectado) {
            if (TipoPartida == "R") s.SumaDePartidas(kTablas);
            TerminarPartida();
            s.EnviarMensaje("TablasAceptadas");
        } else {
            s.EnviarMensaje("TablasCancelado");
        }
        return false;
    case Clase::TablasAceptadas:
        ofertaPendiente = false;
        if (rated) s.SumaDePartidas(kTablas);
        TerminarPartida();
        Avisar(19);
        return false;
    case Clase::TablasCancelado:
        ofertaPendiente = false;
        Avisar(20);
        return false;
    case Clase::VersionQt:
        VersionQt();
        return false;
    case Clase::Mensaje:
        if (versionRemota.empty()) VersionEnSaludo();
        vista.MostrarChat();
        AnadirChat((recibido.size() > 8 ? recibido.substr(8) : std::string()) + FinLinea);
        recibido.clear();
        return true;
    case Clase::Time: {
        const auto tiempo = wire::LeerTiempo(recibido);
        if (!tiempo) return true;
        if (!rated) return false;
        if (ColorJugador == "Negras") {
            MinutosBlancas = tiempo->minutos;
            SegundosBlancas = tiempo->segundos;
            PrintReloj(1);
            Relojes(false, true);
        } else if (ColorJugador == "Blancas") {
            MinutosNegras = tiempo->minutos;
            SegundosNegras = tiempo->segundos;
            PrintReloj(2);
            Relojes(true, false);
        }
        return false;
    }
    case Clase::Movimiento:
        return Movimiento();
    case Clase::Ranking: {
        const auto r = wire::LeerRanking(recibido);
        if (!r) return true;
        PuntuacionRemota = *r;
        vista.MostrarPuntuacion();
        return false;
    }
    case Clase::Qtr: {
        const auto l = wire::LeerQtr(recibido);
        if (l) Qtr(*l);
        MovimientoAnulado();
        return true;
    }
    }
    return true;
}

bool SesionRed::Impl::Movimiento() {
    const auto m = wire::LeerMovimiento(recibido);
    if (!m) return true;
    Destino.clear();
    Origen = m->origen;
    Destino = m->destino;
    PiezaCoronacion = m->pieza;
    if (dibujo().TableroInvertido()) {
        ColRaton = 9 - ColRaton;
        FilaRaton = 9 - FilaRaton;
    }
    if (ColorJugador == "Negras") Turno = 1;
    if (ColorJugador == "Blancas") Turno = 2;
    FiltroMovimiento();
    if (!AlPasoTexto.empty() && MovimientoValido) SubComoFicha(AlPasoTexto);
    if (MovimientoValido) {
        // The drawing takes screen squares, as after a move made on this board.
        if (TipoEnroque == 0) InvertirMovimiento();
        RematarJugada();
        if (ColorJugador == "Negras") Turno = 2;
        if (ColorJugador == "Blancas") Turno = 1;
        return true;
    }
    Caja("Error interno.", kIconoStop, kBotonAceptar);
    s.MenuDesconectar();
    return false;
}

void SesionRed::RecibirMensaje(const std::string& texto) {
    p_->recibido = texto;
    p_->Despachar();
}

void SesionRed::AlLlegarDatos(const std::string& datos) {
    p_->recibido.clear();
    RecibirMensaje(datos);
}

void SesionRed::EnviarMovimiento(int colOrigen, int filaOrigen, int colDestino, int filaDestino,
                                 int32_t pieza) {
    EnviarMensaje(wire::TextoMovimiento(colOrigen, filaOrigen, colDestino, filaDestino, pieza));
}

} // namespace qa
