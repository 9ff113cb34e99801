// Odd input never reaches outside the board or changes the game.
#include "core/move_filter.h"
#include "core/move_list.h"
#include "core/takeback.h"
#include "test_support.h"

#include <cstring>
#include <random>

using namespace Variables;

namespace {

class Robustez : public prueba::Partida {
protected:
    struct Foto {
        int32_t tablero[9][9];
        int16_t turno;
        bool alPaso, a1, h1, a8, h8;
        size_t registros;
        std::string lista;
    };
    Foto Tomar() const {
        Foto f;
        std::memcpy(f.tablero, Tablero, sizeof Tablero);
        f.turno = Turno;
        f.alPaso = AlPasoPosible;
        f.a1 = TorreA1Movida, f.h1 = TorreH1Movida, f.a8 = TorreA8Movida, f.h8 = TorreH8Movida;
        f.registros = Jugadas::List1.size();
        f.lista = Jugadas::List[3];
        return f;
    }
    static bool Igual(const Foto& a, const Foto& b) {
        return std::memcmp(a.tablero, b.tablero, sizeof a.tablero) == 0 && a.turno == b.turno &&
               a.alPaso == b.alPaso && a.a1 == b.a1 && a.h1 == b.h1 && a.a8 == b.a8 &&
               a.h8 == b.h8 && a.registros == b.registros && a.lista == b.lista;
    }
};

TEST_F(Robustez, OddSquareTextsAreRefusedUntouched) {
    Nueva();
    Jugar({"e2e4", "d7d5"});
    const Foto antes = Tomar();
    const char* raros[] = {"", "5", "x2", "52x", "99", "09", "90", "00", "5\xff", "-1", " 5"};
    for (const char* o : raros)
        for (const char* d : {"54", "", "9", "ab", "59"}) {
            Origen = o;
            Destino = d;
            for (bool probar : {false, true}) {
                SoloProbar = probar;
                FiltroMovimiento();
                SoloProbar = false;
                EXPECT_FALSE(MovimientoValido) << '"' << o << "\" \"" << d << '"';
                EXPECT_TRUE(Igual(antes, Tomar())) << '"' << o << "\" \"" << d << '"';
            }
            MovimientoAnulado();
            EXPECT_EQ(SoltarFicha(o, d, 0).tipo, Respuesta::Rehusada);
            EXPECT_TRUE(Igual(antes, Tomar()));
        }
}

TEST_F(Robustez, RandomPlayKeepsTheBoardInside) {
    std::mt19937 azar(20261123);
    int legales = 0;
    for (int partida = 0; partida < 40; ++partida) {
        Nueva();
        entorno.eleccionCoronacion = partida % 5;
        for (int i = 0; i < 3000 && Turno != 0; ++i) {
            std::string o = std::to_string(1 + azar() % 8) + std::to_string(1 + azar() % 8);
            std::string d = std::to_string(1 + azar() % 8) + std::to_string(1 + azar() % 8);
            if (azar() % 50 == 0) {
                RetrocesoFuncion();
                continue;
            }
            if (SoltarFicha(o, d, 0).tipo == Respuesta::Legal) ++legales;
            for (int k = 0; k <= 8; ++k) {
                ASSERT_EQ(Tablero[0][k], 0);
                ASSERT_EQ(Tablero[k][0], 0);
            }
        }
    }
    EXPECT_GT(legales, 200) << "the random games must really be played";
}

TEST_F(Robustez, DamagedUndoRecordsChangeNothingOutside) {
    Nueva();
    for (const char* r : {"", "5", "525", "9999", "5254x", "5254t", "5254e", "5254p", "5254p9",
                          "5254c", "5254x99999999999", "0000x1"}) {
        Jugadas::List1.push_back(r);
        RetrocesoFuncion();
        for (int k = 0; k <= 8; ++k) ASSERT_EQ(Tablero[0][k] | Tablero[k][0], 0) << r;
    }
}

} // namespace
