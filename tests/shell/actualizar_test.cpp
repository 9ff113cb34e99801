// The update check against a small HTTP server on 127.0.0.1.
#include "prueba_programa.h"

#include "language/idioma.h"
#include "platform/descarga.h"
#include "shell/actualizar.h"
#include "shell/arranque.h"
#include "shell/formularios.h"
#include "shell/splash.h"

#include <QNetworkReply>
#include <QTcpServer>
#include <QTcpSocket>
#include <gtest/gtest.h>

using namespace qa;
using prueba::Cajas;
using prueba::Carpeta;

namespace {

// Answers every request with one fixed response.
class Servidor {
public:
    explicit Servidor(QByteArray respuesta) : respuesta_(std::move(respuesta)) {
        servidor_.listen(QHostAddress::LocalHost);
        QObject::connect(&servidor_, &QTcpServer::newConnection, [this] {
            QTcpSocket* s = servidor_.nextPendingConnection();
            QObject::connect(s, &QTcpSocket::readyRead, s, [this, s] {
                if (!s->readAll().contains("GET /version.dat")) return;
                s->write(respuesta_);
                s->disconnectFromHost();
            });
        });
    }
    std::string Base() const {
        return "http://127.0.0.1:" + std::to_string(servidor_.serverPort()) + "/";
    }

private:
    QTcpServer servidor_;
    QByteArray respuesta_;
};

QByteArray Http(const QByteArray& cuerpo, const char* estado = "200 OK") {
    return QByteArray("HTTP/1.0 ") + estado +
           "\r\nContent-Length: " + QByteArray::number(cuerpo.size()) +
           "\r\nConnection: close\r\n\r\n" + cuerpo;
}

class Actualizacion : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(Main({"quintarena"}));
        cajas.vistas.clear(); // the registration questions of the first start
    }
    // Reads under way: the request is made at once, its answer comes on the event loop.
    static qsizetype Lecturas() {
        return Forms().splash->rkDownload1()->findChildren<QNetworkReply*>().size();
    }
    // Asks, says Yes, and waits for the box that ends the check.
    std::string Comprobar(const Servidor& s) {
        cajas.vistas.clear();
        cajas.respuestas = {kRespuestaSi, kRespuestaNo};
        const qsizetype antes = Lecturas();
        Actualizar(s.Base());
        EXPECT_EQ(Lecturas(), antes + 1);
        prueba::Esperar([&] { return cajas.vistas.size() >= 2; });
        return cajas.vistas.size() >= 2 ? cajas.vistas[1].texto : "";
    }
    Carpeta c;
    Cajas cajas;
};

TEST_F(Actualizacion, SameVersionIsUpToDate) {
    Servidor s(Http("1.55\r\n"));
    EXPECT_EQ(Comprobar(s), Mensajes[99]);
}

TEST_F(Actualizacion, NewerVersionOnTheLastLineOffersTheSite) {
    Servidor s(Http("1.40\n1.56\n"));
    EXPECT_EQ(Comprobar(s), Mensajes[98]);
    Servidor t(Http("1.56\n1.50"));
    EXPECT_EQ(Comprobar(t), Mensajes[99]);
}

TEST_F(Actualizacion, FailedReadSaysSo) {
    Servidor s(Http("nada", "404 Not Found"));
    EXPECT_EQ(Comprobar(s), Mensajes[93]);
    EXPECT_EQ(cajas.vistas[1].icono, kIconoStop);
}

TEST_F(Actualizacion, NoAsksNothingFurther) {
    Servidor s(Http("1.56"));
    cajas.respuestas = {kRespuestaNo};
    const qsizetype antes = Lecturas();
    Actualizar(s.Base());
    EXPECT_EQ(Lecturas(), antes) << "no read was started";
    EXPECT_FALSE(Forms().splash->isVisible());
    ASSERT_EQ(cajas.vistas.size(), 1u);
    EXPECT_EQ(cajas.vistas[0].botones, kBotonesSiNo);
}

} // namespace
