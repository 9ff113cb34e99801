#include "shell/actualizar.h"

#include "language/idioma.h"
#include "platform/descarga.h"
#include "platform/programa.h"
#include "platform/texto.h"
#include "shell/formularios.h"
#include "shell/servicios.h"
#include "shell/splash.h"

#include <QDesktopServices>
#include <QFile>
#include <QUrl>

namespace qa {

void Actualizar(const std::string& base) {
    Splash* s = Forms().splash;
    if (!s) return;
    const std::string pregunta = ReemplazarDolar(Mensajes[100], FinLinea);
    if (MostrarMensaje("Quintarena", pregunta, kIconoPregunta, kBotonesSiNo) != kRespuestaSi) {
        s->hide();
        return;
    }
    s->rkDownload1()->GetData(QString::fromStdString(base + "version.dat"), "Links");
}

void FinActualizacion(const QString& propiedad, const QString& fichero) {
    if (propiedad != "Links") {
        MostrarMensajeNumero(108, kIconoInformacion);
        return;
    }
    std::string ultima;
    {
        QFile f(fichero);
        if (f.open(QIODevice::ReadOnly)) {
            const QList<QByteArray> lineas = f.readAll().split('\n');
            for (qsizetype i = 0; i < lineas.size(); ++i) {
                // A final line end does not start another line.
                if (i == lineas.size() - 1 && lineas[i].isEmpty() && i > 0) break;
                ultima = lineas[i].trimmed().toStdString();
            }
        }
    }
    QFile::remove(fichero);
    if (Val(ultima) > Val(kVersionIdioma)) {
        if (MostrarMensajeNumero(98, kIconoPregunta, kBotonesSiNo) == kRespuestaSi)
            QDesktopServices::openUrl(QUrl(kDireccionWeb));
    } else {
        MostrarMensajeNumero(99, kIconoInformacion);
    }
}

void FalloActualizacion() {
    MostrarMensajeNumero(93, kIconoStop);
}

} // namespace qa
