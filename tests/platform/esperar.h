#pragma once
// Waiting on a condition with the event loop running, for tests without Qt's test library.
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

namespace qa::prueba {

template <class Condicion> bool EsperarA(Condicion&& cumplida, int ms = 5000) {
    QDeadlineTimer plazo(ms);
    while (!cumplida()) {
        if (plazo.hasExpired()) return cumplida();
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(1);
    }
    return true;
}

// Runs the event loop for a while, as a modal box would.
inline void Girar(int ms) {
    QDeadlineTimer plazo(ms);
    while (!plazo.hasExpired()) QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

} // namespace qa::prueba
