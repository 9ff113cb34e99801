// The whole program over a real connection on the loopback: the program offscreen in this process,
// the other side a plain socket of the test speaking the wire protocol, one message per write.
// Both use the program's fixed ports.
#include "prueba_programa.h"

#include "../platform/puertos_libres.h"

#include "board/lista_jugadas.h"
#include "board/vista_tablero.h"
#include "core/game_state.h"
#include "language/idioma.h"
#include "net/puntuacion.h"
#include "net/sesion.h"
#include "platform/ini_file.h"
#include "shell/arranque.h"
#include "shell/chat.h"
#include "shell/entorno_programa.h"
#include "shell/ficheros_programa.h"
#include "shell/formas_red.h"
#include "shell/formularios.h"
#include "shell/jugadas.h"
#include "shell/mdi.h"
#include "shell/quintarena.h"
#include "shell/ranking.h"
#include "shell/red_programa.h"
#include "shell/tablero_programa.h"

#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using namespace qa;
using namespace Variables;

namespace {

constexpr int kEspera = 15000; // ms: the pump sends one message each 300 ms

// The peer: every read is one message, as the program paces them.
class Par {
public:
    explicit Par(QTcpSocket* s) : s_(s) {
        QObject::connect(s_, &QTcpSocket::readyRead, &contexto_,
                         [this] { recibidos.push_back(s_->readAll().toStdString()); });
        QObject::connect(s_, &QTcpSocket::disconnected, &contexto_, [this] { cerrado = true; });
    }
    QTcpSocket& Socket() { return *s_; }
    // One message in one write, on the wire before anything else is sent.
    void Enviar(const std::string& texto) {
        s_->write(texto.data(), static_cast<qint64>(texto.size()));
        EXPECT_TRUE(prueba::Esperar([this] { return s_->bytesToWrite() == 0; }, kEspera));
    }
    // Waits for the program's next message and returns it.
    std::string Siguiente() {
        EXPECT_TRUE(prueba::Esperar([this] { return leidos_ < recibidos.size(); }, kEspera))
            << "nothing more came after " << leidos_ << " messages";
        return leidos_ < recibidos.size() ? recibidos[leidos_++] : std::string();
    }
    std::vector<std::string> recibidos;
    bool cerrado = false;

private:
    QObject contexto_; // the socket may outlive us
    QTcpSocket* s_;
    std::size_t leidos_ = 0;
};

class ProgramaEnRed : public ::testing::Test {
protected:
    prueba::Carpeta carpeta;
    prueba::Cajas cajas;
    VistaTablero* vista = nullptr;

    void SetUp() override {
        if (const std::string ocupado = prueba_red::PuertosOcupados(); !ocupado.empty())
            FAIL() << ocupado;

        carpeta.Ajustar("Configuracion", "Nick", "Ana");
        InstalarEntornoPrograma();
        InstalarTablero();
        InstalarFicheros();
        InstalarRedPrograma();
        ASSERT_TRUE(Main({"quintarena"}));
        vista = qobject_cast<VistaTablero*>(Forms().quintarena->PicBuffer());
        ASSERT_NE(vista, nullptr);
        ASSERT_TRUE(prueba::Esperar([&] { return vista->isVisible(); }));
    }
    void TearDown() override {
        if (Forms().mdi) Forms().mdi->close();
        TerminarRedPrograma();
        RestablecerTodo();
    }

