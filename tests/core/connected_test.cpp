// A move made on this board while a peer is connected or an engine plays: what goes out to
// whom, and which pieces the player may take.
#include "test_support.h"

using namespace Variables;
using Llamadas = std::vector<std::string>;

namespace {

class Conectada : public prueba::Partida {
protected:
    void SetUp() override {
        Partida::SetUp();
        Nueva();
        Conectado = true; // the player has White and the move
    }
};

TEST_F(Conectada, TheMoveGoesToThePeerAndTheTurnWithIt) {
    ASSERT_EQ(Mover("e2e4").tipo, Respuesta::Legal);
    EXPECT_EQ(entorno.alRival, Llamadas{"EnviarMovimiento 5 2 5 4 0"});
    EXPECT_EQ(Turno, 0);
    EXPECT_EQ(Mover("e7e5").tipo, Respuesta::Ignorada) << "the peer has the move";
    EXPECT_EQ(entorno.sonidos, std::vector<int>{3});
    EXPECT_TRUE(entorno.alMotor.empty());
}

TEST_F(Conectada, OnlyThePlayersOwnPiecesArePickedUp) {
    // The filter skips its turn test while connected: the pick-up is the only guard.
    EXPECT_EQ(Mover("e7e5").tipo, Respuesta::Rehusada);
    EXPECT_EQ(En("e7"), PeonN);
    EXPECT_EQ(Turno, 1);
    EXPECT_TRUE(entorno.alRival.empty());
    Turno = 2; // the player has Black
    EXPECT_EQ(Mover("e2e4").tipo, Respuesta::Rehusada);
    EXPECT_EQ(Mover("e7e5").tipo, Respuesta::Legal);
    EXPECT_EQ(entorno.alRival, Llamadas{"EnviarMovimiento 5 7 5 5 0"});
}

TEST_F(Conectada, CastlingAndPromotionTravelInBoardSquares) {
    Colocar("4k3/1P6/8/8/8/8/8/4K2R");
    entorno.invertido = true; // the drawing leaves a castling move in screen terms
    ASSERT_EQ(Mover("e1g1").tipo, Respuesta::Legal);
    Turno = 1;
    ASSERT_EQ(Mover("b7b8", DamaB).tipo, Respuesta::Legal);
    EXPECT_EQ(entorno.alRival,
              (Llamadas{"EnviarMovimiento 5 1 7 1 0", "EnviarMovimiento 2 7 2 8 5"}));
}

using ContraMotor = prueba::Partida;

TEST_F(ContraMotor, AMoveAgainstTheEngineHandsItTheTurn) {
    Nueva();
    MotorNegras = true;
    EXPECT_EQ(Mover("e2e4").tipo, Respuesta::Legal);
    EXPECT_EQ(entorno.alMotor, Llamadas{"GenerarMovimiento"});
    EXPECT_EQ(Turno, 0);
    EXPECT_TRUE(entorno.alRival.empty());
}

} // namespace
