#include "shell/red_programa.h"

#include "board/vista_tablero.h"
#include "core/environment.h"
#include "core/game_state.h"
#include "language/idioma.h"
#include "net/sesion.h"
#include "platform/ini_file.h"
#include "platform/programa.h"
#include "platform/temporizador_qt.h"
#include "shell/arranque.h"
#include "shell/barra_estado.h"
#include "shell/chat.h"
#include "shell/enlaces.h"
#include "shell/formas_red.h"
#include "shell/formularios.h"
#include "shell/mdi.h"
#include "shell/puntuacion.h"
#include "shell/quintarena.h"
#include "shell/reloj.h"
#include "shell/servicios.h"
#include "shell/ventanas.h"
#include "shell/zocalo_qt.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>
#include <memory>

namespace qa {

namespace {

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

PicBuffer* Picture() {
    Quintarena* q = Forms().quintarena;
    auto* vista = q ? qobject_cast<VistaTablero*>(q->PicBuffer()) : nullptr;
    return vista ? vista->Picture() : nullptr;
}

// A modal form shown over the main window, unless it is up already.
void Modal(QDialog* d) {
    if (!d || d->isVisible()) return;
    CentrarEnMdi(d);
    d->exec();
}

// What the session shows and reads of the program's forms.
class VistaPrograma final : public VistaRed {
public:
    void MostrarConexion() override { Modal(Forms().conexion); }
    void PintarConexion(const DialogoConexion& d) override {
        if (Forms().conexion) Forms().conexion->Pintar(d);
    }
    void VaciarIpConexion() override {
        if (Forms().conexion) Forms().conexion->VaciarIp();
    }
    void OcultarConexion() override {
        if (Forms().conexion) Forms().conexion->hide();
    }
    void MostrarIp(const std::string& ip) override {
        if (!Forms().ip) return;
        Forms().ip->Poner(ip);
        Modal(Forms().ip);
    }
    bool EpdVisible() override { return Cierto(Enlace().EpdVisible); }

    void AnadirChat(const std::string& texto) override {
        QPlainTextEdit* lista = Lista();
        if (!lista) return;
        QString t = Q(texto);
        t.replace("\r\n", "\n");
        QTextCursor c = lista->textCursor();
        c.movePosition(QTextCursor::End);
        c.insertText(t);
        lista->setTextCursor(c);
        lista->ensureCursorVisible();
    }
    std::size_t LongitudChat() override {
        QPlainTextEdit* lista = Lista();
        return lista ? static_cast<std::size_t>(lista->document()->characterCount() - 1) : 0;
    }
    void VaciarChat() override {
        if (QPlainTextEdit* lista = Lista()) lista->clear();
    }
    void MostrarChat() override {
        if (Marcada("mnuVentanaChat")) return;
        Marcar("mnuVentanaChat", true);
        MostrarPanel("mnuVentanaChat", true);
    }
    void TituloChat(const std::string& nick) override {
        if (Forms().chat) Forms().chat->setWindowTitle(Q(Texto("Chat", "Titulo") + " - " + nick));
    }
    void GuardarChat() override { qa::GuardarChat(); }

    std::string TituloTablero() override {
        return Forms().quintarena ? Forms().quintarena->windowTitle().toStdString() : "";
    }
    void PonerTituloTablero(const std::string& titulo) override {
        if (Forms().quintarena) Forms().quintarena->setWindowTitle(Q(titulo));
    }
    void GirarTablero(bool negrasAbajo) override {
        Marcar("mnuInvertirTablero", negrasAbajo);
        if (Forms().mdi) Forms().mdi->Comando("mnuInvertirTablero");
    }
    void CancelarArrastre() override {
        if (PicBuffer* p = Picture()) p->CancelarArrastre();
    }
    void SoltarPuntoClick() override {
        if (PicBuffer* p = Picture()) p->SoltarSeleccion();
    }
    bool EnPrimerPlano() override { return Forms().mdi && Forms().mdi->isActiveWindow(); }
    void Destellar() override {
        if (Forms().mdi) QApplication::alert(Forms().mdi);
    }
    void RedibujarBarraEstado() override { DibujarEstado(); }
    void CerrarPrograma() override {
        // From the main loop: the handler that ended the link finishes first.
        if (Forms().mdi)
            QTimer::singleShot(0, Forms().mdi, [] {
                if (Forms().mdi) Forms().mdi->Descargar();
            });
    }

