// A network session driven as the sockets and timers drive it: the queue and its pump, the
// dispatcher's branches with the exact texts, the connection, the offers with both answers, the
// moves and clocks of a rated game, chat and the rating record.
#include "core/game_state.h"
#include "core/move_list.h"
#include "files/fen.h"
#include "net/puntuacion.h"
#include "net_support.h"

#include <filesystem>

using namespace Variables;
using qa::kRespuestaNo;
using qa::kRespuestaSi;
using Textos = std::vector<std::string>;

namespace prueba {
namespace {

class Sesion : public Red {
protected:
    // A rated game agreed on, this side White with `minutos` each.
    void PartidaBlancas(const char* oferta = "NuevoJuego 2 R 5") {
        ConectarServidor();
        Recibir(oferta);
        Bombear();
        ASSERT_EQ(Salida(), Textos{"NuevoAceptado"});
        ASSERT_EQ(ColorJugador, "Blancas");
        ASSERT_EQ(Turno, 1);
        Cajas();
    }
};

// ---------------------------------------------------------------------------------------------
// The queue and the pump.

TEST_F(Sesion, MovesGoFirstThenClockMessagesThenPingsThenTheRestLastFirstWithinAKind) {
    ConectarServidor();
    s->EnviarMensaje("Mensaje <ana>hola");
    s->EnviarMensaje("Ping");
    s->EnviarMensaje("TIME 4:3");
    Bombear();
    EXPECT_EQ(Salida(), (Textos{"TIME 4:3", "Ping", "Mensaje <ana>hola"}));

    s->EnviarMensaje("Movimiento 52540");
    s->EnviarMensaje("Movimiento 57550");
    s->EnviarMensaje("QTR M 1213");
    s->EnviarMensaje("QTR M 7172");
    Bombear();
    EXPECT_EQ(Salida(),
              (Textos{"Movimiento 57550", "Movimiento 52540", "QTR M 1213", "QTR M 7172"}))
        << "two moves go out last first; transfer lines keep their order";
}

TEST_F(Sesion, APingAtTheHeadIsTimedAndItsCompletionMovesNoClock) {
    PartidaBlancas();
    relojB.Habilitar(false);
    hora.contador = 77;
    hora.delDia = 500;
    s->EnviarMensaje("Ping");
    bomba.Vencer();
    EXPECT_TRUE(s->PingEnCurso());
    s->AlCompletarEnvio();
    EXPECT_FALSE(s->PingEnCurso());
    EXPECT_FALSE(relojB.Habilitado());
    EXPECT_FALSE(relojN.Habilitado());
    EXPECT_EQ(Salida(), Textos{"Ping"});
}

TEST_F(Sesion, NothingMoreGoesUntilTheSocketReportsTheLastSendComplete) {
    ConectarServidor();
    s->EnviarMensaje("Mensaje a");
    s->EnviarMensaje("Mensaje b");
    bomba.Vencer();
    bomba.Vencer();
    bomba.Vencer();
    EXPECT_EQ(Salida(), Textos{"Mensaje a"});
    EXPECT_EQ(s->ColaEnvioCuenta(), 1);
    s->AlCompletarEnvio();
    bomba.Vencer();
    EXPECT_EQ(Salida(), Textos{"Mensaje b"});
    s->AlCompletarEnvio();
    bomba.Vencer();
    EXPECT_EQ(s->ColaEnvioCuenta(), 0);
    EXPECT_FALSE(bomba.Habilitado()) << "an empty queue stops the pump";
}

TEST_F(Sesion, AFullQueueDropsTheFortyFirstAndAPeerThatStopsReadingCannotGrowIt) {
    ConectarServidor();
    for (int i = 1; i <= 100; ++i) s->EnviarMensaje("Mensaje " + std::to_string(i));
    EXPECT_EQ(s->ColaEnvioCuenta(), 40);
    EXPECT_EQ(s->ColaEnvio(40), "Mensaje 40");
    // The peer never reads: the first goes, no completion ever comes.
    for (int i = 0; i < 50; ++i) {
        bomba.Vencer();
        s->EnviarMensaje("Mensaje mas");
    }
    EXPECT_LE(s->ColaEnvioCuenta(), 40);
    EXPECT_EQ(Salida(), Textos{"Mensaje 1"});
    // Once it reads again the queue drains whole and in order.
    s->AlCompletarEnvio();
    Bombear();
    const Textos salida = Salida();
    ASSERT_EQ(salida.size(), 40u);
    EXPECT_EQ(salida[0], "Mensaje 2");
    EXPECT_EQ(salida[38], "Mensaje 40");
    EXPECT_EQ(salida[39], "Mensaje mas");
}

TEST_F(Sesion, NothingIsQueuedWithoutAConnectionAndALostOneEmptiesTheQueue) {
    s->EnviarMensaje("Mensaje a");
    EXPECT_EQ(s->ColaEnvioCuenta(), 0);
    EXPECT_FALSE(bomba.Habilitado());
    ConectarServidor();
    s->EnviarMensaje("Mensaje a");
    Conectado = false;
    bomba.Vencer();
    EXPECT_EQ(s->ColaEnvioCuenta(), 0);
    EXPECT_EQ(s->ColaEnvio(1), "");
    EXPECT_FALSE(bomba.Habilitado());
    EXPECT_TRUE(Salida().empty());
}

TEST_F(Sesion, ARefusedWriteShowsMessage6AndHoldsThePumpWithoutRetrying) {
    ConectarServidor();
    ser.rehusarEnvio = true;
    s->EnviarMensaje("Mensaje a");
    s->EnviarMensaje("Mensaje b");
    bomba.Vencer();
    EXPECT_EQ(Cajas(), "6");
    EXPECT_TRUE(s->EnvioEnCurso());
    ser.rehusarEnvio = false;
    bomba.Vencer();
    EXPECT_TRUE(Salida().empty());
    EXPECT_EQ(s->ColaEnvio(1), "Mensaje b");
}

// ---------------------------------------------------------------------------------------------
// Connection and presence.

TEST_F(Sesion, TheWaitingSideListensOn1500AcceptsAndGreets) {
    vista.chat = "old";
    Jugadas::AnotarLista("e2-e4", 1);
    s->ElegirLlamar(false);
    s->Command1Conexion("");
    EXPECT_EQ(ser.llamadas, Textos{"Escuchar 1500"});
    EXPECT_FALSE(vista.conexion.command1);
    EXPECT_TRUE(vista.conexion.esperando);
    s->AlPedirConexion();
    EXPECT_EQ(ser.llamadas, (Textos{"Escuchar 1500", "Cerrar", "Aceptar"}));
    EXPECT_TRUE(Conectado);
    EXPECT_TRUE(s->EsServidor());
    EXPECT_TRUE(vista.conexion.command1);
    EXPECT_FALSE(vista.conexion.esperando);
    EXPECT_TRUE(vista.Hubo("OcultarConexion"));
    EXPECT_TRUE(Jugadas::List[1].empty()) << "connecting clears the board";
    EXPECT_EQ(vista.chat, "*** 39\r\nQuintarena 40 1.55\r\n");
    EXPECT_EQ(ping.Intervalo(), 60000);
    EXPECT_TRUE(ping.Habilitado());
    EXPECT_TRUE(ranking.Habilitado());
    Bombear();
    EXPECT_EQ(Salida(), (Textos{"Mensaje ana 42 Quintarena 40 1.55", "VersionQT 1.55"}));
    ranking.Vencer();
    Bombear();
    EXPECT_EQ(Salida(), Textos{"Ranking 0-0-0-0-1200"});
    EXPECT_FALSE(ranking.Habilitado()) << "once";
}

TEST_F(Sesion, TheCallingSideCallsPort1500FromPort1501) {
    s->ElegirLlamar(true);
    s->Command1Conexion("");
    EXPECT_EQ(Cajas(), "13") << "an empty address";
    EXPECT_TRUE(cli.llamadas.empty());
    s->Command1Conexion("10.0.0.2");
    EXPECT_EQ(cli.llamadas, Textos{"Conectar 10.0.0.2 1500 1501"});
    EXPECT_TRUE(vista.conexion.llamando);
    s->AlConectar();
    EXPECT_TRUE(s->EsCliente());
    EXPECT_EQ(ping.Intervalo(), 65000);
}

TEST_F(Sesion, CancelDuringACallBringsTheChoicesBackAndASecondCancelCloses) {
    s->ElegirLlamar(true);
    s->Command1Conexion("10.0.0.2");
    s->Command2Conexion();
    EXPECT_EQ(cli.llamadas.back(), "Cerrar");
    EXPECT_TRUE(vista.conexion.command1);
    EXPECT_FALSE(vista.conexion.llamando);
    EXPECT_FALSE(vista.Hubo("OcultarConexion"));
    s->Command2Conexion();
    EXPECT_TRUE(vista.Hubo("OcultarConexion"));
}

TEST_F(Sesion, ACallOrWaitThatFailsAtOnceKeepsTheDialog) {
    cli.falloConectar = true;
    s->ElegirLlamar(true);
    s->Command1Conexion("nowhere");
    EXPECT_EQ(Cajas(), "5");
    EXPECT_TRUE(vista.conexion.command1);
    ser.falloEscuchar = true;
    s->ElegirLlamar(false);
    s->Command1Conexion("");
    EXPECT_EQ(Cajas(), "4");
    EXPECT_EQ(ser.llamadas.back(), "Cerrar");
    EXPECT_FALSE(Conectado);
}

TEST_F(Sesion, ALaterFailureShowsTheSocketsWordsAndTheDialogCanRetry) {
    s->ElegirLlamar(true);
    s->Command1Conexion("10.0.0.2");
    s->AlFallar(qa::Lado::Cliente, "Connection refused");
    EXPECT_EQ(Cajas(), "Connection refused");
    EXPECT_TRUE(vista.conexion.command1);
    EXPECT_EQ(vista.chat, "*** 41\r\n");
    EXPECT_FALSE(vista.Hubo("OcultarConexion"));
}

TEST_F(Sesion, TheCallerDisconnectsBySendingCloseAndWaitsForThePeer) {
    ConectarCliente();
    s->MenuDesconectar();
    EXPECT_TRUE(Conectado) << "the flags stay until the peer closes";
    Bombear();
    EXPECT_EQ(Salida(), Textos{"Close"});
    s->AlCerrar(qa::Lado::Cliente);
    EXPECT_FALSE(Conectado);
    EXPECT_TRUE(vista.chat.ends_with("\r\n*** 41\r\n"));
    EXPECT_FALSE(vista.Hubo("CerrarPrograma"));
}

TEST_F(Sesion, ACallerClosingTheProgramWaitsForTheDisconnectThenCloses) {
    ConectarCliente();
    EXPECT_FALSE(s->AlCerrarPrograma());
    EXPECT_TRUE(s->CierrePendiente());
    Bombear();
    EXPECT_EQ(Salida(), Textos{"Close"});
    s->AlCerrar(qa::Lado::Cliente);
    EXPECT_TRUE(vista.Hubo("CerrarPrograma"));
}

TEST_F(Sesion, TheHostDisconnectsAtOnceAndAReceivedCloseEndsItToo) {
    ConectarServidor();
    TipoPartida = "A";
    s->MenuDesconectar();
    EXPECT_FALSE(Conectado);
    EXPECT_EQ(ser.llamadas.back(), "Cerrar");
    EXPECT_TRUE(Salida().empty());
    EXPECT_TRUE(s->AlCerrarPrograma());

    ConectarServidor();
    Recibir("Close now");
    EXPECT_TRUE(Conectado) << "a longer text is not Close";
    Recibir("Close");
    EXPECT_FALSE(Conectado);
    EXPECT_FALSE(bomba.Habilitado());
    EXPECT_FALSE(ping.Habilitado());
}

TEST_F(Sesion, ARatedGameAsksBeforeDisconnecting) {
    ConectarServidor();
    TipoPartida = "R";
    s->MenuDesconectar();
    EXPECT_EQ(Cajas(), "53");
    EXPECT_TRUE(Conectado) << "no is the default";
    red.respuestas = {kRespuestaSi};
    s->MenuDesconectar();
    EXPECT_FALSE(Conectado);
}

TEST_F(Sesion, PingIsQueuedEachTickAndPongShowsTheDelayInTheCaption) {
    ConectarServidor();
    ping.Vencer();
    hora.delDia = 1000;
    Bombear();
    EXPECT_EQ(Salida(), Textos{"Ping"});
    vista.titulo = "Quintarena - Game - ping 9 s";
    hora.delDia = 1002;
    Recibir("Pong");
    EXPECT_EQ(vista.titulo, "Quintarena - ping 2 s") << "cut at the first \" -\"";
    EXPECT_EQ(vista.destellos, 0) << "Pong never flashes";
    Recibir("Ping");
    Bombear();
    EXPECT_EQ(Salida(), Textos{"Pong"});
    s->AlCerrar(qa::Lado::Servidor);
    EXPECT_EQ(vista.titulo, "Quintarena");
    ping.Habilitar(true);
    ping.Vencer();
    EXPECT_FALSE(ping.Habilitado());
}

TEST_F(Sesion, EveryTextButTimeAndPongFlashesTheWindowInTheBackground) {
    ConectarServidor();
    Recibir("TIME 1:1");
    Recibir("TIMEX");
    EXPECT_EQ(vista.destellos, 0);
    Recibir("anything");
    Recibir("Mensaje x");
    EXPECT_EQ(vista.destellos, 2);
    vista.primerPlano = true;
    Recibir("anything");
    EXPECT_EQ(vista.destellos, 2);
}

TEST_F(Sesion, TheBoxKeywordsCutOffADragOrTheMoveInHand) {
    ConectarServidor();
    Recibir("RetrocesoCancelado");
    EXPECT_EQ(vista.arrastresCancelados, 0);
    Recibir("TablasCancelado");
    EXPECT_EQ(vista.arrastresCancelados, 1);
    EXPECT_TRUE(ArrastreCancelado);
    red.pointClick = true;
    Atacantes = "5254";
    Origen = "52";
    Recibir("NuevoCancelado");
    EXPECT_TRUE(vista.Hubo("SoltarPuntoClick"));
    EXPECT_EQ(Origen, "");
}

TEST_F(Sesion, TheVersionFormulaAndTheGreetingOfAnOldPeer) {
    ConectarServidor();
    Recibir("Mensaje bob 42 Quintarena 40 1.41");
    EXPECT_EQ(s->VersionRemota(), "1.41");
    EXPECT_TRUE(vista.chat.ends_with("\r\nbob 42 Quintarena 40 1.41\r\n"));
    Recibir("VersionQT 1.55");
    EXPECT_EQ(s->VersionRemota(), "1.41") << "kept when set, unless the text ends in eta";
    Recibir("VersionQT 1.55 Beta");
    EXPECT_EQ(s->VersionRemota(), "1.5") << "a four-letter last word leaves three characters";

    s->AlCerrar(qa::Lado::Servidor);
    ConectarServidor();
    Recibir("VersionQT 1.55");
    EXPECT_EQ(s->VersionRemota(), "1.55");
    Recibir("Mensaje hi 1.41");
    EXPECT_EQ(s->VersionRemota(), "1.55");
}

TEST_F(Sesion, ATakeBackNeedsAPeerNewerThan141) {
    PartidaBlancas();
    Recibir("Mensaje bob 42 Quintarena 40 1.41");
    ASSERT_EQ(Mover("e2e4").tipo, Respuesta::Legal);
    Bombear();
    Salida();
    s->MenuRetroceder();
    EXPECT_EQ(Cajas(), "106");
    EXPECT_FALSE(s->OfertaPendiente());
    EXPECT_TRUE(Salida().empty());
}

TEST_F(Sesion, ANickOfNineIsTakenTenAreRefusedAndTheFirstCannotBeSkipped) {
    s->Nick.clear();
    red.textos = {"", "abcdefghij", "abcdefghi"};
    s->CambiarNick();
    EXPECT_EQ(Cajas(), "8|38");
    EXPECT_EQ(s->Nick, "abcdefghi");
    EXPECT_EQ(vista.chat, "") << "no old name, no chat line";

    ConectarServidor();
    red.textos = {"luis"};
    s->CambiarNick();
    EXPECT_TRUE(vista.chat.ends_with("\r\n*** abcdefghi 31 luis\r\n"));
    EXPECT_EQ(vista.tituloChat, "luis");
    Bombear();
    EXPECT_EQ(Salida(), Textos{"Mensaje *** abcdefghi 31 luis"});
    red.textos = {};
    s->CambiarNick();
    EXPECT_EQ(s->Nick, "luis") << "cancelled";

    // A holder that cannot ask a person again gives up instead of looping.
    s->Nick.clear();
    vista.volverAPreguntar = false;
    s->CambiarNick();
    EXPECT_EQ(s->Nick, "");
}

TEST_F(Sesion, TheOwnAddressIsShownUnlessItIsLoopback) {
    s->MenuObtenerIp();
    EXPECT_TRUE(vista.Hubo("MostrarIp 192.168.1.7"));
    cli.ip = "127.0.0.1";
    s->MenuObtenerIp();
    EXPECT_EQ(Cajas(), "68");
}

// ---------------------------------------------------------------------------------------------
// Moves and clocks of a rated game.

TEST_F(Sesion, AMoveGoesOutThenTheMoversTimeAndThePeersMoveGivesTheTurnBack) {
    PartidaBlancas();
    EXPECT_TRUE(relojB.Habilitado()) << "White's clock runs from the acceptance";
    EXPECT_EQ(MinutosBlancas, 5);
    ASSERT_EQ(Mover("e2e4").tipo, Respuesta::Legal);
    EXPECT_EQ(Turno, 0);
    Bombear();
    EXPECT_EQ(Salida(), (Textos{"Movimiento 52540", "TIME 5:0"}));
    EXPECT_FALSE(relojB.Habilitado());
    EXPECT_TRUE(relojN.Habilitado());

    Recibir("Movimiento 57550");
    EXPECT_EQ(En("e5"), PeonN);
    EXPECT_EQ(Turno, 1);
    EXPECT_EQ(Jugadas::Lineas(4).size(), 2u);
    Recibir("TIME 4:58");
    EXPECT_EQ(MinutosNegras, 4);
    EXPECT_EQ(SegundosNegras, 58);
    EXPECT_EQ(red.TextoReloj(2), "04:58");
    EXPECT_TRUE(relojB.Habilitado());
    EXPECT_FALSE(relojN.Habilitado());
}

TEST_F(Sesion, ARefusedMoveIsAnInternalErrorAndEndsTheConnection) {
    PartidaBlancas();
    red.respuestas = {kRespuestaSi};
    Recibir("Movimiento 18110");
    EXPECT_EQ(Cajas(), "Error interno.|53");
    EXPECT_FALSE(Conectado);
    EXPECT_EQ(En("a8"), TorreN);
}

TEST_F(Sesion, AMateFromThePeerEndsTheGameAndScoresIt) {
    PartidaBlancas();
    for (auto [nuestra, suya] :
         {std::pair{"f2f3", "Movimiento 57550"}, std::pair{"g2g4", "Movimiento 48840"}}) {
        ASSERT_EQ(Mover(nuestra).tipo, Respuesta::Legal);
        Recibir(suya);
    }
    EXPECT_EQ(TipoPartida, "");
    EXPECT_EQ(Turno, 0);
    EXPECT_EQ(qa::Puntuacion.Puntos, 1100) << "a loss against an unknown record";
    EXPECT_EQ(std::filesystem::file_size(dir + "/Puntuacion.dat"), 20u);
}

TEST_F(Sesion, AClockCountsChangesOfTheWallClocksSecond) {
    PartidaBlancas("NuevoJuego 2 R 1");
    hora.segundo = 10;
    relojB.Vencer();
    EXPECT_EQ(red.TextoReloj(1), "00:59");
    relojB.Vencer();
    EXPECT_EQ(red.TextoReloj(1), "00:59") << "the same second";
    EXPECT_TRUE(vista.blanco[1]);
    EXPECT_FALSE(vista.blanco[2]);
    hora.segundo = 11;
    relojB.Vencer();
    EXPECT_EQ(red.TextoReloj(1), "00:58");
    // Black's clock ticking takes the mark over.
    hora.segundo = 12;
    relojN.Habilitar(true);
    relojN.Vencer();
    EXPECT_EQ(red.TextoReloj(2), "00:59");
    EXPECT_TRUE(vista.blanco[2]);
    EXPECT_FALSE(vista.blanco[1]);
}

TEST_F(Sesion, AFallenFlagEndsTheGameOnItsOwnSide) {
    PartidaBlancas("NuevoJuego 2 R 1");
    MinutosBlancas = 0;
    SegundosBlancas = 0;
    hora.segundo = 3;
    relojB.Vencer();
    EXPECT_EQ(Cajas(), "29");
    EXPECT_FALSE(relojB.Habilitado());
    EXPECT_EQ(TipoPartida, "");
    EXPECT_EQ(qa::Puntuacion.PartidasPerdidas, 1);

    // The other side sees the same flag fall as a win.
    PartidaBlancas("NuevoJuego 2 R 1");
    ColorJugador = "Negras";
    MinutosBlancas = SegundosBlancas = 0;
    relojB.Habilitar(true);
    hora.segundo = 4;
    red.sonidos.clear();
    relojB.Vencer();
    EXPECT_EQ(Cajas(), "30");
    EXPECT_EQ(red.sonidos, std::vector<int>{5});
    EXPECT_EQ(qa::Puntuacion.PartidasGanadas, 1);
    // With no game the clocks stop and grey.
    relojN.Habilitar(true);
    relojN.Vencer();
    EXPECT_FALSE(relojN.Habilitado());
}

// ---------------------------------------------------------------------------------------------
// Offers, both answers.

TEST_F(Sesion, ANewGameOfferIsAskedWithTheTermsAndAnsweredBothWays) {
    ConectarServidor();
    red.respuestas = {kRespuestaNo};
    Recibir("NuevoJuego 1 R 15");
    EXPECT_EQ(Cajas(), "Play a rated game of 15 minutes as Black.");
    Bombear();
    EXPECT_EQ(Salida(), Textos{"NuevoCancelado"});
    EXPECT_EQ(TipoPartida, "");

    Recibir("NuevoJuego 1 A 0");
    EXPECT_EQ(Cajas(), "Play a free game as Black.");
    Bombear();
    EXPECT_EQ(Salida(), Textos{"NuevoAceptado"});
    EXPECT_EQ(TipoPartida, "A");
    EXPECT_EQ(ColorJugador, "Negras");
    EXPECT_EQ(Turno, 0);
    EXPECT_EQ(vista.tableroNegrasAbajo, 1);
    EXPECT_FALSE(relojB.Habilitado());
    EXPECT_FALSE(relojN.Habilitado());
}

TEST_F(Sesion, TheOffererGetsItsAnswer) {
    ConectarServidor();
    vista.alMostrarNuevo = [this] {
        s->CargarNuevo();
        s->NuevoOpcionColor(true);
        s->NuevoMinutos("007");
        s->NuevoCommand1();
    };
    EXPECT_TRUE(s->MenuNuevaPartida());
    EXPECT_TRUE(s->NuevoPendiente());
    Bombear();
    EXPECT_EQ(Salida(), Textos{"NuevoJuego 1 R 7"});
    s->MenuRendirse();
    s->MenuNuevaPartida();
    EXPECT_EQ(Cajas(), "81|81") << "one offer at a time";

    Recibir("NuevoCancelado");
    EXPECT_EQ(Cajas(), "11");
    EXPECT_FALSE(s->NuevoPendiente());

    Recibir("NuevoAceptado");
    EXPECT_EQ(Cajas(), "101");
    EXPECT_EQ(TipoPartida, "R");
    EXPECT_EQ(ColorJugador, "Blancas");
    EXPECT_EQ(Turno, 1);
    EXPECT_EQ(MinutosBlancas, 7);
    EXPECT_EQ(MinutosNegras, 7);
    EXPECT_TRUE(relojB.Habilitado());

    // A running game asks first; no keeps it.
    vista.llamadas.clear();
    red.respuestas = {kRespuestaNo};
    s->MenuNuevaPartida();
    EXPECT_EQ(Cajas(), "12");
    EXPECT_FALSE(vista.Hubo("MostrarNuevo"));

    Conectado = false;
    EXPECT_FALSE(s->MenuNuevaPartida()) << "engine play's";
}

TEST_F(Sesion, TheOffererPlayingBlackStartsWhitesClockOnlyInARunningGame) {
    ConectarServidor();
    vista.alMostrarNuevo = [this] {
        s->CargarNuevo();
        s->NuevoOpcionColor(false);
        s->NuevoMinutos("5");
        s->NuevoCommand1();
    };
    s->MenuNuevaPartida();
    Recibir("NuevoAceptado");
    EXPECT_EQ(Cajas(), "101");
    EXPECT_EQ(TipoPartida, "R");
    EXPECT_EQ(ColorJugador, "Negras");
    EXPECT_EQ(Turno, 0);
    EXPECT_EQ(vista.tableroNegrasAbajo, 1);
    EXPECT_FALSE(relojB.Habilitado()) << "no game ran: White's first time starts it";
    EXPECT_FALSE(relojN.Habilitado());

    red.respuestas = {kRespuestaSi};
    s->MenuNuevaPartida();
    Recibir("NuevoAceptado");
    EXPECT_EQ(Cajas(), "12|101");
    EXPECT_EQ(ColorJugador, "Negras");
    EXPECT_TRUE(relojB.Habilitado()) << "a rated game was running";
    EXPECT_FALSE(relojN.Habilitado());
}

TEST_F(Sesion, TheNewGameDialogKeepsItsLimits) {
    vista.tiempo = "0";
    s->CargarNuevo();
    EXPECT_EQ(vista.nuevo.minutos, "1");
    s->NuevoMinutos("999");
    EXPECT_EQ(vista.nuevo.minutos, "180");
    s->NuevoSubir();
    EXPECT_EQ(vista.nuevo.minutos, "180");
    s->NuevoMinutos("1");
    s->NuevoBajar();
    EXPECT_EQ(vista.nuevo.minutos, "1");
    s->NuevoOpcion4();
    EXPECT_EQ(vista.nuevo.minutos, "0");
    EXPECT_FALSE(vista.nuevo.minutosHabilitado);
    s->NuevoCommand1();
    EXPECT_TRUE(vista.Hubo("CerrarNuevo"));
    EXPECT_FALSE(s->NuevoPendiente()) << "not connected: nothing is sent";
    EXPECT_EQ(vista.nuevo.minutos, "0") << "a free game keeps its 0";
}

TEST_F(Sesion, ResignationIsNotAskedOfThePeer) {
    PartidaBlancas();
    red.respuestas = {kRespuestaSi};
    s->MenuRendirse();
    EXPECT_EQ(Cajas(), "14|15");
    Bombear();
    EXPECT_EQ(Salida(), Textos{"Rendirse"});
    EXPECT_EQ(TipoPartida, "");
    EXPECT_EQ(qa::Puntuacion.Puntos, 1100);
    s->MenuRendirse();
    EXPECT_EQ(Cajas(), "") << "no game, not even a question";

    PartidaBlancas();
    Recibir("Rendirse, says the peer");
    EXPECT_EQ(Cajas(), "16");
    EXPECT_EQ(qa::Puntuacion.PartidasGanadas, 1);
}

TEST_F(Sesion, ADrawOfferBothWays) {
    PartidaBlancas();
    s->MenuOfrecerTablas();
    EXPECT_EQ(Cajas(), "17");
    EXPECT_TRUE(Salida().empty()) << "no is the default";
    red.respuestas = {kRespuestaSi};
    s->MenuOfrecerTablas();
    Bombear();
    EXPECT_EQ(Salida(), Textos{"OfrecerTablas"});
    EXPECT_TRUE(s->OfertaPendiente());
    Recibir("TablasCancelado");
    EXPECT_FALSE(s->OfertaPendiente());
    EXPECT_EQ(TipoPartida, "R");
    Recibir("TablasAceptadas");
    EXPECT_EQ(TipoPartida, "");
    EXPECT_EQ(qa::Puntuacion.PartidasTablas, 1);
    EXPECT_EQ(Cajas(), "17|20|19");

    PartidaBlancas();
    red.respuestas = {kRespuestaNo};
    Recibir("OfrecerTablas");
    Bombear();
    EXPECT_EQ(Salida(), Textos{"TablasCancelado"});
    EXPECT_EQ(TipoPartida, "R");
    Recibir("OfrecerTablas");
    Bombear();
    EXPECT_EQ(Salida(), Textos{"TablasAceptadas"});
    EXPECT_EQ(TipoPartida, "");
    EXPECT_EQ(qa::Puntuacion.PartidasTablas, 2);
}

TEST_F(Sesion, ATakeBackBothWays) {
    PartidaBlancas();
    Recibir("VersionQT 1.55");
    s->MenuRetroceder();
    EXPECT_TRUE(Salida().empty()) << "nothing to take back";
    ASSERT_EQ(Mover("e2e4").tipo, Respuesta::Legal);
    Bombear();
    Salida();
    s->MenuRetroceder();
    Bombear();
    EXPECT_EQ(Salida(), Textos{"Retroceso"});
    Recibir("RetrocesoCancelado");
    EXPECT_EQ(Cajas(), "105");
    EXPECT_EQ(En("e4"), PeonB);
    s->MenuRetroceder();
    Recibir("RetrocesoAceptado");
    EXPECT_EQ(Cajas(), "104");
    EXPECT_EQ(En("e2"), PeonB);
    EXPECT_EQ(Turno, 1);
    EXPECT_TRUE(relojB.Habilitado());
    EXPECT_FALSE(relojN.Habilitado());

    // The peer asks to take its move back.
    ASSERT_EQ(Mover("e2e4").tipo, Respuesta::Legal);
    Recibir("Movimiento 57550");
    Bombear();
    Salida();
    red.respuestas = {kRespuestaNo};
    Recibir("Retroceso");
    Bombear();
    EXPECT_EQ(Salida(), Textos{"RetrocesoCancelado"});
    EXPECT_EQ(En("e5"), PeonN);
    Recibir("Retroceso");
    EXPECT_EQ(En("e7"), PeonN);
    EXPECT_EQ(Turno, 0);
    bomba.Vencer();
    s->AlCompletarEnvio();
    EXPECT_EQ(Salida(), Textos{"RetrocesoAceptado"});
    EXPECT_TRUE(relojN.Habilitado()) << "the clocks change at the answer's completion";
    EXPECT_FALSE(relojB.Habilitado());
}

TEST_F(Sesion, OpeningAGameFileForBothBothWays) {
    const std::string ruta = Escribir("g.qtr", "0500\r\n0500\r\nR\r\n5254\r\n");
    PartidaBlancas();
    s->AbrirArchivo(dir + "/x.pgn");
    EXPECT_EQ(Cajas(), "58");
    red.respuestas = {kRespuestaSi};
    EXPECT_TRUE(s->AbrirArchivo(ruta));
    EXPECT_EQ(Cajas(), "57");
    EXPECT_EQ(s->ArchivoPendiente(), ruta);
    Bombear();
    EXPECT_EQ(Salida(), Textos{"AbrirPartida"});
    Recibir("AbrirCancelado");
    EXPECT_EQ(Cajas(), "20");
    EXPECT_EQ(s->ArchivoPendiente(), "");
    red.respuestas = {kRespuestaSi};
    s->AbrirArchivo(ruta);
    Recibir("AbrirAceptado");
    EXPECT_EQ(s->ArchivoPendiente(), "");
    EXPECT_TRUE(Cargando);
    EXPECT_TRUE(sendQtr.Habilitado());

    // The peer's side.
    NuevaSesion();
    ConectarServidor();
    red.respuestas = {kRespuestaNo};
    Recibir("AbrirPartida");
    Bombear();
    EXPECT_EQ(Salida(), Textos{"AbrirCancelado"});
    Recibir("AbrirPartida");
    Bombear();
    EXPECT_EQ(Salida(), Textos{"AbrirAceptado"});
    EXPECT_TRUE(Cargando);

    Conectado = false;
    EXPECT_FALSE(s->AbrirArchivo(ruta)) << "not connected";
}

TEST_F(Sesion, OpeningAPositionForBothBothWays) {
    ConectarServidor();
    Recibir("VersionQT 1.41");
    s->AbrirArchivo(dir + "/p.epd");
    EXPECT_EQ(Cajas(), "56");
    s->AlCerrar(qa::Lado::Servidor);
    ConectarServidor();
    Recibir("VersionQT 1.55");
    vista.epdVisible = true;
    s->AbrirArchivo(dir + "/p.epd");
    EXPECT_TRUE(vista.Hubo("CerrarEpd"));
    EXPECT_TRUE(Cargando);
    Bombear();
    EXPECT_EQ(Salida(), Textos{"AbrirPartidaEPD"});
    Recibir("AbrirCanceladoEPD");
    EXPECT_FALSE(Cargando);
    EXPECT_EQ(Cajas(), "20");
    s->AbrirArchivo(dir + "/p.epd");
    Recibir("AbrirAceptadoEPD");
    EXPECT_TRUE(vista.Hubo("LeerEpd " + dir + "/p.epd"));
    EXPECT_FALSE(Cargando);
    Recibir("CancelarEPD");
    EXPECT_TRUE(vista.Hubo("CancelarEpd"));
    EXPECT_EQ(Cajas(), "102");
    Bombear();
    Salida();

    red.respuestas = {kRespuestaNo};
    Recibir("AbrirPartidaEPD");
    Recibir("AbrirPartidaEPD");
    Bombear();
    EXPECT_EQ(Salida(), (Textos{"AbrirCanceladoEPD", "AbrirAceptadoEPD"}));
    EXPECT_TRUE(Cargando);
    EXPECT_TRUE(DesdePosicion);
}

TEST_F(Sesion, AReceivedPositionMakesAFreeGameWithTheColoursSwapped) {
    ConectarServidor();
    Recibir("EPD 2B 4k3/8/8/8/8/8/8/R3K3 b - - 0 1");
    EXPECT_EQ(TipoPartida, "A");
    EXPECT_EQ(ColorJugador, "Negras") << "the sender is White";
    EXPECT_EQ(Turno, 0);
    EXPECT_EQ(Jugadas::Lineas(1).size(), 1u) << "the filler half-move";
    EXPECT_EQ(En("a1"), TorreB);
    EXPECT_TRUE(DesdePosicion);
    EXPECT_FALSE(Cargando);

    Recibir("EPD T2N 4k3/8/8/8/8/8/8/R3K3 b - - 0 1");
    EXPECT_EQ(ColorJugador, "Blancas");
    EXPECT_EQ(Turno, 2);

    // The sender's side: its turn or the peer's.
    Turno = 1;
    ColorJugador = "Blancas";
    PosicionFen = "k7/8";
    s->EnviarPosicion();
    Bombear();
    EXPECT_EQ(Salida(), Textos{"EPD 1B k7/8"});
    Turno = 0;
    ColorInicio = 2;
    s->EnviarPosicion();
    Bombear();
    EXPECT_EQ(Salida(), Textos{"EPD T2B k7/8"});
}

TEST_F(Sesion, AConnectionLostUnderTheQuestionRefusesTheOfferButNotATakeBack) {
    const auto perder = [this] { s->AlCerrar(qa::Lado::Servidor); };
    PartidaBlancas();
    red.bajoLaCaja = perder;
    Recibir("NuevoJuego 1 R 3");
    EXPECT_EQ(MinutosBlancas, 5) << "no new game on a yes after the link went";
    EXPECT_EQ(TipoPartida, "");
    EXPECT_FALSE(Conectado);

    red.bajoLaCaja = nullptr;
    PartidaBlancas();
    red.bajoLaCaja = perder;
    Recibir("OfrecerTablas");
    EXPECT_EQ(qa::Puntuacion.PartidasTablas, 0);

    red.bajoLaCaja = nullptr;
    PartidaBlancas();
    ASSERT_EQ(Mover("e2e4").tipo, Respuesta::Legal);
    Recibir("Movimiento 57550");
    red.bajoLaCaja = perder;
    Recibir("Retroceso");
    EXPECT_EQ(En("e7"), PeonN) << "the take-back is carried out all the same";
    EXPECT_EQ(En("e5"), Vacia);
}

TEST_F(Sesion, TheOfferGuards) {
    PartidaBlancas();
    red.cpuVisible = true;
    s->MenuRendirse();
    s->MenuOfrecerTablas();
    s->MenuRetroceder();
    EXPECT_TRUE(vista.Hubo("ComandoMotor 3"));
    EXPECT_TRUE(vista.Hubo("ComandoMotor 4"));
    EXPECT_TRUE(vista.Hubo("ComandoMotor 5"));
    red.cpuVisible = false;
    Cargando = true;
    s->MenuOfrecerTablas();
    EXPECT_EQ(Cajas(), "80");
}

// ---------------------------------------------------------------------------------------------
// Chat and ranking.

TEST_F(Sesion, ChatLinesGoOutAndShowOnBothSides) {
    EXPECT_EQ(s->EnterChat("hola"), qa::TeclaChat::Vaciar);
    ConectarServidor();
    vista.chat.clear();
    EXPECT_EQ(s->EnterChat("hola"), qa::TeclaChat::Vaciar);
    Bombear();
    EXPECT_EQ(Salida(), Textos{"Mensaje <ana>hola"});
    EXPECT_EQ(vista.chat, "<ana>hola\r\n");
    Recibir("Mensaje <bob>*** fake");
    EXPECT_EQ(vista.chat, "<ana>hola\r\n<bob>*** fake\r\n");
    EXPECT_TRUE(vista.Hubo("MostrarChat"));

    for (int i = 0; i < 36; ++i) s->EnviarMensaje("Mensaje x");
    EXPECT_EQ(s->EnterChat("wait"), qa::TeclaChat::Pasa) << "the line stays in the box";
    Bombear();
    Salida();
    Cargando = true;
    EXPECT_EQ(s->EnterChat("busy"), qa::TeclaChat::Vaciar);
    EXPECT_EQ(Cajas(), "79");
}

TEST_F(Sesion, AFullChatAsksToSaveAndEmptiesOnBothSides) {
    ConectarServidor();
    vista.chat.assign(qa::SesionRed::kLimiteChat - 4, 'x');
    red.respuestas = {kRespuestaSi};
    s->EnterChat("hello");
    EXPECT_EQ(Cajas(), "7");
    EXPECT_TRUE(vista.Hubo("GuardarChat"));
    EXPECT_EQ(vista.chat, "");
    Bombear();
    EXPECT_EQ(Salida(), Textos{"Mensaje <ana>hello"});

    // A peer's flood never grows the history past its limit.
    red.respuestas.assign(100, kRespuestaNo);
    const std::string grande = "Mensaje " + std::string(300000, 'y');
    for (int i = 0; i < 20; ++i) {
        Recibir(grande);
        ASSERT_LE(vista.chat.size(), qa::SesionRed::kLimiteChat);
    }
    Recibir("Mensaje " + std::string(3 << 20, 'z'));
    EXPECT_LE(vista.chat.size(), qa::SesionRed::kLimiteChat);
}

TEST_F(Sesion, TheRatingStepsAreFixed) {
    using qa::Puntuacion;
    using qa::PuntuacionRemota;
    PuntuacionRemota = {0, 0, 0, 0, 1200};
    qa::SumarResultado(2);
    EXPECT_EQ(Puntuacion.Puntos, 1300);
    EXPECT_EQ(PuntuacionRemota.Puntos, 1100);
    qa::SumarResultado(2);
    EXPECT_EQ(Puntuacion.Puntos, 1350) << "beating a weaker player gives half";
    qa::SumarResultado(3);
    EXPECT_EQ(Puntuacion.Puntos, 1300) << "a draw moves both towards each other";
    EXPECT_EQ(PuntuacionRemota.Puntos, 1100);
    Puntuacion.Puntos = 30;
    qa::SumarResultado(1);
    EXPECT_EQ(Puntuacion.Puntos, 0) << "not below 0";
    EXPECT_EQ(PuntuacionRemota.Puntos, 1150) << "losing to a stronger one costs half";
    EXPECT_EQ(Puntuacion.PartidasJugadas, 4);
    EXPECT_EQ(Puntuacion.PartidasGanadas, 2);
    EXPECT_EQ(Puntuacion.PartidasPerdidas, 1);
    EXPECT_EQ(Puntuacion.PartidasTablas, 1);
    EXPECT_EQ(PuntuacionRemota.PartidasJugadas, 4);
    EXPECT_EQ(PuntuacionRemota.PartidasGanadas, 1);

    PuntuacionRemota = {INT32_MAX, INT32_MAX, 0, 0, INT32_MAX};
    qa::SumarResultado(1);
    EXPECT_EQ(PuntuacionRemota.PartidasJugadas, INT32_MAX) << "a peer's huge record saturates";
}

TEST_F(Sesion, TheRecordFileIsWrittenWholeAndADamagedOneStartsAgain) {
    qa::Puntuacion = {4, 2, 1, 1, 1333};
    ASSERT_TRUE(qa::GrabarPuntuacion());
    const std::string bytes = Leer(dir + "/Puntuacion.dat");
    ASSERT_EQ(bytes.size(), 20u);
    EXPECT_EQ(qa::DesdeBytes(bytes).Puntos, 1333);
    qa::Puntuacion = {};
    ASSERT_TRUE(qa::LeerPuntuacion());
    EXPECT_EQ(qa::Puntuacion.PartidasJugadas, 4);

    Escribir("Puntuacion.dat", qa::ABytes({5, 1, 0, 0, 9999}));
    ASSERT_TRUE(qa::LeerPuntuacion());
    EXPECT_EQ(qa::Puntuacion.Puntos, 1200);
    EXPECT_EQ(qa::DesdeBytes(Leer(dir + "/Puntuacion.dat")).Puntos, 1200);

    std::filesystem::remove(dir + "/Puntuacion.dat");
    EXPECT_FALSE(qa::LeerPuntuacion());
    EXPECT_EQ(qa::DesdeBytes(Leer(dir + "/Puntuacion.dat")).Puntos, 1200) << "made at first start";
}

TEST_F(Sesion, APeersRecordIsShownAsItCame) {
    ConectarServidor();
    Recibir("Ranking 10-5-3-2-1450");
    EXPECT_EQ(qa::PuntuacionRemota.Puntos, 1450);
    Recibir("Ranking 10-x-3-2-1");
    EXPECT_EQ(qa::PuntuacionRemota.Puntos, 1450) << "dropped whole";
}

} // namespace
} // namespace prueba
