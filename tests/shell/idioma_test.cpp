#include "language/idioma.h"
#include "platform/ini_file.h"
#include "platform/programa.h"

#include <gtest/gtest.h>

#include <map>

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace qa;

namespace {

// A language file holding every key the program reads.
std::string Completo(const std::string& version = "1.55", const std::string& sinClave = "") {
    std::map<std::string, std::string> secciones;
    for (const auto& c : ClavesIdioma())
        if (c.seccion + "/" + c.clave != sinClave)
            secciones[c.seccion] += c.clave + "=" + c.seccion + " " + c.clave + "\r\n";
    std::string s = "[Autor]\r\nNombre=Ana\r\n[Version]\r\nVersion=" + version + "\r\n";
    for (auto& [sec, lineas] : secciones) s += "[" + sec + "]\r\n" + lineas;
    s += "[Mensajes]\r\n";
    for (int i = 1; i <= 109; ++i)
        s += std::to_string(i) + "=Mensaje " + std::to_string(i) + "\r\n";
    return s;
}

class Idioma : public ::testing::Test {
protected:
    void SetUp() override {
        dir = fs::temp_directory_path() / ("qa-idioma-" + std::to_string(::getpid()));
        fs::remove_all(dir);
        fs::create_directories(dir);
        FijarDirectorioPrograma(dir.string());
        Mensajes.fill("");
    }
    void TearDown() override {
        FijarAvisoIdiomaIncorrecto(nullptr);
        fs::remove_all(dir);
    }
    void Fichero(const std::string& nombre, const std::string& bytes) {
        std::ofstream(dir / nombre, std::ios::binary) << bytes;
    }
    fs::path dir;
};

TEST_F(Idioma, LoadsEveryTextOfAGoodFile) {
    Fichero("Español.lng", Completo());
    FijarIdioma("español.lng"); // lower-cased as the options dialog makes it
    int avisos = 0;
    FijarAvisoIdiomaIncorrecto([&] { ++avisos; });
    ASSERT_TRUE(LeerTextosIdioma());
    EXPECT_EQ(avisos, 0);
    EXPECT_EQ(AutorIdioma(), "Ana");
    EXPECT_EQ(Texto("menu", "MENU30"), "Menu Menu30");
    EXPECT_EQ(Texto("Tips", "30"), "Tips 30");
    EXPECT_EQ(TitulosEpd[3], "Pgn 12");
    EXPECT_EQ(TitulosMotor[2], "CPU 20");
    EXPECT_EQ(TextoSinMotor, "CPU 10");
    EXPECT_EQ(Mensajes[109], "Mensaje 109");
    EXPECT_EQ(Mensajes[0], "");
}

TEST_F(Idioma, MissingKeyIsReportedAndReadsEmpty) {
    Fichero("Roto.lng", Completo("1.55", "Menu/Menu12"));
    FijarIdioma("Roto.lng");
    int avisos = 0;
    FijarAvisoIdiomaIncorrecto([&] { ++avisos; });
    ASSERT_TRUE(LeerTextosIdioma());
    EXPECT_EQ(avisos, 1);
    EXPECT_EQ(Texto("Menu", "Menu12"), "");
    EXPECT_EQ(Texto("Menu", "Menu13"), "Menu Menu13");
}

TEST_F(Idioma, WrongVersionStopsTheRead) {
    Fichero("Viejo.lng", Completo("1.55 "));
    FijarIdioma("Viejo.lng");
    Mensajes[5] = "antes";
    EXPECT_FALSE(LeerTextosIdioma());
    EXPECT_EQ(Mensajes[5], "antes");
}

TEST_F(Idioma, MessageNumberOrText) {
    Mensajes[70] = "¿Registrar?";
    Mensajes[0] = "";
    EXPECT_EQ(TextoMensaje("70"), "¿Registrar?");
    EXPECT_EQ(TextoMensaje(" 70 "), "¿Registrar?");
    EXPECT_EQ(TextoMensaje("hola"), "hola");
    EXPECT_EQ(TextoMensaje("110"), "110");
    EXPECT_EQ(TextoMensaje("-1"), "-1");
    EXPECT_EQ(TextoMensaje("99999999999999"), "99999999999999");
    EXPECT_EQ(TextoMensaje(""), "");
}

TEST_F(Idioma, ListingKeepsOursAndStopsOnABadFirstFile) {
    Fichero("English.lng", Completo());
    Fichero("Español.lng", Completo());
    Fichero("Viejo.lng", Completo("1.40"));
    Fichero("Zulu.LNG", Completo());
    Fichero("notas.txt", "x");
    auto lista = LlenarIdiomas();
    EXPECT_FALSE(lista.primeroIncorrecto);
    EXPECT_EQ(lista.nombres, (std::vector<std::string>{"English", "Español"}));

    Fichero("Antiguo.lng", Completo("1.40"));
    EXPECT_TRUE(LlenarIdiomas().primeroIncorrecto);
    fs::remove(dir / "Antiguo.lng");
    Fichero("Abc.LNG", Completo());
    EXPECT_EQ(LlenarIdiomas().nombres.front(), "Abc");
}

TEST_F(Idioma, TheLanguagesOfTheSettingAreListedLast) {
    for (const char* n : {"English.lng", "Español.lng", "Esp.lng", "Zulu.lng"})
        Fichero(n, Completo());
    EXPECT_EQ(LlenarIdiomas("esp").nombres,
              (std::vector<std::string>{"English", "Zulu", "Esp", "Español"}));
    EXPECT_EQ(FicheroIdioma, DirectorioPrograma + "Español.lng"); // the last read stays
    EXPECT_EQ(LlenarIdiomas("ENGLISH").nombres,
              (std::vector<std::string>{"Esp", "Español", "Zulu", "English"}));
    EXPECT_EQ(LlenarIdiomas("Deutsch").nombres,
              (std::vector<std::string>{"English", "Esp", "Español", "Zulu"}));
    // An upper-case extension keeps its place, and is listed only in the first one.
    Fichero("Abc.LNG", Completo());
    EXPECT_EQ(LlenarIdiomas("English").nombres,
              (std::vector<std::string>{"Abc", "Esp", "Español", "Zulu", "English"}));
    EXPECT_EQ(LlenarIdiomas("Abc").nombres,
              (std::vector<std::string>{"Abc", "English", "Esp", "Español", "Zulu"}));
}

TEST_F(Idioma, SettingPicksByPrefixAndTheLastMatchWins) {
    std::vector<std::string> lista{"Esp", "Español", "English"};
    EXPECT_EQ(ElegirIdioma(lista, "esp"), "Español");
    EXPECT_EQ(ElegirIdioma(lista, "ESPAÑOL"), "Español");
    EXPECT_EQ(ElegirIdioma(lista, "English"), "English");
    EXPECT_EQ(ElegirIdioma(lista, "Deutsch"), "");
}

TEST_F(Idioma, Latin1FileReadsLikeUtf8) {
    std::string latin = Completo();
    latin += "[Extra]\r\nTexto=Versi\xF3n\r\n";
    Fichero("Latino.lng", latin);
    FijarIdioma("Latino.lng");
    ASSERT_TRUE(LeerTextosIdioma());
    EXPECT_EQ(LeerIni(FicheroIdioma, "Extra", "Texto"), "Versión");
}

} // namespace
