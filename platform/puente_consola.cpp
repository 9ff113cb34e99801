#include "platform/puente_consola.h"

#include <QFileInfo>
#include <QProcess>
#include <algorithm>
#include <csignal>
#include <cstring>
#include <mutex>
#include <set>
#include <sys/prctl.h>
#include <unistd.h>

namespace qa {

namespace {

// Groups of the programs that run, for `TerminarTodasLasConsolas`.
std::mutex g_mutex;
std::set<long long>& Grupos() {
    static std::set<long long> grupos;
    return grupos;
}

void Anotar(long long grupo, bool corre) {
    std::lock_guard lock(g_mutex);
    if (corre)
        Grupos().insert(grupo);
    else
        Grupos().erase(grupo);
}

void MatarGrupo(long long grupo, int senal) {
    if (grupo > 1) ::kill(static_cast<pid_t>(-grupo), senal);
}

void AlSalir() {
    TerminarTodasLasConsolas();
}

} // namespace

void TerminarTodasLasConsolas() {
    std::lock_guard lock(g_mutex);
    for (long long g : Grupos()) MatarGrupo(g, SIGKILL);
    Grupos().clear();
}

PuenteConsola::PuenteConsola() : existe_(std::make_shared<bool>(true)) {
    static const bool registrado = [] { return std::atexit(AlSalir) == 0; }();
    (void)registrado;
}

PuenteConsola::~PuenteConsola() {
    Terminar();
    *existe_ = false;
}

bool PuenteConsola::Ejecutando() const {
    return proceso_ && proceso_->state() != QProcess::NotRunning;
}

bool PuenteConsola::Ejecutar(const std::string& ruta) {
    Terminar();
    auto p = std::make_unique<QProcess>();
    const QString programa = QString::fromStdString(ruta);
    p->setProgram(programa);
    p->setWorkingDirectory(QFileInfo(programa).absolutePath());
    // What the engine writes on its standard error goes to ours, not to the line reader: a
    // diagnostic there is no answer of the protocol.
    p->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    p->setChildProcessModifier([] {
        // A group of its own, so the whole family can be signalled at once; and killed when we
        // die without the chance to end it.
        ::setsid();
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    });
    p->start(QIODevice::ReadWrite);
    if (!p->waitForStarted(5000)) {
        p->kill();
        p->waitForFinished(1000);
        return false;
    }
    proceso_ = std::move(p);
    grupo_ = proceso_->processId();
    Anotar(grupo_, true);
    pendiente_.clear();
    descartando_ = false;
    cola_.clear();
    vivo_ = std::make_shared<bool>(true);

    auto existe = existe_;
    QObject::connect(proceso_.get(), &QProcess::readyReadStandardOutput, [this, existe] {
        ++enAviso_;
        Leer();
        if (*existe) --enAviso_;
    });
    QObject::connect(proceso_.get(), &QProcess::finished,
                     [this, existe](int codigo, QProcess::ExitStatus estado) {
                         ++enAviso_;
                         AlAcabar(codigo, estado == QProcess::CrashExit);
                         if (*existe) --enAviso_;
                     });
    return true;
}

void PuenteConsola::Enviar(const std::string& texto) {
    if (!Ejecutando()) return;
    std::string salida;
    salida.reserve(texto.size() + 1);
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if (texto[i] == '\r' && i + 1 < texto.size() && texto[i + 1] == '\n') continue;
        salida += texto[i];
    }
    if (salida.empty() || salida.back() != '\n') salida += '\n';
    proceso_->write(salida.data(), static_cast<qint64>(salida.size()));
}

void PuenteConsola::Leer() {
    if (!proceso_) return;
    const QByteArray datos = proceso_->readAllStandardOutput();
    Partir(datos.constData(), static_cast<std::size_t>(datos.size()));
    Entregar();
}

void PuenteConsola::Partir(const char* datos, std::size_t n) {
    std::size_t i = 0;
    while (i < n) {
        const char* fin = static_cast<const char*>(std::memchr(datos + i, '\n', n - i));
        const std::size_t hasta = fin ? static_cast<std::size_t>(fin - datos) : n;
        if (!descartando_) {
            pendiente_.append(datos + i, hasta - i);
            if (pendiente_.size() > kLineaMaxima) {
                pendiente_.clear();
                descartando_ = true;
            }
        }
        if (!fin) break;
        if (!descartando_) {
            if (!pendiente_.empty() && pendiente_.back() == '\r') pendiente_.pop_back();
            Encolar(std::move(pendiente_));
        }
        pendiente_.clear();
        descartando_ = false;
        i = hasta + 1;
    }
}

void PuenteConsola::Encolar(std::string linea) {
    if (bytesCola_ + linea.size() > kColaMaxima) return;
    bytesCola_ += linea.size();
    cola_.push_back({false, std::move(linea)});
}

void PuenteConsola::Entregar() {
    // A handler that runs the event loop brings us back here: what comes meanwhile waits in the
    // queue for the loop below, so reports keep their order and never nest.
    if (entregando_) return;
    const auto existe = existe_;
    entregando_ = true;
    while (vivo_ && *vivo_ && !cola_.empty()) {
        Aviso aviso = std::move(cola_.front());
        cola_.pop_front();
        if (aviso.error) {
            Soltar();
            if (alErrorRecibido) alErrorRecibido(aviso.texto);
        } else {
            bytesCola_ -= aviso.texto.size();
            if (alDatoRecibido) alDatoRecibido(aviso.texto);
        }
        if (!*existe) return;
    }
    entregando_ = false;
}

void PuenteConsola::AlAcabar(int codigo, bool caido) {
    if (!proceso_) return;
    const QByteArray resto = proceso_->readAllStandardOutput();
    Partir(resto.constData(), static_cast<std::size_t>(resto.size()));
    if (!pendiente_.empty() && !descartando_) Encolar(std::move(pendiente_));
    pendiente_.clear();
    // Whatever the program started and left behind goes with it.
    MatarGrupo(grupo_, SIGKILL);
    cola_.push_back({true, caido ? "the engine stopped on signal " + std::to_string(codigo)
                                 : "the engine ended with exit status " + std::to_string(codigo)});
    Entregar();
}

void PuenteConsola::Terminar() {
    if (!proceso_) return;
    QProcess& p = *proceso_;
    QObject::disconnect(&p, nullptr, nullptr, nullptr);
    if (p.state() != QProcess::NotRunning) {
        p.closeWriteChannel();
        if (!p.waitForFinished(kEsperaPedir)) {
            MatarGrupo(grupo_, SIGTERM);
            if (!p.waitForFinished(kEsperaTerminar)) {
                MatarGrupo(grupo_, SIGKILL);
                p.waitForFinished(2000);
            }
        }
    }
    Soltar();
}

void PuenteConsola::Soltar() {
    if (vivo_) *vivo_ = false;
    vivo_.reset();
    cola_.clear();
    bytesCola_ = 0;
    pendiente_.clear();
    descartando_ = false;
    // Whatever the program started and left behind goes with it.
    MatarGrupo(grupo_, SIGKILL);
    Anotar(grupo_, false);
    grupo_ = 0;
    if (!proceso_) return;
    QObject::disconnect(proceso_.get(), nullptr, nullptr, nullptr);
    if (proceso_->state() != QProcess::NotRunning) {
        proceso_->kill();
        proceso_->waitForFinished(2000);
    }
    // Never delete the process from inside one of its own signals.
    if (enAviso_ > 0)
        proceso_.release()->deleteLater();
    else
        proceso_.reset();
}

} // namespace qa
