#pragma once
// The status bar: the time, the date and the state of the connection, each in its own box.
#include <QTime>
#include <QWidget>

namespace qa {

class BarraEstado : public QWidget {
    Q_OBJECT
public:
    BarraEstado();
    QSize sizeHint() const override { return {400, 24}; }
    // What the three boxes show; kept apart from the painting so it can be checked.
    static QString TextoHora(QTime hora);
    static QString TextoFecha(QDate fecha);
    static QString TextoConexion();

protected:
    void paintEvent(QPaintEvent* e) override;
};

// Redraws the status bar: at start, on its resize and at each tick of TStatus.
void DibujarEstado();

} // namespace qa
