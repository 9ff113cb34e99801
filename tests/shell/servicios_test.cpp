// Common services, settings read into the controls, commands of the menu and the toolbar.
#include "prueba_programa.h"

#include "board/colores.h"
#include "core/game_state.h"
#include "core/recorder.h"
#include "language/idioma.h"
#include "platform/ini_file.h"
#include "platform/programa.h"
#include "shell/arranque.h"
#include "shell/barra_estado.h"
#include "shell/chat.h"
#include "shell/configuracion.h"
#include "shell/enlaces.h"
#include "shell/formularios.h"
#include "shell/mdi.h"
#include "shell/opciones.h"
#include "shell/quintarena.h"
#include "shell/reloj.h"
#include "shell/servicios.h"
#include "shell/splash.h"
#include "shell/ventanas.h"

#include <QAction>
#include <QDate>
#include <QDesktopServices>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>
#include <QUrl>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using namespace qa;
using prueba::Cajas;
using prueba::Carpeta;

namespace {

TEST(Mensajes, NumberOrText) {
    Cajas cajas;
    Mensajes[70] = "¿Registrar los ficheros PGN?";
    EXPECT_EQ(MostrarMensaje("Quintarena", "70", kIconoPregunta, kBotonesSiNo), kRespuestaNo);
    EXPECT_EQ(ResultadoMensaje, kRespuestaNo);
    cajas.respuestas = {kRespuestaSi};
    MostrarMensaje("Quintarena", "hola", kIconoInformacion, kBotonesSiNo);
    EXPECT_EQ(ResultadoMensaje, kRespuestaSi);
    MostrarMensaje("Quintarena", "110", kIconoStop);
    ASSERT_EQ(cajas.vistas.size(), 3u);
    EXPECT_EQ(cajas.vistas[0].texto, Mensajes[70]);
    EXPECT_EQ(cajas.vistas[1].texto, "hola");
    EXPECT_EQ(cajas.vistas[2].texto, "110");
    EXPECT_EQ(cajas.vistas[2].icono, kIconoStop);
}

TEST(Dialogos, FilterNamesShowTheirPatternOnce) {
    EXPECT_EQ(NombreFiltro("Partidas de Quintarena (*.qtr) (*.qtr)", "*.qtr"),
              "Partidas de Quintarena (*.qtr)");
    EXPECT_EQ(NombreFiltro("Quintarena", "*.qtr"), "Quintarena (*.qtr)");
    EXPECT_EQ(NombreFiltro(" Pgn (*.pgn)", "*.pgn"), "Pgn (*.pgn)");
    EXPECT_EQ(NombreFiltro("*.txt", "*.txt"), "*.txt");
    EXPECT_EQ(NombreFiltro("Todos", "*.a;*.b"), "Todos (*.a *.b)");
}

TEST(BarraEstado, TimeDateAndConnection) {
    EXPECT_EQ(BarraEstado::TextoHora(QTime(9, 5)).toStdString(), "9:05");
    EXPECT_EQ(BarraEstado::TextoHora(QTime(23, 59)).toStdString(), "23:59");
    EXPECT_EQ(BarraEstado::TextoFecha(QDate(2026, 3, 4)).toStdString(), "04/03/2026");
    Mensajes[39] = "Conectado con";
    Mensajes[41] = "Desconectado";
    Variables::Conectado = true;
    Enlace().NombreRemoto = [] { return std::string("Ana"); };
    EXPECT_EQ(BarraEstado::TextoConexion().toStdString(), "Conectado con Ana");
    Variables::Conectado = false;
    Enlace() = Enlaces{};
    EXPECT_EQ(BarraEstado::TextoConexion().toStdString(), "Desconectado ");
}

class Arrancado : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(Main({"quintarena"}));
        cajas.vistas.clear(); // the registration questions of the first start
    }
    Carpeta c;
    Cajas cajas;
};

