// The console bridge against real processes: small shell scripts kept beside this file.
#include "platform/puente_consola.h"

#include "esperar.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <string>
#include <vector>

namespace {

std::string Guion(const char* nombre) {
    return std::string(QA_CONSOLA) + "/" + nombre;
}

// True while the process exists and is not a zombie.
bool Existe(long pid) {
    std::ifstream stat("/proc/" + std::to_string(pid) + "/stat");
    if (!stat) return false;
    std::string texto;
    std::getline(stat, texto);
    const auto cierre = texto.rfind(')');
    return cierre != std::string::npos && cierre + 2 < texto.size() && texto[cierre + 2] != 'Z';
}

struct Escucha {
    qa::PuenteConsola puente;
    std::vector<std::string> lineas;
    std::vector<std::string> errores;
    Escucha() {
        puente.alDatoRecibido = [this](const std::string& l) { lineas.push_back(l); };
        puente.alErrorRecibido = [this](const std::string& e) { errores.push_back(e); };
    }
    bool Esperar(std::size_t n, int ms = 10000) {
        return qa::prueba::EsperarA([&] { return lineas.size() >= n; }, ms);
    }
    // The pid a script printed as "WORD pid".
    long Pid(const std::string& palabra) {
        if (!Esperar(1)) return 0;
        return lineas[0].rfind(palabra + " ", 0) == 0 ? std::stol(lineas[0].substr(palabra.size()))
                                                      : 0;
    }
};

// A round trip with another program: whatever a stale report would do, it has had its chance.
bool OtraVuelta() {
    Escucha otro;
    if (!otro.puente.Ejecutar(Guion("eco.sh"))) return false;
    otro.puente.Enviar("x");
    return otro.Esperar(1);
}

TEST(PuenteConsola, CommandsReachTheProgramAsLinesEachEnded) {
    Escucha e;
    ASSERT_TRUE(e.puente.Ejecutar(Guion("eco.sh")));
    e.puente.Enviar("xboard\r\nprotover 2\r\nnew\r\n");
    e.puente.Enviar("post\r\neasy");
    e.puente.Enviar("e2e4");
    ASSERT_TRUE(e.Esperar(6));
    EXPECT_EQ(e.lineas, (std::vector<std::string>{"got:xboard", "got:protover 2", "got:new",
                                                  "got:post", "got:easy", "got:e2e4"}));
    e.puente.Terminar();
    EXPECT_TRUE(e.errores.empty());
}

TEST(PuenteConsola, OutputIsSplitIntoWholeLinesAfterEitherLineEnd) {
    Escucha e;
    ASSERT_TRUE(e.puente.Ejecutar(Guion("trozos.sh")));
    ASSERT_TRUE(e.Esperar(3));
    EXPECT_EQ(e.lineas, (std::vector<std::string>{"uno", "dos", "tres"}));
    // "cua" came in the same write as "tres"; it waits for its end.
    e.puente.Enviar("sigue");
    ASSERT_TRUE(e.Esperar(4));
    EXPECT_EQ(e.lineas.back(), "cuatro");
    EXPECT_EQ(e.lineas.size(), 4u);
}

TEST(PuenteConsola, AnOverlongLineIsDroppedWholeAndTheNextLinesStillCome) {
    Escucha e;
    ASSERT_TRUE(e.puente.Ejecutar(Guion("largo.sh")));
    ASSERT_TRUE(e.Esperar(2, 60000));
    ASSERT_EQ(e.lineas.size(), 2u);
    EXPECT_EQ(e.lineas[0], std::string(1000, 'b'));
    EXPECT_EQ(e.lineas[1], "fin");
}

TEST(PuenteConsola, BinaryBytesPassAsTheyCame) {
    Escucha e;
    ASSERT_TRUE(e.puente.Ejecutar(Guion("binario.sh")));
    ASSERT_TRUE(e.Esperar(2));
    EXPECT_EQ(e.lineas[0], std::string("a\0b\001\377", 5));
    EXPECT_EQ(e.lineas[1], "despues");
}

TEST(PuenteConsola, AFloodArrivesWholeAndInOrder) {
    Escucha e;
    ASSERT_TRUE(e.puente.Ejecutar(Guion("riada.sh")));
    ASSERT_TRUE(e.Esperar(100000, 60000));
    bool enOrden = true;
    for (std::size_t i = 0; i < e.lineas.size(); ++i)
        enOrden = enOrden && e.lineas[i] == std::to_string(i + 1);
    EXPECT_TRUE(enOrden);
    EXPECT_EQ(e.lineas.size(), 100000u);
}

TEST(PuenteConsola, AHandlerThatEndsTheProgramStopsTheDeliveryAtOnce) {
    Escucha e;
    e.puente.alDatoRecibido = [&](const std::string& l) {
        e.lineas.push_back(l);
        if (l == "10") e.puente.Terminar();
    };
    ASSERT_TRUE(e.puente.Ejecutar(Guion("riada.sh")));
    ASSERT_TRUE(e.Esperar(10));
    EXPECT_FALSE(e.puente.Ejecutando());
    ASSERT_TRUE(OtraVuelta());
    EXPECT_EQ(e.lineas.size(), 10u);
    EXPECT_TRUE(e.errores.empty());
}

TEST(PuenteConsola, AHandlerRunningTheEventLoopIsNeverEnteredAgain) {
    Escucha e;
    int dentro = 0, maximo = 0;
    auto entrar = [&] { maximo = std::max(maximo, ++dentro); };
    e.puente.alDatoRecibido = [&](const std::string& l) {
        entrar();
        e.lineas.push_back(l);
        // A modal box would do this.
        if (l == "5" || l == "99999") qa::prueba::Girar(100);
        --dentro;
    };
    e.puente.alErrorRecibido = [&](const std::string& t) {
        entrar();
        e.errores.push_back(t);
        --dentro;
    };
    ASSERT_TRUE(e.puente.Ejecutar(Guion("riada.sh")));
    ASSERT_TRUE(e.Esperar(100000, 60000));
    bool enOrden = true;
    for (std::size_t i = 0; i < e.lineas.size(); ++i)
        enOrden = enOrden && e.lineas[i] == std::to_string(i + 1);
    EXPECT_TRUE(enOrden);
    EXPECT_EQ(maximo, 1);
    // The end of a program is reported after its last line's handler has returned.
    ASSERT_TRUE(e.puente.Ejecutar(Guion("sale.sh")));
    e.puente.alDatoRecibido = [&](const std::string& l) {
        entrar();
        e.lineas.push_back(l);
        qa::prueba::Girar(200);
        --dentro;
    };
    ASSERT_TRUE(qa::prueba::EsperarA([&] { return !e.errores.empty(); }, 10000));
    EXPECT_EQ(e.lineas.back(), "adios");
    EXPECT_EQ(maximo, 1);
}

TEST(PuenteConsola, AProgramThatEndsByItselfIsReportedAfterItsLastWords) {
    Escucha e;
    ASSERT_TRUE(e.puente.Ejecutar(Guion("sale.sh")));
    ASSERT_TRUE(qa::prueba::EsperarA([&] { return !e.errores.empty(); }, 10000));
    EXPECT_EQ(e.lineas, (std::vector<std::string>{"adios"}));
    ASSERT_EQ(e.errores.size(), 1u);
    EXPECT_NE(e.errores[0].find('7'), std::string::npos);
    EXPECT_FALSE(e.puente.Ejecutando());
    e.puente.Enviar("nadie escucha");
}

TEST(PuenteConsola, AProgramDyingMidGameIsReported) {
    Escucha e;
    ASSERT_TRUE(e.puente.Ejecutar(Guion("eco.sh")));
    e.puente.Enviar("e2e4");
    ASSERT_TRUE(e.Esperar(1));
    e.puente.Enviar("muere");
    ASSERT_TRUE(qa::prueba::EsperarA([&] { return !e.errores.empty(); }, 10000));
    EXPECT_EQ(e.lineas.back(), "got:muere");
    EXPECT_NE(e.errores[0].find('3'), std::string::npos);
    // The same bridge runs the next program.
    ASSERT_TRUE(e.puente.Ejecutar(Guion("eco.sh")));
    e.puente.Enviar("otra");
    ASSERT_TRUE(e.Esperar(3));
    EXPECT_EQ(e.lineas.back(), "got:otra");
    EXPECT_EQ(e.errores.size(), 1u);
}

TEST(PuenteConsola, WhatCannotStartFailsWithoutAReport) {
    Escucha e;
    EXPECT_FALSE(e.puente.Ejecutar(Guion("no_hay.sh")));
    EXPECT_FALSE(e.puente.Ejecutar(Guion("no_ejecutable.sh")));
    EXPECT_FALSE(e.puente.Ejecutar(QA_CONSOLA));
    EXPECT_FALSE(e.puente.Ejecutando());
    e.puente.Enviar("hola");
    e.puente.Terminar();
    ASSERT_TRUE(OtraVuelta());
    EXPECT_TRUE(e.errores.empty());
    EXPECT_TRUE(e.lineas.empty());
}

TEST(PuenteConsola, ADeafProgramIsKilledWithinTheBoundAndReportsNothing) {
    Escucha e;
    ASSERT_TRUE(e.puente.Ejecutar(Guion("sordo.sh")));
    const long pid = e.Pid("pid");
    ASSERT_GT(pid, 0);
    e.puente.Enviar("quit");
    QElapsedTimer reloj;
    reloj.start();
    e.puente.Terminar();
    EXPECT_LT(reloj.elapsed(), 4000);
    EXPECT_FALSE(Existe(pid));
    EXPECT_FALSE(e.puente.Ejecutando());
    ASSERT_TRUE(OtraVuelta());
    EXPECT_TRUE(e.errores.empty());
}

TEST(PuenteConsola, NoChildOfALauncherOutlivesIt) {
    Escucha e;
    ASSERT_TRUE(e.puente.Ejecutar(Guion("lanzador.sh")));
    const long hijo = e.Pid("hijo");
    ASSERT_GT(hijo, 0);
    ASSERT_TRUE(Existe(hijo));
    e.puente.Terminar();
    EXPECT_TRUE(qa::prueba::EsperarA([&] { return !Existe(hijo); }, 5000));
}

TEST(PuenteConsola, TheDestructorEndsTheProgramAndItsChildren) {
    long hijo = 0;
    {
        Escucha e;
        ASSERT_TRUE(e.puente.Ejecutar(Guion("lanzador.sh")));
        hijo = e.Pid("hijo");
        ASSERT_GT(hijo, 0);
    }
    EXPECT_TRUE(qa::prueba::EsperarA([&] { return !Existe(hijo); }, 5000));
}

TEST(PuenteConsola, TheEndOfTheProgramKillsWhatStillRuns) {
    Escucha e;
    ASSERT_TRUE(e.puente.Ejecutar(Guion("lanzador.sh")));
    const long hijo = e.Pid("hijo");
    ASSERT_GT(hijo, 0);
    qa::TerminarTodasLasConsolas();
    EXPECT_TRUE(qa::prueba::EsperarA([&] { return !Existe(hijo); }, 5000));
}

TEST(PuenteConsola, StandardErrorDoesNotReachTheLines) {
    Escucha e;
    ASSERT_TRUE(e.puente.Ejecutar(Guion("errores.sh")));
    ASSERT_TRUE(e.Esperar(1));
    e.puente.Enviar("fin");
    ASSERT_TRUE(qa::prueba::EsperarA([&] { return !e.errores.empty(); }, 10000));
    EXPECT_EQ(e.lineas, (std::vector<std::string>{"ok"}));
}

} // namespace
