// The compact list of texts behind the undo records and the PGN browser's lists.
#include "core/lista_textos.h"
#include "core/move_list.h"

#include <gtest/gtest.h>

namespace {

TEST(ListaTextos, ReadsLikeAVectorOfStringsThroughGrowthAndTakeBacks) {
    ListaTextos l;
    std::vector<std::string> v;
    auto texto = [](size_t i) {
        // Empty ones, ones with a NUL, and lengths that need two and three length bytes.
        if (i % 7 == 0) return std::string();
        if (i % 11 == 0) return std::string("a\0b", 3);
        if (i % 13 == 0) return std::string(200 + i, 'x');
        if (i == 90) return std::string(20000, 'y');
        return std::to_string(i * 7919);
    };
    for (size_t i = 0; i < 150; ++i) {
        l.push_back(texto(i));
        v.push_back(texto(i));
    }
    // Taking back across the noted entries, then growing again.
    for (int i = 0; i < 70; ++i) {
        ASSERT_EQ(l.back(), v.back()) << i;
        l.pop_back();
        v.pop_back();
    }
    for (size_t i = 0; i < 40; ++i) {
        l.push_back(texto(i + 1000));
        v.push_back(texto(i + 1000));
    }
    ASSERT_EQ(l.size(), v.size());
    for (size_t i = 0; i < v.size(); ++i) EXPECT_EQ(l[i], v[i]) << i;
    EXPECT_EQ(l, v);
    EXPECT_EQ(l.back(), v.back());
    ListaTextos copia = l;
    EXPECT_EQ(copia, l);
    copia.pop_back();
    EXPECT_FALSE(copia == l);
    while (!l.empty()) l.pop_back();
    EXPECT_EQ(l.begin(), l.end());
    EXPECT_EQ(l.back(), "");
    l.push_back("5254");
    EXPECT_EQ(l, (std::vector<std::string>{"5254"}));
    l.clear();
    EXPECT_TRUE(l.empty());
}

// The lines a text shows: split at LF, a CR before it dropped, a last unended line kept.
std::vector<std::string> Partir(const std::string& s) {
    std::vector<std::string> lineas;
    size_t inicio = 0;
    for (size_t fin; (fin = s.find('\n', inicio)) != std::string::npos; inicio = fin + 1) {
        lineas.push_back(s.substr(inicio, fin - inicio));
        if (!lineas.back().empty() && lineas.back().back() == '\r') lineas.back().pop_back();
    }
    if (inicio < s.size()) lineas.push_back(s.substr(inicio));
    return lineas;
}

void MismasLineas(const Jugadas::TextoJugadas& t, const std::string& s, int vuelta) {
    const std::vector<std::string> lineas = Partir(s);
    ASSERT_EQ(t.Lineas(), lineas.size()) << vuelta;
    for (size_t k = 0; k < lineas.size(); ++k)
        ASSERT_EQ(t.Linea(k), lineas[k]) << vuelta << " " << k;
    EXPECT_EQ(t.Linea(lineas.size()), "");
}

TEST(TextoJugadas, ReadsLikeTheStringItStandsFor) {
    Jugadas::TextoJugadas t;
    std::string s;
    // Pieces as the lists get them, and bytes the short codes themselves use.
    const std::string piezas[] = {"12. ",       std::string(18, ' '),
                                  "e4",         "\r\n",
                                  "\r",         "\n",
                                  "\x01",       "\x02",
                                  " ",          "a\r",
                                  "\nb",        std::string(40, ' '),
                                  "\x02\x02\n", "Kd7+",
                                  "\x02\r"};
    unsigned azar = 7;
    for (int i = 0; i < 3000; ++i) {
        azar = azar * 1103515245u + 12345u;
        const std::string& p = piezas[(azar >> 16) % std::size(piezas)];
        t += p;
        s += p;
        if ((azar >> 8) % 5 == 0) {
            // A take-back: characters off the end one at a time.
            for (int k = 0; k < static_cast<int>((azar >> 4) % 31) && !s.empty(); ++k) {
                ASSERT_EQ(t.back(), s.back()) << i;
                t.pop_back();
                s.pop_back();
            }
        }
        ASSERT_EQ(t.size(), s.size()) << i;
        if (i % 50 == 0) MismasLineas(t, s, i);
    }
    MismasLineas(t, s, -1);
    EXPECT_EQ(t.str(), s);
    EXPECT_EQ(t, s);
    EXPECT_EQ(std::string("x") + t, "x" + s);
    while (!s.empty()) {
        ASSERT_EQ(t.back(), s.back());
        t.pop_back();
        s.pop_back();
        if (s.size() % 97 == 0) MismasLineas(t, s, static_cast<int>(s.size()));
    }
    EXPECT_TRUE(t.empty());
    EXPECT_EQ(t.Lineas(), 0u);
    EXPECT_EQ(t.str(), "");
}

TEST(ListaTextos, EmptiedAndFilledAgainReadsTheNewEntries) {
    for (const size_t largo : {size_t{10}, size_t{3000}}) { // below and above the buffer kept
        ListaTextos l;
        for (size_t i = 0; i < 100; ++i) l.push_back(std::string(largo, char('a' + i % 26)));
        l.clear();
        EXPECT_TRUE(l.empty());
        EXPECT_EQ(l.Ver(0), "");
        std::vector<std::string> v;
        for (size_t i = 0; i < 40; ++i) v.push_back(std::to_string(i * 31));
        for (const auto& t : v) l.push_back(t);
        ASSERT_EQ(l.size(), v.size());
        for (size_t i : {size_t{39}, size_t{33}, size_t{0}, size_t{32}, size_t{31}})
            EXPECT_EQ(l.Ver(i), v[i]) << largo << " " << i;
        EXPECT_EQ(l, v);
        EXPECT_EQ(l.Ver(40), "") << "past the end";
    }
}

} // namespace
