#include "platform/descarga.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTemporaryFile>
#include <QUrl>

namespace qa {

Descarga::Descarga(QObject* padre) : QObject(padre), red_(new QNetworkAccessManager(this)) {}

void Descarga::GetData(const QString& direccion, const QString& propiedad) {
    QNetworkRequest peticion{QUrl(direccion)};
    peticion.setTransferTimeout(20000);
    peticion.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                          QNetworkRequest::NoLessSafeRedirectPolicy);
    QNetworkReply* r = red_->get(peticion);
    connect(r, &QNetworkReply::finished, this, [this, r, propiedad] {
        r->deleteLater();
        const int estado = r->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (r->error() != QNetworkReply::NoError || estado >= 400) {
            emit Fallida();
            return;
        }
        QTemporaryFile f;
        f.setAutoRemove(false);
        if (!f.open() || f.write(r->readAll()) < 0) {
            f.remove();
            emit Fallida();
            return;
        }
        f.close();
        emit Completada(propiedad, f.fileName());
    });
}

} // namespace qa
