#pragma once
// A timer as the game's logic sees it: an interval, on or off, and the work of each tick. The
// network and engine logic hold these without knowing whose clock drives them: Qt's in the
// program and the console tool, a hand-driven one in tests and fuzz drivers.

#include <functional>

namespace qa {

class Temporizador {
public:
    virtual ~Temporizador() = default;
    // Turning on a running timer leaves it running from where it was: a timer restarted by
    // every caller that wants it on would never tick while they keep calling.
    virtual void Habilitar(bool activo) = 0;
    virtual bool Habilitado() const = 0;
    // A new interval takes effect at once, from now, for a running timer.
    virtual void Intervalo(int ms) = 0;
    virtual int Intervalo() const = 0;

    std::function<void()> alVencer; // the work of one tick
};

// Ticks only when told: `Vencer` runs one tick if the timer is on.
class TemporizadorManual final : public Temporizador {
public:
    explicit TemporizadorManual(int ms = 0) : intervalo_(ms) {}
    void Habilitar(bool activo) override { activo_ = activo; }
    bool Habilitado() const override { return activo_; }
    void Intervalo(int ms) override { intervalo_ = ms; }
    int Intervalo() const override { return intervalo_; }
    bool Vencer() {
        if (!activo_) return false;
        if (alVencer) alVencer();
        return true;
    }

private:
    int intervalo_;
    bool activo_ = false;
};

} // namespace qa
