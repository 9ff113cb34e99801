// The engine form in the whole program: the new game opens it, the levels dialog sets what the
// engines are told, and real engines from the machine play each other to the end of a game,
// die under it, or go with the program, leaving no process behind.
#include "prueba_programa.h"

#include "core/environment.h"
#include "core/game_state.h"
#include "core/move_list.h"
#include "engine/motores.h"
#include "language/idioma.h"
#include "shell/arranque.h"
#include "shell/cpu.h"
#include "shell/entorno_programa.h"
#include "shell/ficheros_programa.h"
#include "shell/form_level2.h"
#include "shell/formularios.h"
#include "shell/jugadas.h"
#include "shell/mdi.h"
#include "shell/tablero_programa.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <vector>

using namespace qa;
using namespace Variables;

namespace {

bool Instalado(const char* motor) {
    return ::access((std::string("/usr/games/") + motor).c_str(), X_OK) == 0;
}

// Live processes (not zombies) and what their stat line says: name, parent, group.
struct Proceso {
    long pid, ppid, grupo;
    std::string nombre;
};
std::vector<Proceso> Procesos() {
    std::vector<Proceso> todos;
    for (const auto& d : std::filesystem::directory_iterator("/proc")) {
        const std::string n = d.path().filename().string();
        if (n.find_first_not_of("0123456789") != std::string::npos) continue;
        std::ifstream stat(d.path() / "stat");
        std::string texto;
        std::getline(stat, texto);
        const auto a = texto.find('('), b = texto.rfind(')');
        if (a == std::string::npos || b == std::string::npos || b + 4 >= texto.size()) continue;
        if (texto[b + 2] == 'Z') continue;
        char* resto = nullptr;
        const long ppid = std::strtol(texto.c_str() + b + 4, &resto, 10);
        const long grupo = std::strtol(resto, nullptr, 10);
        todos.push_back({std::stol(n), ppid, grupo, texto.substr(a + 1, b - a - 1)});
    }
    return todos;
}

// Our own children by the name of their program.
std::set<long> Hijos(const std::string& nombre) {
    std::set<long> pids;
    for (const auto& p : Procesos())
        if (p.nombre == nombre && p.ppid == ::getpid()) pids.insert(p.pid);
    return pids;
}

// Every live process of a group: an engine and whatever it started.
std::set<long> Grupo(long grupo) {
    std::set<long> pids;
    for (const auto& p : Procesos())
        if (p.grupo == grupo) pids.insert(p.pid);
    return pids;
}

class ProgramaConMotores : public ::testing::Test {
protected:
    prueba::Carpeta carpeta;
    prueba::Cajas cajas;
    Cpu* cpu = nullptr;

