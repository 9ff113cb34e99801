// A saved game sent to the peer: the sending side replays a real .qtr file written by the
// program's own save, the texts it hands its socket are recorded, and a fresh program state on
// the receiving side replays them into the same game.
#include "core/game_state.h"
#include "core/move_list.h"
#include "files/game_file.h"
#include "net_support.h"

#include <cstring>

using namespace Variables;
using Textos = std::vector<std::string>;

namespace prueba {
namespace {

struct Tablero64 {
    int32_t c[9][9];
    bool operator==(const Tablero64& o) const { return std::memcmp(c, o.c, sizeof c) == 0; }
};

Tablero64 Foto() {
    Tablero64 t;
    std::memcpy(t.c, Tablero, sizeof t.c);
    return t;
}

class Transferencia : public Red {
protected:
    // A game with en passant, a promotion with capture and castling, saved as the program saves.
    std::string GuardarPartidaJugada() {
        Nueva();
        Jugar({"e2e4", "a7a6", "e4e5", "d7d5", "e5d6", "c7c6", "d6e7", "b8d7"});
        EXPECT_EQ(Mover("e7f8", DamaB).tipo, Respuesta::Legal);
        Jugar({"e8f8", "g1f3", "g8f6", "f1e2", "h7h6", "e1g1"});
        original = Foto();
        lista4 = Jugadas::List[4].str();
        const std::string ruta = dir + "/partida.qtr";
        EXPECT_EQ(GuardarPartida(ruta), Guardado::Hecho);
        return ruta;
    }

    // The sending side runs its replay to the end, as its timers and socket would.
    Textos Enviar(const std::string& ruta) {
        ConectarServidor();
        s->AbrirQtr(ruta);
        for (int i = 0; i < 500 && (sendQtr.Habilitado() || retraso.Habilitado()); ++i) {
            sendQtr.Vencer();
            retraso.Vencer();
            Bombear();
        }
        EXPECT_FALSE(sendQtr.Habilitado());
        return Salida();
    }

    Tablero64 original{};
    std::string lista4;
};

TEST_F(Transferencia, ASavedGameArrivesWholeOnAFreshPeer) {
    const std::string ruta = GuardarPartidaJugada();
    red.textos = {"", "x", "w"}; // empty and unknown answers ask again; lower case is taken
    const Textos enviado = Enviar(ruta);
    ASSERT_GE(enviado.size(), 4u);
    EXPECT_EQ(Textos(enviado.begin(), enviado.begin() + 4),
              (Textos{"QTR Iniciar", "QTR TB 0000", "QTR TN 0000", "QTR T A"}));
    EXPECT_EQ(enviado[4], "QTR M 5254");
    EXPECT_EQ(Textos(enviado.end() - 3, enviado.end()),
              (Textos{"QTR T N", "QTR T 2", "QTR Terminado"}));
    EXPECT_EQ(enviado.size(), 4u + 15u + 3u);
    EXPECT_EQ(Foto(), original) << "the sender's board replays the file";
    EXPECT_EQ(ColorJugador, "Blancas");
    EXPECT_EQ(Turno, 0) << "Black, the peer, is to move";
    EXPECT_FALSE(Cargando);

    // The receiving side: a program that knows nothing of the game.
    RestablecerTodo();
    NuevaSesion();
    ConectarCliente();
    for (const std::string& t : enviado) Recibir(t);
    EXPECT_EQ(Foto(), original);
    EXPECT_EQ(Jugadas::List[4].str(), lista4);
    EXPECT_EQ(ColorJugador, "Negras");
    EXPECT_EQ(Turno, 2);
    EXPECT_EQ(TipoPartida, "A");
    EXPECT_FALSE(Cargando);
    EXPECT_EQ(vista.tableroNegrasAbajo, 1);
    // And the game goes on from there.
    ASSERT_EQ(Mover("a6a5").tipo, Respuesta::Legal);
    Bombear();
    EXPECT_EQ(Salida(), Textos{"Movimiento 16150"});
}

TEST_F(Transferencia, TheEndWaitsUntilTheQueueHasDrained) {
    const std::string ruta = Escribir("c.qtr", "0000\r\n0000\r\nA\r\n5254\r\n");
    red.textos = {"w"};
    ConectarServidor();
    s->AbrirQtr(ruta);
    for (int i = 0; i < 6; ++i) sendQtr.Vencer();
    EXPECT_TRUE(retraso.Habilitado());
    retraso.Vencer();
    EXPECT_TRUE(Cargando) << "lines still wait to go out";
    EXPECT_FALSE(retraso.Habilitado());
    Bombear();
    sendQtr.Vencer();
    retraso.Vencer();
    EXPECT_FALSE(Cargando);
    EXPECT_FALSE(sendQtr.Habilitado());
}

TEST_F(Transferencia, TheFeederSlowsAsTheQueueFillsAndWaitsAt31) {
    std::string texto = "0000\r\n0000\r\nA\r\n";
    for (int i = 0; i < 10; ++i) texto += "2133\r\n2836\r\n3321\r\n3628\r\n";
    ConectarServidor();
    s->AbrirQtr(Escribir("k.qtr", texto));
    // Nothing is sent: the queue only fills.
    for (int i = 0; i < 60; ++i) sendQtr.Vencer();
    EXPECT_EQ(s->ColaEnvioCuenta(), 31);
    EXPECT_EQ(sendQtr.Intervalo(), 1500);
    EXPECT_TRUE(Cargando);
}

TEST_F(Transferencia, APeerThatLeavesMidTransferLeavesNoHalfGame) {
    const std::string ruta = GuardarPartidaJugada();
    red.textos = {"w"};
    const Textos enviado = Enviar(ruta);
    RestablecerTodo();
    NuevaSesion();
    ConectarCliente();
    for (size_t i = 0; i < 10; ++i) Recibir(enviado[i]);
    EXPECT_TRUE(Cargando);
    s->AlCerrar(qa::Lado::Cliente);
    EXPECT_FALSE(Cargando);
    EXPECT_TRUE(Jugadas::List[4].empty());
    EXPECT_EQ(En("e2"), PeonB) << "the initial position";
    EXPECT_EQ(MinutosBlancas, 0);
}

TEST_F(Transferencia, AnIllegalLineStopsBothSides) {
    ConectarServidor();
    s->AbrirQtr(Escribir("d.qtr", "0000\r\n0000\r\nA\r\n5254\r\n5256\r\n"));
    for (int i = 0; i < 8; ++i) sendQtr.Vencer();
    Bombear();
    const Textos enviado = Salida();
    EXPECT_EQ(enviado.back(), "QTR ERROR");
    EXPECT_EQ(Cajas(), "27|55");
    EXPECT_FALSE(sendQtr.Habilitado());

    RestablecerTodo();
    NuevaSesion();
    ConectarCliente();
    for (const std::string& t : enviado) Recibir(t);
    EXPECT_FALSE(Cargando);
    EXPECT_EQ(Cajas(), "55");
    EXPECT_EQ(TipoPartida, "");
}

} // namespace
} // namespace prueba
