#include "platform/ruta.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace qa;

namespace {

class Ruta : public ::testing::Test {
protected:
    void SetUp() override {
        base = fs::temp_directory_path() / ("qa-ruta-" + std::to_string(::getpid()));
        fs::remove_all(base);
        fs::create_directories(base / "Ana" / "Partidas");
        fs::create_directories(base / "Sonidos");
        std::ofstream(base / "Ana" / "Partidas" / "Final.PGN") << "x";
        std::ofstream(base / "Sonidos" / "Mueve.wav") << "x";
        std::ofstream(base / "Español.lng") << "x";
    }
    void TearDown() override { fs::remove_all(base); }
    fs::path base;
};

TEST_F(Ruta, LowerCasedNameFindsTheRealFile) {
    const std::string real = (base / "Ana" / "Partidas" / "Final.PGN").string();
    std::string bajo = base.string() + "/ana/partidas/final.pgn";
    EXPECT_EQ(RutaReal(bajo), real);
    EXPECT_TRUE(ExisteRuta(bajo));
    EXPECT_EQ(RutaReal(real), real);
}

TEST_F(Ruta, BackslashesBecomeSlashes) {
    std::string windows = base.string() + "\\Sonidos\\Mueve.wav";
    EXPECT_EQ(RutaReal(windows), (base / "Sonidos" / "Mueve.wav").string());
    EXPECT_TRUE(EsCarpeta(base.string() + "\\sonidos\\"));
    EXPECT_EQ(RutaReal(base.string() + "\\SONIDOS\\"), (base / "Sonidos").string() + "/");
    EXPECT_EQ(RutaReal(base.string() + "\\español.lng"), (base / "Español.lng").string());
    EXPECT_EQ(RutaReal(base.string() + "\\ESPAÑOL.LNG"), (base / "Español.lng").string());
}

TEST_F(Ruta, MissingPartsStayAsWritten) {
    EXPECT_EQ(RutaReal(base.string() + "\\sonidos\\Nuevo.wav"),
              (base / "Sonidos" / "Nuevo.wav").string());
    EXPECT_EQ(RutaReal(base.string() + "/nada/sonidos/x"), base.string() + "/nada/sonidos/x");
    EXPECT_FALSE(ExisteRuta(base.string() + "/nada"));
    EXPECT_FALSE(ExisteRuta(""));
    EXPECT_EQ(RutaReal(""), "");
}

TEST_F(Ruta, RelativePathsFromTheCurrentFolder) {
    auto antes = fs::current_path();
    fs::current_path(base);
    EXPECT_EQ(RutaReal("sonidos\\mueve.WAV"), "Sonidos/Mueve.wav");
    EXPECT_EQ(RutaReal("ANA/../sonidos"), "Ana/../Sonidos");
    fs::current_path(antes);
}

} // namespace
