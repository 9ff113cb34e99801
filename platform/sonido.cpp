#include "platform/sonido.h"

#ifdef QA_CON_MULTIMEDIA
#include <QSoundEffect>
#include <QUrl>
#endif

namespace qa {

void Altavoz::Reproducir(const std::string& rutaReal) {
#ifdef QA_CON_MULTIMEDIA
    if (!efecto_) efecto_ = new QSoundEffect(this);
    efecto_->stop();
    efecto_->setSource(QUrl::fromLocalFile(QString::fromStdString(rutaReal)));
    efecto_->play();
#else
    (void)rutaReal;
#endif
}

} // namespace qa
