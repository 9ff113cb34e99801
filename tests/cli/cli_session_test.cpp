// The console session over many games: what it has printed it does not keep.
#include "core/environment.h"
#include "core/recorder.h"
#include "shell/cli/cli_session.h"

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
