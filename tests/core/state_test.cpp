// The shared state as a whole: the fresh-start reset reaches every variable of the list, the
// reset between games keeps what must live on, and the clocks print their counters.
#include "test_support.h"

#include "core/clocks.h"

using namespace Variables;

namespace {

// Every variable of the list away from its fresh value.
void TodoDistinto() {
#define CASILLAS(n) n[1][1] = n[8][8] = 7;
#define TEXTO(n) n = "x";
#define ENTERO(tipo, n) n = static_cast<tipo>(7);
#define BANDERA(n) n = true;
#define PAR(n) n[1] = n[2] = true;
#define LINEAS(n) n.assign(3, "5254");
#include "core/game_state_list.h"
}

using Estado = prueba::Partida;

TEST_F(Estado, FreshStartResetsEveryVariableOfTheList) {
    TodoDistinto();
    RestablecerTodo();
#define CASILLAS(n) EXPECT_TRUE(n[1][1] == 0 && n[8][8] == 0) << #n;
#define TEXTO(n) EXPECT_EQ(n, "") << #n;
#define ENTERO(tipo, n) EXPECT_EQ(n, 0) << #n;
#define BANDERA(n) EXPECT_FALSE(n) << #n;
#define PAR(n) EXPECT_FALSE(n[1] || n[2]) << #n;
#define LINEAS(n) EXPECT_EQ(n, std::vector<std::string>(1)) << #n;
#include "core/game_state_list.h"
}

TEST_F(Estado, NewGameResetKeepsWhatLivesOnAndTheClocks) {
    TodoDistinto();
    VariablesCero();
    EXPECT_EQ(Tablero[1][1], 7);
    EXPECT_EQ(Turno, 7);
    EXPECT_TRUE(AlPasoPosible);
    EXPECT_EQ(AlPasoCasilla, 7);
    EXPECT_TRUE(DerechosBlancas[1] && DerechosNegras[2]);
    EXPECT_EQ(MinutosBlancas + SegundosBlancas + MinutosNegras + SegundosNegras, 28)
        << "the clocks keep their values until the next game sets them";
    EXPECT_FALSE(TorreA1Movida || Jaque || Mate);
    EXPECT_EQ(NumeroJugada, 0);
    EXPECT_EQ(AlPasoFen, "");
}

TEST_F(Estado, ClocksPrintTheirCounters) {
    EXPECT_EQ(TextoTiempo(0, 0), "00:00");
    EXPECT_EQ(TextoTiempo(5, 9), "05:09");
    EXPECT_EQ(TextoTiempo(59, 60), "59:60");
    EXPECT_EQ(TextoTiempo(100, 0), "100:00");
    MinutosBlancas = 12, SegundosBlancas = 3, MinutosNegras = 4, SegundosNegras = 50;
    PrintTimerB();
    PrintTimerN();
    EXPECT_EQ(entorno.TextoReloj(1), "12:03");
    EXPECT_EQ(entorno.TextoReloj(2), "04:50");
    RelojesCero();
    EXPECT_EQ(MinutosBlancas + SegundosBlancas + MinutosNegras + SegundosNegras, 0);
    EXPECT_EQ(entorno.TextoReloj(1), "00:00");
    EXPECT_EQ(entorno.TextoReloj(2), "00:00");
}

} // namespace
