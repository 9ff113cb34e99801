#include "platform/temporizador_qt.h"

namespace qa {

TemporizadorQt::TemporizadorQt(int ms, bool unaVez) {
    timer_.setInterval(ms);
    timer_.setSingleShot(unaVez);
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, [this] {
        if (alVencer) alVencer();
    });
}

void TemporizadorQt::Habilitar(bool activo) {
    if (!activo)
        timer_.stop();
    else if (!timer_.isActive())
        timer_.start();
}

void TemporizadorQt::Intervalo(int ms) {
    // QTimer::setInterval restarts a running timer with the new interval.
    timer_.setInterval(ms < 0 ? 0 : ms);
}

} // namespace qa