TEST_F(Arrancado, MissingSoundComplainsOnceAndTurnsSoundOff) {
    ASSERT_TRUE(Marcada("mnuSonido"));
    Sonar(1); // present: no complaint, even with no sound device
    EXPECT_TRUE(cajas.vistas.empty());
    fs::remove(c.Ruta("Sonidos/Mueve.wav"));
    Sonar(3);
    Sonar(3);
    ASSERT_EQ(cajas.vistas.size(), 1u);
    EXPECT_EQ(cajas.vistas[0].icono, kIconoStop);
    EXPECT_NE(cajas.vistas[0].texto.find("Sonidos"), std::string::npos);
    EXPECT_FALSE(Marcada("mnuSonido"));
    Sonar(9); // out of range: nothing
}

TEST_F(Arrancado, SettingsReadIntoTheControls) {
    c.Ajustar("Configuracion", "Color", "255:0:0");
    c.Ajustar("CPU", "Option", "3");
    c.Ajustar("Configuracion", "Tiempo", "0");
    c.Ajustar("Configuracion", "Check2", "7"); // neither 0 nor 1: left as it was
    c.Ajustar("Configuracion", "Reloj", "abc");
    Forms().opciones->FijarCheck(2, true);
    Marcar("mnuReloj", true);
    LeerOpciones();
    auto& k = Controles();
    EXPECT_EQ(ColorR, 255);
    EXPECT_EQ(ColorG, 0);
    EXPECT_EQ(ColorB, 0);
    EXPECT_EQ(k.Level2Option, 0);
    EXPECT_EQ(k.NuevoText1, "1");
    EXPECT_TRUE(Forms().opciones->Check(2));
    EXPECT_TRUE(Marcada("mnuReloj"));
}

TEST_F(Arrancado, SquareSizeIsWrittenAsTypedAndUsedClamped) {
    Opciones* op = Forms().opciones;
    op->FijarTamano("150");
    op->OpcionesAceptar();
    EXPECT_EQ(LeerIni(c.Ruta("Default.ini"), "Configuracion", "Tamaño"), "150");
    EXPECT_EQ(op->Tamano(), "100");
    op->FijarTamano("0");
    op->OpcionesAceptar();
    EXPECT_EQ(op->Tamano(), "30");
    op->FijarTamano("5");
    op->OpcionesAceptar();
    EXPECT_EQ(op->Tamano(), "5");
}

TEST_F(Arrancado, ToolbarButtonsRunTheirMenuEntries) {
    std::vector<std::string> hechos;
    for (const char* n : {"mnuNuevaPartida", "mnuRetroceder", "mnuInvertirTablero"})
        Enlace().Comandos[n] = [&hechos, n] { hechos.push_back(n); };
    Forms().mdi->Boton(11)->trigger();
    Forms().mdi->Boton(14)->trigger();
    const bool antes = Marcada("mnuInvertirTablero");
    Forms().mdi->Boton(20)->trigger();
    EXPECT_NE(Marcada("mnuInvertirTablero"), antes);
    Entrada("mnuInvertirTablero")->trigger();
    EXPECT_EQ(Marcada("mnuInvertirTablero"), antes);
    EXPECT_EQ(hechos, (std::vector<std::string>{"mnuNuevaPartida", "mnuRetroceder",
                                                "mnuInvertirTablero", "mnuInvertirTablero"}));
    for (int separador : {2, 6, 10, 15, 17, 21, 24, 26})
        EXPECT_TRUE(Forms().mdi->Boton(separador)->isSeparator());
    Forms().mdi->Boton(27)->trigger();
    EXPECT_TRUE(FinPrograma());
}