    bool RelojBlanco(int lado) override {
        QLabel* l = Etiqueta(lado);
        return l && l->palette().color(QPalette::Window) == QColor(255, 255, 255);
    }
    void ColorReloj(int lado, bool blanco) override {
        QLabel* l = Etiqueta(lado);
        if (!l) return;
        QPalette p = l->palette();
        p.setColor(QPalette::Window, blanco ? QColor(255, 255, 255) : QColor(153, 153, 153));
        l->setAutoFillBackground(true);
        l->setPalette(p);
    }

    void MostrarPuntuacion() override { PrintPuntuacion(); }

    void MostrarNuevo() override { Modal(Forms().nuevo); }
    void PintarNuevo(const DialogoNuevo& d) override {
        if (Forms().nuevo) Forms().nuevo->Pintar(d);
        Controles().NuevoText1 = d.minutos;
    }
    void CerrarNuevo() override {
        if (Forms().nuevo) Forms().nuevo->hide();
    }
    std::string LeerTiempo() override {
        return LeerIni(FicheroOpciones, "Configuracion", "Tiempo");
    }
    void GuardarTiempo(const std::string& minutos) override {
        EscribirIni(FicheroOpciones, "Configuracion", "Tiempo", minutos);
    }

    void LeerEpd(const std::string& ruta) override {
        if (Enlace().LeerEpd) Enlace().LeerEpd(ruta);
    }
    void CerrarEpd() override { Ejecutar(Enlace().CerrarEpd); }
    void CancelarEpd() override { Ejecutar(Enlace().CancelarEpd); }

    void ComandoMotor(int boton) override {
        if (Enlace().ToolboxComand) Enlace().ToolboxComand(std::to_string(boton));
    }

    // A person sits at the program: an input box that must be answered comes again.
    bool VolverAPreguntar() override { return true; }

private:
    static QPlainTextEdit* Lista() { return Forms().chat ? Forms().chat->ChatList() : nullptr; }
    static QLabel* Etiqueta(int lado) {
        return Forms().reloj ? Forms().reloj->Label(lado == 2 ? 4 : 3) : nullptr;
    }
};

// The chat's input box: Tab never types, a line never begins with a space, and Enter goes to
// the session, which says whether the line goes.
class TeclasChat final : public QObject {
public:
    explicit TeclasChat(SesionRed& sesion) : sesion_(sesion) {}

protected:
    bool eventFilter(QObject* objeto, QEvent* e) override {
        auto* texto = qobject_cast<QLineEdit*>(objeto);
        if (!texto || e->type() != QEvent::KeyPress) return false;
        auto* tecla = static_cast<QKeyEvent*>(e);
        if (tecla->key() == Qt::Key_Tab) return true;
        if (tecla->text() == " " && texto->text().isEmpty()) return true;
        if (tecla->key() != Qt::Key_Return && tecla->key() != Qt::Key_Enter) return false;
        if (sesion_.EnterChat(texto->text().toStdString()) == TeclaChat::Pasa) return false;
        texto->clear();
        return true;
    }

private:
    SesionRed& sesion_;
};

// The Qt objects of network play and the session over them.
struct RedPrograma {
    ZocaloQt wcli, wser;
    TemporizadorQt bomba, ping, ranking, sendQtr, retrasoQtr, relojBlancas, relojNegras;
    HoraSistema hora;
    VistaPrograma vista;
    SesionRed sesion{wcli,
                     wser,
                     vista,
                     {bomba, ping, ranking, sendQtr, retrasoQtr, relojBlancas, relojNegras},
                     hora};
    TeclasChat teclas{sesion};

