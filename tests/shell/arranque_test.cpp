// The whole program started offscreen in this process and closed again, with real files.
#include "prueba_programa.h"

#include "board/colores.h"
#include "board/lista_jugadas.h"
#include "core/game_state.h"
#include "core/recorder.h"
#include "language/idioma.h"
#include "platform/ini_file.h"
#include "platform/programa.h"
#include "platform/texto.h"
#include "shell/arranque.h"
#include "shell/chat.h"
#include "shell/enlaces.h"
#include "shell/ficheros_programa.h"
#include "shell/formularios.h"
#include "shell/jugadas.h"
#include "shell/mdi.h"
#include "shell/opciones.h"
#include "shell/quintarena.h"
#include "shell/ranking.h"
#include "shell/reloj.h"
#include "shell/splash.h"
#include "shell/ventanas.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <QToolBar>
#include <gtest/gtest.h>
#include <regex>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace qa;
using prueba::Cajas;
using prueba::Carpeta;

namespace {

std::string SinRegistro(std::string ini) {
    return std::regex_replace(ini, std::regex("Regit(Qtr|Pgn|Epd)=[01]"), "Regit$1=?");
}

TEST(Programa, StartsShowsEverythingAndClosesWithSettingsAsRead) {
    Carpeta c;
    Cajas cajas;
    cajas.respuestas = {kRespuestaNo, kRespuestaSi}; // PGN: no; EPD: yes
    const std::string antes = c.Leer("Default.ini");
    ASSERT_TRUE(Main({"quintarena"}));
    auto& f = Forms();
    ASSERT_TRUE(f.mdi && f.quintarena);

    // Texts of the language file on the window, the menu and the panels.
    EXPECT_EQ(f.mdi->windowTitle().toStdString(),
              "Quintarena Versión 1.55 - " + LeerIni(c.Ruta("Español.lng"), "Autor", "Nombre"));
    EXPECT_EQ(Entrada("mnuArchivos")->text().toStdString(), Texto("Menu", "Menu1"));
    EXPECT_EQ(Entrada("mnuArchivos")->text().toStdString(),
              LeerIni(c.Ruta("Español.lng"), "Menu", "Menu1"));
    EXPECT_EQ(f.mdi->menuBar()->actions().size(), 5);
    EXPECT_EQ(f.mdi->Boton(1)->toolTip().toStdString(), Texto("Tips", "1"));
    EXPECT_EQ(f.mdi->Boton(25)->toolTip().toStdString(), Texto("Tips", "30"));
    EXPECT_EQ(f.reloj->windowTitle().toStdString(), Texto("Reloj", "Titulo"));
    EXPECT_FALSE(Mensajes[109].empty());

    // All four panels are checked in the shipped settings and come up with the board.
    EXPECT_TRUE(f.quintarena->isVisible());
    for (QWidget* p : {static_cast<QWidget*>(f.reloj), static_cast<QWidget*>(f.chat),
                       static_cast<QWidget*>(f.jugadas), static_cast<QWidget*>(f.ranking)})
        EXPECT_TRUE(p->isVisible()) << p->objectName().toStdString();
    EXPECT_TRUE(f.ranking->Label(4)->text().endsWith(": 1200"));
    EXPECT_FALSE(f.splash->isVisible());
    EXPECT_FALSE(f.splash->EstadoVisible()); // ready as the about box
    EXPECT_EQ(f.mdi->TStatus()->interval(), 10000);

    // The questions for PGN and EPD, nothing else.
    ASSERT_EQ(cajas.vistas.size(), 2u);
    EXPECT_EQ(cajas.vistas[0].texto, Mensajes[70]);
    EXPECT_EQ(cajas.vistas[1].texto, Mensajes[85]);
    EXPECT_TRUE(fs::exists(c.Ruta("share/mime/packages/quintarena-qtrfile.xml")));
    EXPECT_FALSE(fs::exists(c.Ruta("share/mime/packages/quintarena-pgnfile.xml")));
    EXPECT_TRUE(fs::exists(c.Ruta("share/applications/quintarena-epdfile.desktop")));

    // A fresh installation writes its record at the first start.
    EXPECT_EQ(fs::file_size(c.Ruta("Puntuacion.dat")), 20u);

    f.mdi->close();
    EXPECT_TRUE(FinPrograma());
    const std::string despues = c.Leer("Default.ini");
    EXPECT_EQ(SinRegistro(despues), SinRegistro(antes));
    for (const char* k : {"RegitQtr", "RegitPgn", "RegitEpd"})
        EXPECT_EQ(LeerIni(c.Ruta("Default.ini"), "Configuracion", k), "1") << k;
    const std::string dat = c.Leer("Puntuacion.dat");
    ASSERT_EQ(dat.size(), 20u);
    EXPECT_EQ(dat.substr(16), std::string("\xB0\x04\0\0", 4)); // 1200 points
    EXPECT_EQ(dat.substr(0, 16), std::string(16, '\0'));
}

TEST(Programa, ClosingWhileConnectedWaitsAndSavesOnTheSecondClose) {
    Carpeta c;
    Cajas cajas;
    ASSERT_TRUE(Main({"quintarena"}));
    const std::string antes = c.Leer("Default.ini");
    Variables::Conectado = true;
    int desconexiones = 0;
    Enlace().CerrarRed = [&] {
        ++desconexiones;
        return !Variables::Conectado;
    };
    Marcar("mnuReloj", false);

    EXPECT_FALSE(Forms().mdi->close());
    EXPECT_TRUE(CierrePendiente);
    EXPECT_FALSE(FinPrograma());
    EXPECT_EQ(desconexiones, 1);
    EXPECT_EQ(c.Leer("Default.ini"), antes);

    Variables::Conectado = false; // the network layer, once the link is down
    EXPECT_TRUE(Forms().mdi->close());
    EXPECT_TRUE(FinPrograma());
    EXPECT_EQ(LeerIni(c.Ruta("Default.ini"), "Configuracion", "Reloj"), "0");
}

TEST(Programa, PanelKeysKeepTheirValuesWhileABrowserIsUp) {
    Carpeta c;
    Cajas cajas;
    ASSERT_TRUE(Main({"quintarena"}));
    EntornoRegistro browser;
    InstalarListas(&browser);
    OcultarVentanas(false); // as the PGN browser does when it comes up
    browser.listaPgnVisible = true;
    EXPECT_FALSE(Marcada("mnuMovimientos"));
    EXPECT_FALSE(Forms().chat->isVisible());
    Entrada("mnuReloj")->trigger(); // the toggles do nothing meanwhile
    EXPECT_FALSE(Marcada("mnuReloj"));
    Marcar("mnuSonido", false);
    Forms().mdi->close();
    for (const char* k : {"Jugadas", "Chat", "Reloj", "Elo", "Sonido"})
        EXPECT_EQ(LeerIni(c.Ruta("Default.ini"), "Configuracion", k), "1") << k;
}

TEST(Programa, MissingSettingsEndTheStartAndCreateNothing) {
    Carpeta c;
    Cajas cajas;
    fs::remove(c.Ruta("Default.ini"));
    EXPECT_FALSE(Main({"quintarena"}));
    ASSERT_EQ(cajas.vistas.size(), 1u);
    EXPECT_EQ(cajas.vistas[0].texto, "El fichero Default.ini no se ha encontrado.");
    EXPECT_FALSE(fs::exists(c.Ruta("Default.ini")));
    EXPECT_FALSE(fs::exists(c.Ruta("Puntuacion.dat")));
}

TEST(Programa, StartRemovesTemporaryFilesOfGoneCopiesOnly) {
    Carpeta c;
    Cajas cajas;
    const pid_t hijo = ::fork();
    ASSERT_GE(hijo, 0);
    if (hijo == 0) ::_exit(0);
    ASSERT_EQ(::waitpid(hijo, nullptr, 0), hijo);
    const std::string muerto = ".Default.ini." + std::to_string(hijo) + ".tmp";
    const std::string vivo = ".Default.ini." + std::to_string(::getppid()) + ".tmp";
    c.Escribir(muerto, "[Mdi]\r\n");
    c.Escribir(vivo, "[Mdi]\r\n");
    fs::remove(c.Ruta("Default.ini")); // the start ends early: the folder is cleaned first
    EXPECT_FALSE(Main({"quintarena"}));
    EXPECT_FALSE(fs::exists(c.Ruta(muerto)));
    EXPECT_TRUE(fs::exists(c.Ruta(vivo)));
}

TEST(Programa, SettingsThatAreAFolderOrAFifoCountAsMissing) {
    ::alarm(60); // waiting on the FIFO would hang the run
    for (bool fifo : {false, true}) {
        Carpeta c;
        Cajas cajas;
        fs::remove(c.Ruta("Default.ini"));
        if (fifo)
            ASSERT_EQ(::mkfifo(c.Ruta("Default.ini").c_str(), 0600), 0);
        else
            fs::create_directory(c.Ruta("Default.ini"));
        EXPECT_FALSE(Main({"quintarena"})) << fifo;
        ASSERT_EQ(cajas.vistas.size(), 1u) << fifo;
        EXPECT_EQ(cajas.vistas[0].texto, "El fichero Default.ini no se ha encontrado.");
        EXPECT_EQ(fs::is_fifo(c.Ruta("Default.ini")), fifo);
        EXPECT_EQ(fs::is_directory(c.Ruta("Default.ini")), !fifo);
        EXPECT_FALSE(fs::exists(c.Ruta("Puntuacion.dat")));
    }
    ::alarm(0);
}

TEST(Programa, AFifoAsTheFirstLanguageFileFailsItsVersionCheck) {
    ::alarm(60);
    Carpeta c;
    Cajas cajas;
    ASSERT_EQ(::mkfifo(c.Ruta("Alemán.lng").c_str(), 0600), 0);
    EXPECT_FALSE(Main({"quintarena"}));
    EXPECT_TRUE(cajas.Hay("Versión del idioma incorrecto."));
    ::alarm(0);
}

TEST(Programa, NoMatchingLanguageEndsTheProgram) {
    Carpeta c;
    Cajas cajas;
    c.Ajustar("Configuracion", "Idioma", "Deutsch");
    EXPECT_FALSE(Main({"quintarena"}));
    EXPECT_TRUE(cajas.Hay("Fichero de idioma no encontrado."));
}

TEST(Programa, WrongVersionOfTheFirstLanguageFileUnloadsTheMainWindow) {
    Carpeta c;
    Cajas cajas;
    c.Escribir("Alemán.lng", "[Version]\r\nVersion=1.40\r\n");
    EXPECT_FALSE(Main({"quintarena"}));
    EXPECT_TRUE(cajas.Hay("Versión del idioma incorrecto."));
    EXPECT_TRUE(FinPrograma());
}

TEST(Programa, LanguageFileMissingAKeyFallsBackToSpanish) {
    Carpeta c;
    Cajas cajas;
    std::string ingles = c.Leer("English.lng");
    ingles = std::regex_replace(ingles, std::regex("\nMenu12=[^\r\n]*"), "");
    c.Escribir("English.lng", ingles);
    c.Ajustar("Configuracion", "Idioma", "English");
    fs::remove(c.Ruta("Español.lng")); // English is then the only entry, and current
    const auto antes = fs::current_path();
    fs::current_path(c.Ruta());
    const bool arrancado = Main({"quintarena"});
    fs::current_path(antes);
    EXPECT_TRUE(arrancado);
    EXPECT_TRUE(cajas.Hay("Fichero de idioma incorrecto.\r\nCambie el fíchero."));
    // Written to the plain name in the current folder, which here is the program's.
    EXPECT_EQ(LeerIni(c.Ruta("Default.ini"), "Configuracion", "Idioma"), "Español");
    EXPECT_EQ(Entrada("mnuNuevaPartida")->text(), "");
}

TEST(Programa, CommandLineHandsTheLowerCasedNameToItsLoader) {
    Carpeta c;
    Cajas cajas;
    std::vector<std::string> pgn, qtr;
    Enlace().CargarPgn = [&](const std::string& n) { pgn.push_back(n); };
    Enlace().AbrirQtr = [&](const std::string& n) { qtr.push_back(n); };
    fs::create_directories(c.Ruta("Partidas"));
    c.Escribir("Partidas/Final.PGN", "[Event \"x\"]\n");
    const std::string ruta = c.Ruta("Partidas/Final.PGN").string();
    ASSERT_TRUE(Main({"quintarena", "\"" + ruta + "\""}));
    ASSERT_EQ(pgn.size(), 1u);
    EXPECT_EQ(pgn[0], Minusculas(ruta));
    EXPECT_FALSE(Forms().chat->isVisible()); // a PGN does not bring up the panels

    AbrirLineaDeOrdenes("/x/notas.txt");
    EXPECT_FALSE(Forms().reloj->isVisible());
    AbrirLineaDeOrdenes("/x/partida.qtr");
    EXPECT_TRUE(Forms().reloj->isVisible());
    EXPECT_EQ(qtr, std::vector<std::string>{"/x/partida.qtr"});
}

TEST(Programa, JunkSettingsAreRefusedAndTheProgramRuns) {
    Carpeta c;
    Cajas cajas;
    std::string ini = std::regex_replace(c.Leer("Default.ini"), std::regex("=[^\r\n]*"),
                                         "=1e999x" + std::string(300, '9'));
    c.Escribir("Default.ini", ini);
    c.Ajustar("Configuracion", "Idioma", "Español");
    ASSERT_TRUE(Main({"quintarena"}));
    EXPECT_TRUE(cajas.vistas.empty()); // junk Regit keys register nothing and ask nothing
    Forms().mdi->close();
    EXPECT_TRUE(FinPrograma());
}

TEST(Programa, NumbersNoWindowOrColourHoldsAreUnreadableOrClipped) {
    Carpeta c;
    Cajas cajas;
    c.Ajustar("Mdi", "Windows", "0");
    c.Ajustar("Mdi", "Top", "-99999999999");
    c.Ajustar("Mdi", "Left", "150");
    c.Ajustar("Mdi", "Width", "1e300");
    c.Ajustar("Mdi", "Height", "9000");
    c.Ajustar("Chat", "Top", "99999999999");
    c.Ajustar("Configuracion", "Fondo", "1");
    c.Ajustar("Configuracion", "Color", "2147483647:0:0");
    c.Ajustar("Configuracion", "Tamaño", "1e300");
    InstalarFicheros(); // the colours reach the forms through it
    ASSERT_TRUE(Main({"quintarena"}));
    Mdi* mdi = Forms().mdi;
    EXPECT_EQ(mdi->x(), 10) << "a readable place is taken";
    EXPECT_EQ(mdi->height(), 600);
    EXPECT_GT(mdi->y(), -1000) << "the unreadable one keeps the window where it was";
    EXPECT_GT(mdi->width(), 100);
    // The clipped red inside the bevel, not a colour wrapped around.
    EXPECT_EQ(ColorInterior(), QColor(255, 200, 200));
    const int y = mdi->y();
    mdi->close();
    EXPECT_EQ(ANumero(LeerIni(c.Ruta("Default.ini"), "Mdi", "Top")), y * kTwipsPorPixel);
}

TEST(Programa, DamagedRankingStartsAgainAt1200) {
    Carpeta c;
    Cajas cajas;
    // 5 played but 1 won and nothing else: the counters do not add up.
    c.Escribir("Puntuacion.dat", std::string("\5\0\0\0\1\0\0\0\0\0\0\0\0\0\0\0\x10\x27\0\0", 20));
    ASSERT_TRUE(Main({"quintarena"}));
    EXPECT_TRUE(Forms().ranking->Label(4)->text().endsWith(": 1200"));
    EXPECT_TRUE(Forms().ranking->Label(0)->text().endsWith(": 0"));
    const std::string dat = c.Leer("Puntuacion.dat");
    EXPECT_EQ(dat, std::string(16, '\0') + std::string("\xB0\x04\0\0", 4));
    Forms().mdi->close();
}

TEST(Programa, ARankingThatIsAFifoOrAFolderCountsAsNoRecord) {
    ::alarm(60); // reading the FIFO would hang the start
    // What the start shows with no record at all, beside a FIFO and a folder in its place.
    auto arrancar = [](int como) {
        Carpeta c;
        Cajas cajas;
        if (como == 1) {
            EXPECT_EQ(::mkfifo(c.Ruta("Puntuacion.dat").c_str(), 0600), 0);
        }
        if (como == 2) fs::create_directory(c.Ruta("Puntuacion.dat"));
        QStringList visto;
        EXPECT_TRUE(Main({"quintarena"})) << como;
        for (int i = 0; i < 5; ++i) visto << Forms().ranking->Label(i)->text();
        for (const auto& caja : cajas.vistas) visto << QString::fromStdString(caja.texto);
        Forms().mdi->close();
        return visto;
    };
    const QStringList sinRegistro = arrancar(0);
    EXPECT_TRUE(sinRegistro[4].endsWith(": 1200")) << sinRegistro[4].toStdString();
    EXPECT_EQ(arrancar(1), sinRegistro);
    EXPECT_EQ(arrancar(2), sinRegistro);
    ::alarm(0);
}

TEST(Programa, ChangingTheLanguageInTheOptions) {
    Carpeta c;
    Cajas cajas;
    std::string zulu =
        std::regex_replace(c.Leer("English.lng"), std::regex("\nMenu1=[^\r\n]*"), "\nMenu1=Zulu");
    c.Escribir("Zulu.lng", zulu);
    ASSERT_TRUE(Main({"quintarena"}));
    Opciones* op = Forms().opciones;
    ASSERT_EQ(op->Idiomas(), (std::vector<std::string>{"English", "Zulu", "Español"}));
    EXPECT_EQ(op->TextoIdioma(), "Español");

    op->FijarTextoIdioma("Zulu");
    CambiarIdioma();
    EXPECT_EQ(Entrada("mnuArchivos")->text(), "Zulu");
    EXPECT_EQ(FicheroIdioma, DirectorioPrograma + "zulu.lng");
    op->OpcionesAceptar();
    EXPECT_EQ(LeerIni(c.Ruta("Default.ini"), "Configuracion", "Idioma"), "Zulu");

    // Entry 0 is not looked at: the current file stays.
    op->FijarTextoIdioma("English");
    CambiarIdioma();
    EXPECT_EQ(FicheroIdioma, DirectorioPrograma + "zulu.lng");
    Forms().mdi->close();
}

// Picks a language in the options as the user does, accepts, and starts the program again.
void ElegirIdiomaYReiniciar(const std::string& nombre, bool alMomento) {
    Opciones* op = Forms().opciones;
    auto* combo = op->findChild<QComboBox*>("Combo1");
    ASSERT_TRUE(combo);
    const std::string antes = FicheroIdioma;
    combo->setCurrentIndex(combo->findText(QString::fromStdString(nombre)));
    emit combo->activated(combo->currentIndex());
    EXPECT_EQ(FicheroIdioma != antes, alMomento) << nombre;
    op->OpcionesAceptar();
    Forms().mdi->close();
    LiberarFormularios();
    ASSERT_TRUE(Main({"quintarena"}));
}

std::string Menu1De(const Carpeta& c, const std::string& lng) {
    return LeerIni(c.Ruta(lng), "Menu", "Menu1");
}

TEST(Programa, EveryLanguageCanBeChosenAndStaysAfterARestart) {
    Carpeta c;
    Cajas cajas;
    ASSERT_TRUE(Main({"quintarena"}));
    EXPECT_EQ(Forms().opciones->Idiomas(), (std::vector<std::string>{"English", "Español"}));
    // English is the first entry, which the choice never looks at: it holds from the next start.
    ElegirIdiomaYReiniciar("English", false);
    EXPECT_EQ(Forms().opciones->Idiomas(), (std::vector<std::string>{"Español", "English"}));
    EXPECT_EQ(Forms().opciones->TextoIdioma(), "English");
    EXPECT_EQ(Entrada("mnuArchivos")->text().toStdString(), Menu1De(c, "English.lng"));
    ElegirIdiomaYReiniciar("Español", false);
    EXPECT_EQ(Forms().opciones->TextoIdioma(), "Español");
    EXPECT_EQ(Entrada("mnuArchivos")->text().toStdString(), Menu1De(c, "Español.lng"));

    // A third file: a language that is not first changes at once, and every one survives.
    c.Escribir("Zulu.lng", std::regex_replace(c.Leer("English.lng"), std::regex("\nMenu1=[^\r\n]*"),
                                              "\nMenu1=Zulu"));
    Forms().mdi->close();
    LiberarFormularios();
    ASSERT_TRUE(Main({"quintarena"}));
    EXPECT_EQ(Forms().opciones->Idiomas(),
              (std::vector<std::string>{"English", "Zulu", "Español"}));
    ElegirIdiomaYReiniciar("Zulu", true);
    EXPECT_EQ(Entrada("mnuArchivos")->text(), "Zulu");
    EXPECT_EQ(Forms().opciones->Idiomas(),
              (std::vector<std::string>{"English", "Español", "Zulu"}));
    ElegirIdiomaYReiniciar("English", false);
    EXPECT_EQ(Entrada("mnuArchivos")->text().toStdString(), Menu1De(c, "English.lng"));
    ElegirIdiomaYReiniciar("Español", false);
    EXPECT_EQ(Entrada("mnuArchivos")->text().toStdString(), Menu1De(c, "Español.lng"));
    Forms().mdi->close();
}

// The texts of the move list's menu, in order, the notation submenu's after it.
QStringList MenuJugadas() {
    QStringList textos;
    for (QAction* a : Forms().jugadas->Lista()->MenuJugadas()->actions()) {
        textos << a->text();
        if (a->menu())
            for (QAction* b : a->menu()->actions()) textos << b->text();
    }
    return textos;
}

QStringList MenuJugadasDe(const Carpeta& c, const std::string& lng) {
    QStringList textos;
    for (const char* k : {"Menu1", "Menu2", "Menu3", "Menu6", "Menu7", "Menu5", "Menu4"})
        textos << QString::fromStdString(LeerIni(c.Ruta(lng), "Jugadas", k));
    return textos;
}

TEST(Programa, QtsOwnTextsAndOursFollowTheLanguage) {
    Carpeta c;
    Cajas cajas;
    c.Escribir("Zulu.lng", c.Leer("English.lng")); // a language Qt has no table entry for
    ASSERT_TRUE(Main({"quintarena"}));
    auto* skins = Forms().opciones->findChild<QComboBox*>("SkinCombo");
    ASSERT_TRUE(skins);
    EXPECT_EQ(MenuJugadas(), MenuJugadasDe(c, "Español.lng"));
    EXPECT_EQ(skins->itemText(0).toStdString(),
              LeerIni(c.Ruta("Español.lng"), "Opciones", "Opcion1"));
    EXPECT_EQ(skins->currentIndex(), 0);
    auto es = prueba::LeerTextosQt(c.Ruta(), cajas);
    EXPECT_EQ(es.botones, (QStringList{"&Sí", "&No"}));
    EXPECT_EQ(es.buscarEn, "Ver en:");
    EXPECT_EQ(es.nombre, "&Nombre de fichero:");
    EXPECT_EQ(es.guardar, "&Guardar");
    EXPECT_TRUE(es.existe.contains("ya existe")) << es.existe.toStdString();

    // Our texts from the new file, Qt's own back to its built-in English; as the user does it,
    // in the open options dialog.
    Forms().mdi->Comando("mnuOpciones");
    auto* idiomas = Forms().opciones->findChild<QComboBox*>("Combo1");
    idiomas->setCurrentIndex(idiomas->findText("Zulu"));
    emit idiomas->activated(idiomas->currentIndex());
    EXPECT_EQ(MenuJugadas(), MenuJugadasDe(c, "Zulu.lng"));
    EXPECT_EQ(skins->itemText(0).toStdString(), LeerIni(c.Ruta("Zulu.lng"), "Opciones", "Opcion1"));
    EXPECT_EQ(skins->currentIndex(), 0);
    auto zu = prueba::LeerTextosQt(c.Ruta(), cajas);
    EXPECT_EQ(zu.botones, (QStringList{"&Yes", "&No"}));
    EXPECT_EQ(zu.buscarEn, "Look in:");
    EXPECT_TRUE(zu.existe.contains("already exists")) << zu.existe.toStdString();
    Forms().mdi->close();
}

TEST(LineaDeOrdenes, QuotesCaseAndShortNames) {
    EXPECT_EQ(NombreDeLineaDeOrdenes(""), "");
    EXPECT_EQ(NombreDeLineaDeOrdenes("\"/Home/Ana/Mi Partida.QTR\""), "/home/ana/mi partida.qtr");
    EXPECT_EQ(NombreDeLineaDeOrdenes("/Home/Ana/X.Pgn"), "/home/ana/x.pgn");
    // A "~" name is looked up before the quotes: a missing one comes out empty.
    EXPECT_EQ(NombreDeLineaDeOrdenes("\"/nada/PARTID~1.QTR\""), "");
}

TEST(Programa, DroppedFiles) {
    Carpeta c;
    Cajas cajas;
    std::vector<std::string> abiertos;
    Enlace().AbrirQtr = [&](const std::string& n) { abiertos.push_back(n); };
    Enlace().AbrirEpd = Enlace().AbrirQtr;
    c.Escribir("a.qtr", "x");
    c.Escribir("B.EPD", "x");
    ASSERT_TRUE(Main({"quintarena"}));
    Forms().mdi->FileDrop(c.Ruta("a.qtr").string());
    Forms().mdi->FileDrop(c.Ruta("B.EPD").string()); // from the board, as it came: ignored
    Forms().mdi->FileDrop(Minusculas(c.Ruta("B.EPD").string())); // from the main window
    ASSERT_EQ(abiertos.size(), 2u);
    EXPECT_EQ(abiertos[1], Minusculas(c.Ruta("B.EPD").string()));
}

TEST(Idiomas, ShippedFilesHoldEveryKey) {
    FijarDirectorioPrograma(QA_DATOS);
    int avisos = 0;
    FijarAvisoIdiomaIncorrecto([&] { ++avisos; });
    for (const char* f : {"Español.lng", "English.lng"}) {
        FijarIdioma(f);
        EXPECT_TRUE(LeerTextosIdioma()) << f;
        EXPECT_EQ(avisos, 0) << f;
        EXPECT_NE(Mensajes[28].find('$'), std::string::npos) << f;
        EXPECT_NE(Mensajes[63].find('$'), std::string::npos) << f;
    }
    FijarAvisoIdiomaIncorrecto(nullptr);
}

} // namespace
