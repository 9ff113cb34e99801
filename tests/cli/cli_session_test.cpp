// The console session over many games: what it has printed it does not keep.
#include "core/environment.h"
#include "core/recorder.h"
#include "shell/cli/cli_session.h"
#include "shell/cli/traza.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

TEST(SesionCli, KeepsNoRecordOfWhatItPrinted) {
    std::ostringstream salida, errores;
    SesionCli sesion(salida, errores);
    auto* registro = dynamic_cast<EntornoRegistro*>(&dialogos());
    ASSERT_NE(registro, nullptr);
    for (int i = 0; i < 50; ++i)
        for (const char* l : {"new", "move 6263", "move 5755", "move 7274", "move 4884"})
            sesion.Ejecutar(l);
    sesion.Ejecutar("pgn /");
    EXPECT_NE(salida.str().find("legal check mate"), std::string::npos);
    EXPECT_NE(errores.str().find("message "), std::string::npos) << "the mate is told";
    EXPECT_TRUE(registro->mensajes.empty());
    EXPECT_TRUE(registro->sonidos.empty());
    EXPECT_TRUE(registro->resultados.empty());
    EXPECT_TRUE(registro->llamadas.empty());
}

} // namespace

namespace {

TEST(TextoVisible, EscapesWhatWouldBreakALine) {
    EXPECT_EQ(TextoVisible("Movimiento 52540"), "Movimiento 52540");
    EXPECT_EQ(TextoVisible(std::string("a\0b", 3)), "a\\x00b");
    EXPECT_EQ(TextoVisible("Ping\r\n"), "Ping\\x0D\\x0A");
    EXPECT_EQ(TextoVisible("\\x41\x7f\x1b"), "\\x5Cx41\\x7F\\x1B");
    EXPECT_EQ(TextoVisible("versi\xc3\xb3n"), "versi\xc3\xb3n") << "letters beyond ASCII pass";
}

TEST(SesionCli, AnswersWaitForTheBoxesInOrder) {
    std::ostringstream salida, errores;
    SesionCli sesion(salida, errores);
    sesion.Ejecutar("answer no text Ana");
    EXPECT_EQ(salida.str(), "ok\n");
    EXPECT_EQ(dialogos().MostrarMensaje("t", "q", 32, qa::kBotonesSiNo, 0), qa::kRespuestaNo);
    EXPECT_EQ(dialogos().MostrarMensaje("t", "q", 32, qa::kBotonesSiNo, 0), qa::kRespuestaSi)
        << "none waiting: the default button";
    EXPECT_EQ(dialogos().PedirTexto("p", "t"), "Ana");
    EXPECT_FALSE(sesion.CajaSinRespuesta());
    EXPECT_EQ(dialogos().PedirTexto("p", "t"), "");
    EXPECT_TRUE(sesion.CajaSinRespuesta());
    EXPECT_NE(salida.str().find("error no answer waiting for the input box\n"), std::string::npos);
    EXPECT_NE(errores.str().find("input t: p\n"), std::string::npos);
    salida.str("");
    sesion.Ejecutar("answer yes text");
    EXPECT_EQ(salida.str(), "error answer takes yes, no or text WORD\n");
    EXPECT_EQ(dialogos().MostrarMensaje("t", "q", 32, qa::kBotonesSiNo, qa::kSegundoPorDefecto),
              qa::kRespuestaNo)
        << "a refused command leaves nothing waiting";
}

} // namespace
