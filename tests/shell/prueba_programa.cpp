#include "prueba_programa.h"

#include "platform/ini_file.h"
#include "shell/arranque.h"
#include "shell/enlaces.h"
#include "shell/idioma.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace fs = std::filesystem;

namespace prueba {

Carpeta::Carpeta() {
    static int n = 0;
    dir_ = fs::temp_directory_path() /
           ("qa-shell-" + std::to_string(::getpid()) + "-" + std::to_string(++n));
    fs::remove_all(dir_);
    fs::create_directories(dir_);
    const fs::path origen = QCoreApplication::applicationDirPath().toStdString();
    for (const char* f : {"Default.ini", "Español.lng", "English.lng"})
        fs::copy_file(origen / f, dir_ / f);
    fs::copy(origen / "Sonidos", dir_ / "Sonidos", fs::copy_options::recursive);
    // Registration goes to the scratch folder, never to the user's own data.
    ::setenv("XDG_DATA_HOME", (dir_ / "share").c_str(), 1);
    qa::FijarCarpetaPrograma(dir_.string());
    qa::Mensajes.fill(""); // a fresh process knows no texts before its language is loaded
}

Carpeta::~Carpeta() {
    qa::LiberarFormularios();
    qa::Enlace() = qa::Enlaces{};
    qa::FijarCarpetaPrograma("");
    std::error_code ec;
    fs::remove_all(dir_, ec);
}

std::string Carpeta::Leer(const std::string& nombre) const {
    std::ifstream in(dir_ / nombre, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void Carpeta::Escribir(const std::string& nombre, const std::string& bytes) const {
    std::ofstream(dir_ / nombre, std::ios::binary | std::ios::trunc) << bytes;
}

void Carpeta::Ajustar(const std::string& seccion, const std::string& clave,
                      const std::string& valor) {
    qa::EscribirIni((dir_ / "Default.ini").string(), seccion, clave, valor);
}

Cajas::Cajas() {
    qa::FijarPresentadorMensajes([this](const qa::CMensaje& m) {
        vistas.push_back({m.Titulo, m.Texto, m.Icono, m.Botones});
        if (m.Botones != qa::kBotonesSiNo) return 1;
        if (respuestas.empty()) return qa::kRespuestaNo;
        int r = respuestas.front();
        respuestas.pop_front();
        return r;
    });
}

Cajas::~Cajas() {
    qa::FijarPresentadorMensajes(nullptr);
}

bool Cajas::Hay(const std::string& texto) const {
    for (const auto& c : vistas)
        if (c.texto == texto) return true;
    return false;
}

bool Esperar(const std::function<bool()>& condicion, int milisegundos) {
    QElapsedTimer reloj;
    reloj.start();
    while (!condicion()) {
        if (reloj.elapsed() > milisegundos) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(5);
    }
    return true;
}

} // namespace prueba
