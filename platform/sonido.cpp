#include "platform/sonido.h"

#ifdef QA_CON_MULTIMEDIA
#include <QCoreApplication>
#include <QSoundEffect>
#include <QUrl>
#endif

namespace qa {

void ReproducirSonido(const std::string& rutaReal) {
#ifdef QA_CON_MULTIMEDIA
    // One player, owned by the application, so a new sound cuts the one before as on Windows.
    static QSoundEffect* efecto = nullptr;
    if (!efecto) efecto = new QSoundEffect(QCoreApplication::instance());
    efecto->stop();
    efecto->setSource(QUrl::fromLocalFile(QString::fromStdString(rutaReal)));
    efecto->play();
#else
    (void)rutaReal;
#endif
}

} // namespace qa
