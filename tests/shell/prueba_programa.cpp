#include "prueba_programa.h"

#include "board/pic_buffer.h"
#include "core/recorder.h"
#include "language/idioma.h"
#include "platform/ini_file.h"
#include "shell/arranque.h"
#include "shell/enlaces.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QThread>
#include <QTimer>
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
    const fs::path origen = QA_DATOS;
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
    InstalarRegistro(nullptr); // the core's doors go back to the recorder
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
    Instalar();
}

void Cajas::Instalar() {
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

QPoint Centro(const qa::PicBuffer& p, const char* casilla) {
    const auto [c, f] = p.Convertir(casilla[0] - 'a' + 1, casilla[1] - '0');
    return p.Esquina(c, f) + QPoint(p.AnchoCasilla / 2, p.AltoCasilla / 2);
}

void Arrastrar(qa::PicBuffer& p, const char* jugada) {
    const QPoint a = Centro(p, jugada), b = Centro(p, jugada + 2);
    QTest::mousePress(&p, Qt::LeftButton, {}, a);
    QTest::mouseMove(&p, (a + b) / 2);
    QTest::mouseMove(&p, b);
    QTest::mouseRelease(&p, Qt::LeftButton, {}, b);
}

void AlAbrirse(const char* clase, std::function<void(QWidget*)> hacer) {
    auto* reloj = new QTimer;
    reloj->setInterval(10);
    QObject::connect(reloj, &QTimer::timeout, [reloj, clase, hacer] {
        QWidget* w = QApplication::activeModalWidget();
        if (!w || !w->isVisible() || !w->inherits(clase)) return;
        reloj->stop();
        reloj->deleteLater();
        hacer(w);
    });
    reloj->start();
}

TextosQt LeerTextosQt(const std::filesystem::path& carpeta, Cajas& cajas) {
    TextosQt t;
    qa::FijarPresentadorMensajes(nullptr);
    AlAbrirse("QMessageBox", [&](QWidget* w) {
        auto* caja = static_cast<QMessageBox*>(w);
        for (QAbstractButton* b : caja->buttons()) t.botones << b->text();
        caja->button(QMessageBox::No)->click();
    });
    qa::MostrarMensaje("Quintarena", "14", qa::kIconoPregunta, qa::kBotonesSiNo);

    const std::string existente = (carpeta / "existe.txt").string();
    std::ofstream(existente) << "x";
    AlAbrirse("QFileDialog", [&](QWidget* w) {
        auto* d = static_cast<QFileDialog*>(w);
        if (auto* l = d->findChild<QLabel*>("lookInLabel")) t.buscarEn = l->text();
        if (auto* l = d->findChild<QLabel*>("fileNameLabel")) t.nombre = l->text();
        if (auto* b = d->findChild<QDialogButtonBox*>("buttonBox"))
            t.guardar = b->button(QDialogButtonBox::Save)
                            ? b->button(QDialogButtonBox::Save)->text()
                            : QString();
        AlAbrirse("QMessageBox", [&](QWidget* caja) {
            t.existe = static_cast<QMessageBox*>(caja)->text();
            static_cast<QMessageBox*>(caja)->button(QMessageBox::No)->click();
        });
        d->selectFile(QString::fromStdString(existente));
        QMetaObject::invokeMethod(d, "accept");
        d->reject();
    });
    qa::DialogoFichero(2, "Quintarena", "", {{"Texto", "*.txt"}}, 1, carpeta.string());
    cajas.Instalar();
    return t;
}

} // namespace prueba
