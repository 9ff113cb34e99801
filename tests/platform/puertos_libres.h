#pragma once
// The network tests use the program's fixed ports, 1500 and 1501. Another program on them would
// fail every step for a reason not ours: the tests say so first, and stop.
#include <QTcpServer>
#include <QTcpSocket>

#include <string>

namespace prueba_red {

// Empty when both ports are free; otherwise which one is taken.
inline std::string PuertosOcupados() {
    QTcpServer espera;
    if (!espera.listen(QHostAddress::Any, 1500))
        return "port 1500 is taken by another program: " + espera.errorString().toStdString();
    espera.close();
    // The caller's port is bound as the program binds it: a closed connection's wait is no bar.
    QTcpSocket llamada;
    if (!llamada.bind(QHostAddress::Any, 1501, QAbstractSocket::ShareAddress))
        return "port 1501 is taken by another program: " + llamada.errorString().toStdString();
    return {};
}

} // namespace prueba_red
