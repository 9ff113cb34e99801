#pragma once
#include <QObject>
#include <string>

class QSoundEffect;

namespace qa {

// Plays WAV files in the background, one at a time: a new sound cuts the one before. A machine
// without a sound device stays silent: that is not an error. The window that makes the sounds
// owns it, and it owns its player.
class Altavoz : public QObject {
public:
    explicit Altavoz(QObject* dueno) : QObject(dueno) {}
    void Reproducir(const std::string& rutaReal);

private:
    QSoundEffect* efecto_ = nullptr; // made at the first sound
};

} // namespace qa
