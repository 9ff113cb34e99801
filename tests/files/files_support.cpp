#include "files_support.h"

#include "files/epd_list.h"
#include "files/pgn_moves.h"
#include "files/pgn_scanner.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace prueba {

void ConFicheros::SetUp() {
    Partida::SetUp();
    ListaPgn::Descargar();
    Variables::FallaPgn = Variables::GuardandoPgn = false;
    FEpd::Eventos.clear();
    FEpd::EventosTag.clear();
    FEpd::EventosIndice = -1;
    FEpd::EpdEnviado = FEpd::VistaEpd = false;
    std::string plantilla =
        (std::filesystem::temp_directory_path() / "qa-files-test-XXXXXX").string();
    if (!mkdtemp(plantilla.data())) FAIL() << "no scratch folder";
    dir = plantilla;
}

void ConFicheros::TearDown() {
    std::error_code e;
    std::filesystem::permissions(dir, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, e);
    std::filesystem::remove_all(dir, e);
    ListaPgn::Descargar();
    Partida::TearDown();
}

std::string ConFicheros::Escribir(const std::string& nombre, const std::string& texto) {
    const std::string ruta = dir + "/" + nombre;
    std::ofstream(ruta, std::ios::binary) << texto;
    return ruta;
}

std::string ConFicheros::Leer(const std::string& ruta) const {
    std::ifstream in(ruta, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

std::string ConFicheros::Mensajes() const {
    std::string t;
    for (const auto& m : entorno.mensajes) t += (t.empty() ? "" : "|") + m.texto;
    return t;
}

std::string DatosReales() {
    const char* d = std::getenv("QA_TEST_DATA");
    return d ? d : "";
}

} // namespace prueba
