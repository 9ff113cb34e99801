// The texts on the wire, alone: which message a received text is taken for, its fields, and the
// texts that go out.
#include "net/texto_red.h"

#include <gtest/gtest.h>

using namespace qa::wire;

namespace {

Clase Primera(std::string_view t) {
    return Clasificar(t, 0);
}

TEST(TextoRed, ExactKeywordsMatchOnlyThemselvesAndPrefixesTakeLongerTexts) {
    EXPECT_EQ(Primera("Close"), Clase::Close);
    EXPECT_EQ(Primera("Close now"), Clase::Ninguna) << "a longer text is not Close";
    EXPECT_EQ(Primera("Rendirse ya"), Clase::Rendirse);
    EXPECT_EQ(Primera("Retroceso"), Clase::Retroceso);
    EXPECT_EQ(Primera("RetrocesoAceptado"), Clase::RetrocesoAceptado);
    EXPECT_EQ(Primera("Retroceso2"), Clase::Ninguna);
    EXPECT_EQ(Primera("AbrirPartidaEPD"), Clase::AbrirPartidaEpd);
    EXPECT_EQ(Primera("AbrirPartida"), Clase::AbrirPartida);
    EXPECT_EQ(Primera("EPDanything"), Clase::Epd) << "EPD alone is a prefix";
    EXPECT_EQ(Primera("NuevoJuego 1 R 5"), Clase::NuevoJuego);
    EXPECT_EQ(Primera("Mensaje hola"), Clase::Mensaje);
    EXPECT_EQ(Primera("TIMEx"), Clase::Time);
    EXPECT_EQ(Primera("QTR whatever"), Clase::Qtr);
    EXPECT_EQ(Primera("qtr M 5254"), Clase::Ninguna) << "keywords are case-sensitive";
    EXPECT_EQ(Primera(""), Clase::Ninguna);
}

TEST(TextoRed, TheTestsRunOnFromWhereTheLastMatched) {
    std::size_t siguiente = 0;
    EXPECT_EQ(Clasificar("Retroceso", 0, &siguiente), Clase::Retroceso);
    EXPECT_EQ(Clasificar("Retroceso", siguiente), Clase::Ninguna);
    // Two messages joined in one read are the first one's.
    EXPECT_EQ(Primera("RendirseOfrecerTablas"), Clase::Rendirse);
    EXPECT_EQ(Clasificar("Rendirse", static_cast<std::size_t>(-1)), Clase::Ninguna);
}

TEST(TextoRed, OnlyTheElevenBoxKeywordsCutOffTheBoardInput) {
    for (const char* t : {"TablasCancelado", "TablasAceptadasX", "NuevoCancelado", "OfrecerTablas",
                          "AbrirCancelado", "AbrirPartida", "CancelarEPD", "AbrirCanceladoEPD",
                          "AbrirPartidaEPD", "RetrocesoAceptado", "Retroceso"})
        EXPECT_TRUE(AbreCaja(t)) << t;
    for (const char* t : {"NuevoJuego 1 R 5", "Rendirse", "AbrirAceptado", "RetrocesoCancelado",
                          "RetrocesoX", "Movimiento 52540", "Mensaje x"})
        EXPECT_FALSE(AbreCaja(t)) << t;
}

TEST(TextoRed, NumbersThatDoNotConvertGiveNothing) {
    EXPECT_EQ(Entero(" 42 "), 42);
    EXPECT_EQ(Entero("-7"), -7);
    EXPECT_EQ(Entero("2147483647"), 2147483647);
    EXPECT_EQ(Entero("-2147483648"), INT32_MIN);
    for (const char* t : {"", " ", "-", "4 2", "1e3", "2147483648", "99999999999999999999", "x"})
        EXPECT_FALSE(Entero(t)) << t;

    EXPECT_FALSE(LeerTiempo("TIME a:5"));
    EXPECT_FALSE(LeerTiempo("TIME 5"));
    EXPECT_FALSE(LeerTiempo("TIME:5 3")) << "the colon before the space";
    EXPECT_FALSE(LeerTiempo("TIME 99999999999:0"));
    EXPECT_FALSE(LeerRanking("Ranking 1-x-0-0-1200"));
    EXPECT_FALSE(LeerRanking("Ranking 1-2-0-0-99999999999"));
    EXPECT_FALSE(LeerQtr("QTR TB 0a10"));
    EXPECT_FALSE(LeerQtr("QTR M 5254x"));
    EXPECT_FALSE(LeerNuevoJuego("NuevoJuego 1 R abc"));
    EXPECT_FALSE(LeerNuevoJuego("NuevoJuego 1 R"));
    EXPECT_FALSE(LeerEpd("EPD Tx8/8/8"));
    EXPECT_FALSE(LeerMovimiento("Movimiento 52a40"));
    EXPECT_FALSE(LeerMovimiento("Movimiento 5254")) << "the piece field is always there";
    EXPECT_FALSE(LeerMovimiento("Movimiento 525499")) << "no such piece";
}

TEST(TextoRed, FieldsAreReadFromTheirPlaces) {
    const auto t = LeerTiempo("TIME 4:7");
    ASSERT_TRUE(t);
    EXPECT_EQ(t->minutos, 4);
    EXPECT_EQ(t->segundos, 7);

    const auto m = LeerMovimiento("Movimiento 57585");
    ASSERT_TRUE(m);
    EXPECT_EQ(m->origen, "57");
    EXPECT_EQ(m->destino, "58");
    EXPECT_EQ(m->pieza, 5);

    const auto o = LeerNuevoJuego("NuevoJuego 2 R 15");
    ASSERT_TRUE(o);
    EXPECT_EQ(o->color, '2');
    EXPECT_EQ(o->modo, 'R');
    EXPECT_EQ(o->minutos, 15);

    // Characters after a fifth dash are skipped.
    const auto r = LeerRanking("Ranking 3-1-1-1-1250-junk");
    ASSERT_TRUE(r);
    EXPECT_EQ(r->PartidasJugadas, 3);
    EXPECT_EQ(r->Puntos, 1250);
    const auto corto = LeerRanking("Ranking 7");
    ASSERT_TRUE(corto);
    EXPECT_EQ(corto->PartidasJugadas, 7);
    EXPECT_EQ(corto->Puntos, 0);

    // Length 7 is always a "QTR T " line, 11 with TB/TN a clock, M with 10 or more a move.
    auto q = LeerQtr("QTRxxxN");
    ASSERT_TRUE(q);
    EXPECT_EQ(q->tipo, TipoQtr::Clase);
    EXPECT_EQ(q->valor, 'N');
    q = LeerQtr("QTR TN 0510");
    ASSERT_TRUE(q);
    EXPECT_EQ(q->tipo, TipoQtr::Relojes);
    EXPECT_EQ(q->lado, 2);
    EXPECT_EQ(q->minutos, 5);
    EXPECT_EQ(q->segundos, 10);
    q = LeerQtr("QTR M 5254");
    ASSERT_TRUE(q);
    EXPECT_EQ(q->tipo, TipoQtr::Jugada);
    EXPECT_FALSE(q->conPieza);
    q = LeerQtr("QTR Iniciar");
    ASSERT_TRUE(q);
    EXPECT_TRUE(q->iniciar);
    EXPECT_EQ(q->tipo, TipoQtr::Otra) << "eleven long, and no clock";
    q = LeerQtr("QTR Terminado");
    ASSERT_TRUE(q);
    EXPECT_TRUE(q->terminado);

    auto p = LeerEpd("EPD 2B 8/8/8/8/8/8/8/8 w");
    ASSERT_TRUE(p);
    EXPECT_EQ(p->forma, '2');
    EXPECT_TRUE(p->negras);
    EXPECT_EQ(p->fen, "8/8/8/8/8/8/8/8 w");
    p = LeerEpd("EPD T1N k7/8");
    ASSERT_TRUE(p);
    EXPECT_EQ(p->turno, 1);
    EXPECT_FALSE(p->negras);
    EXPECT_EQ(p->fen, "k7/8");
}

TEST(TextoRed, OutgoingTexts) {
    EXPECT_EQ(TextoMovimiento(5, 2, 5, 4, 0), "Movimiento 52540");
    EXPECT_EQ(TextoMovimiento(1, 7, 1, 8, 5), "Movimiento 17185");
    EXPECT_EQ(TextoTime(3, 5), "TIME 3:5") << "no leading zeros on the wire";
    EXPECT_EQ(TextoNuevoJuego(true, true, "15"), "NuevoJuego 1 R 15");
    EXPECT_EQ(TextoNuevoJuego(false, false, "15"), "NuevoJuego 2 A 0");
    EXPECT_EQ(TextoRanking({3, 1, 1, 1, 1250}), "Ranking 3-1-1-1-1250");
    EXPECT_EQ(TextoEpd(false, 2, "Negras", "k7/8"), "EPD 2N k7/8");
    EXPECT_EQ(TextoEpd(true, 1, "Blancas", "k7/8"), "EPD T1B k7/8");
}

TEST(TextoRed, AVersionWeighsItsLeadingNumber) {
    EXPECT_DOUBLE_EQ(ValorVersion("1.55"), 1.55);
    EXPECT_DOUBLE_EQ(ValorVersion("1.41"), 1.41);
    EXPECT_DOUBLE_EQ(ValorVersion("1.5x"), 1.5);
    EXPECT_DOUBLE_EQ(ValorVersion("abc"), 0.0);
    EXPECT_DOUBLE_EQ(ValorVersion(""), 0.0);
}

} // namespace
