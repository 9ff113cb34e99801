#pragma once
// The logic's timer on Qt's event loop.

#include "platform/temporizador.h"

#include <QTimer>

namespace qa {

class TemporizadorQt final : public Temporizador {
public:
    explicit TemporizadorQt(int ms = 0, bool unaVez = false);
    void Habilitar(bool activo) override;
    bool Habilitado() const override { return timer_.isActive(); }
    void Intervalo(int ms) override;
    int Intervalo() const override { return timer_.interval(); }

private:
    QTimer timer_;
};

} // namespace qa
