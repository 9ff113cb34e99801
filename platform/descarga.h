#pragma once
// An asynchronous read of a web address into a temporary file, under a property name.
#include <QObject>
#include <QString>

class QNetworkAccessManager;

namespace qa {

class Descarga : public QObject {
    Q_OBJECT
public:
    explicit Descarga(QObject* padre = nullptr);
    void GetData(const QString& direccion, const QString& propiedad);

signals:
    // The file is the caller's to delete.
    void Completada(const QString& propiedad, const QString& fichero);
    void Fallida();

private:
    QNetworkAccessManager* red_;
};

} // namespace qa