TEST_F(Arrancado, PanelTogglesWriteTheirKeysUnlessTheEngineFormIsUp) {
    Entrada("mnuReloj")->trigger();
    EXPECT_FALSE(Forms().reloj->isVisible());
    EXPECT_EQ(LeerIni(c.Ruta("Default.ini"), "Configuracion", "Reloj"), "0");
    Entrada("mnuMostrarRanking")->trigger();
    EXPECT_EQ(LeerIni(c.Ruta("Default.ini"), "Configuracion", "Elo"), "0");
    EntornoRegistro motorVisible;
    motorVisible.cpuVisible = true;
    InstalarMotor(&motorVisible);
    Entrada("mnuReloj")->trigger();
    EXPECT_FALSE(Marcada("mnuReloj"));
    EXPECT_FALSE(Forms().reloj->isVisible());
    InstalarMotor(nullptr);
    // A panel's close hides it and unchecks its entry.
    Entrada("mnuReloj")->trigger();
    EXPECT_TRUE(Forms().reloj->isVisible());
    Forms().reloj->close();
    EXPECT_FALSE(Forms().reloj->isVisible());
    EXPECT_FALSE(Marcada("mnuReloj"));
}

TEST_F(Arrancado, NotationEntriesAreExclusive) {
    int cambios = 0;
    Enlace().NotacionCambiada = [&] { ++cambios; };
    Entrada("mnuCordenadas")->trigger();
    EXPECT_TRUE(Marcada("mnuCordenadas"));
    EXPECT_FALSE(Marcada("mnuAlgebraicoEsp"));
    EXPECT_EQ(LeerIni(c.Ruta("Default.ini"), "Configuracion", "Check"), "3");
    Entrada("mnuAlgebraicoUsuario0")->trigger();
    EXPECT_FALSE(Marcada("mnuCordenadas"));
    EXPECT_EQ(LeerIni(c.Ruta("Default.ini"), "Configuracion", "Check"), "4");
    EXPECT_EQ(cambios, 2);
}

TEST_F(Arrancado, SavedChatAndPictureGoThroughTheDialog) {
    FijarPresentadorDialogos([this](int, const std::string&) {
        RespuestaDialogo r;
        r.fichero = c.Ruta("Charla.TXT").string();
        return r;
    });
    Forms().chat->ChatList()->setPlainText("*** Conectado\n<Ana>hola");
    Entrada("mnuGuararChat")->trigger();
    const std::string guardado = c.Leer("Charla.TXT");
    EXPECT_EQ(guardado.rfind("Quintarena. ", 0), 0u) << guardado;
    EXPECT_NE(guardado.find("\r\n*** Conectado\r\n<Ana>hola"), std::string::npos) << guardado;
    EXPECT_EQ(cajas.vistas.back().texto, Mensajes[33]);
    FijarPresentadorDialogos([this](int, const std::string&) {
        RespuestaDialogo r;
        r.fichero = c.Ruta("Tablero.bmp").string();
        return r;
    });
    Entrada("mnuGuararImagen")->trigger();
    EXPECT_GT(fs::file_size(c.Ruta("Tablero.bmp")), 0u);
    EXPECT_EQ(cajas.vistas.back().texto, Mensajes[37]);
    FijarPresentadorDialogos(nullptr);
}

TEST_F(Arrancado, PictureSavedUnderTheSuggestedNameNeverTouchesTheProgram) {
    // The suggested name differs from the program's own file only in case.
    c.Escribir("quintarena", "el programa");
    FijarPresentadorDialogos([this](int, const std::string&) {
        RespuestaDialogo r;
        r.fichero = c.Ruta("Quintarena").string();
        return r;
    });
    Entrada("mnuGuararImagen")->trigger();
    FijarPresentadorDialogos(nullptr);
    EXPECT_EQ(c.Leer("quintarena"), "el programa");
    EXPECT_EQ(c.Leer("Quintarena.bmp").substr(0, 2), "BM");
    EXPECT_EQ(cajas.vistas.back().texto, Mensajes[37]);
}

TEST_F(Arrancado, AboutBoxAndItsClose) {
    Splash* s = Forms().splash;
    EXPECT_FALSE(s->isVisible());
    Entrada("mnuAcerca")->trigger();
    EXPECT_TRUE(s->isVisible());
    EXPECT_FALSE(s->EstadoVisible());
    EXPECT_FALSE(s->Label(5)->isHidden());
    EXPECT_EQ(s->Label(3)->text().toStdString(), Mensajes[61]);
    s->close(); // never destroyed, only hidden
    EXPECT_FALSE(s->isVisible());
    Entrada("mnuAcerca")->trigger();
    QTest::mouseClick(s, Qt::RightButton);
    EXPECT_FALSE(s->isVisible());
}

