// The socket adapter over real connections on the loopback, on the program's own ports: the
// waiting side on 1500, the caller from 1501.
#include "platform/socket_red.h"

#include "puertos_libres.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace {

using qa::SocketRed;

constexpr int kEspera = 10000; // ms before a wait counts as failed

// Runs the loop until the condition holds or the time is up.
bool Esperar(const std::function<bool()>& hecho, int ms = kEspera) {
    QDeadlineTimer fin(ms);
    QTimer pulso;
    pulso.start(5);
    while (!hecho()) {
        if (fin.hasExpired()) return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

// Everything one socket reported, in order.
struct Registro {
    std::vector<std::string> datos;
    std::vector<std::string> orden;
    std::vector<int> fallos;
    int conectado = 0;
    int completos = 0;
    int cierres = 0;

    std::string Todo() const {
        std::string t;
        for (const auto& d : datos) t += d;
        return t;
    }
};

void Registrar(SocketRed& s, Registro& r) {
    s.alConectar = [&r] {
        ++r.conectado;
        r.orden.push_back("conectado");
    };
    s.alLlegarDatos = [&s, &r](std::size_t n) {
        r.datos.push_back(s.GetData());
        EXPECT_EQ(r.datos.back().size(), n);
        r.orden.push_back("datos");
    };
    s.alCompletarEnvio = [&r] {
        ++r.completos;
        r.orden.push_back("completo");
    };
    s.alCerrar = [&r] {
        ++r.cierres;
        r.orden.push_back("cierre");
    };
    s.alFallar = [&r](int numero, const std::string& texto) {
        EXPECT_FALSE(texto.empty());
        r.fallos.push_back(numero);
        r.orden.push_back("fallo");
    };
}

class SocketRedTest : public ::testing::Test {
protected:
    void SetUp() override {
        if (const std::string ocupado = prueba_red::PuertosOcupados(); !ocupado.empty())
            FAIL() << ocupado;
        Registrar(ser, rSer);
        Registrar(cli, rCli);
    }

    // The waiting side listens on 1500, and the handler of a request does what the program does:
    // the listening ends, then the caller is taken.
    void Escuchar() {
        ser.LocalPort(1500);
        ser.RemotePort(1501);
        ASSERT_TRUE(ser.Bind(1500));
        ASSERT_TRUE(ser.Listen());
        ASSERT_EQ(ser.State(), qa::kZocaloEscuchando);
        ser.alPedirConexion = [this](int peticion) {
            if (ser.State() > 0) ser.Close();
            aceptado = ser.Accept(peticion);
        };
    }

    void Conectar() {
        Escuchar();
        cli.LocalPort(1501);
        cli.RemotePort(1500);
        const int antes = rCli.conectado;
        ASSERT_TRUE(cli.Connect("127.0.0.1", 1500));
        ASSERT_TRUE(Esperar([&] { return aceptado && rCli.conectado == antes + 1; }))
            << ::testing::PrintToString(rCli.fallos);
        ASSERT_EQ(ser.State(), qa::kZocaloConectado);
        ASSERT_EQ(cli.State(), qa::kZocaloConectado);
    }

    // Connections end from the waiting side, so the caller's port stays free for the next test.
    void TearDown() override {
        ser.Close();
        if (cli.State() == qa::kZocaloConectado) {
            EXPECT_TRUE(Esperar([this] { return rCli.cierres > 0 || !rCli.fallos.empty(); }));
        }
        cli.Close();
    }

    SocketRed ser;
    SocketRed cli;
    Registro rSer;
    Registro rCli;
    bool aceptado = false;
};

TEST_F(SocketRedTest, TheCallerFromPort1501IsTakenAndNobodyElseAfterIt) {
    Conectar();
    EXPECT_EQ(ser.PuertoPropio(), 1500);
    EXPECT_EQ(ser.PuertoDelPeer(), 1501);
    EXPECT_EQ(cli.PuertoPropio(), 1501);
    EXPECT_EQ(cli.PuertoDelPeer(), 1500);
    EXPECT_EQ(rSer.conectado, 0); // the waiting side's connect is its Accept

    // Nobody listens any more: a third program's call is refused by the network.
    QTcpSocket tercero;
    bool rechazado = false;
    QObject::connect(&tercero, &QTcpSocket::errorOccurred, [&](QAbstractSocket::SocketError e) {
        rechazado = e == QAbstractSocket::ConnectionRefusedError;
    });
    tercero.connectToHost("127.0.0.1", 1500);
    EXPECT_TRUE(Esperar([&] { return rechazado; }));
    EXPECT_EQ(ser.State(), qa::kZocaloConectado);
}

TEST_F(SocketRedTest, EachPacedMessageIsOneReadAndOneSendComplete) {
    Conectar();
    const std::vector<std::string> ida = {"VersionQT 1.55", "Mensaje *** Ana se une", "Ping"};
    for (const auto& m : ida) {
        const int antes = rCli.completos;
        ASSERT_TRUE(cli.SendData(m));
        ASSERT_TRUE(Esperar([&] { return rCli.completos > antes; }));
        ASSERT_TRUE(Esperar([&] { return !rSer.datos.empty() && rSer.datos.back() == m; }));
    }
    EXPECT_EQ(rSer.datos, ida);
    EXPECT_EQ(rCli.completos, 3);

    ASSERT_TRUE(ser.SendData("Pong"));
    ASSERT_TRUE(Esperar([&] { return rCli.datos.size() == 1 && rSer.completos == 1; }));
    EXPECT_EQ(rCli.datos.front(), "Pong");
    // No message is reported written twice.
    EXPECT_EQ(rCli.completos, 3);
    EXPECT_TRUE(rSer.fallos.empty() && rCli.fallos.empty());
}

TEST_F(SocketRedTest, MessagesComeApartWhileAHandlerWaitsInABox) {
    Conectar();
    // The first message opens a "question box": a loop of its own that runs until two more
    // messages, sent one after the other, have come through as two events of their own.
    int profundidad = 0;
    int maxima = 0;
    ser.alLlegarDatos = [&](std::size_t) {
        rSer.datos.push_back(ser.GetData());
        ++profundidad;
        maxima = std::max(maxima, profundidad);
        if (rSer.datos.size() == 1) {
            EXPECT_TRUE(cli.SendData("Movimiento 5254"));
            EXPECT_TRUE(Esperar([&] { return rSer.datos.size() == 2; }));
            EXPECT_TRUE(cli.SendData("TIME 4:59"));
            EXPECT_TRUE(Esperar([&] { return rSer.datos.size() == 3; }));
        }
        --profundidad;
    };
    ASSERT_TRUE(cli.SendData("OfrecerTablas"));
    ASSERT_TRUE(Esperar([&] { return rSer.datos.size() == 3 && profundidad == 0; }));
    EXPECT_EQ(rSer.datos,
              (std::vector<std::string>{"OfrecerTablas", "Movimiento 5254", "TIME 4:59"}));
    EXPECT_EQ(maxima, 2);
    EXPECT_TRUE(Esperar([&] { return rCli.completos == 3; }));
}

TEST_F(SocketRedTest, ThePeersCloseComesAfterItsDataAndIsNoError) {
    Conectar();
    // The waiting side sends its last word and closes at once: the word still goes.
    ASSERT_TRUE(ser.SendData("Rendirse"));
    ser.Close();
    EXPECT_EQ(ser.State(), qa::kZocaloCerrado);
    ASSERT_TRUE(Esperar([&] { return rCli.cierres == 1; }));
    EXPECT_EQ(rCli.datos, std::vector<std::string>{"Rendirse"});
    EXPECT_EQ(rCli.orden, (std::vector<std::string>{"conectado", "datos", "cierre"}));
    EXPECT_TRUE(rCli.fallos.empty());
    EXPECT_EQ(cli.State(), qa::kZocaloCerrando);
    EXPECT_FALSE(cli.SendData("Close"));
    // The side that closed hears nothing of its own close, not even the write it had begun.
    EXPECT_TRUE(rSer.orden.empty());
    cli.Close();
    EXPECT_EQ(cli.State(), qa::kZocaloCerrado);
}

TEST_F(SocketRedTest, AClosedSocketReportsNothingMore) {
    Escuchar();
    // Any port: this caller closes first, and must not leave 1501 waiting behind it.
    cli.LocalPort(0);
    ASSERT_TRUE(cli.Connect("127.0.0.1", 1500));
    ASSERT_TRUE(Esperar([&] { return aceptado && rCli.conectado == 1; }));
    ASSERT_TRUE(cli.SendData("Ping"));
    cli.Close();
    ASSERT_TRUE(Esperar([&] { return rSer.cierres == 1; }));
    EXPECT_EQ(rSer.datos, std::vector<std::string>{"Ping"});
    EXPECT_TRUE(rSer.fallos.empty());
    EXPECT_EQ(rCli.orden, std::vector<std::string>{"conectado"});
}

TEST_F(SocketRedTest, AMegabyteIsOneSendCompleteAndArrivesWhole) {
    Conectar();
    std::string grande(1 << 20, '\0');
    for (std::size_t i = 0; i < grande.size(); ++i) grande[i] = static_cast<char>('A' + i % 26);
    ASSERT_TRUE(ser.SendData(grande));
    ASSERT_TRUE(Esperar([&] { return rCli.Todo().size() == grande.size(); }));
    EXPECT_TRUE(rCli.Todo() == grande);
    ASSERT_TRUE(Esperar([&] { return rSer.completos == 1; }));
    ASSERT_TRUE(ser.SendData("Pong"));
    ASSERT_TRUE(Esperar([&] { return rSer.completos == 2; }));
    EXPECT_TRUE(Esperar([&] { return rCli.Todo().size() == grande.size() + 4; }));
}

TEST_F(SocketRedTest, AFloodFromThePeerArrivesWholeAndInOrder) {
    Escuchar();
    QTcpSocket peer;
    peer.connectToHost("127.0.0.1", 1500);
    ASSERT_TRUE(Esperar([&] { return aceptado; }));
    std::string todo;
    for (int i = 0; i < 4000; ++i) todo += "Mensaje <x> linea " + std::to_string(i) + " ";
    while (todo.size() < 12u << 20) todo += todo.substr(0, 1 << 20);
    peer.write(todo.data(), static_cast<qint64>(todo.size()));
    ASSERT_TRUE(Esperar([&] { return rSer.Todo().size() == todo.size(); }, 60000));
    EXPECT_TRUE(rSer.Todo() == todo);
    EXPECT_GT(rSer.datos.size(), 1u);
}

TEST_F(SocketRedTest, ARefusedCallIsAnErrorAndNotAClose) {
    cli.LocalPort(1501);
    ASSERT_TRUE(cli.Connect("127.0.0.1", 1500)); // nobody waits there
    ASSERT_TRUE(Esperar([&] { return !rCli.fallos.empty(); }));
    EXPECT_EQ(rCli.fallos, std::vector<int>{QAbstractSocket::ConnectionRefusedError});
    EXPECT_EQ(rCli.cierres, 0);
    EXPECT_EQ(cli.State(), qa::kZocaloError);
    cli.Close();
    EXPECT_EQ(cli.State(), qa::kZocaloCerrado);
}

TEST_F(SocketRedTest, TakenPortsAreRefusedAtOnce) {
    QTcpServer otro;
    ASSERT_TRUE(otro.listen(QHostAddress::Any, 1500));
    ser.LocalPort(1500);
    ASSERT_TRUE(ser.Bind(1500));
    EXPECT_FALSE(ser.Listen());
    EXPECT_EQ(ser.State(), qa::kZocaloCerrado);
    otro.close();

    QTcpServer enLaSalida;
    ASSERT_TRUE(enLaSalida.listen(QHostAddress::Any, 1501));
    cli.LocalPort(1501);
    EXPECT_FALSE(cli.Connect("127.0.0.1", 1500));
    EXPECT_EQ(cli.State(), qa::kZocaloCerrado);
    EXPECT_TRUE(rCli.orden.empty());
}

TEST_F(SocketRedTest, TheCallersPortIsBoundAgainWhileItsLastConnectionLingers) {
    // A connection from 1501 that the caller closed first leaves 1501 in TIME_WAIT.
    QTcpServer antes;
    ASSERT_TRUE(antes.listen(QHostAddress::LocalHost, 1502));
    cli.LocalPort(1501);
    ASSERT_TRUE(cli.Connect("127.0.0.1", 1502));
    ASSERT_TRUE(Esperar([&] { return rCli.conectado == 1 && antes.hasPendingConnections(); }));
    QTcpSocket* lado = antes.nextPendingConnection();
    cli.Close();
    ASSERT_TRUE(Esperar([&] { return lado->state() == QAbstractSocket::UnconnectedState; }));

    Conectar();
    EXPECT_EQ(cli.PuertoPropio(), 1501);
}

TEST_F(SocketRedTest, TheWaitingSideTakesACallerFromAnyPortAndRefusesOneNotTaken) {
    ser.LocalPort(1500);
    ASSERT_TRUE(ser.Bind(1500));
    ASSERT_TRUE(ser.Listen());
    // A request the handler does not take is refused.
    ser.alPedirConexion = [](int) {};
    QTcpSocket primero;
    bool cortado = false;
    QObject::connect(&primero, &QTcpSocket::disconnected, [&] { cortado = true; });
    primero.connectToHost("127.0.0.1", 1500);
    ASSERT_TRUE(Esperar([&] { return cortado; }));
    EXPECT_EQ(ser.State(), qa::kZocaloEscuchando);

    ser.alPedirConexion = [this](int peticion) {
        ser.Close();
        aceptado = ser.Accept(peticion);
    };
    QTcpSocket peer;
    peer.connectToHost("127.0.0.1", 1500);
    ASSERT_TRUE(Esperar([&] { return aceptado; }));
    EXPECT_NE(ser.PuertoDelPeer(), 1501);
    EXPECT_EQ(ser.PuertoDelPeer(), peer.localPort());
    peer.write("VersionQT 1.55");
    ASSERT_TRUE(Esperar([&] { return rSer.datos.size() == 1; }));
    EXPECT_EQ(rSer.datos.front(), "VersionQT 1.55");
    ASSERT_TRUE(ser.SendData("Ranking 0-0-0-0-1200"));
    ASSERT_TRUE(Esperar([&] { return peer.bytesAvailable() == 20; }));
    EXPECT_EQ(peer.readAll(), "Ranking 0-0-0-0-1200");
}

TEST(SocketRedLocalIP, IsAnAddressOtherThanTheLoopbackOrTheLoopbackWhenThereIsNone) {
    const QHostAddress a(QString::fromStdString(SocketRed::LocalIP()));
    ASSERT_FALSE(a.isNull());
    EXPECT_EQ(a.protocol(), QAbstractSocket::IPv4Protocol);
}

} // namespace