    void SetUp() override {
        // The same launchers the build leaves beside the program.
        const std::string orden = std::string("bash '") + QA_FUENTES + "/tools/make-engines.sh' '" +
                                  carpeta.Ruta().string() + "'";
        ASSERT_EQ(std::system(orden.c_str()), 0);
        InstalarEntornoPrograma();
        InstalarTablero();
        InstalarFicheros();
        ASSERT_TRUE(Main({"quintarena"}));
        cpu = Forms().cpu;
        ASSERT_NE(cpu, nullptr);
        cajas.vistas.clear(); // the questions of the start
    }
    void TearDown() override {
        if (Forms().mdi) Forms().mdi->close();
        RestablecerTodo();
    }
    FormLevel2& Niveles() { return *Forms().formLevel2; }
    const EstadoMotores& Estado() { return cpu->Sesion().Estado(); }
    void Elegir(int lista, const char* motor) {
        const int i = cpu->SMotor(lista)->findText(motor);
        ASSERT_GT(i, 0) << motor;
        cpu->SMotor(lista)->setCurrentIndex(i);
    }
    // The level through the dialog as a person sets it: option, value, accept.
    void Nivel(int opcion, int caja, const char* valor) {
        cpu->Boton(12)->trigger();
        ASSERT_TRUE(Niveles().isVisible());
        Niveles().Option1(opcion)->click();
        Niveles().TextBox(caja)->setText(valor);
        Niveles().Command2()->click();
    }
    // A game started from the form; "" for a person's side.
    void Empezar(const char* blancas, const char* negras) {
        Entrada("mnuNuevaPartida")->trigger();
        ASSERT_TRUE(cpu->isVisible());
        if (*blancas) Elegir(1, blancas);
        if (*negras) Elegir(2, negras);
        cpu->Boton(1)->trigger();
    }
    // None of our children runs these programs any more.
    static bool Acabados(std::initializer_list<const char*> nombres) {
        for (const char* n : nombres)
            if (!Hijos(n).empty()) return false;
        return true;
    }
    // A box of a failure of the console: "[ERROR] " and its text.
    bool HayError() const {
        for (const auto& c : cajas.vistas)
            if (c.texto.rfind("[ERROR] ", 0) == 0) return true;
        return false;
    }
    std::string Cajas() const {
        std::string todas;
        for (const auto& c : cajas.vistas) todas += "[" + c.texto + "] ";
        return todas;
    }
};

TEST_F(ProgramaConMotores, TheNewGameOpensTheFormWithTheEnginesOfTheMotorFolder) {
    Forms().mdi->Comando("mnuMovimientos");
    const bool listaAntes = Marcada("mnuMovimientos");
    Entrada("mnuNuevaPartida")->trigger();
    ASSERT_TRUE(cpu->isVisible());
    EXPECT_FALSE(Forms().jugadas->isVisible()) << "the form takes the panels' room";
    QComboBox* lista = cpu->SMotor(1);
    ASSERT_GE(lista->count(), 1);
    EXPECT_EQ(lista->itemText(0).toStdString(), TextoSinMotor);
    EXPECT_EQ(lista->currentIndex(), 0);
    for (const char* m : {"fairymax", "phalanx", "hoichess", "gnuchess", "sjeng", "stockfish"})
        EXPECT_EQ(lista->findText(m) > 0, Instalado(m)) << m;
    EXPECT_EQ(cpu->SMotor(2)->count(), lista->count());

    // A person on each side: the board for two.
    cpu->Boton(1)->trigger();
    EXPECT_EQ(Turno, 1);
    EXPECT_FALSE(MotorBlancas || MotorNegras);
    EXPECT_EQ(cpu->Text(6)->text(), "00:00");

    // The main menu's resign is the form's while it is up: with no engine it does nothing.
    Entrada("mnuRendirse")->trigger();
    EXPECT_EQ(Turno, 1);
    EXPECT_TRUE(cajas.vistas.empty()) << Cajas();

    cpu->close();
    EXPECT_FALSE(cpu->isVisible());
    EXPECT_EQ(Turno, 0) << "closing the form ends its game";
    EXPECT_EQ(Marcada("mnuMovimientos"), listaAntes) << "the panels come back as they were";
}

TEST_F(ProgramaConMotores, TheLevelsDialogHoldsTheSettingsAndOnlyItsAcceptApplies) {
    // The shipped settings: 5 seconds per move, on.
    EXPECT_EQ(Niveles().TextBox(1)->text(), "5");
    EXPECT_EQ(Niveles().TextBox(2)->text(), "6");
    EXPECT_TRUE(Niveles().Option1(1)->isChecked());
    EXPECT_EQ(Estado().NivelMotor, "st 5") << "ready before the dialog was ever opened";

    Entrada("mnuNuevaPartida")->trigger();
    Nivel(2, 3, "5");
    EXPECT_FALSE(Niveles().isVisible());
    EXPECT_EQ(Estado().NivelMotor, "level 40 5 0");

    cpu->Boton(12)->trigger();
    // Typed: "7" stays, "75" is cut to the limit; other keys do not type.
    QLineEdit* t1 = Niveles().TextBox(1);
    t1->clear();
    EXPECT_EQ(t1->text(), "1") << "an empty box shows 1 at once";
    t1->selectAll();
    QTest::keyClicks(t1, "7");
    EXPECT_EQ(t1->text(), "7");
    QTest::keyClicks(t1, "5x");
    EXPECT_EQ(t1->text(), "60");
    QPushButton* arriba = Niveles().Boton("SweetButton2");
    ASSERT_NE(arriba, nullptr);
    Niveles().TextBox(2)->setText("20");
    arriba->click();
    EXPECT_EQ(Niveles().TextBox(2)->text(), "20");
    Niveles().Option1(0)->click();
    // Closed by its frame: nothing of it reaches the engines.
    Niveles().close();
    EXPECT_EQ(Estado().NivelMotor, "level 40 5 0");

    // What the boxes show is what the settings keep.
    Forms().mdi->close();
    const std::string ini = carpeta.Leer("Default.ini");
    EXPECT_NE(ini.find("St=60"), std::string::npos) << ini;
    EXPECT_NE(ini.find("Sd=20"), std::string::npos);
    EXPECT_NE(ini.find("Option=0"), std::string::npos);
}

TEST_F(ProgramaConMotores, FairymaxAgainstPhalanxPlaysToTheEndOfTheGame) {
    if (!Instalado("fairymax") || !Instalado("phalanx"))
        GTEST_SKIP()
            << "fairymax or phalanx is not installed (tools/install-deps.sh installs both)";
    Entrada("mnuNuevaPartida")->trigger();
    Nivel(0, 2, "2"); // a short think: the game is over in moments
    Empezar("fairymax", "phalanx");
    ASSERT_TRUE(prueba::Esperar([] { return !Jugadas::List1.empty(); }, 60000)) << Cajas();
    ASSERT_TRUE(prueba::Esperar([] { return !MotorBlancas && !MotorNegras; }, 600000))
        << Jugadas::List1.size() << " moves";
    EXPECT_EQ(Turno, 0);
    const bool enTablero = Mate || Ahogado;
    EXPECT_TRUE(enTablero || !cajas.vistas.empty()) << "an ending the user is told of";
    std::cout << "[ ENDING   ] after " << Jugadas::List1.size()
              << " moves: " << (enTablero ? "mate or stalemate on the board" : Cajas()) << "\n";
    EXPECT_TRUE(prueba::Esperar([] { return Acabados({"fairymax", "phalanx"}); }));
}

TEST_F(ProgramaConMotores, AnEngineKilledMidGameEndsItAndANewGameStartsAtOnce) {
    if (!Instalado("fairymax"))
        GTEST_SKIP() << "fairymax is not installed (tools/install-deps.sh installs it)";
    Entrada("mnuNuevaPartida")->trigger();
    Nivel(1, 1, "1");
    Empezar("fairymax", "");
    // The engine has moved and waits for the person's move.
    ASSERT_TRUE(prueba::Esperar([] { return Jugadas::List1.size() == 1 && Turno == 2; }, 60000))
        << Cajas();
    const auto motor = Hijos("fairymax");
    ASSERT_EQ(motor.size(), 1u);
    ::kill(static_cast<pid_t>(*motor.begin()), SIGKILL);

    ASSERT_TRUE(prueba::Esperar([&] { return HayError(); }, 20000)) << Cajas();
    EXPECT_FALSE(MotorBlancas || MotorNegras);
    EXPECT_EQ(Turno, 0);

    // The program goes on: a game for two people at once.
    cpu->SMotor(1)->setCurrentIndex(0);
    cpu->Boton(1)->trigger();
    EXPECT_EQ(Turno, 1);
}

TEST_F(ProgramaConMotores, NoEngineOutlivesTheProgram) {
    if (!Instalado("fairymax") || !Instalado("phalanx"))
        GTEST_SKIP()
            << "fairymax or phalanx is not installed (tools/install-deps.sh installs both)";
    Entrada("mnuNuevaPartida")->trigger();
    Nivel(1, 1, "30"); // still thinking when the program goes
    Empezar("fairymax", "phalanx");
    ASSERT_TRUE(prueba::Esperar(
        [] { return Hijos("fairymax").size() == 1 && Hijos("phalanx").size() == 1; }, 60000))
        << Cajas();
    Forms().mdi->close();
    EXPECT_TRUE(prueba::Esperar([] { return Acabados({"fairymax", "phalanx"}); }));
}

// The engines the README says play make their first move against a person; the one that
// ends on the first error it meets ends the game with the failure at once.
TEST_F(ProgramaConMotores, EachEngineThatPlaysMakesItsFirstMoveAsWhite) {
    int probados = 0;
    for (const char* motor : {"fairymax", "phalanx", "sjeng", "stockfish"}) {
        if (!Instalado(motor)) continue;
        ++probados;
        Entrada("mnuNuevaPartida")->trigger();
        Nivel(1, 1, "1");
        Empezar(motor, "");
        EXPECT_TRUE(prueba::Esperar([] { return Jugadas::List1.size() == 1 && Turno == 2; }, 60000))
            << motor << ": " << Cajas();
        const std::string nombre = motor == std::string("stockfish") ? "polyglot" : motor;
        const auto pids = Hijos(nombre);
        ASSERT_EQ(pids.size(), 1u) << motor;
        // stockfish runs under its adapter, in the adapter's group.
        const long grupo = *pids.begin();
        EXPECT_GE(Grupo(grupo).size(), motor == std::string("stockfish") ? 2u : 1u) << motor;
        cpu->close();
        EXPECT_TRUE(prueba::Esperar([grupo] { return Grupo(grupo).empty(); })) << motor;
    }
    if (probados == 0) GTEST_SKIP() << "none of the engines is installed (tools/install-deps.sh)";
}

TEST_F(ProgramaConMotores, HoichessEndsTheGameAtOnceWithItsExit) {
    if (!Instalado("hoichess"))
        GTEST_SKIP() << "hoichess is not installed (tools/install-deps.sh installs it)";
    Entrada("mnuNuevaPartida")->trigger();
    Elegir(1, "hoichess");
    cpu->Boton(1)->trigger();
    ASSERT_TRUE(prueba::Esperar([&] { return HayError(); }, 20000)) << Cajas();
    EXPECT_FALSE(MotorBlancas);
    EXPECT_TRUE(Jugadas::List1.empty());
    EXPECT_TRUE(prueba::Esperar([] { return Hijos("hoichess").empty(); }));
}

} // namespace