    RedPrograma() {
        wcli.Enlazar(sesion, Lado::Cliente);
        wser.Enlazar(sesion, Lado::Servidor);
    }
};

std::unique_ptr<RedPrograma>& Red() {
    static std::unique_ptr<RedPrograma> red;
    return red;
}

// The forms of network play pass what the user does to the session.
void EnlazarFormas(SesionRed& s) {
    auto& f = Forms();
    if (Conexion* c = f.conexion) {
        c->alActivar = [&s] { s.ActivarConexion(); };
        c->alElegir = [&s](bool llamar) { s.ElegirLlamar(llamar); };
        c->alIr = [&s](const std::string& ip) { s.Command1Conexion(ip); };
        c->alCancelar = [&s] { s.Command2Conexion(); };
    }
    if (Nuevo* n = f.nuevo) {
        n->alCargar = [&s] { s.CargarNuevo(); };
        n->alColor = [&s](bool blancas) { s.NuevoOpcionColor(blancas); };
        n->alPuntuable = [&s] { s.NuevoOpcion3(); };
        n->alLibre = [&s] { s.NuevoOpcion4(); };
        n->alMinutos = [&s](const std::string& t) { s.NuevoMinutos(t); };
        n->alEnter = [&s] { s.NuevoEnter(); };
        n->alSubir = [&s] { s.NuevoSubir(); };
        n->alBajar = [&s] { s.NuevoBajar(); };
        n->alAceptar = [&s] { s.NuevoCommand1(); };
        n->alCancelar = [&s] { s.NuevoCommand2(); };
    }
    if (f.chat) f.chat->Texto()->installEventFilter(&Red()->teclas);
}

} // namespace

SesionRed* Sesion() {
    return Red() ? &Red()->sesion : nullptr;
}

void InstalarRedPrograma() {
    Red() = std::make_unique<RedPrograma>();
    SesionRed& s = Red()->sesion;
    InstalarRed(&s);
    auto& en = Enlace();

    en.FormulariosCreados = [&s] { EnlazarFormas(s); };
    en.OpcionesLeidas = [&s] { s.Nick = Controles().Nick; };
    en.CambiarNick = [&s] {
        s.Nick = Controles().Nick;
        s.CambiarNick();
        Controles().Nick = s.Nick;
    };
    en.CerrarRed = [&s] { return s.AlCerrarPrograma(); };
    en.NombreRemoto = [] {
        RedPrograma* r = Red().get();
        if (!r || !Variables::Conectado) return std::string();
        return r->sesion.EsCliente() ? r->wcli.socket.HostDelPeer() : r->wser.socket.HostDelPeer();
    };
    en.AbrirEnRed = [&s](const std::string& ruta) { return s.AbrirArchivo(ruta); };
    en.AbrirQtr = [&s](const std::string& ruta) { s.AbrirQtr(ruta); };

    auto& c = en.Comandos;
    c["mnuEstablecerconexion"] = [&s] { s.MenuEstablecerConexion(); };
    c["mnuObtenerIp"] = [&s] { s.MenuObtenerIp(); };
    c["mnuDesconectar"] = [&s] { s.MenuDesconectar(); };
    c["mnuRendirse"] = [&s] { s.MenuRendirse(); };
    c["mnuOfrecerTablas"] = [&s] { s.MenuOfrecerTablas(); };
    c["mnuRetroceder"] = [&s] { s.MenuRetroceder(); };
    // Not connected, a new game is the one at this machine.
    c["mnuNuevaPartida"] = [&s, local = c["mnuNuevaPartida"]] {
        if (!s.MenuNuevaPartida() && local) local();
    };
}

void TerminarRedPrograma() {
    if (!Red()) return;
    InstalarRed(nullptr);
    Red().reset();
}

} // namespace qa
