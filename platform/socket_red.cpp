#include "platform/socket_red.h"

#include <QHostAddress>
#include <QNetworkInterface>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace qa {

namespace {

// Qt's own buffer of a socket we have stopped reading; with it full the kernel's fills, and TCP
// holds the peer back.
constexpr qint64 kBufferLectura = 1024 * 1024;
constexpr int kEsperaCierre = 5000; // ms

} // namespace

SocketRed::SocketRed() = default;

SocketRed::~SocketRed() {
    Close();
    for (auto& [id, s] : peticiones_) delete s;
}

void SocketRed::Encolar(Suceso s) {
    if (s.tipo == Tipo::Datos) bytesPendientes_ += static_cast<std::int64_t>(s.datos.size());
    sucesos_.push_back(std::move(s));
    // Dispatched from the loop, one per call: a handler that sits in a box still lets the next
    // event through, on its own, as the box's loop runs.
    QMetaObject::invokeMethod(
        &contexto_, [this] { Despachar(); }, Qt::QueuedConnection);
}

void SocketRed::Despachar() {
    if (sucesos_.empty()) return;
    Suceso s = std::move(sucesos_.front());
    sucesos_.pop_front();
    switch (s.tipo) {
    case Tipo::Conectado:
        if (alConectar) alConectar();
        break;
    case Tipo::Peticion: {
        const int anterior = peticionEnCurso_;
        peticionEnCurso_ = s.numero;
        if (alPedirConexion) alPedirConexion(s.numero);
        peticionEnCurso_ = anterior;
        // Not taken: refused.
        if (auto it = peticiones_.find(s.numero); it != peticiones_.end()) {
            it->second->abort();
            delete it->second;
            peticiones_.erase(it);
        }
        break;
    }
    case Tipo::Datos: {
        bytesPendientes_ -= static_cast<std::int64_t>(s.datos.size());
        datos_ = std::move(s.datos);
        const std::size_t n = datos_.size();
        // Reading stopped at the bound goes on as the backlog shrinks.
        if (conexion_ && conexion_->bytesAvailable() > 0) Leer();
        if (alLlegarDatos) alLlegarDatos(n);
        break;
    }
    case Tipo::EnvioCompleto:
        if (alCompletarEnvio) alCompletarEnvio();
        break;
    case Tipo::Cierre:
        if (alCerrar) alCerrar();
        break;
    case Tipo::Fallo:
        if (alFallar) alFallar(s.numero, s.datos);
        break;
    }
}

void SocketRed::Vigilar(QTcpSocket* s) {
    s->setReadBufferSize(kBufferLectura);
    QObject::connect(s, &QTcpSocket::connected, &contexto_, [this] {
        Encolar({Tipo::Conectado, {}, 0});
    });
    QObject::connect(s, &QTcpSocket::readyRead, &contexto_, [this] { Leer(); });
    QObject::connect(s, &QTcpSocket::bytesWritten, &contexto_, [this](qint64 n) { AlEscribir(n); });
    QObject::connect(s, &QTcpSocket::disconnected, &contexto_, [this] { AlDesconectar(); });
    QObject::connect(s, &QTcpSocket::errorOccurred, &contexto_,
                     [this](QAbstractSocket::SocketError e) { AlError(static_cast<int>(e)); });
}

void SocketRed::Leer() {
    if (!conexion_ || bytesPendientes_ >= kTopePendiente) return;
    const QByteArray b = conexion_->readAll();
    if (!b.isEmpty()) Encolar({Tipo::Datos, b.toStdString(), 0});
}

void SocketRed::AlEscribir(std::int64_t n) {
    while (n > 0 && !envios_.empty()) {
        const std::int64_t parte = std::min(envios_.front(), n);
        envios_.front() -= parte;
        n -= parte;
        if (envios_.front() == 0) {
            envios_.pop_front();
            Encolar({Tipo::EnvioCompleto, {}, 0});
        }
    }
}

void SocketRed::AlDesconectar() {
    if (!conexion_) return;
    // What came before the close is dispatched before it, bound or not.
    const QByteArray resto = conexion_->readAll();
    if (!resto.isEmpty()) Encolar({Tipo::Datos, resto.toStdString(), 0});
    Encolar({Tipo::Cierre, {}, 0});
    Soltar(conexion_);
    final_ = kZocaloCerrando;
}

void SocketRed::AlError(int error) {
    // The peer's close is its own event, which follows.
    if (error == QAbstractSocket::RemoteHostClosedError || !conexion_) return;
    const QByteArray resto = conexion_->readAll();
    if (!resto.isEmpty()) Encolar({Tipo::Datos, resto.toStdString(), 0});
    Encolar({Tipo::Fallo, conexion_->errorString().toStdString(), error});
    Soltar(conexion_);
    final_ = kZocaloError;
}

// Inside one of the socket's own signals it cannot be deleted at once: it goes at the next turn
// of the loop, or with us.
void SocketRed::Soltar(QTcpSocket*& s) {
    if (!s) return;
    QObject::disconnect(s, nullptr, &contexto_, nullptr);
    s->setParent(&contexto_);
    s->deleteLater();
    s = nullptr;
}

bool SocketRed::Connect(const std::string& host, int puerto) {
    if (conexion_ || (servidor_ && servidor_->isListening())) return false;
    auto* s = new QTcpSocket;
    // The fixed port of the caller: a connection of a moment ago may still hold it in TIME_WAIT,
    // which SO_REUSEADDR lets us bind over; a live socket on it still refuses us.
    if (puertoLocal_ != 0 && !s->bind(QHostAddress::Any, static_cast<quint16>(puertoLocal_),
                                      QAbstractSocket::ShareAddress)) {
        delete s;
        return false;
    }
    Close();
    conexion_ = s;
    Vigilar(s);
    s->connectToHost(QString::fromStdString(host), static_cast<quint16>(puerto));
    return true;
}

