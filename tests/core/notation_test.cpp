// The four move texts, the squares line and the undo records.
#include "core/move_list.h"
#include "core/notation.h"
#include "test_support.h"

using namespace Variables;

namespace {

class Notacion_ : public prueba::Partida {
protected:
    std::string Registro() const { return Jugadas::List1.empty() ? "" : Jugadas::List1.back(); }
};

TEST_F(Notacion_, FirstMoveInEveryList) {
    Nueva();
    Jugar({"e2e4"});
    EXPECT_EQ(Jugadas::List[3], "1. e4\r\n");
    EXPECT_EQ(Jugadas::List[2], "1. e4\r\n");
    EXPECT_EQ(Jugadas::List[1], "1. E2-E4\r\n");
    EXPECT_EQ(Jugadas::List[4], "5254\r\n");
    EXPECT_EQ(Jugadas::List[5], "1. e4\r\n");
    EXPECT_EQ(Registro(), "5254");
    Jugar({"e7e5"});
    EXPECT_EQ(Jugadas::List[3], "1. e4\r\n" + std::string(18, ' ') + "e5\r\n");
    EXPECT_EQ(NumeroJugada, 1);
    EXPECT_FALSE(MedioTurno);
}

TEST_F(Notacion_, CapturesInEnglishSpanishAndUserLetters) {
    Nueva();
    Jugar({"e2e4", "d7d5", "e4d5", "c7c6", "d5c6", "b8c6", "f1b5", "a7a6", "b5c6"});
    auto l3 = Jugadas::Lineas(3), l2 = Jugadas::Lineas(2), l5 = Jugadas::Lineas(5);
    EXPECT_EQ(l3[2], "2. exd5");
    EXPECT_EQ(l2[2], "2. exd5");
    EXPECT_EQ(l3.back(), "5. Bxc6+");
    EXPECT_EQ(l2.back(), "5. Axc6+");
    EXPECT_EQ(l5.back(), "5. xc6+") << "the user's letters are empty";
    EXPECT_EQ(Ultima(1), "5. B5-C6");
    EXPECT_EQ(Registro(), "2536x9");
}

TEST_F(Notacion_, EnPassantMarks) {
    Nueva();
    Jugar({"e2e4", "a7a6", "e4e5", "d7d5", "e5d6"});
    EXPECT_EQ(Ultima(3), "3. exd6ep");
    EXPECT_EQ(Ultima(2), "3. exd6ap");
    EXPECT_EQ(Ultima(5), "3. exd6");
    EXPECT_EQ(Registro(), "5546p45");
}

TEST_F(Notacion_, CastlingTexts) {
    Colocar("4k3/8/8/8/8/8/8/R3K2R");
    Jugar({"e1g1"});
    EXPECT_EQ(Ultima(3), "1. O-O");
    EXPECT_EQ(Ultima(2), "1. O-O");
    EXPECT_EQ(Ultima(5), "1. O-O");
    EXPECT_EQ(Ultima(1), "1. E1-G1");
    EXPECT_EQ(Registro(), "5171e3");
    Colocar("5k2/8/8/8/8/8/8/4K2R");
    Jugar({"e1g1"});
    EXPECT_EQ(Ultima(3), "1. O-O+");
    Colocar("r3k3/8/8/8/8/8/8/4K3", 2);
    Jugar({"e8c8"});
    EXPECT_EQ(Ultima(3), "1. O-O-O");
}

TEST_F(Notacion_, PromotionTexts) {
    Colocar("3r3k/4P3/8/8/8/8/8/K7");
    Jugar({"e7d8"});
    EXPECT_EQ(Ultima(3), "1. exd8=Q+");
    EXPECT_EQ(Ultima(2), "1. exd8=D+");
    EXPECT_EQ(Ultima(5), "1. exd8=+");
    EXPECT_EQ(Ultima(1), "1. E7-D8");
    EXPECT_EQ(Jugadas::Lineas(4).back(), "5748" + std::to_string(DamaB));
    EXPECT_EQ(Registro(), "5748c5x8");
    Colocar("7k/8/8/8/8/8/p7/7K", 2);
    ASSERT_EQ(Mover("a2a1", 9).tipo, Respuesta::Legal);
    EXPECT_EQ(Ultima(3), "1. a1=N");
    EXPECT_EQ(Registro(), "1211c9");
}

TEST_F(Notacion_, KingRecordsCarryTheRightsDigit) {
    Nueva();
    Jugar({"e2e4", "e7e5", "e1e2"});
    EXPECT_EQ(Registro(), "5152t3") << "no right was gone at the last save";
    Jugar({"d8h4", "e2e1"});
    EXPECT_EQ(Registro(), "5251t3") << "the pair is saved after the record is written";
    Jugar({"h4h3", "e1e2"});
    EXPECT_EQ(Registro(), "5152t0");
}

TEST_F(Notacion_, Disambiguation) {
    Colocar("4k3/8/8/R7/8/8/8/R3K3");
    Jugar({"a1a3"});
    EXPECT_EQ(Ultima(3), "1. R1a3") << "two rooks on one file: the row digit";
    EXPECT_EQ(Ultima(2), "1. T1a3");

    Colocar("4k3/8/8/8/8/2N5/8/5KN1");
    Jugar({"g1e2"});
    EXPECT_EQ(Ultima(3), "1. Nge2");

    // A rival knight pinned to its king is no rival.
    Colocar("4k3/4r3/8/8/8/8/4N3/2N1K3");
    Jugar({"c1d3"});
    EXPECT_EQ(Ultima(3), "1. Nd3");
}

TEST_F(Notacion_, MateIsWrittenWithTwoPlusSigns) {
    Colocar("6k1/5ppp/8/8/8/8/8/R5K1");
    Jugar({"a1a8"});
    EXPECT_EQ(Ultima(3), "1. Ra8++");
    EXPECT_EQ(Ultima(1), "1. A1-A8");
}

TEST_F(Notacion_, HiddenWhileThePgnBrowserIsOpen) {
    Nueva();
    entorno.listaPgnVisible = true;
    Jugar({"e2e4", "e7e5"});
    EXPECT_TRUE(Jugadas::List[3].empty());
    EXPECT_TRUE(Jugadas::List[4].empty());
    EXPECT_EQ(Jugadas::List1.size(), 2u) << "undo records go on";
    EXPECT_EQ(NumeroJugada, 1);
}

TEST_F(Notacion_, UserLettersOfAnyLength) {
    const std::string antes[7] = {LetrasUsuario[0], LetrasUsuario[1], LetrasUsuario[2],
                                  LetrasUsuario[3], LetrasUsuario[4], LetrasUsuario[5],
                                  LetrasUsuario[6]};
    const std::string letras[7] = {"", "To", "Ca", "Al", "Da", "Re", "a.p."};
    for (int i = 0; i < 7; ++i) LetrasUsuario[i] = letras[i];
    Nueva();
    Jugar({"e2e4", "a7a6", "e4e5", "d7d5", "e5d6", "b8c6", "f1b5", "a8a7", "b5c6"});
    const auto l5 = Jugadas::Lineas(5);
    EXPECT_EQ(l5[4], "3. exd6a.p.");
    EXPECT_EQ(l5[5], std::string(18, ' ') + "Cac6");
    EXPECT_EQ(l5.back(), "5. Alxc6+");
    EXPECT_EQ(NotacionTraducida, "Alxc6+");
    for (int i = 0; i < 7; ++i) LetrasUsuario[i] = antes[i];
}

} // namespace