TEST_F(Arrancado, PanelsComeBackFromTheirKeys) {
    c.Ajustar("Configuracion", "Chat", "0");
    c.Ajustar("Configuracion", "Reloj", "1");
    Marcar("mnuReloj", false);
    Forms().reloj->hide();
    MostrarVentanas();
    EXPECT_FALSE(Marcada("mnuVentanaChat"));
    EXPECT_TRUE(Marcada("mnuReloj"));
    EXPECT_TRUE(Forms().reloj->isVisible());
}

TEST_F(Arrancado, RestoringAfterMaximiseTakesTheStoredSize) {
    Mdi* mdi = Forms().mdi;
    c.Ajustar("Mdi", "Width", "9000");
    c.Ajustar("Mdi", "Height", "6000");
    mdi->showMaximized();
    prueba::Esperar([&] { return mdi->isMaximized(); }, 1000);
    mdi->showNormal();
    ASSERT_TRUE(prueba::Esperar([&] { return mdi->width() == 600 && mdi->height() == 400; }, 2000))
        << mdi->width() << "x" << mdi->height();
    mdi->resize(100, 50); // below the smallest main window
    EXPECT_EQ(mdi->width(), 520);
    EXPECT_EQ(mdi->height(), 100);
}

TEST(Pantalla, ColoursAndWidth) {
    EXPECT_FALSE(Quintarena::ComprobarColores(8));
    EXPECT_FALSE(Quintarena::ComprobarColores(15));
    EXPECT_TRUE(Quintarena::ComprobarColores(16));
    EXPECT_TRUE(Quintarena::ComprobarColores(24));
    EXPECT_TRUE(Quintarena::ComprobarColores(32)); // the overflow passes
    EXPECT_FALSE(Quintarena::ComprobarResolucion(799));
    EXPECT_TRUE(Quintarena::ComprobarResolucion(800));
}

// Stands in for the desktop's viewer: records what it was asked to open.
class Visor : public QObject {
    Q_OBJECT
public:
    Visor() { QDesktopServices::setUrlHandler("file", this, "Abrir"); }
    ~Visor() override { QDesktopServices::unsetUrlHandler("file"); }
    std::vector<std::string> abiertos;
public slots:
    void Abrir(const QUrl& url) { abiertos.push_back(url.toLocalFile().toStdString()); }
};

TEST_F(Arrancado, HelpOpensTheGuideOfTheCurrentLanguage) {
    Visor visor;
    Entrada("mnuTemaAyuda")->trigger();
    ASSERT_EQ(cajas.vistas.size(), 1u) << "no guide beside the program";
    EXPECT_EQ(cajas.vistas[0].icono, kIconoStop);
    EXPECT_NE(cajas.vistas[0].texto.find(c.Ruta("Quintarena-Español.html").string()),
              std::string::npos)
        << cajas.vistas[0].texto;
    EXPECT_TRUE(visor.abiertos.empty());

    c.Escribir("Quintarena-Español.html", "<html></html>");
    c.Escribir("Quintarena-English.html", "<html></html>");
    Entrada("mnuTemaAyuda")->trigger();
    ASSERT_EQ(visor.abiertos.size(), 1u);
    EXPECT_EQ(visor.abiertos[0], c.Ruta("Quintarena-Español.html").string());

    // The language file is named in lower case by the options; the guide keeps the file's name.
    FijarIdioma("english.lng");
    Entrada("mnuTemaAyuda")->trigger();
    ASSERT_EQ(visor.abiertos.size(), 2u);
    EXPECT_EQ(visor.abiertos[1], c.Ruta("Quintarena-English.html").string());
    EXPECT_EQ(cajas.vistas.size(), 1u);
}

} // namespace

#include "servicios_test.moc"
