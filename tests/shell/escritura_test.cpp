// The one write of whole files, seen through the settings file that uses it: links, failures,
// permissions and the temporary files a kill leaves behind.
#include "platform/escritura.h"
#include "platform/ini_file.h"
#include "platform/ruta.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;
using namespace qa;

namespace {

class Escritura : public ::testing::Test {
protected:
    void SetUp() override {
        dir = fs::temp_directory_path() /
              ("qa-escritura-" + std::to_string(::getpid()) + "-" +
               ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::remove_all(dir);
        fs::create_directories(dir / "real");
    }
    void TearDown() override { fs::remove_all(dir); }
    void Poner(const fs::path& p, const std::string& bytes) {
        std::ofstream(p, std::ios::binary) << bytes;
    }
    static std::string Leer(const fs::path& p) {
        std::ifstream in(p, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }
    // Every name in a folder, so a stray temporary file shows.
    static std::vector<std::string> Nombres(const fs::path& carpeta) {
        std::vector<std::string> v;
        for (const auto& e : fs::directory_iterator(carpeta)) v.push_back(e.path().filename());
        std::sort(v.begin(), v.end());
        return v;
    }
    static std::vector<std::string> Ordenados(std::vector<std::string> v) {
        std::sort(v.begin(), v.end());
        return v;
    }
    static std::string Temporal(const std::string& nombre, long pid) {
        return "." + nombre + "." + std::to_string(pid) + ".tmp";
    }
    fs::path dir;
};

TEST_F(Escritura, WriteThroughALinkChainUpdatesTheTargetAndKeepsTheLinks) {
    Poner(dir / "real" / "Opciones.ini", "[S]\r\nk=v\r\n");
    fs::create_symlink("real/Opciones.ini", dir / "enlace.ini");
    fs::create_symlink(dir / "enlace.ini", dir / "Default.ini");
    const std::string fichero = (dir / "Default.ini").string();

    ASSERT_TRUE(EscribirIni(fichero, "S", "k", "w"));
    EXPECT_TRUE(fs::is_symlink(dir / "Default.ini"));
    EXPECT_TRUE(fs::is_symlink(dir / "enlace.ini"));
    EXPECT_EQ(Leer(dir / "real" / "Opciones.ini"), "[S]\r\nk=w\r\n");
    EXPECT_EQ(LeerIni(fichero, "S", "k"), "w");
    EXPECT_EQ(Nombres(dir / "real"), std::vector<std::string>{"Opciones.ini"});
    EXPECT_EQ(Nombres(dir), (std::vector<std::string>{"Default.ini", "enlace.ini", "real"}));

    // A link to a file still to be made makes it.
    fs::create_symlink("real/Nuevo.dat", dir / "Puntuacion.dat");
    ASSERT_TRUE(EscribirFichero((dir / "Puntuacion.dat").string(), "20"));
    EXPECT_EQ(Leer(dir / "real" / "Nuevo.dat"), "20");
    EXPECT_TRUE(fs::is_symlink(dir / "Puntuacion.dat"));
}

TEST_F(Escritura, LoopingLinkIsNotFoundAndNeverWritten) {
    fs::create_symlink("b.ini", dir / "a.ini");
    fs::create_symlink("a.ini", dir / "b.ini");
    const std::string fichero = (dir / "a.ini").string();
    EXPECT_FALSE(DestinoEscritura(fichero));
    EXPECT_FALSE(ExisteRuta(fichero));
    EXPECT_EQ(LeerIni(fichero, "S", "k"), "");
    EXPECT_FALSE(EscribirIni(fichero, "S", "k", "v"));
    EXPECT_TRUE(fs::is_symlink(dir / "a.ini"));
    EXPECT_EQ(Nombres(dir), (std::vector<std::string>{"a.ini", "b.ini", "real"}));
}

TEST_F(Escritura, FailedWriteLeavesTheOldFileAsItWas) {
    const fs::path fichero = dir / "Default.ini";
    Poner(fichero, "[S]\nk=v\n");
    // A folder with a file in it where the temporary file should go: not even root can
    // replace that.
    const fs::path estorbo = dir / Temporal("Default.ini", ::getpid());
    fs::create_directory(estorbo);
    Poner(estorbo / "x", "x");
    EXPECT_FALSE(EscribirIni(fichero.string(), "S", "k", "w"));
    EXPECT_EQ(Leer(fichero), "[S]\nk=v\n");
    fs::remove_all(estorbo);

    // A path under a regular file.
    EXPECT_FALSE(EscribirIni((fichero / "x.ini").string(), "S", "k", "w"));
    EXPECT_FALSE(EscribirFichero((fichero / "x.ini").string(), "w"));
    EXPECT_FALSE(EscribirFichero((dir / "nada" / "x.ini").string(), "w"));
    // A folder is not a file to replace.
    EXPECT_FALSE(EscribirFichero((dir / "real").string(), "w"));
    EXPECT_TRUE(fs::is_directory(dir / "real"));
    EXPECT_EQ(Leer(fichero), "[S]\nk=v\n");
    EXPECT_EQ(Nombres(dir), (std::vector<std::string>{"Default.ini", "real"}));
}

TEST_F(Escritura, PermissionsOfTheTargetAreKept) {
    const fs::path fichero = dir / "partida.qtr";
    Poner(fichero, "viejo");
    fs::permissions(fichero, fs::perms::owner_read | fs::perms::owner_write);
    ASSERT_TRUE(EscribirFichero(fichero.string(), "nuevo"));
    EXPECT_EQ(fs::status(fichero).permissions(), fs::perms::owner_read | fs::perms::owner_write);

    const mode_t antes = ::umask(022);
    ASSERT_TRUE(EscribirFichero((dir / "nueva.qtr").string(), "x"));
    ::umask(077);
    ASSERT_TRUE(EscribirFichero((dir / "privada.qtr").string(), "x"));
    ::umask(antes);
    EXPECT_EQ(fs::status(dir / "nueva.qtr").permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read |
                  fs::perms::others_read);
    EXPECT_EQ(fs::status(dir / "privada.qtr").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(Escritura, StaleTemporaryFilesOfGoneProcessesAreRemoved) {
    const pid_t hijo = ::fork();
    ASSERT_GE(hijo, 0);
    if (hijo == 0) ::_exit(0);
    ASSERT_EQ(::waitpid(hijo, nullptr, 0), hijo);
    const pid_t vivo = ::getppid();

    Poner(dir / Temporal("Default.ini", hijo), "a medias");
    Poner(dir / Temporal("Puntuacion.dat", hijo), "a medias");
    Poner(dir / Temporal("Default.ini", vivo), "de otra copia");
    Poner(dir / Temporal("Default.ini", ::getpid()), "nuestro");
    Poner(dir / ".oculto.tmp", "x");
    Poner(dir / ("Default.ini." + std::to_string(hijo) + ".tmp"), "x");
    LimpiarTemporales(dir.string());
    EXPECT_EQ(Nombres(dir), Ordenados({".oculto.tmp", Temporal("Default.ini", ::getpid()),
                                       Temporal("Default.ini", vivo),
                                       "Default.ini." + std::to_string(hijo) + ".tmp", "real"}));
}

TEST_F(Escritura, WrittenNamesAreNeverMappedOntoAnotherFile) {
    Poner(dir / "quintarena", "programa");
    EXPECT_EQ(RutaReal((dir / "Quintarena").string()), (dir / "quintarena").string());
    EXPECT_EQ(RutaEscritura(dir.string() + "\\Quintarena"), (dir / "Quintarena").string());
    // A name from the user keeps its backslash, and is looked up by case only when missing.
    Poner(dir / "a\\b.qtr", "x");
    EXPECT_EQ(RutaUsuario((dir / "a\\b.qtr").string()), (dir / "a\\b.qtr").string());
    EXPECT_TRUE(ExisteRutaUsuario((dir / "A\\B.QTR").string()));
    EXPECT_FALSE(ExisteRuta((dir / "a\\b.qtr").string()));
}

} // namespace