bool SocketRed::Bind(int puerto) {
    if (conexion_ || (servidor_ && servidor_->isListening())) return false;
    if (puerto < 0 || puerto > 65535) return false;
    puertoEscucha_ = puerto;
    return true;
}

bool SocketRed::Listen() {
    if (conexion_) return false;
    if (!servidor_) {
        servidor_ = new QTcpServer(&contexto_);
        QObject::connect(servidor_, &QTcpServer::newConnection, &contexto_,
                         [this] { NuevasPeticiones(); });
    }
    if (servidor_->isListening()) return false;
    final_ = kZocaloCerrado;
    return servidor_->listen(QHostAddress::Any, static_cast<quint16>(puertoEscucha_));
}

void SocketRed::NuevasPeticiones() {
    while (servidor_ && servidor_->hasPendingConnections()) {
        QTcpSocket* s = servidor_->nextPendingConnection();
        s->setParent(nullptr);
        const int id = siguientePeticion_++;
        peticiones_[id] = s;
        Encolar({Tipo::Peticion, {}, id});
    }
}

bool SocketRed::Accept(int peticion) {
    auto it = peticiones_.find(peticion);
    if (it == peticiones_.end() || conexion_) return false;
    QTcpSocket* s = it->second;
    peticiones_.erase(it);
    final_ = kZocaloCerrado;
    conexion_ = s;
    Vigilar(s);
    // What the caller sent before we took it, and a caller already gone, are not signalled again.
    Leer();
    if (conexion_ && conexion_->state() != QAbstractSocket::ConnectedState) AlDesconectar();
    return true;
}

bool SocketRed::SendData(const std::string& datos) {
    if (!conexion_ || conexion_->state() != QAbstractSocket::ConnectedState) return false;
    if (datos.empty()) {
        Encolar({Tipo::EnvioCompleto, {}, 0});
        return true;
    }
    const qint64 n = conexion_->write(datos.data(), static_cast<qint64>(datos.size()));
    if (n != static_cast<qint64>(datos.size())) return false;
    envios_.push_back(n);
    return true;
}

std::string SocketRed::GetData() {
    return std::exchange(datos_, std::string());
}

void SocketRed::Close() {
    if (servidor_) servidor_->close();
    if (conexion_) {
        QTcpSocket* s = conexion_;
        conexion_ = nullptr;
        QObject::disconnect(s, nullptr, &contexto_, nullptr);
        // What was handed over still goes, then the peer sees an orderly close; a peer that
        // does not take it in a while is cut off.
        if (s->state() == QAbstractSocket::ConnectedState) s->disconnectFromHost();
        if (s->state() == QAbstractSocket::UnconnectedState) {
            delete s;
        } else {
            s->setParent(&contexto_);
            QObject::connect(s, &QAbstractSocket::disconnected, s, &QObject::deleteLater);
            QTimer::singleShot(kEsperaCierre, s, [s] {
                s->abort();
                s->deleteLater();
            });
        }
    }
    // Callers waiting to be answered are refused; not the one being answered now.
    for (auto it = peticiones_.begin(); it != peticiones_.end();) {
        if (it->first == peticionEnCurso_) {
            ++it;
            continue;
        }
        it->second->abort();
        delete it->second;
        it = peticiones_.erase(it);
    }
    sucesos_.clear();
    bytesPendientes_ = 0;
    envios_.clear();
    datos_.clear();
    final_ = kZocaloCerrado;
}

int SocketRed::State() const {
    if (conexion_) {
        switch (conexion_->state()) {
        case QAbstractSocket::HostLookupState:
            return kZocaloResolviendo;
        case QAbstractSocket::ConnectingState:
        case QAbstractSocket::BoundState:
            return kZocaloConectando;
        case QAbstractSocket::ConnectedState:
            return kZocaloConectado;
        case QAbstractSocket::ClosingState:
            return kZocaloCerrando;
        default:
            return kZocaloCerrado;
        }
    }
    if (servidor_ && servidor_->isListening()) return kZocaloEscuchando;
    return final_;
}

int SocketRed::PuertoDelPeer() const {
    return conexion_ ? conexion_->peerPort() : 0;
}

std::string SocketRed::HostDelPeer() const {
    if (!conexion_) return {};
    QHostAddress a = conexion_->peerAddress();
    bool v4 = false;
    const quint32 ip4 = a.toIPv4Address(&v4);
    if (v4) a = QHostAddress(ip4); // a caller on IPv4 reaches the dual-stack listener mapped
    return a.toString().toStdString();
}

int SocketRed::PuertoPropio() const {
    return conexion_ ? conexion_->localPort() : 0;
}

std::string SocketRed::LocalIP() {
    for (const QNetworkInterface& i : QNetworkInterface::allInterfaces()) {
        const auto f = i.flags();
        if (!(f & QNetworkInterface::IsUp) || !(f & QNetworkInterface::IsRunning) ||
            (f & QNetworkInterface::IsLoopBack))
            continue;
        for (const QNetworkAddressEntry& e : i.addressEntries()) {
            const QHostAddress a = e.ip();
            if (a.protocol() == QAbstractSocket::IPv4Protocol && !a.isLoopback())
                return a.toString().toStdString();
        }
    }
    return "127.0.0.1";
}

} // namespace qa
