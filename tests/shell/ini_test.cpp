#include "platform/ini_file.h"
#include "platform/texto.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace qa;

namespace {

class Ini : public ::testing::Test {
protected:
    void SetUp() override {
        dir = fs::temp_directory_path() /
              ("qa-ini-" + std::to_string(::getpid()) + "-" +
               ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::remove_all(dir);
        fs::create_directories(dir);
        fichero = (dir / "Default.ini").string();
    }
    void TearDown() override {
        FijarAvisoIdiomaIncorrecto(nullptr);
        fs::remove_all(dir);
    }
    void Escribir(const std::string& bytes, const std::string& nombre = "Default.ini") {
        std::ofstream((dir / nombre).string(), std::ios::binary) << bytes;
    }
    std::string Contenido(const std::string& nombre = "Default.ini") {
        std::ifstream in((dir / nombre).string(), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }
    fs::path dir;
    std::string fichero;
};

TEST_F(Ini, FindsSectionsAndKeysWithOddSpacingAndCase) {
    Escribir("; settings\r\n  [ Mdi ]  \r\nTOP = 120\r\n\tleft=\t 30 \r\n[configuracion]\r\n"
             "Nick=\"Ana\"\r\nVacia=\r\nsin igual\r\n");
    EXPECT_EQ(LeerIni(fichero, "mdi", "Top"), "120");
    EXPECT_EQ(LeerIni(fichero, "MDI", "LEFT"), "30 "); // trailing blanks are part of the value
    EXPECT_EQ(LeerIni(fichero, "Configuracion", "nick"), "Ana");
    EXPECT_EQ(LeerIni(fichero, "Configuracion", "Vacia"), "");
    EXPECT_EQ(LeerIni(fichero, "Configuracion", "sin igual"), "");
    EXPECT_EQ(LeerIni(fichero, "Configuracion", "Top"), "");
    EXPECT_EQ(LeerIni(fichero, "Nada", "Top"), "");
    EXPECT_EQ(LeerIni((dir / "no-such.ini").string(), "Mdi", "Top"), "");
}

TEST_F(Ini, FirstOfDuplicatesWinsAndLaterSectionIsNotSearched) {
    Escribir("[A]\nk=1\nk=2\n[B]\nx=9\n[a]\nk=3\nz=4\n");
    EXPECT_EQ(LeerIni(fichero, "A", "k"), "1");
    EXPECT_EQ(LeerIni(fichero, "A", "z"), "");
    EXPECT_TRUE(EscribirIni(fichero, "a", "K", "7"));
    EXPECT_EQ(Contenido(), "[A]\nk=7\nk=2\n[B]\nx=9\n[a]\nk=3\nz=4\n");
}

TEST_F(Ini, ValuesAreCutAt255Characters) {
    std::string largo(300, 'x');
    std::string acentos;
    for (int i = 0; i < 300; ++i) acentos += "ñ";
    Escribir("[S]\nlargo=" + largo + "\nacentos=" + acentos + "\n");
    EXPECT_EQ(LeerIni(fichero, "S", "largo"), std::string(255, 'x'));
    auto v = LeerIni(fichero, "S", "acentos");
    EXPECT_EQ(Longitud(v), 255u);
    EXPECT_TRUE(EsUtf8(v));
}

TEST_F(Ini, WriteKeepsEverythingElseByteForByte) {
    const std::string antes = "; comment\r\n[Mdi]\r\nTop = 100\r\n\r\n[Otra]\r\n; keep\r\nA=1\r\n";
    Escribir(antes);
    EXPECT_TRUE(EscribirIni(fichero, "MDI", "top", "250"));
    EXPECT_EQ(Contenido(), "; comment\r\n[Mdi]\r\nTop = 250\r\n\r\n[Otra]\r\n; keep\r\nA=1\r\n");
    EXPECT_TRUE(EscribirIni(fichero, "Mdi", "Left", "5"));
    EXPECT_EQ(Contenido(),
              "; comment\r\n[Mdi]\r\nTop = 250\r\nLeft=5\r\n\r\n[Otra]\r\n; keep\r\nA=1\r\n");
    EXPECT_TRUE(EscribirIni(fichero, "Nueva", "Clave", "x y"));
    EXPECT_TRUE(TerminaEn(Contenido(), "A=1\r\n[Nueva]\r\nClave=x y\r\n"));
    EXPECT_EQ(LeerIni(fichero, "nueva", "clave"), "x y");
}

TEST_F(Ini, WriteCreatesFileAndHandlesMissingLastLineEnd) {
    EXPECT_TRUE(EscribirIni(fichero, "S", "k", "v"));
    EXPECT_EQ(Contenido(), "[S]\r\nk=v\r\n");
    Escribir("[S]\nk=v");
    EXPECT_TRUE(EscribirIni(fichero, "S", "j", "w"));
    EXPECT_EQ(Contenido(), "[S]\nk=v\nj=w\n");
    EXPECT_TRUE(EscribirIni(fichero, "S", "k", "a\r\nb")); // no new line smuggled in
    EXPECT_EQ(Contenido(), "[S]\nk=a\nj=w\n");
    EXPECT_FALSE(EscribirIni(fichero, "", "k", "v"));
    EXPECT_FALSE(EscribirIni(fichero, "S", " ", "v"));
    EXPECT_EQ(Contenido(), "[S]\nk=a\nj=w\n");
}

TEST_F(Ini, Latin1FilesReadAsUtf8AndStayLatin1) {
    Escribir("[Configuracion]\r\nTama\xF1o=30\r\nIdioma=Espa\xF1ol\r\n");
    EXPECT_EQ(LeerIni(fichero, "Configuracion", "Tamaño"), "30");
    EXPECT_EQ(LeerIni(fichero, "Configuracion", "TAMAÑO"), "30");
    EXPECT_EQ(LeerIni(fichero, "Configuracion", "Idioma"), "Español");
    EXPECT_TRUE(EscribirIni(fichero, "Configuracion", "Idioma", "Inglés"));
    EXPECT_EQ(Contenido(), "[Configuracion]\r\nTama\xF1o=30\r\nIdioma=Ingl\xE9s\r\n");
}

TEST_F(Ini, Utf8FileWithBom) {
    Escribir("\xEF\xBB\xBF[Version]\nVersion=1.55\n");
    EXPECT_EQ(LeerIni(fichero, "Version", "Version"), "1.55");
}

TEST_F(Ini, ValueAlreadyThereLeavesTheFileAlone) {
    Escribir("[S]\r\nk=v\r\n");
    auto inodo = [&] {
        struct stat st {};
        ::stat(fichero.c_str(), &st);
        return st.st_ino;
    };
    const auto antes = inodo();
    EXPECT_TRUE(EscribirIni(fichero, "S", "k", "v"));
    EXPECT_EQ(inodo(), antes) << "not written again";
    EXPECT_TRUE(EscribirIni(fichero, "S", "k", "w"));
    EXPECT_NE(inodo(), antes);
    EXPECT_EQ(Contenido(), "[S]\r\nk=w\r\n");
}

TEST_F(Ini, EmptyValueFromLanguageFileRaisesTheAlarm) {
    Escribir("[Autor]\n[Menu]\nMenu1=Archivo\n", "Prueba.lng");
    int avisos = 0;
    FijarAvisoIdiomaIncorrecto([&] { ++avisos; });
    const std::string lng = (dir / "Prueba.lng").string();
    EXPECT_EQ(LeerIni(lng, "Menu", "Menu1"), "Archivo");
    EXPECT_EQ(avisos, 0);
    EXPECT_EQ(LeerIni(lng, "Menu", "Menu2"), "");
    EXPECT_EQ(LeerIni(lng, "Autor", "Nombre"), ""); // the author may be missing
    EXPECT_EQ(LeerIni(lng, "Nada", "x"), "");
    EXPECT_EQ(avisos, 2);
    EXPECT_EQ(LeerIni(fichero, "Menu", "Menu2"), ""); // settings files never do
    EXPECT_EQ(avisos, 2);
}

TEST_F(Ini, ManyKeysInARowReadAsOneByOne) {
    Escribir("[Autor]\n[Menu]\nMenu1=Archivo\nmenu3 = Ver\n", "Prueba.lng");
    const std::string lng = (dir / "Prueba.lng").string();
    int avisos = 0;
    FijarAvisoIdiomaIncorrecto([&] {
        // The alarm may do anything, our own write included: the next read sees it.
        if (++avisos == 1) {
            EXPECT_TRUE(EscribirIni(lng, "Menu", "Menu2", "Edicion"));
        }
    });
    LecturaIni lectura(lng);
    EXPECT_EQ(lectura.Leer("menu", "MENU1"), "Archivo");
    EXPECT_EQ(lectura.Leer("Menu", "Menu3"), "Ver");
    EXPECT_EQ(lectura.Leer("Autor", "Nombre"), "");
    EXPECT_EQ(avisos, 0);
    EXPECT_EQ(lectura.Leer("Menu", "Menu2"), "");
    EXPECT_EQ(avisos, 1);
    EXPECT_EQ(lectura.Leer("Menu", "Menu2"), "Edicion");
    EXPECT_EQ(lectura.Leer("Menu", "Menu1"), "Archivo");
    EXPECT_EQ(lectura.Leer("Nada", "x"), "");
    EXPECT_EQ(avisos, 2);
    LecturaIni falta((dir / "Falta.lng").string());
    EXPECT_EQ(falta.Leer("Menu", "Menu1"), "");
    EXPECT_EQ(avisos, 3);
}

TEST_F(Ini, FoldersFifosAndDevicesReadAsMissing) {
    ::alarm(60); // a read that waits for a FIFO's writer ends the run instead of hanging it
    fs::create_directory(dir / "Carpeta.ini");
    ASSERT_EQ(::mkfifo((dir / "Tubo.ini").c_str(), 0600), 0);
    fs::create_symlink("/dev/zero", dir / "Cero.ini");
    for (const char* n : {"Carpeta.ini", "Tubo.ini", "Cero.ini", "Falta.ini"}) {
        const std::string f = (dir / n).string();
        EXPECT_EQ(LeerIni(f, "S", "k"), "") << n;
        EXPECT_FALSE(IniLegible(f)) << n;
    }
    ::alarm(0);
    Escribir("[S]\nk=v\n");
    EXPECT_TRUE(IniLegible(fichero));
}

TEST_F(Ini, EveryReadSeesTheLastWriteOursOrAnotherProgramsToo) {
    Escribir("[S]\nk=1\n");
    EXPECT_EQ(LeerIni(fichero, "S", "k"), "1");
    EXPECT_TRUE(EscribirIni(fichero, "S", "k", "2"));
    EXPECT_EQ(LeerIni(fichero, "S", "k"), "2");
    // Another program replaces the file, as editors do, with one of the same size.
    std::ofstream((dir / "nuevo").string(), std::ios::binary) << "[S]\nk=3\n";
    fs::rename(dir / "nuevo", fichero);
    EXPECT_EQ(LeerIni(fichero, "S", "k"), "3");
    // ... or rewrites it where it stands.
    Escribir("[S]\nk=4\nj=5\n");
    EXPECT_EQ(LeerIni(fichero, "S", "j"), "5");
    EXPECT_EQ(LeerIni(fichero, "S", "k"), "4");
    fs::remove(fichero);
    EXPECT_EQ(LeerIni(fichero, "S", "k"), "");
    // A name found without regard to case follows the folder as it changes.
    Escribir("[S]\nk=6\n", "OTRO.INI");
    EXPECT_EQ(LeerIni((dir / "otro.ini").string(), "S", "k"), "6");
    fs::remove(dir / "OTRO.INI");
    Escribir("[S]\nk=7\n", "Otro.ini");
    EXPECT_EQ(LeerIni((dir / "otro.ini").string(), "S", "k"), "7");
}

TEST(Texto, NumbersAndCase) {
    EXPECT_EQ(Minusculas("ÑANDÚ Á"), "ñandú á");
    EXPECT_TRUE(IgualSinCaso("TAMAÑO", "tamaño"));
    EXPECT_EQ(ANumero(" 12 "), 12.0);
    EXPECT_FALSE(ANumero(""));
    EXPECT_FALSE(ANumero("12a"));
    EXPECT_FALSE(ANumero("0x10"));
    EXPECT_FALSE(ANumero("nan"));
    EXPECT_FALSE(AEntero("99999999999"));
    EXPECT_EQ(Val("1.56\r"), 1.56);
    EXPECT_EQ(Val("abc"), 0.0);
    EXPECT_EQ(Val(" -3.5x"), -3.5);
    EXPECT_EQ(TextoNumero(12000), "12000");
    EXPECT_EQ(TextoNumero(1234.5), "1234.5");
    EXPECT_EQ(ReemplazarDolar("a$b$", "X"), "aXbX");
    EXPECT_EQ(Latin1AUtf8("\x80\xE9"), "€é");
    EXPECT_EQ(Utf8ALatin1("€é\xE2\x88\x9E"), "\x80\xE9?");
}

} // namespace
