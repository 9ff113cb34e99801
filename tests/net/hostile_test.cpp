// A hostile or broken peer: texts whose numbers do not convert are dropped with no change,
// floods of offers cannot nest boxes without end, and random texts in every state of a game
// leave the program running with its queue bounded.
#include "core/game_state.h"
#include "core/move_list.h"
#include "net/puntuacion.h"
#include "net_support.h"

#include <cstring>
#include <random>

using namespace Variables;
using Textos = std::vector<std::string>;

namespace prueba {
namespace {

class Hostil : public Red {
protected:
    void PartidaNegras() {
        ConectarServidor();
        Recibir("NuevoJuego 1 R 5");
        Bombear();
        Salida();
        ASSERT_EQ(ColorJugador, "Negras");
        Cajas();
    }
};

struct Estado {
    std::string tipo, color;
    int16_t turno;
    int32_t mb, sb, mn, sn;
    bool cargando;
    int32_t tablero[9][9];
    qa::RegistroPuntuacion remota;
    std::string lista;

    static Estado Ahora() {
        Estado e{TipoPartida,
                 ColorJugador,
                 Turno,
                 MinutosBlancas,
                 SegundosBlancas,
                 MinutosNegras,
                 SegundosNegras,
                 Cargando,
                 {},
                 qa::PuntuacionRemota,
                 Jugadas::List[4].str()};
        std::memcpy(e.tablero, Tablero, sizeof e.tablero);
        return e;
    }
    bool operator==(const Estado& o) const {
        return tipo == o.tipo && color == o.color && turno == o.turno && mb == o.mb && sb == o.sb &&
               mn == o.mn && sn == o.sn && cargando == o.cargando &&
               std::memcmp(tablero, o.tablero, sizeof tablero) == 0 &&
               remota.Puntos == o.remota.Puntos &&
               remota.PartidasJugadas == o.remota.PartidasJugadas && lista == o.lista;
    }
};

TEST_F(Hostil, NumbersThatDoNotConvertDropTheMessageWithNoChange) {
    PartidaNegras();
    Recibir("Movimiento 52540");
    Recibir("Ranking 1-1-0-0-1300");
    const Estado antes = Estado::Ahora();
    for (const char* t :
         {"TIME x:5", "TIME 5", "TIME 99999999999:1", "Ranking 1-2-x", "Ranking 99999999999",
          "QTR TB 0a00", "QTR TN 99xx", "QTR M 5254zz", "NuevoJuego 2 R lots", "NuevoJuego 2 R",
          "EPD Tz 8/8/8/8/8/8/8/8", "Movimiento 5a540", "Movimiento 57550x", "Movimiento 5755",
          "Movimiento 5755999"}) {
        Recibir(t);
        const Estado despues = Estado::Ahora();
        EXPECT_TRUE(despues == antes) << t << " " << despues.turno << despues.tipo << despues.color
                                      << despues.mb << ":" << despues.sb;
        Bombear();
        EXPECT_TRUE(Salida().empty()) << t;
    }
    EXPECT_EQ(Cajas(), "");
    EXPECT_TRUE(Conectado);
}

TEST_F(Hostil, AFloodOfOffersNestsAtMostEightBoxesAndTheRestAreRefused) {
    PartidaNegras();
    int llegadas = 0;
    red.bajoLaCaja = [&] {
        // Every open box lets two more offers in, as a flooding peer would.
        for (int i = 0; i < 2 && llegadas < 200; ++i) {
            ++llegadas;
            Recibir(llegadas % 2 ? "OfrecerTablas" : "NuevoJuego 1 A 0");
        }
    };
    Recibir("OfrecerTablas");
    red.bajoLaCaja = nullptr;
    EXPECT_EQ(red.maxCajas, qa::SesionRed::kPreguntasAnidadas);
    EXPECT_EQ(red.cajasAbiertas, 0);
    Bombear();
    const Textos salida = Salida();
    EXPECT_LE(salida.size(), 40u) << "the queue kept its bound";
    EXPECT_NE(std::find(salida.begin(), salida.end(), "TablasCancelado"), salida.end());
    EXPECT_NE(std::find(salida.begin(), salida.end(), "NuevoCancelado"), salida.end());
}

TEST_F(Hostil, JoinedAndCutMessagesAreTakenAsTheyCome) {
    PartidaNegras();
    Recibir("Movimiento 5254"); // cut: no piece field yet
    Recibir("0");
    EXPECT_EQ(Turno, 0) << "two unknown texts";
    // The first keyword decides and the rest is read as its fields: here they do not convert.
    Recibir("Movimiento 52540TIME 4:59");
    EXPECT_EQ(En("e4"), Vacia);
    EXPECT_EQ(En("e2"), PeonB);
    Recibir("RendirseOfrecerTablas");
    EXPECT_EQ(TipoPartida, "");
    EXPECT_EQ(Cajas(), "16");
}

TEST_F(Hostil, RandomTextsInEveryStateLeaveTheProgramRunning) {
    std::mt19937 azar(20261123);
    const char* claves[] = {"Ping",
                            "Pong",
                            "Close",
                            "Retroceso",
                            "RetrocesoAceptado",
                            "AbrirPartida",
                            "AbrirAceptado",
                            "AbrirPartidaEPD",
                            "AbrirAceptadoEPD",
                            "CancelarEPD",
                            "EPD ",
                            "EPD T",
                            "NuevoJuego ",
                            "NuevoAceptado",
                            "Rendirse",
                            "OfrecerTablas",
                            "TablasAceptadas",
                            "VersionQT ",
                            "Mensaje ",
                            "TIME ",
                            "Movimiento ",
                            "Ranking ",
                            "QTR Iniciar",
                            "QTR T ",
                            "QTR TB ",
                            "QTR M ",
                            "QTR Terminado",
                            ""};
    const std::string alfabeto = "0123456789 -:ABNRT/kqrbnpKQRBNPwx\r\n";
    for (int estado = 0; estado < 4; ++estado) {
        RestablecerTodo();
        NuevaSesion();
        if (estado == 1) ConectarServidor();
        if (estado == 2) PartidaNegras();
        if (estado == 3) {
            ConectarCliente();
            Recibir("QTR Iniciar");
        }
        for (int i = 0; i < 3000; ++i) {
            std::string t = claves[azar() % std::size(claves)];
            const int largo = static_cast<int>(azar() % 12);
            for (int k = 0; k < largo; ++k) t += alfabeto[azar() % alfabeto.size()];
            red.respuestas = {azar() % 2 ? qa::kRespuestaSi : qa::kRespuestaNo};
            Recibir(t);
            if (i % 7 == 0) bomba.Vencer();
            if (i % 11 == 0 && s->EnvioEnCurso()) s->AlCompletarEnvio();
            if (i % 13 == 0) {
                hora.segundo = (hora.segundo + 1) % 60;
                relojB.Vencer();
                relojN.Vencer();
            }
            ASSERT_LE(s->ColaEnvioCuenta(), 40);
        }
        Salida();
        red.mensajes.clear();
    }
}

TEST_F(Hostil, AMegabyteOfAnythingIsIgnoredOrBounded) {
    ConectarServidor();
    Recibir(std::string(1 << 20, '\xff'));
    Recibir("QTR M " + std::string(1 << 20, '9'));
    Recibir("Ranking " + std::string(1 << 20, '-'));
    Recibir("Mensaje " + std::string(1 << 20, 'a'));
    EXPECT_LE(vista.chat.size(), qa::SesionRed::kLimiteChat);
    EXPECT_TRUE(Conectado);
}

} // namespace
} // namespace prueba
