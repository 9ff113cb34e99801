#include "shell/arranque.h"

#include "core/environment.h"
#include "core/game_state.h"
#include "language/idioma.h"
#include "platform/escritorio.h"
#include "platform/escritura.h"
#include "platform/ini_file.h"
#include "platform/programa.h"
#include "platform/ruta.h"
#include "platform/texto.h"
#include "shell/barra_estado.h"
#include "shell/chat.h"
#include "shell/configuracion.h"
#include "shell/cpu.h"
#include "shell/enlaces.h"
#include "shell/form_level2.h"
#include "shell/formas_red.h"
#include "shell/formularios.h"
#include "shell/jugadas.h"
#include "shell/mdi.h"
#include "shell/opciones.h"
#include "shell/puntuacion.h"
#include "shell/quintarena.h"
#include "shell/ranking.h"
#include "shell/reloj.h"
#include "shell/servicios.h"
#include "shell/splash.h"
#include "shell/ventanas.h"

#include <QApplication>
#include <QDialog>
#include <QMdiArea>
#include <QThread>
#include <QTimer>

namespace qa {

namespace {

bool& Fin() {
    static bool fin = false;
    return fin;
}

// Assigned at start as they always were; nothing reads them.
std::string g_a, g_ap, g_c, g_d, g_vacia, g_r, g_t;
std::int64_t g_frecuencia = 0;

} // namespace

bool FinPrograma() {
    return Fin();
}

namespace {

bool& Pedido() {
    static bool pedido = false;
    return pedido;
}

// While the start runs, Main itself closes once it has stopped.
bool& EnArranque() {
    static bool en = false;
    return en;
}

// The close runs from the main event loop, never from inside a box's own loop: the handler that
// opened the box finishes first.
void CerrarCuandoSeguro() {
    if (Fin() || EnArranque()) return;
    if (QThread::currentThread()->loopLevel() > 1) {
        QTimer::singleShot(50, QCoreApplication::instance(), &CerrarCuandoSeguro);
        return;
    }
    if (Forms().mdi) Forms().mdi->Descargar();
}

} // namespace

bool CierrePedido() {
    return Pedido();
}

void PedirCierre() {
    if (Fin()) return;
    Pedido() = true;
    // Nobody is there to answer: each box waiting goes, unanswered.
    for (int i = 0; i < 16; ++i) {
        QWidget* w = QApplication::activeModalWidget();
        if (!w) break;
        if (auto* d = qobject_cast<QDialog*>(w))
            d->reject();
        else
            w->close();
    }
    CerrarCuandoSeguro();
}

namespace {
std::string& CarpetaFijada() {
    static std::string carpeta;
    return carpeta;
}
} // namespace

void FijarCarpetaPrograma(const std::string& carpeta) {
    CarpetaFijada() = carpeta;
}

std::string CarpetaPrograma() {
    if (!CarpetaFijada().empty()) return CarpetaFijada();
    return QCoreApplication::applicationDirPath().toStdString();
}

void FijarCarpetas() {
    const std::string programa = CarpetaPrograma();
    FijarDirectorioPrograma(programa);
    const std::string datos = CarpetaEscritura(programa, {"Default.ini", "Puntuacion.dat"});
    if (!datos.empty()) FijarDirectorioDatos(datos);
}

void TerminarPrograma() {
    Fin() = true;
    QCoreApplication::exit(0);
}

std::string RutaLarga(const std::string& ruta) {
    const std::string real = RutaUsuario(ruta);
    return ExisteRutaUsuario(real) ? real : std::string();
}

std::string NombreDeLineaDeOrdenes(const std::string& linea) {
    std::string nombre = linea;
    if (nombre.empty()) return nombre;
    if (nombre.find('~') != std::string::npos) nombre = RutaLarga(nombre);
    if (!nombre.empty() && nombre.front() == '"')
        nombre = nombre.size() >= 2 ? nombre.substr(1, nombre.size() - 2) : std::string();
    return Minusculas(nombre);
}

void AbrirLineaDeOrdenes(const std::string& nombre) {
    auto& en = Enlace();
    const std::string tipo = Minusculas(nombre.size() >= 3 ? nombre.substr(nombre.size() - 3) : "");
    if (tipo == "pgn") {
        if (en.CargarPgn) en.CargarPgn(nombre);
    } else if (tipo == "qtr") {
        MostrarPaneles();
        if (en.AbrirQtr) en.AbrirQtr(nombre);
    } else if (tipo == "epd") {
        if (en.AbrirEpd) en.AbrirEpd(nombre);
    }
    // A file of any other type opens nothing and shows no panels.
    if (nombre.empty()) MostrarPaneles();
}

void MostrarPaneles() {
    if (listas().ListaPgnVisible()) return;
    for (const auto& p : kPaneles)
        if (Marcada(p.entrada)) MostrarPanel(p.entrada, true);
}

void CentrarEnMdi(QWidget* f) {
    Mdi* mdi = Forms().mdi;
    if (!f || !mdi) return;
    const QPoint base = f->isWindow() ? mdi->pos() : QPoint();
    f->move(base.x() + mdi->width() / 2 - f->width() / 2,
            base.y() + mdi->height() / 2 - f->height() / 2);
}

bool Main(const std::vector<std::string>& argumentos) {
    Fin() = false;
    Pedido() = false;
    LugaresLeidos = false;
    g_frecuencia = FrecuenciaCronometro();
    g_a = "A";
    g_ap = "ap";
    g_c = "C";
    g_d = "D";
    g_vacia = "";
    g_r = "R";
    g_t = "T";
    FijarCarpetas();
    LimpiarTemporales(RutaEscritura(DirectorioDatos));
    if (!ExisteFichero(FicheroOpciones)) return false;

    auto* mdi = new Mdi;
    auto& f = Forms();
    f.mdi = mdi;
    CrearFormularios();

    // The main window has its place before the splash comes up.
    auto ventanas = AEntero(LeerIni(FicheroOpciones, "Mdi", "Windows"));
    const bool maximizada = ventanas && *ventanas != 0;
    if (!maximizada) {
        auto leer = [](const char* clave) {
            return Pixeles(LeerIni(FicheroOpciones, "Mdi", clave));
        };
        QSize s = mdi->size();
        if (auto v = leer("Width")) s.setWidth(*v);
        if (auto v = leer("Height")) s.setHeight(*v);
        mdi->resize(s);
        QPoint p = mdi->pos();
        if (auto v = leer("Left")) p.setX(*v);
        if (auto v = leer("Top")) p.setY(*v);
        mdi->move(p);
    }
    if (maximizada)
        mdi->showMaximized();
    else
        mdi->show();

    CentrarEnMdi(f.splash);
    f.splash->show();
    f.splash->raise();
    f.splash->repaint();

    EnArranque() = true;
    f.quintarena->Cargar();
    if (!Fin() && !Pedido()) {
        f.quintarena->show();
        DibujarEstado();
        std::string linea;
        for (std::size_t i = 1; i < argumentos.size(); ++i)
            linea += (i > 1 ? " " : "") + argumentos[i];
        AbrirLineaDeOrdenes(NombreDeLineaDeOrdenes(linea));
    }
    EnArranque() = false;
    if (!Fin() && Pedido()) mdi->Descargar();
    if (Fin()) return false;
    mdi->Area()->setActiveSubWindow(f.quintarena);
    f.quintarena->setFocus();
    return true;
}

bool CerrarMdi() {
    auto& en = Enlace();
    auto& f = Forms();
    if (motor().CpuVisible()) Ejecutar(en.CerrarMotores);
    Ejecutar(en.DescargarDLL);
    if (f.opciones && f.opciones->isVisible()) f.opciones->OpcionesAceptar();
    if (en.CerrarRed && !en.CerrarRed()) {
        // Nothing is saved yet: the end of the connection brings us back here.
        CierrePendiente = true;
        return false;
    }
    if (LiberarFichero(FicheroOpciones)) GuardarOpciones();
    GrabarPuntuacion();
    // The forms go with the main window; no question about an unsaved game on this road.
    for (QWidget* w : {static_cast<QWidget*>(f.splash), static_cast<QWidget*>(f.opciones)})
        if (w) w->hide();
    Fin() = true;
    QCoreApplication::exit(0);
    return true;
}

} // namespace qa

namespace qa {

void CrearFormularios() {
    auto& f = Forms();
    Mdi* mdi = f.mdi;
    f.quintarena = new Quintarena;
    f.jugadas = new Jugadas;
    f.chat = new Chat;
    f.reloj = new Reloj;
    f.ranking = new Ranking;
    f.formLevel2 = new FormLevel2(mdi);
    f.cpu = new Cpu(*f.formLevel2);
    for (QMdiSubWindow* w : std::initializer_list<QMdiSubWindow*>{f.quintarena, f.jugadas, f.chat,
                                                                  f.reloj, f.ranking, f.cpu}) {
        mdi->Area()->addSubWindow(w);
        w->hide();
    }
    f.opciones = new Opciones(mdi);
    f.splash = new Splash(mdi);
    f.conexion = new Conexion(mdi);
    f.ip = new Ip(mdi);
    f.nuevo = new Nuevo(mdi);
    Ejecutar(Enlace().FormulariosCreados);
    FijarAvisoIdiomaIncorrecto(&AvisarIdiomaIncorrecto);
}

void LiberarFormularios() {
    FijarAvisoIdiomaIncorrecto(nullptr);
    delete Forms().mdi;
    Forms() = Formularios{};
    CierrePendiente = false;
}

} // namespace qa
