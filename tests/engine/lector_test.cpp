// The line reader alone: which kind each engine line is, in the order of the tests.
#include "engine/lector_motor.h"

#include <gtest/gtest.h>

using qa::ClaseLinea;
using qa::EstadoLinea;
using qa::LeerLinea;
using qa::LeerPensamiento;

namespace {

EstadoLinea Jugando() {
    EstadoLinea e;
    e.motorNegras = true;
    e.sinJugadas = false;
    return e;
}

ClaseLinea Clase(const std::string& linea, EstadoLinea e = Jugando()) {
    return LeerLinea(linea, e).clase;
}

TEST(LectorMotor, RefusalsComeBeforeMovesAndAreSortedByWhatTheyRefuse) {
    // "Illegal move" holds "move " but is a refusal, and one that matters.
    EXPECT_EQ(Clase("Illegal move: e2e4"), ClaseLinea::RechazoGrave);
    EXPECT_EQ(Clase("Illegal move:e2e5"), ClaseLinea::RechazoGrave);
    EXPECT_EQ(Clase("Invalid move: e2e5"), ClaseLinea::RechazoGrave);
    EXPECT_EQ(Clase("Error (unknown command): st 5"), ClaseLinea::RechazoNivel);
    // Any "st" at all, even inside another word.
    EXPECT_EQ(Clase("Error: bad input"), ClaseLinea::RechazoGrave);
    EXPECT_EQ(Clase("Error: last input"), ClaseLinea::RechazoNivel);
    EXPECT_EQ(Clase("Error (unknown command): level 40 5 0"), ClaseLinea::Ignorada);
    EXPECT_EQ(Clase("Error (unknown command): protover"), ClaseLinea::Ignorada);
    for (const char* l : {"Error (unknown command): random", "Error (unknown command): ics",
                          "Error (unknown command): sd 6", "Error (unknown command): hint",
                          "Illegal move: ?", "Error (unknown command): offer draw"})
        EXPECT_EQ(Clase(l), ClaseLinea::Ignorada) << l;
    // Both spellings.
    EXPECT_EQ(Clase("unkown command: xyz"), ClaseLinea::RechazoGrave);
    EXPECT_EQ(Clase("Unknown command: xyz"), ClaseLinea::RechazoGrave);
    EXPECT_EQ(Clase("WARNING: no book"), ClaseLinea::RechazoGrave);

    // A castling move on its way: every refusal is left to the fallback.
    EstadoLinea e = Jugando();
    e.enroquePendiente = true;
    EXPECT_EQ(Clase("Illegal move: e1g1", e), ClaseLinea::Ignorada);
    // A pending request: the refusal answers it, before "protover" or "st" are looked at.
    e = Jugando();
    e.peticionPendiente = true;
    EXPECT_EQ(Clase("Error (unknown command): protover st", e), ClaseLinea::RechazoPeticion);
    EXPECT_EQ(Clase("Illegal move: hint", e), ClaseLinea::RechazoPeticion);
}

TEST(LectorMotor, MoveLinesGiveTheMoveBehindTheColonOrTheFirstBlank) {
    auto l = LeerLinea("move e2e4\r\n", Jugando());
    EXPECT_EQ(l.clase, ClaseLinea::Movimiento);
    EXPECT_EQ(l.texto, "e2e4");
    EXPECT_EQ(l.clave, "move e2e4");
    EXPECT_FALSE(l.largo);
    l = LeerLinea("My move is: E2E4", Jugando());
    EXPECT_EQ(l.clave.size(), 16u);
    EXPECT_FALSE(l.largo);
    EXPECT_EQ(l.texto, "e2e4");
    l = LeerLinea("Move is: e7e8q", Jugando());
    EXPECT_EQ(l.texto, "e7e8q");
    l = LeerLinea("my next move is: e2e4", Jugando());
    EXPECT_TRUE(l.largo);
    l = LeerLinea("My move is : d7d5", Jugando()); // 17 characters
    EXPECT_TRUE(l.largo);
    // A colon right before the move costs its first letter.
    EXPECT_EQ(LeerLinea("move now:e2e4", Jugando()).texto, "2e4");
    EXPECT_EQ(LeerLinea("move ", Jugando()).texto, "");
    // Statistics are dropped before they can be read as a move.
    EXPECT_EQ(Clase("null move e2e4"), ClaseLinea::Ignorada);
    EXPECT_EQ(Clase("Killer move g1f3"), ClaseLinea::Ignorada);
}

TEST(LectorMotor, OnlyFeaturesEndingInOneAreAnsweredAllAtOnce) {
    EXPECT_EQ(Clase("feature sigint=0"), ClaseLinea::Ignorada);
    EXPECT_EQ(Clase("feature myname=\"Fairy-Max 5.0b\""), ClaseLinea::Ignorada);
    auto l = LeerLinea("feature usermove=1 draw=1", Jugando());
    EXPECT_EQ(l.clase, ClaseLinea::Caracteristicas);
    EXPECT_EQ(l.texto, "accepted usermove=1 draw=1");
    // Answered as it stands, even with a 0 in the middle.
    EXPECT_EQ(LeerLinea("feature ping=0 setboard=1", Jugando()).texto,
              "accepted ping=0 setboard=1");
    EXPECT_EQ(LeerLinea("feature=1", Jugando()).texto, "accepted feature=1");
}

TEST(LectorMotor, DrawsHintsResultsAndResignationInTheirOrder) {
    EXPECT_EQ(Clase("offer draw"), ClaseLinea::OfertaTablas);
    EXPECT_EQ(Clase("Draw"), ClaseLinea::Tablas);
    EXPECT_EQ(Clase("draw!"), ClaseLinea::Tablas);
    EXPECT_EQ(Clase("draw it"), ClaseLinea::Otra); // longer than 5
    auto l = LeerLinea("1/2-1/2 {Draw by repetition}", Jugando());
    EXPECT_EQ(l.clase, ClaseLinea::Resultado);
    EXPECT_TRUE(l.tablas);
    EXPECT_FALSE(l.rendicion);
    l = LeerLinea("1-0 {White mates}", Jugando());
    EXPECT_EQ(l.clase, ClaseLinea::Resultado);
    EXPECT_FALSE(l.tablas || l.rendicion);
    l = LeerLinea("0-1 {White resigns}", Jugando());
    EXPECT_TRUE(l.rendicion);
    EXPECT_EQ(Clase("resign"), ClaseLinea::Rendicion);
    EXPECT_EQ(Clase("Resigns"), ClaseLinea::Rendicion);
    EXPECT_EQ(Clase("I resign now, sorry"), ClaseLinea::Otra);

    l = LeerLinea("Hint: E7E5", Jugando());
    EXPECT_EQ(l.clase, ClaseLinea::Pista);
    EXPECT_EQ(l.texto, " e7e5");
    EXPECT_EQ(LeerLinea("hint e7e5", Jugando()).texto, "hint e7e5");
    // "hint" in lower case before any move, with no engine on White: not ours.
    EstadoLinea e = Jugando();
    e.sinJugadas = true;
    EXPECT_EQ(Clase("hint: e7e5", e), ClaseLinea::Ignorada);
    EXPECT_EQ(Clase("Hint: e7e5", e), ClaseLinea::Pista);
    e.motorBlancas = true;
    EXPECT_EQ(Clase("hint: e7e5", e), ClaseLinea::Pista);
    // A hint that offers a draw is an offer.
    EXPECT_EQ(Clase("Hint: offer draw"), ClaseLinea::OfertaTablas);
}

TEST(LectorMotor, ThinkingLinesFillTheFiveBoxes) {
    auto p = LeerPensamiento("5 12 300 12345 e2e4 e7e5");
    EXPECT_EQ(p[1], "5");
    EXPECT_EQ(p[2], "12");
    EXPECT_EQ(p[3], "300");
    EXPECT_EQ(p[4], "12345");
    EXPECT_EQ(p[5], "e2e4 e7e5");

    // Leading blanks and the move number of the variation go.
    p = LeerPensamiento("  3   -5 10 200 12. e2e4 e7e5");
    EXPECT_EQ(p[1], "3");
    EXPECT_EQ(p[2], "-5");
    EXPECT_EQ(p[5], "e2e4 e7e5");
    p = LeerPensamiento("4 7 9 100 ... e5 e7");
    EXPECT_EQ(p[5], "e5 e7");
    // A first move of two letters is taken for a move number.
    p = LeerPensamiento("5 12 300 12345 e4 e5 Nf3");
    EXPECT_EQ(p[5], "e5 Nf3");

    // Short lines, move lists and lines not starting with a digit are not thinking.
    EXPECT_FALSE(LeerPensamiento("5 12 300 1").at(1));
    EXPECT_FALSE(LeerPensamiento("1. e2e4 e7e5 g1f3").at(1));
    EXPECT_FALSE(LeerPensamiento("tellics say hello").at(1));

    // Fewer than four fields: the last repeats.
    p = LeerPensamiento("7 12345678901");
    EXPECT_EQ(p[1], "7");
    EXPECT_EQ(p[2], "12345678901");
    EXPECT_EQ(p[4], "12345678901");
    EXPECT_EQ(p[5], "12345678901");

    // A variation that starts with a higher digit is read again (its first field went with
    // the move number).
    p = LeerPensamiento("1 2 3 4 9 8 7 6 a7a6");
    EXPECT_EQ(p[1], "8");
    EXPECT_EQ(p[2], "7");
    EXPECT_EQ(p[4], "a7a6");
    EXPECT_EQ(p[5], "a7a6");
}

TEST(LectorMotor, AnyBytesAreReadWithoutHarm) {
    std::string raro(3000, '\0');
    for (std::size_t i = 0; i < raro.size(); ++i) raro[i] = static_cast<char>(i * 37);
    for (std::size_t n : {0u, 1u, 5u, 16u, 17u, 300u, 3000u}) {
        const std::string l = raro.substr(0, n);
        for (int f = 0; f < 32; ++f) {
            EstadoLinea e;
            e.motorBlancas = f & 1;
            e.motorNegras = f & 2;
            e.enroquePendiente = f & 4;
            e.peticionPendiente = f & 8;
            e.sinJugadas = f & 16;
            (void)LeerLinea(l, e);
            (void)LeerLinea("move " + l, e);
        }
        (void)LeerPensamiento(l);
        (void)LeerPensamiento("9 " + l);
    }
}

} // namespace
