// How mate and stalemate end the game, score it and tell the player.
#include "test_support.h"

using namespace Variables;

namespace {

class Final : public prueba::Partida {
protected:
    void MateBlanco(const char* color) {
        Colocar("6k1/5ppp/8/8/8/8/8/R5K1");
        TipoPartida = "R";
        ColorJugador = color;
        Jugar({"a1a8"});
    }
};

TEST_F(Final, RatedMateScoresByColour) {
    MateBlanco("Blancas");
    EXPECT_EQ(entorno.resultados, std::vector<int>{2});
    entorno.resultados.clear();
    MateBlanco("Negras");
    EXPECT_EQ(entorno.resultados, std::vector<int>{1});
    EXPECT_TRUE(TipoPartida.empty());
    EXPECT_TRUE(ColorJugador.empty());
}

TEST_F(Final, MateEndsTheGameWithSoundAndMessage) {
    Colocar("6k1/5ppp/8/8/8/8/8/R5K1");
    Jugar({"a1a8"});
    EXPECT_EQ(Turno, 0);
    EXPECT_TRUE(entorno.resultados.empty()) << "an unrated game changes no ranking";
    ASSERT_EQ(entorno.mensajes.size(), 1u);
    EXPECT_EQ(entorno.mensajes[0].titulo, "Quintarena");
    EXPECT_EQ(entorno.mensajes[0].texto, "1");
    EXPECT_EQ(entorno.sonidos, (std::vector<int>{3, 4}));
    EXPECT_EQ(Mover("g8h8").tipo, Respuesta::Ignorada);
    EXPECT_EQ(Ultima(3), "1. Ra8++") << "the lists stay on show";
    EXPECT_EQ(NumeroJugada, 0);
}

TEST_F(Final, BlackMatesByAPromotedPiece) {
    Colocar("7k/8/8/8/8/8/5PPP/1p4K1", 2);
    ASSERT_EQ(Mover("b1b1").tipo, Respuesta::Rehusada);
    Colocar("7k/8/8/8/8/8/p4PPP/6K1", 2);
    TipoPartida = "R";
    ColorJugador = "Negras";
    auto r = Mover("a2a1", 11);
    EXPECT_TRUE(r.mate);
    EXPECT_EQ(entorno.mensajes.back().texto, "2");
    EXPECT_EQ(entorno.resultados, std::vector<int>{2});
}

TEST_F(Final, StalemateIsDrawnWithoutSound) {
    Colocar("7k/7P/5K2/8/8/8/8/8");
    TipoPartida = "R";
    ColorJugador = "Negras";
    auto r = Mover("f6g6");
    EXPECT_TRUE(r.ahogado);
    EXPECT_EQ(entorno.resultados, std::vector<int>{3});
    EXPECT_EQ(entorno.mensajes.back().texto, "3");
    EXPECT_EQ(entorno.sonidos, std::vector<int>{3}) << "only the move sound";
    EXPECT_EQ(Turno, 0);
}

TEST_F(Final, EnPassantRightOutlivesTheGame) {
    Nueva();
    Jugar({"e2e4"});
    VariablesCero();
    EXPECT_TRUE(AlPasoPosible);
    EXPECT_FALSE(TorreA1Movida);
    EXPECT_EQ(Tablero[0][3], 0);
}

} // namespace
