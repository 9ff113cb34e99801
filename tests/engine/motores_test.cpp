// Games against engines through the play logic, with scripted consoles and timers ticked by
// hand: the start, the moves both ways, castling, promotion, the requests, the endings.
#include "motor_prueba.h"

#include "core/move_list.h"
#include "language/idioma.h"

using namespace Variables;
using prueba::ConsolaGuion;
using prueba::Guion;
using prueba::LeerGuion;
using prueba::PartidaMotor;
using Vec = std::vector<std::string>;

namespace {

class Motores : public PartidaMotor {};

TEST_F(Motores, StartSendsTheThreeCommandsToBlackFirstThenWhite) {
    cpu.guion[2] = LeerGuion("negro_e7e5.txt");
    cpu.guion[1] = LeerGuion("blanco_e2e4.txt");
    motores->CargarLevel();
    Listas(1, 2);
    motores->Boton(1);
    // One second later, not at once.
    EXPECT_EQ(cpu.consola[1], nullptr);
    ASSERT_TRUE(t3.Habilitado());
    t3.Vencer();
    EXPECT_FALSE(t3.Habilitado());
    EXPECT_EQ(C(1).ruta, E().RutasMotor[1]);
    EXPECT_EQ(C(2).ruta, E().RutasMotor[2]);
    EXPECT_TRUE(MotorBlancas && MotorNegras);
    // White's first move came while the start went on, and Black's answer.
    EXPECT_EQ(Nuevos(2), (Vec{"xboard\r\nprotover 2\r\nnew\r\n", "random\r\nics -\r\nst 5\r\n",
                              "post\r\neasy", "e2e4\r\ntime 0\r\notim 0"}));
    // Engine 2's feature line, as it arrived before engine 1's start, made engine 1 hear its
    // own last command again: none yet.
    EXPECT_EQ(Nuevos(1),
              (Vec{"", "xboard\r\nprotover 2\r\nnew\r\n", "random\r\nics -\r\nst 5\r\n",
                   "post\r\neasy\r\ngo", "accepted ping=0 done=1", "e7e5\r\ntime 0\r\notim 0"}));
    EXPECT_EQ(En("e4"), PeonB);
    EXPECT_EQ(En("e5"), PeonN);
    EXPECT_EQ(Turno, 0);
    EXPECT_EQ(cpu.player2, 1);
}

TEST_F(Motores, PersonAsWhiteAgainstBlackEngine) {
    cpu.guion[2] = LeerGuion("negro_e7e5.txt");
    Empezar(0, 2);
    EXPECT_EQ(Turno, 1);
    EXPECT_EQ(cpu.invertir, (std::vector<int>{true}));
    Nuevos(2);
    // Engine 2's features go to engine 1, which does not run: nobody hears them.
    EXPECT_EQ(E().ComandoMotor[2], "post\r\neasy");
    ASSERT_EQ(Mover("e2e4").tipo, Respuesta::Legal);
    // Clocks first, then the move, with no line end of ours behind it; the answer came while
    // the send yielded.
    EXPECT_EQ(Nuevos(2), (Vec{"time 0\r\notim 0\r\ne2e4"}));
    EXPECT_EQ(En("e5"), PeonN);
    EXPECT_EQ(En("e7"), Vacia);
    EXPECT_EQ(Turno, 1);
    EXPECT_EQ(cpu.texto[1], "4");
    EXPECT_EQ(cpu.texto[5], "e7e5 g1f3");
    EXPECT_TRUE(C(2).GuionCumplido());
}

TEST_F(Motores, WhiteEngineAgainstPersonAsBlack) {
    cpu.guion[1] = LeerGuion("blanco_e2e4.txt");
    Empezar(1, 0);
    EXPECT_EQ(cpu.invertir, (std::vector<int>{false}));
    EXPECT_EQ(En("e4"), PeonB);
    EXPECT_EQ(Turno, 2);
    EXPECT_EQ(Nuevos(1).back(), "accepted ping=0 done=1");
    ASSERT_EQ(Mover("c7c5").tipo, Respuesta::Legal);
    EXPECT_EQ(Ultimo(1), "time 0\r\notim 0\r\nc7c5");
    EXPECT_EQ(Turno, 0);
    // The person cannot move for the engine.
    EXPECT_EQ(Mover("g1f3").tipo, Respuesta::Ignorada);
}

TEST_F(Motores, EngineAgainstEnginePassesMovesWithTheClocksBehind) {
    cpu.opcion = 0;
    motores->CargarLevel();
    Empezar(1, 2);
    Nuevos(1);
    Nuevos(2);
    Dice(1, "move e2e4");
    EXPECT_EQ(En("e4"), PeonB);
    EXPECT_EQ(Nuevos(2), (Vec{"e2e4\r\ntime 0\r\notim 0"}));
    EXPECT_EQ(Turno, 0);
    Dice(2, "My move is: e7e5");
    EXPECT_EQ(En("e5"), PeonN);
    EXPECT_EQ(Nuevos(1), (Vec{"e7e5\r\ntime 0\r\notim 0"}));
    EXPECT_EQ(E().RespuestaMotor[2], "my move is: e7e5");
    // Past 16 characters a move line is dropped without a word.
    Dice(1, "my next move is: g1f3");
    EXPECT_EQ(En("g1"), CaballoB);
    EXPECT_TRUE(Nuevos(2).empty());
    // A capture written with an x does not translate: refused, and still passed on.
    Dice(1, "move g1xf3");
    EXPECT_EQ(En("g1"), CaballoB);
    EXPECT_EQ(Nuevos(2), (Vec{"g1xf3\r\ntime 0\r\notim 0"}));
    EXPECT_EQ(Jugadas::List1.size(), 2u);
    EXPECT_TRUE(registro.mensajes.empty());
}

TEST_F(Motores, TwoEnginesPlayAWholeGameToMate) {
    cpu.guion[1] = LeerGuion("loco_blanco.txt");
    cpu.guion[2] = LeerGuion("loco_negro.txt");
    Empezar(1, 2);
    EXPECT_EQ(En("h4"), DamaN);
    EXPECT_EQ(Jugadas::List1.size(), 4u);
    EXPECT_TRUE(C(1).GuionCumplido());
    EXPECT_TRUE(C(2).GuionCumplido());
    // The board's mate speaks; the engine's result after it ends the game silently.
    EXPECT_EQ(Textos(), (Vec{"2"}));
    EXPECT_FALSE(MotorBlancas || MotorNegras);
    EXPECT_TRUE(C(1).terminada && C(2).terminada);
    EXPECT_EQ(Turno, 0);
}

TEST_F(Motores, CastlingByEngineReachesTheOtherAsCoordinatesThenInTheOtherSpelling) {
    Empezar(1, 2);
    Colocar("r3k2r/pppppppp/8/8/8/8/PPPPPPPP/R3K2R", 0);
    Nuevos(1);
    Nuevos(2);
    Dice(1, "move O-O");
    EXPECT_EQ(En("g1"), ReyB);
    EXPECT_EQ(En("f1"), TorreB);
    EXPECT_EQ(Nuevos(2), (Vec{"e1g1\r\ntime 0\r\notim 0"}));
    EXPECT_TRUE(E().EnroquePendiente);
    EXPECT_TRUE(t2.Habilitado());
    // Refusals are left alone while the castling waits, and nothing else is sent on "o-o".
    Dice(2, "Illegal move: e1g1");
    EXPECT_TRUE(registro.mensajes.empty());
    t2.Vencer();
    EXPECT_TRUE(Nuevos(2).empty());
    EXPECT_FALSE(E().EnroquePendiente);
    EXPECT_FALSE(t2.Habilitado());

    // Written in coordinates, nine characters: after two silent seconds it goes again as O-O.
    Dice(2, "move e8c8");
    EXPECT_EQ(En("c8"), ReyN);
    EXPECT_EQ(En("d8"), TorreN);
    EXPECT_EQ(Nuevos(1), (Vec{"e8c8\r\ntime 0\r\notim 0"}));
    t2.Vencer();
    EXPECT_EQ(Nuevos(1), (Vec{"O-O-O\r\ntime 0\r\notim 0"}));
}

TEST_F(Motores, CastlingWrittenInALongerLineIsNotSentAgain) {
    Empezar(1, 2);
    Colocar("r3k2r/pppppppp/8/8/8/8/PPPPPPPP/R3K2R", 0);
    Nuevos(2);
    Dice(1, "my move is: e1g1");
    EXPECT_EQ(En("g1"), ReyB);
    EXPECT_EQ(Nuevos(2), (Vec{"e1g1\r\ntime 0\r\notim 0"}));
    t2.Vencer();
    EXPECT_TRUE(Nuevos(2).empty());
}

TEST_F(Motores, AnyOtherLineCancelsTheCastlingFallback) {
    Empezar(1, 2);
    Colocar("r3k2r/pppppppp/8/8/8/8/PPPPPPPP/R3K2R", 0);
    Dice(1, "move e1g1");
    Nuevos(2);
    Dice(2, "thinking...");
    EXPECT_FALSE(E().EnroquePendiente);
    EXPECT_FALSE(t2.Habilitado());
    EXPECT_TRUE(Nuevos(2).empty());
}

TEST_F(Motores, PersonsCastlingIsSentOnceAndWaitsForTheEnginesWord) {
    Empezar(0, 2);
    Colocar("r3k2r/pppppppp/8/8/8/8/PPPPPPPP/R3K2R", 1);
    Nuevos(2);
    ASSERT_EQ(Mover("e1g1").tipo, Respuesta::Legal);
    EXPECT_EQ(Nuevos(2), (Vec{"time 0\r\notim 0\r\ne1g1"}));
    EXPECT_TRUE(t2.Habilitado());
    Dice(2, "Illegal move: e1g1");
    EXPECT_TRUE(registro.mensajes.empty());
    t2.Vencer();
    EXPECT_TRUE(Nuevos(2).empty());
    // A later "o-o" of the engine is read as Black's.
    EXPECT_EQ(E().RespuestaMotor[1], "move o-o");
    Dice(2, "move o-o");
    EXPECT_EQ(En("g8"), ReyN);
    EXPECT_EQ(Turno, 1);
}

TEST_F(Motores, PromotionPieceComesFromTheEnginesStoredLine) {
    Empezar(0, 2);
    Colocar("4k3/8/8/8/8/8/4p3/K7", 0);
    Dice(2, "move e2e1n");
    EXPECT_EQ(En("e1"), CaballoN);
    EXPECT_EQ(registro.coronacionesMostradas, 0);
    // The person's promotion goes out with its letter.
    Colocar("k7/4P3/8/8/8/8/8/4K3", 1);
    Nuevos(2);
    ASSERT_EQ(Mover("e7e8", DamaB).tipo, Respuesta::Legal);
    EXPECT_EQ(Nuevos(2), (Vec{"time 0\r\notim 0\r\ne7e8q"}));
}

TEST_F(Motores, FeaturesOfEitherEngineAreAnsweredToEngineOne) {
    Empezar(1, 2);
    Nuevos(1);
    Nuevos(2);
    Dice(1, "feature usermove=1");
    EXPECT_EQ(Nuevos(1), (Vec{"accepted usermove=1"}));
    Dice(2, "feature draw=1");
    EXPECT_EQ(Nuevos(1), (Vec{"accepted usermove=1"}));
    EXPECT_TRUE(Nuevos(2).empty());
    EXPECT_EQ(E().ComandoMotor[2], "accepted draw=1");
}

TEST_F(Motores, RefusedLevelFallsBackAndAnImportantRefusalEndsTheGame) {
    Empezar(0, 2);
    Nuevos(2);
    Dice(2, "Error (unknown command): st 5");
    EXPECT_EQ(Nuevos(2), (Vec{"level 0 15 0"}));
    EXPECT_TRUE(MotorNegras);
    Dice(2, "Error (unknown command): level 40 5 0");
    EXPECT_TRUE(Nuevos(2).empty());
    ConsolaGuion& c = C(2);
    Dice(2, "Illegal move: e2e4");
    EXPECT_EQ(Textos(), (Vec{"m90 Illegal move: e2e4"}));
    EXPECT_EQ(registro.mensajes[0].icono, qa::kIconoStop);
    EXPECT_FALSE(MotorNegras);
    EXPECT_EQ(Turno, 0);
    EXPECT_TRUE(c.terminada);
    EXPECT_EQ(c.enviados[c.enviados.size() - 2], "exit");
    EXPECT_EQ(c.enviados.back(), "quit");
}

TEST_F(Motores, ResultsEndTheGameSilentlyOrWithTheirMessage) {
    Empezar(1, 2);
    Dice(1, "1-0 {White mates}");
    EXPECT_TRUE(registro.mensajes.empty());
    EXPECT_FALSE(MotorBlancas || MotorNegras);
    EXPECT_TRUE(cpu.consola[1]->terminada && cpu.consola[2]->terminada);

    Empezar(1, 2);
    Dice(2, "1/2-1/2 {Draw by repetition}");
    EXPECT_EQ(Textos(), (Vec{"95"}));
    EXPECT_FALSE(MotorBlancas || MotorNegras);

    registro.mensajes.clear();
    Empezar(1, 2);
    Dice(2, "0-1 {White resigns}");
    EXPECT_EQ(Textos(), (Vec{"phalanx gives up fairy wins."}));
    EXPECT_FALSE(MotorBlancas || MotorNegras);

    registro.mensajes.clear();
    Empezar(0, 2);
    Dice(2, "resign");
    EXPECT_EQ(Textos(), (Vec{"phalanx resigns."}));
    EXPECT_EQ(Turno, 0);

    registro.mensajes.clear();
    Empezar(0, 2);
    Dice(2, "Draw");
    EXPECT_EQ(Textos(), (Vec{"95"}));
    EXPECT_FALSE(MotorNegras);
}

TEST_F(Motores, DrawOffersBetweenEnginesAndToThePerson) {
    Empezar(1, 2);
    Nuevos(2);
    Dice(1, "offer draw");
    EXPECT_EQ(Nuevos(2), (Vec{"offer draw"}));
    EXPECT_TRUE(E().PeticionPendiente);
    ASSERT_TRUE(t1.Habilitado());
    t1.Vencer();
    EXPECT_EQ(Textos(), (Vec{"96"}));
    EXPECT_FALSE(t1.Habilitado());

    // The person says no: nothing goes to the engine and the game goes on.
    registro.mensajes.clear();
    Empezar(0, 2);
    Nuevos(2);
    registro.respuestas = {qa::kRespuestaNo};
    Dice(2, "offer draw");
    EXPECT_EQ(Textos(), (Vec{"phalanx offers a draw. Accept?"}));
    EXPECT_TRUE(Nuevos(2).empty());
    EXPECT_TRUE(MotorNegras);
    registro.respuestas = {qa::kRespuestaSi};
    Dice(2, "offer draw");
    EXPECT_FALSE(MotorNegras);

    // The person's offer, on their own turn only; a refusal answers it.
    registro.mensajes.clear();
    Empezar(0, 2);
    Nuevos(2);
    Turno = 0;
    motores->ToolboxComand("4");
    EXPECT_TRUE(Nuevos(2).empty());
    Turno = 1;
    motores->ToolboxComand("4");
    EXPECT_EQ(Nuevos(2), (Vec{"offer draw"}));
    Dice(2, "Error (unknown command): offer draw");
    EXPECT_EQ(Textos(), (Vec{"89"}));
    EXPECT_FALSE(E().PeticionPendiente);
    EXPECT_FALSE(t1.Habilitado());
}

TEST_F(Motores, HintsAndMoveNow) {
    Empezar(0, 2);
    Nuevos(2);
    // Move-now only while the engine thinks; a hint only on the person's turn.
    motores->Boton(10);
    EXPECT_TRUE(Nuevos(2).empty());
    motores->Boton(9);
    EXPECT_EQ(Nuevos(2), (Vec{"hint"}));
    Dice(2, "Hint: E7E5");
    EXPECT_EQ(Textos(), (Vec{" e7e5"}));
    EXPECT_EQ(E().ComandoMotor[2], "");
    EXPECT_FALSE(t1.Habilitado());

    registro.mensajes.clear();
    motores->Boton(9);
    t1.Vencer();
    EXPECT_EQ(Textos(), (Vec{"97"}));

    Turno = 0;
    registro.mensajes.clear();
    Nuevos(2);
    motores->Boton(10);
    EXPECT_EQ(Nuevos(2), (Vec{"?"}));
    EXPECT_TRUE(t1.Habilitado());
    // Any line that is no refusal ends the wait.
    Dice(2, "thinking hard");
    EXPECT_FALSE(E().PeticionPendiente);
    EXPECT_FALSE(t1.Habilitado());
    // The move that answers clears the "?".
    Dice(2, "move e7e5");
    EXPECT_EQ(E().ComandoMotor[2], "");
    EXPECT_TRUE(registro.mensajes.empty());
}

TEST_F(Motores, TakeBackRemovesTwoMovesAndSendsOneRemove) {
    cpu.guion[2] = LeerGuion("negro_e7e5.txt");
    Empezar(0, 2);
    ASSERT_EQ(Mover("e2e4").tipo, Respuesta::Legal);
    ASSERT_EQ(Jugadas::List1.size(), 2u);
    Nuevos(2);
    motores->ToolboxComand("5");
    EXPECT_TRUE(Jugadas::List1.empty());
    EXPECT_EQ(En("e2"), PeonB);
    EXPECT_EQ(En("e7"), PeonN);
    EXPECT_EQ(Nuevos(2), (Vec{"remove"}));
    EXPECT_EQ(cpu.marcosQuitados, 1);
    EXPECT_EQ(Turno, 1);

    // Only the white engine has moved: refused.
    Empezar(1, 0);
    Dice(1, "move e2e4");
    ASSERT_EQ(Turno, 2);
    motores->ToolboxComand("5");
    EXPECT_EQ(Jugadas::List1.size(), 1u);
    EXPECT_EQ(Ultimo(1), "post\r\neasy\r\ngo");
}

TEST_F(Motores, PersonResigns) {
    Empezar(0, 2);
    motores->ToolboxComand("3");
    EXPECT_EQ(Textos(), (Vec{"Gives up phalanx wins."}));
    EXPECT_FALSE(MotorNegras);
    // Against a white engine, only on one's own turn.
    registro.mensajes.clear();
    Empezar(1, 0);
    motores->ToolboxComand("3");
    EXPECT_TRUE(registro.mensajes.empty());
    EXPECT_TRUE(MotorBlancas);
}

TEST_F(Motores, NoEngineIsTheLocalGameForTwo) {
    Empezar(0, 0);
    EXPECT_FALSE(t3.Habilitado());
    EXPECT_EQ(cpu.player2, 1);
    EXPECT_EQ(Turno, 1);
    EXPECT_EQ(cpu.consola[1], nullptr);
    ASSERT_EQ(Mover("e2e4").tipo, Respuesta::Legal);
    EXPECT_EQ(Turno, 2);
    // Between two people one move is taken back.
    motores->ToolboxComand("5");
    EXPECT_TRUE(Jugadas::List1.empty());
    EXPECT_EQ(En("e2"), PeonB);
    EXPECT_EQ(Turno, 1);
    // A restart during an engine game asks first; no keeps the game.
    Empezar(0, 2);
    ASSERT_EQ(Mover("d2d4").tipo, Respuesta::Legal);
    registro.respuestas = {qa::kRespuestaNo};
    motores->Boton(1);
    EXPECT_EQ(Textos(), (Vec{"Stop the game? \r\n Sure? \r\n Really?"}));
    EXPECT_TRUE(MotorNegras);
    EXPECT_FALSE(t3.Habilitado());
}

TEST_F(Motores, ConsoleFailures) {
    // A program that will not start: message 88, and the game goes on against nothing.
    cpu.resultadoEjecutar[2] = 0;
    Empezar(0, 2);
    EXPECT_EQ(Textos(), (Vec{"88"}));
    EXPECT_TRUE(MotorNegras);

    // A report from the console ends the game for either colour.
    for (int lado : {1, 2}) {
        registro.mensajes.clear();
        cpu.resultadoEjecutar[2] = 1;
        Empezar(lado == 1 ? 1 : 0, lado == 2 ? 2 : 0);
        motores->ErrorRecibido(lado, "engine exited (code 1)");
        EXPECT_EQ(Textos(), (Vec{"[ERROR] engine exited (code 1)"}));
        EXPECT_FALSE(MotorBlancas || MotorNegras);
        EXPECT_EQ(Turno, 0);
        EXPECT_EQ(cpu.consola[lado], nullptr);
    }

    // One raised by the closing itself is no failure.
    registro.mensajes.clear();
    Empezar(0, 2);
    cpu.guion[2] = Guion("! error 6 while stopping");
    cpu.consola[2]->Seguir(cpu.guion[2]);
    cpu.consola[2]->salida.assign({{'!', "pipe 6 closed"}});
    motores->ToolboxComand("2");
    EXPECT_TRUE(registro.mensajes.empty());
}

TEST_F(Motores, TimeControlClocks) {
    cpu.opcion = 2;
    cpu.nivel[3] = "1";
    motores->CargarLevel();
    EXPECT_EQ(E().NivelMotor, "level 40 1 0");
    cpu.ms = 10'500;
    Empezar(0, 2);
    EXPECT_EQ(cpu.texto[6], "01:00");
    EXPECT_EQ(cpu.texto[7], "01:00");
    EXPECT_TRUE(t4.Habilitado());
    EXPECT_FALSE(t5.Habilitado());
    // A tick counts only when the wall clock's second has changed.
    t4.Vencer();
    EXPECT_EQ(cpu.texto[6], "00:59");
    EXPECT_TRUE(cpu.encendido[6]);
    EXPECT_FALSE(cpu.encendido[7]);
    cpu.ms = 10'900;
    t4.Vencer();
    EXPECT_EQ(cpu.texto[6], "00:59");
    // It waits for the next change, not a fixed time.
    EXPECT_EQ(t4.Intervalo(), 101);
    cpu.ms = 11'000;
    t4.Vencer();
    EXPECT_EQ(SegundosBlancas, 58);
    // White's first move sets both clocks back while Black's still shows the start.
    Nuevos(2);
    ASSERT_EQ(Mover("e2e4").tipo, Respuesta::Legal);
    EXPECT_EQ(cpu.texto[6], "01:00");
    EXPECT_TRUE(t5.Habilitado());
    EXPECT_FALSE(t4.Habilitado());
    // Black's clock ran at once with the switch, a second changed since its last tick.
    EXPECT_EQ(Nuevos(2), (Vec{"time 5900\r\notim 6000\r\ne2e4"}));
    EXPECT_EQ(SegundosNegras, 59);
    // The engine's move hands the clock back.
    cpu.ms = 12'000;
    Dice(2, "move e7e5");
    EXPECT_TRUE(t4.Habilitado());
    EXPECT_FALSE(t5.Habilitado());
    // Switched on again, it does not wait out the last second's rest.
    EXPECT_EQ(t4.Intervalo(), 1);

    // The person's flag falls: message 29, and the clocks keep their values.
    MinutosBlancas = 0;
    SegundosBlancas = 1;
    cpu.ms = 13'000;
    t4.Vencer();
    EXPECT_EQ(cpu.texto[6], "00:00");
    cpu.ms = 14'000;
    t4.Vencer();
    EXPECT_EQ(Textos(), (Vec{"29"}));
    EXPECT_FALSE(MotorNegras);
    EXPECT_FALSE(t4.Habilitado());
    EXPECT_EQ(cpu.texto[6], "00:00");
    EXPECT_EQ(cpu.texto[7], "00:59");
    EXPECT_EQ(Turno, 0);
}

TEST_F(Motores, EnginesFlagFallsAndAVanishedWhiteEngineStopsTheGame) {
    cpu.opcion = 2;
    cpu.nivel[3] = "1";
    Empezar(1, 0);
    MinutosBlancas = 0;
    SegundosBlancas = 0;
    cpu.ms = 1000;
    t4.Vencer();
    EXPECT_EQ(registro.sonidos.back(), 5);
    EXPECT_EQ(Textos(), (Vec{qa::TextoSinMotor + ". m30"}));
    EXPECT_FALSE(MotorBlancas);

    // Engine 1 cleared away while the clock runs: the clock's tick stops the game.
    Empezar(1, 0);
    MotorBlancas = false;
    cpu.ms = 5000;
    t4.Vencer();
    EXPECT_FALSE(t4.Habilitado());
    EXPECT_TRUE(E().RutaMotor[1].empty());
    EXPECT_EQ(Turno, 0);
}

TEST_F(Motores, FormClosedAndProgramClosedStopEverything) {
    Empezar(1, 2);
    ConsolaGuion& a = C(1);
    ConsolaGuion& b = C(2);
    TipoPartida = "A";
    motores->CerrarFormulario();
    EXPECT_TRUE(a.terminada && b.terminada);
    EXPECT_FALSE(MotorBlancas || MotorNegras);
    EXPECT_TRUE(TipoPartida.empty());
    EXPECT_EQ(cpu.consola[1], nullptr);
    EXPECT_EQ(registro.llamadas.back(), "MostrarVentanas");

    Empezar(1, 2);
    cpu.visible = false;
    motores->CerrarPrograma();
    EXPECT_TRUE(MotorBlancas); // not stopped with the form hidden, only dropped
    EXPECT_EQ(cpu.consola[1], nullptr);
}

} // namespace
