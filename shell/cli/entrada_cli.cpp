#include "shell/cli/entrada_cli.h"

#include "shell/cli/cli_session.h"

#include <cerrno>
#include <charconv>
#include <ostream>
#include <unistd.h>

EntradaCli::EntradaCli(SesionCli& sesion, const std::string& leido, bool fin,
                       std::function<void()> alTerminar)
    : sesion_(sesion), alTerminar_(std::move(alTerminar)) {
    espera_.setSingleShot(true);
    espera_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&espera_, &QTimer::timeout, [this] {
        esperando_ = false;
        sesion_.Salida() << "ok" << std::endl;
        Avanzar();
    });
    Tomar(leido.data(), leido.size());
    if (fin) {
        // Descriptor 0 may be closed, and its number taken by one of Qt's own since.
        Acabar();
    } else {
        notificador_ = std::make_unique<QSocketNotifier>(0, QSocketNotifier::Read);
        notificador_->setEnabled(false);
        QObject::connect(notificador_.get(), &QSocketNotifier::activated, [this] { Leer(); });
    }
    QTimer::singleShot(0, &contexto_, [this] { Avanzar(); });
}

// One read of what is there: the notifier says it will not block.
void EntradaCli::Leer() {
    char buf[65536];
    ssize_t n;
    do {
        n = ::read(0, buf, sizeof buf);
    } while (n < 0 && errno == EINTR);
    if (n < 0 && errno == EAGAIN) return;
    if (n <= 0)
        Acabar();
    else
        Tomar(buf, static_cast<size_t>(n));
    Avanzar();
}

void EntradaCli::Tomar(const char* datos, size_t n) {
    resto_.append(datos, n);
    size_t ini = 0;
    for (size_t fin; (fin = resto_.find('\n', ini)) != std::string::npos; ini = fin + 1)
        lineas_.emplace_back(resto_, ini, fin - ini);
    resto_.erase(0, ini);
}

void EntradaCli::Acabar() {
    fin_ = true;
    if (notificador_) notificador_->setEnabled(false);
    if (!resto_.empty()) lineas_.push_back(std::move(resto_));
    resto_.clear();
}

int EntradaCli::retenida_ = 0;

void EntradaCli::Retener(bool retener) {
    retenida_ += retener ? 1 : -1;
}

void EntradaCli::Avanzar() {
    // A command that lets events run must not start the next one inside itself.
    if (enCurso_) return;
    if (retenida_ > 0) {
        QTimer::singleShot(1, &contexto_, [this] { Avanzar(); });
        return;
    }
    enCurso_ = true;
    while (!esperando_ && !lineas_.empty()) {
        std::string linea = std::move(lineas_.front());
        lineas_.pop_front();
        const size_t a = linea.find_first_not_of(" \t\r");
        if (a != std::string::npos && linea.compare(a, 4, "wait") == 0 &&
            (linea.size() == a + 4 || linea[a + 4] == ' ' || linea[a + 4] == '\t' ||
             linea[a + 4] == '\r')) {
            esperando_ = Esperar(linea.substr(a + 4));
            continue;
        }
        sesion_.Ejecutar(linea);
    }
    enCurso_ = false;
    // Input is read again only when what was read has run, so a long script is never held
    // whole in memory.
    if (notificador_ && !fin_) notificador_->setEnabled(!esperando_ && lineas_.empty());
    if (fin_ && !esperando_ && lineas_.empty() && !terminado_) {
        terminado_ = true;
        if (alTerminar_) alTerminar_();
    }
}

bool EntradaCli::Esperar(const std::string& arg) {
    const size_t a = arg.find_first_not_of(" \t");
    const size_t b = arg.find_last_not_of(" \t\r");
    int ms = -1;
    if (a != std::string::npos) {
        const char* ini = arg.data() + a;
        const char* fin = arg.data() + b + 1;
        auto [p, ec] = std::from_chars(ini, fin, ms);
        if (ec != std::errc() || p != fin) ms = -1;
    }
    if (ms < 0) {
        sesion_.Salida() << "error wait needs MS" << std::endl;
        return false;
    }
    espera_.start(ms);
    return true;
}
