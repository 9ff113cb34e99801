// The levels dialog's rules and the search for engines in a folder.
#include "engine/descubrimiento.h"
#include "engine/niveles.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace qa;

namespace {

TEST(Niveles, CommandsOfTheThreeKinds) {
    EXPECT_EQ(ComandoNivel(0, "5", "6", "7", "40"), "sd 6");
    EXPECT_EQ(ComandoNivel(1, "5", "6", "7", "40"), "st 5");
    EXPECT_EQ(ComandoNivel(2, "5", "6", "5", "40"), "level 40 5 0");
    EXPECT_EQ(OpcionGuardada("2"), 2);
    EXPECT_EQ(OpcionGuardada("3"), 0);
    EXPECT_EQ(OpcionGuardada("x"), 0);
}

TEST(Niveles, SpinButtonsAndTypingKeepValuesInRange) {
    EXPECT_EQ(SubirNivel("20", 20), "20");
    EXPECT_EQ(SubirNivel("19", 20), "20");
    EXPECT_EQ(SubirNivel("0", 20), "1");
    EXPECT_EQ(SubirNivel("", 60), "1");
    EXPECT_EQ(SubirNivel("75", 60), "60");
    EXPECT_EQ(BajarNivel("1", 20), "1");
    EXPECT_EQ(BajarNivel("5", 20), "4");
    EXPECT_EQ(BajarNivel("75", 60), "60");
    EXPECT_EQ(BajarNivel("99999999999999999999999", 60), "60");
    EXPECT_EQ(CorregirNivel("7", 60), "7");
    EXPECT_EQ(CorregirNivel("75", 60), "60");
    EXPECT_EQ(CorregirNivel("", 60), "1");
    EXPECT_EQ(CorregirNivel("0", 20), "1");
    EXPECT_TRUE(TeclaNivel('7'));
    EXPECT_TRUE(TeclaNivel(8));
    EXPECT_FALSE(TeclaNivel('a'));
    EXPECT_FALSE(TeclaNivel('-'));
    EXPECT_EQ(LimiteNivel(2), 20);
    EXPECT_EQ(LimiteNivel(1), 60);
}

class Busqueda : public ::testing::Test {
protected:
    fs::path raiz = fs::temp_directory_path() / ("qa_busqueda_" + std::to_string(getpid()));
    void SetUp() override { fs::create_directories(raiz); }
    void TearDown() override { fs::remove_all(raiz); }
    void Fichero(const fs::path& p, bool ejecutable = false) {
        fs::create_directories((raiz / p).parent_path());
        std::ofstream(raiz / p) << "x";
        fs::permissions(raiz / p, ejecutable ? fs::perms::owner_all
                                             : fs::perms::owner_read | fs::perms::owner_write);
    }
    std::vector<std::string> Nombres() {
        std::vector<std::string> r;
        int cesiones = 0;
        for (const auto& m : BuscarMotores(raiz.string(), [&] { ++cesiones; })) {
            r.push_back(m.nombre);
            EXPECT_TRUE(fs::exists(m.ruta)) << m.ruta;
        }
        EXPECT_GT(cesiones, 0);
        return r;
    }
};

TEST_F(Busqueda, OneEngineFromEachFolderInNameOrder) {
    Fichero("Uno/engine2.exe");
    Fichero("Uno/Engine.EXE");
    Fichero("dos/readme.txt");
    Fichero("dos/notes.com");
    Fichero("Tres/fooexe");
    Fichero("cuatro/readme.txt");
    Fichero("cinco/Fairy-Max", true);
    Fichero("cinco/zz.exe");
    fs::create_directories(raiz / "seis/carpeta.exe");
    Fichero("suelto.exe"); // beside the folders: not looked at
    EXPECT_EQ(Nombres(), (std::vector<std::string>{"fairy-max", "notes", "fo", "engine"}));
}

TEST_F(Busqueda, WithoutFoldersAFileInTheFolderItself) {
    EXPECT_TRUE(Nombres().empty());
    Fichero("b.exe");
    Fichero("a.txt");
    Fichero("c.com");
    EXPECT_EQ(Nombres(), (std::vector<std::string>{"b"}));
}

TEST_F(Busqueda, ANameWithNothingBeforeItsEndingStopsTheSearch) {
    Fichero("a/uno.com");
    Fichero("b/EXE");
    Fichero("c/tres.exe");
    EXPECT_EQ(Nombres(), (std::vector<std::string>{"uno"}));
}

TEST_F(Busqueda, MissingFolderAndLinks) {
    EXPECT_TRUE(BuscarMotores((raiz / "nada").string()).empty());
    Fichero("real/motor", true);
    fs::create_directories(raiz / "enlace");
    fs::create_symlink(raiz / "real/motor", raiz / "enlace/Motor-Enlace");
    fs::create_symlink(raiz / "nada", raiz / "enlace/Roto");
    auto m = BuscarMotores(raiz.string());
    ASSERT_EQ(m.size(), 2u);
    EXPECT_EQ(m[0].nombre, "motor-enlace");
    EXPECT_EQ(m[1].nombre, "motor");
}

} // namespace