    QPoint Centro(const char* casilla) const { return prueba::Centro(*vista->Picture(), casilla); }
    void Arrastrar(const char* jugada) { prueba::Arrastrar(*vista->Picture(), jugada); }
    static std::string Chat() { return Forms().chat->ChatList()->toPlainText().toStdString(); }
    static bool Contiene(const std::string& texto, const std::string& parte) {
        return texto.find(parte) != std::string::npos;
    }
    // Where a click on a radio button lands: on its round mark.
    static QPoint Marca(QWidget* opcion) { return {8, opcion->height() / 2}; }
    // The program waits on 1500 and the peer of the test calls it; the greeting is read.
    std::unique_ptr<Par> Esperado() {
        prueba::AlAbrirse("qa::Conexion", [](QWidget* w) {
            auto* c = static_cast<Conexion*>(w);
            QTest::mouseClick(c->Option2, Qt::LeftButton, {}, Marca(c->Option2));
            QTest::mouseClick(c->Command1, Qt::LeftButton);
            auto* llamada = new QTcpSocket(c);
            llamada->setObjectName("llamada");
            llamada->connectToHost("127.0.0.1", 1500);
        });
        Entrada("mnuEstablecerconexion")->trigger();
        EXPECT_TRUE(Conectado);
        auto* llamada = Forms().conexion->findChild<QTcpSocket*>("llamada");
        EXPECT_NE(llamada, nullptr);
        llamada->setParent(Forms().mdi);
        auto par = std::make_unique<Par>(llamada);
        Saludo(*par, "0-0-0-0-1200");
        return par;
    }
    static std::string Lista() { return Forms().jugadas->Lista()->Texto().toStdString(); }
    std::vector<int32_t> Record() const {
        const std::string b = carpeta.Leer("Puntuacion.dat");
        const RegistroPuntuacion r = DesdeBytes(b);
        EXPECT_EQ(b.size(), 20u);
        return {r.PartidasJugadas, r.PartidasGanadas, r.PartidasPerdidas, r.PartidasTablas,
                r.Puntos};
    }
    // What the program says when a link comes up: the greeting, its version, later its record.
    static void Saludo(Par& par, const std::string& record) {
        EXPECT_EQ(par.Siguiente(),
                  "Mensaje Ana " + Mensajes[42] + " Quintarena " + Mensajes[40] + " 1.55");
        EXPECT_EQ(par.Siguiente(), "VersionQT 1.55");
        EXPECT_EQ(par.Siguiente(), "Ranking " + record);
    }
};

TEST_F(ProgramaEnRed, ARatedGameCalledFromTheDialogAndPlayedToMate) {
    QTcpServer espera;
    ASSERT_TRUE(espera.listen(QHostAddress::Any, 1500));

    // The connection dialog, as the user fills it in: an address and go. While the call is on,
    // only the calling caption and the cancel button are left; the link hides the dialog.
    bool llamando = false;
    prueba::AlAbrirse("qa::Conexion", [&](QWidget* w) {
        auto* c = static_cast<Conexion*>(w);
        EXPECT_TRUE(c->Option1->isChecked());
        QTest::mouseClick(c->Command1, Qt::LeftButton);
        EXPECT_TRUE(cajas.Hay(Mensajes[13])) << "an empty address is refused";
        c->Ip->setText("127.0.0.1");
        QTest::keyClick(c->Ip, Qt::Key_Return);
        llamando = c->Label2->isVisible() && !c->Command1->isEnabled() && !c->Frame2->isVisible();
    });
    Entrada("mnuEstablecerconexion")->trigger();
    EXPECT_TRUE(llamando);
    ASSERT_TRUE(Conectado);
    EXPECT_FALSE(Forms().conexion->isVisible());
    ASSERT_TRUE(prueba::Esperar([&] { return espera.hasPendingConnections(); }));
    Par par(espera.nextPendingConnection());
    espera.close();
    EXPECT_EQ(par.Socket().peerPort(), 1501) << "the caller's fixed port";
    EXPECT_TRUE(Contiene(Chat(), "*** " + Mensajes[39]));
    Saludo(par, "0-0-0-0-1200");

    // The peer's greeting, version and record.
    par.Enviar("Mensaje Bea " + Mensajes[42] + " Quintarena " + Mensajes[40] + " 1.55");
    ASSERT_TRUE(prueba::Esperar([] { return Contiene(Chat(), "Bea " + Mensajes[42]); }));
    EXPECT_EQ(Sesion()->VersionRemota(), "1.55");
    par.Enviar("VersionQT 1.55");
    par.Enviar("Ranking 3-2-1-0-1250");
    ASSERT_TRUE(prueba::Esperar([] { return PuntuacionRemota.Puntos == 1250; }));
    EXPECT_TRUE(Forms().ranking->Label(9)->text().endsWith(" 1250"));

    // A rated game of 5 minutes, the peer Black: the question, the answer, the board.
    cajas.respuestas = {kRespuestaSi};
    par.Enviar("NuevoJuego 2 R 5");
    ASSERT_TRUE(prueba::Esperar([] { return TipoPartida == "R"; }));
    EXPECT_EQ(par.Siguiente(), "NuevoAceptado");
    EXPECT_EQ(ColorJugador, "Blancas");
    EXPECT_EQ(Turno, 1);
    EXPECT_TRUE(Contiene(cajas.vistas.back().texto, " 5 ")) << cajas.vistas.back().texto;

    const QRegularExpression tiempo("^TIME [0-5]:[0-9]{1,2}$");
    Arrastrar("f2f3");
    EXPECT_EQ(Turno, 0) << "the peer's move now";
    EXPECT_EQ(par.Siguiente(), "Movimiento 62630");
    EXPECT_TRUE(tiempo.match(QString::fromStdString(par.Siguiente())).hasMatch());
    Arrastrar("e2e4");
    EXPECT_EQ(Tablero[5][2], PeonB) << "no move out of turn";

    par.Enviar("Movimiento 57550");
    ASSERT_TRUE(prueba::Esperar([] { return Turno == 1; }));
    EXPECT_EQ(Tablero[5][5], PeonN);
    par.Enviar("TIME 4:58");
    ASSERT_TRUE(prueba::Esperar([] { return MinutosNegras == 4 && SegundosNegras == 58; }));

    Arrastrar("g2g4");
    EXPECT_EQ(par.Siguiente(), "Movimiento 72740");
    EXPECT_TRUE(tiempo.match(QString::fromStdString(par.Siguiente())).hasMatch());

    par.Enviar("Movimiento 48840");
    ASSERT_TRUE(prueba::Esperar([] { return TipoPartida.empty(); }));
    EXPECT_EQ(Tablero[8][4], DamaN);
    EXPECT_EQ(Turno, 0);
    EXPECT_TRUE(cajas.Hay(Mensajes[2])) << "Black has won";
    EXPECT_TRUE(Contiene(Lista(), "2. g4")) << Lista();
    EXPECT_TRUE(Contiene(Lista(), "Dh4++")) << Lista();
    // A loss to a stronger player costs half: 1150, and the peer's record shows its win.
    EXPECT_EQ(Record(), (std::vector<int32_t>{1, 0, 1, 0, 1150}));
    EXPECT_EQ(PuntuacionRemota.PartidasGanadas, 3);
    EXPECT_EQ(PuntuacionRemota.Puntos, 1300);
    EXPECT_TRUE(Forms().ranking->Label(4)->text().endsWith(" 1150"));

    // The link ends from the waiting side.
    par.Socket().disconnectFromHost();
    ASSERT_TRUE(prueba::Esperar([] { return !Conectado; }));
    EXPECT_TRUE(Contiene(Chat(), "*** " + Mensajes[41]));
    EXPECT_EQ(Sesion()->VersionRemota(), "");
    EXPECT_EQ(Tablero[8][4], DamaN) << "the board stays as it is";
}

TEST_F(ProgramaEnRed, WaitingForACallChattingAndAnAgreedDrawInAFreeGame) {
    // The dialog waits on 1500; a caller from any port is taken.
    prueba::AlAbrirse("qa::Conexion", [&](QWidget* w) {
        auto* c = static_cast<Conexion*>(w);
        QTest::mouseClick(c->Option2, Qt::LeftButton, {}, Marca(c->Option2));
        EXPECT_FALSE(c->Ip->isEnabled());
        QTest::mouseClick(c->Command1, Qt::LeftButton);
        EXPECT_TRUE(c->Label1->isVisible());
        EXPECT_FALSE(c->Command1->isEnabled());
        auto* llamada = new QTcpSocket(c);
        llamada->setObjectName("llamada");
        llamada->connectToHost("127.0.0.1", 1500);
    });
    Entrada("mnuEstablecerconexion")->trigger();
    ASSERT_TRUE(Conectado) << (cajas.vistas.empty() ? "" : cajas.vistas.back().texto);
    ASSERT_TRUE(Sesion()->EsServidor());
    auto* llamada = Forms().conexion->findChild<QTcpSocket*>("llamada");
    ASSERT_NE(llamada, nullptr);
    llamada->setParent(nullptr);
    std::unique_ptr<QTcpSocket> dueno(llamada);
    Par par(llamada);
    EXPECT_NE(llamada->localPort(), 1501);
    Saludo(par, "0-0-0-0-1200");

    // Chat both ways; the program's line carries its nick.
    par.Enviar("Mensaje <Bea>hola");
    ASSERT_TRUE(prueba::Esperar([] { return Contiene(Chat(), "<Bea>hola"); }));
    QLineEdit* texto = Forms().chat->Texto();
    QTest::keyClicks(texto, " buenas");
    EXPECT_EQ(texto->text(), "buenas") << "a line does not begin with a space";
    QTest::keyClick(texto, Qt::Key_Return);
    EXPECT_TRUE(texto->text().isEmpty());
    EXPECT_EQ(par.Siguiente(), "Mensaje <Ana>buenas");
    EXPECT_TRUE(Contiene(Chat(), "<Ana>buenas"));

    // A free game, the peer White: nothing is scored when it ends in a draw.
    cajas.respuestas = {kRespuestaSi};
    par.Enviar("NuevoJuego 1 A 0");
    ASSERT_TRUE(prueba::Esperar([] { return TipoPartida == "A"; }));
    EXPECT_EQ(par.Siguiente(), "NuevoAceptado");
    EXPECT_EQ(ColorJugador, "Negras");
    // Black sees the board from Black's side; the peer's move is drawn where it went.
    PicBuffer* p = vista->Picture();
    ASSERT_TRUE(p->invertido);
    par.Enviar("Movimiento 52540");
    ASSERT_TRUE(prueba::Esperar([] { return Turno == 2; }));
    EXPECT_EQ(Tablero[5][4], PeonB);
    const auto [c, f] = p->Convertir(5, 4);
    EXPECT_EQ(p->MarcoEn(1), QPoint(c, f)) << "the frame on e4 as this side sees it";
    const QPoint e4 = p->Esquina(c, f) + QPoint(p->AnchoCasilla / 2, p->AltoCasilla / 2);
    const QRgb peon = p->Imagen().pixel(Centro("a2"));
    EXPECT_EQ(p->Imagen().pixel(e4), peon) << "a white pawn on e4";
    EXPECT_NE(p->Imagen().pixel(Centro("d5")), peon) << "and none on d5";
    cajas.respuestas = {kRespuestaSi};
    Entrada("mnuOfrecerTablas")->trigger();
    EXPECT_EQ(par.Siguiente(), "OfrecerTablas");
    par.Enviar("TablasAceptadas");
    ASSERT_TRUE(prueba::Esperar([] { return TipoPartida.empty(); }));
    EXPECT_TRUE(cajas.Hay(Mensajes[19]));
    EXPECT_EQ(Record(), (std::vector<int32_t>{0, 0, 0, 0, 1200}));

    // The caller says it goes; the waiting side closes the link.
    par.Enviar("Close");
    ASSERT_TRUE(prueba::Esperar([&] { return !Conectado && par.cerrado; }));
    EXPECT_TRUE(Contiene(Chat(), "*** " + Mensajes[41]));
}

TEST_F(ProgramaEnRed, AGameFileOpenedWhileConnectedReplaysForBothBoards) {
    auto par = Esperado();
    carpeta.Escribir("corta.qtr", "0000\r\n0000\r\nA\r\n5254\r\n5755\r\n7163\r\n");
    // The colour question at the end, "... (W/B)": the first of its two letters is White. A
    // refused answer would be asked again for ever: each answer after the first is White's
    // lower-cased, which is taken too, and counted.
    const std::string pregunta = Mensajes[59];
    ASSERT_GE(pregunta.size(), 4u);
    const char blancas = pregunta[pregunta.size() - 4];
    int preguntas = 0;
    FijarPresentadorTextos([&](const std::string&) {
        return std::string(1, ++preguntas == 1 ? blancas : static_cast<char>(blancas | 0x20));
    });
    FijarPresentadorDialogos([&](int, const std::string&) {
        RespuestaDialogo r;
        r.fichero = carpeta.Ruta("corta.qtr").string();
        r.carpeta = carpeta.Ruta().string();
        return r;
    });
    Entrada("mnuAbrirPartida")->trigger();
    FijarPresentadorDialogos(nullptr);
    EXPECT_TRUE(Cargando);
    std::vector<std::string> transferencia;
    while (transferencia.empty() || transferencia.back() != "QTR Terminado") {
        const std::string m = par->Siguiente();
        if (m.empty()) break;
        if (m.rfind("QTR", 0) == 0) transferencia.push_back(m);
    }
    FijarPresentadorTextos(nullptr);
    EXPECT_EQ(preguntas, 1);
    EXPECT_EQ(transferencia,
              (std::vector<std::string>{"QTR Iniciar", "QTR TB 0000", "QTR TN 0000", "QTR T A",
                                        "QTR M 5254", "QTR M 5755", "QTR M 7163", "QTR T N",
                                        "QTR T 2", "QTR Terminado"}));
    ASSERT_TRUE(prueba::Esperar([] { return !Cargando; }));
    EXPECT_EQ(ColorJugador, "Blancas");
    EXPECT_EQ(Turno, 0) << "Black, the peer, is to move";
    EXPECT_EQ(TipoPartida, "A");
    EXPECT_EQ(Tablero[6][3], CaballoB);
    EXPECT_TRUE(Contiene(Lista(), "2. Cf3")) << Lista();
}

TEST_F(ProgramaEnRed, APeersOfferCutsADragShortAndThePieceGoesBack) {
    auto par = Esperado();
    cajas.respuestas = {kRespuestaSi};
    par->Enviar("NuevoJuego 2 A 0");
    ASSERT_TRUE(prueba::Esperar([] { return TipoPartida == "A" && Turno == 1; }));
    EXPECT_EQ(par->Siguiente(), "NuevoAceptado");

    // The user holds the king's pawn over e4 when the offer comes.
    PicBuffer* p = vista->Picture();
    QTest::mousePress(p, Qt::LeftButton, {}, Centro("e2"));
    QTest::mouseMove(p, Centro("e3"));
    QTest::mouseMove(p, Centro("e4"));
    ASSERT_TRUE(p->Arrastrando());
    cajas.respuestas = {kRespuestaNo};
    par->Enviar("OfrecerTablas");
    EXPECT_EQ(par->Siguiente(), "TablasCancelado");
    EXPECT_FALSE(p->Arrastrando());
    EXPECT_TRUE(Origen.empty());
    QTest::mouseRelease(p, Qt::LeftButton, {}, Centro("e4"));
    EXPECT_EQ(Tablero[5][2], PeonB) << "the pawn is back and was not played";
    EXPECT_EQ(Tablero[5][4], 0);
    EXPECT_EQ(Turno, 1);

    // The move is made again, from the start.
    Arrastrar("e2e4");
    EXPECT_EQ(par->Siguiente(), "Movimiento 52540");
    EXPECT_EQ(TipoPartida, "A") << "a free game has no clocks and no time messages";
}

TEST_F(ProgramaEnRed, TheNewGameDialogKeepsItsMinutesBetween1And180) {
    carpeta.Ajustar("Configuracion", "Tiempo", "0");
    Nuevo* n = Forms().nuevo;
    n->show();
    ASSERT_TRUE(prueba::Esperar([n] { return n->isVisible(); }));
    EXPECT_TRUE(n->Option1->isChecked());
    EXPECT_TRUE(n->Option3->isChecked());
    EXPECT_EQ(n->Text1->text(), "1") << "a time of 0 in the settings offers 1";

    n->Text1->selectAll();
    QTest::keyClicks(n->Text1, "9x9-9");
    EXPECT_EQ(n->Text1->text(), "180");
    QTest::mouseClick(n->Command4[0], Qt::LeftButton);
    EXPECT_EQ(n->Text1->text(), "180");
    QTest::mouseClick(n->Command4[1], Qt::LeftButton);
    EXPECT_EQ(n->Text1->text(), "179");
    n->Text1->setText("007");
    EXPECT_EQ(n->Text1->text(), "7") << "no leading zeros";

    QTest::mouseClick(n->Option4, Qt::LeftButton, {}, Marca(n->Option4));
    EXPECT_EQ(n->Text1->text(), "0");
    EXPECT_FALSE(n->Text1->isEnabled());
    EXPECT_FALSE(n->Command4[0]->isEnabled());
    EXPECT_TRUE(n->Option4->isChecked());
    EXPECT_FALSE(n->Option3->isChecked());
    QTest::mouseClick(n->Option2, Qt::LeftButton, {}, Marca(n->Option2));
    EXPECT_TRUE(n->Option2->isChecked());
    EXPECT_FALSE(n->Option1->isChecked()) << "colour and kind are two separate choices";
    EXPECT_TRUE(n->Option4->isChecked());

    // Not connected, OK sends nothing and only closes the dialog.
    QTest::mouseClick(n->Command1, Qt::LeftButton);
    EXPECT_FALSE(n->isVisible());
    EXPECT_FALSE(Sesion()->NuevoPendiente());
    EXPECT_EQ(Sesion()->ColaEnvioCuenta(), 0);
}

TEST_F(ProgramaEnRed, ClosingTheCallingSideWaitsForThePeerToEndTheLink) {
    QTcpServer espera;
    ASSERT_TRUE(espera.listen(QHostAddress::Any, 1500));
    prueba::AlAbrirse("qa::Conexion", [](QWidget* w) {
        auto* c = static_cast<Conexion*>(w);
        c->Ip->setText("127.0.0.1");
        QTest::mouseClick(c->Command1, Qt::LeftButton);
    });
    Entrada("mnuEstablecerconexion")->trigger();
    ASSERT_TRUE(Conectado);
    ASSERT_TRUE(prueba::Esperar([&] { return espera.hasPendingConnections(); }));
    Par par(espera.nextPendingConnection());
    espera.close();
    Saludo(par, "0-0-0-0-1200");
    Marcar("mnuReloj", false);
    const std::string antes = carpeta.Leer("Default.ini");

    // The first close only asks the peer to end the link, and saves nothing yet.
    EXPECT_FALSE(Forms().mdi->close());
    EXPECT_TRUE(CierrePendiente);
    EXPECT_FALSE(FinPrograma());
    EXPECT_EQ(par.Siguiente(), "Close");
    EXPECT_TRUE(Conectado) << "the caller waits for the waiting side";
    EXPECT_EQ(carpeta.Leer("Default.ini"), antes);

    // The peer ends it: the close runs again, and this time it goes through.
    par.Socket().disconnectFromHost();
    ASSERT_TRUE(prueba::Esperar([] { return FinPrograma(); }));
    EXPECT_FALSE(Conectado);
    EXPECT_EQ(LeerIni(carpeta.Ruta("Default.ini").string(), "Configuracion", "Reloj"), "0");
}

} // namespace
