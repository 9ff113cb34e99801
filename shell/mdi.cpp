#include "shell/mdi.h"

#include "core/environment.h"
#include "core/game_state.h"
#include "language/idioma.h"
#include "platform/ini_file.h"
#include "platform/programa.h"
#include "platform/ruta.h"
#include "platform/sonido.h"
#include "platform/texto.h"
#include "shell/actualizar.h"
#include "shell/arranque.h"
#include "shell/barra_estado.h"
#include "shell/chat.h"
#include "shell/configuracion.h"
#include "shell/enlaces.h"
#include "shell/formularios.h"
#include "shell/opciones.h"
#include "shell/servicios.h"
#include "shell/splash.h"
#include "shell/ventanas.h"

#include <QAction>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QMdiArea>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

namespace qa {

bool CierrePendiente = false;

Mdi::Mdi()
    : area_(new QMdiArea), barra_(new BarraEstado), tStatus_(new QTimer(this)),
      altavoz_(new Altavoz(this)) {
    setObjectName("Mdi");
    setWindowTitle("Quintarena");
    auto* cuerpo = new QWidget;
    auto* capas = new QVBoxLayout(cuerpo);
    capas->setContentsMargins(0, 0, 0, 0);
    capas->setSpacing(0);
    area_->setBackground(QColor(96, 110, 128));
    capas->addWidget(area_, 1);
    capas->addWidget(barra_);
    setCentralWidget(cuerpo);
    CrearMenus();
    CrearToolbar();
    setAcceptDrops(true);
    // The smallest main window: 7800 by 1500 twips.
    setMinimumSize(static_cast<int>(7800 / kTwipsPorPixel),
                   static_cast<int>(1500 / kTwipsPorPixel));
    resize(1000, 720);
    tStatus_->setObjectName("TStatus");
    tStatus_->setInterval(10000);
    connect(tStatus_, &QTimer::timeout, this, &DibujarEstado);
    tStatus_->start();
}

void Mdi::Descargar() {
    close();
}

void Mdi::closeEvent(QCloseEvent* e) {
    if (CerrarMdi())
        e->accept();
    else
        e->ignore();
}

void Mdi::changeEvent(QEvent* e) {
    QMainWindow::changeEvent(e);
    if (e->type() != QEvent::WindowStateChange || isMinimized()) return;
    if (isMaximized() && !maximizadaAntes_) {
        maximizadaAntes_ = true;
    } else if (!isMaximized() && maximizadaAntes_) {
        maximizadaAntes_ = false;
        // Back from maximised: the size stored at the last close, not the platform's memory.
        QTimer::singleShot(0, this, [this] { RestaurarMdi(); });
    }
}

void Mdi::RestaurarMdi() {
    auto leer = [](const char* clave) { return Pixeles(LeerIni(FicheroOpciones, "Mdi", clave)); };
    QRect g = geometry();
    if (auto v = leer("Width")) g.setWidth(*v);
    if (auto v = leer("Height")) g.setHeight(*v);
    resize(g.size());
    QPoint p = pos();
    if (auto v = leer("Left")) p.setX(*v);
    if (auto v = leer("Top")) p.setY(*v);
    move(p);
}

void Mdi::dragEnterEvent(QDragEnterEvent* e) {
    if (e->mimeData()->hasUrls()) e->acceptProposedAction();
}

void Mdi::dropEvent(QDropEvent* e) {
    const auto urls = e->mimeData()->urls();
    if (urls.isEmpty()) return;
    // Only the first of the files; the main window lower-cases the name, the board does not.
    FileDrop(Minusculas(urls.front().toLocalFile().toStdString()));
    e->acceptProposedAction();
}

void Mdi::FileDrop(const std::string& fichero) {
    std::string nombre = fichero;
    if (nombre.find('~') != std::string::npos) nombre = Minusculas(RutaLarga(nombre));
    if (TerminaEn(nombre, "qtr") || TerminaEn(nombre, "epd") || TerminaEn(nombre, "pgn"))
        AbrirFichero(nombre);
}

void Mdi::AbrirFichero(const std::string& ruta) {
    auto& en = Enlace();
    if (Cierto(en.ModoEdicion) || motor().CpuVisible() || Cierto(en.Cargando)) return;
    std::string nombre = ruta;
    if (nombre.empty()) {
        auto& c = Controles();
        auto etiqueta = [](int n, const char* otra) {
            return Mensajes[n].empty() ? std::string(otra) : Mensajes[n];
        };
        Filtros filtros{{etiqueta(44, "Quintarena"), "*.qtr"},
                        {etiqueta(48, " Pgn"), "*.pgn"},
                        {etiqueta(82, " Epd"), "*.epd"}};
        auto tipo = AEntero(c.Tipo);
        auto r = DialogoFichero(kDialogoAbrir, "", "", filtros, tipo ? static_cast<int>(*tipo) : 1,
                                c.Dir);
        if (r.fichero.empty()) return;
        c.Dir = r.carpeta;
        c.Tipo = std::to_string(r.filtro);
        nombre = r.fichero;
    }
    if (!ExisteRutaUsuario(nombre)) return;
    if (en.AbrirEnRed && en.AbrirEnRed(nombre)) return;
    const std::string bajo = Minusculas(nombre);
    if (TerminaEn(bajo, ".pgn")) {
        if (!Variables::Conectado && en.CargarPgn) en.CargarPgn(nombre);
    } else if (TerminaEn(bajo, ".epd")) {
        if (en.AbrirEpd) en.AbrirEpd(nombre);
    } else if (TerminaEn(bajo, ".qtr")) {
        if (en.AbrirQtr) en.AbrirQtr(nombre);
    }
}

void Mdi::CambiarPanel(const std::string& entrada, const char* clave) {
    QAction* a = Entrada(entrada);
    // Qt has flipped the check already; while the engine form or the PGN browser holds the
    // panels the toggle does nothing, so put it back.
    if (listas().ListaPgnVisible() || motor().CpuVisible()) {
        a->setChecked(!a->isChecked());
        return;
    }
    MostrarPanel(entrada, a->isChecked());
    EscribirIni(FicheroOpciones, "Configuracion", clave, a->isChecked() ? "1" : "0");
}

void Mdi::CambiarNotacion(int n) {
    for (int i = 0; i < 4; ++i) Marcar(kNotaciones[i], i == n - 1);
    EscribirIni(FicheroOpciones, "Configuracion", "Check", std::to_string(n));
    Ejecutar(Enlace().NotacionCambiada);
}

namespace {

// The user's guide is a page per language beside the program, named after the language file as
// it lies on disk: "Quintarena-English.html" goes with "English.lng".
std::string FicheroAyuda() {
    const std::string real = RutaReal(FicheroIdioma);
    std::string idioma = real.substr(real.find_last_of('/') + 1);
    if (TerminaEn(Minusculas(idioma), ".lng")) idioma.resize(idioma.size() - 4);
    return DirectorioPrograma + "Quintarena-" + idioma + ".html";
}

} // namespace

void Mdi::MostrarAyuda() {
    const std::string fichero = FicheroAyuda();
    if (!ExisteRuta(fichero)) {
        MostrarMensaje("Quintarena", ReemplazarDolar(Mensajes[63], RutaReal(fichero)), kIconoStop);
        return;
    }
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(RutaReal(fichero)))))
        MostrarMensaje("Quintarena", ReemplazarDolar(Mensajes[63], "Winhlp32.exe"), kIconoStop);
}

void Mdi::Comando(const std::string& n) {
    auto& en = Enlace();
    // While the engine form is up these three are its toolbar's.
    static const std::pair<const char*, const char*> kDelMotor[] = {
        {"mnuRendirse", "3"}, {"mnuOfrecerTablas", "4"}, {"mnuRetroceder", "5"}};
    for (const auto& [entrada, codigo] : kDelMotor) {
        if (n != entrada || !motor().CpuVisible()) continue;
        if (en.ToolboxComand) en.ToolboxComand(codigo);
        return;
    }
    if (n == "mnuAbrirPartida") {
        AbrirFichero("");
    } else if (n == "mnuGuararChat" || n == "mnuChatListGuardar") {
        GuardarChat();
    } else if (n == "mnuGuararImagen") {
        if (motor().CpuVisible())
            MostrarMensajeNumero(80, kIconoInformacion);
        else
            GuardarImagen();
    } else if (n == "mnuSalir") {
        Descargar();
    } else if (n == "mnuMovimientos") {
        CambiarPanel(n, "Jugadas");
    } else if (n == "mnuVentanaChat") {
        CambiarPanel(n, "Chat");
    } else if (n == "mnuReloj") {
        CambiarPanel(n, "Reloj");
    } else if (n == "mnuMostrarRanking") {
        CambiarPanel(n, "Elo");
    } else if (n == "mnuSonido") {
        EscribirIni(FicheroOpciones, "Configuracion", "Sonido", Marcada(n) ? "1" : "0");
    } else if (n == "mnuPointClick") {
        EscribirIni(FicheroOpciones, "Configuracion", "PointClick", Marcada(n) ? "1" : "0");
        Ejecutar(en.PointClickCambiado);
    } else if (n == "mnuAlgebraicoEsp") {
        CambiarNotacion(1);
    } else if (n == "mnuAlgebraicoIng") {
        CambiarNotacion(2);
    } else if (n == "mnuCordenadas") {
        CambiarNotacion(3);
    } else if (n == "mnuAlgebraicoUsuario0") {
        CambiarNotacion(4);
    } else if (n == "mnuOpciones") {
        if (Cierto(en.Cargando) || motor().CpuVisible()) {
            MostrarMensajeNumero(80, kIconoInformacion);
        } else if (Opciones* op = Forms().opciones) {
            op->ActualizarSkins();
            CentrarEnMdi(op);
            op->show();
            op->raise();
        }
    } else if (n == "mnuTemaAyuda") {
        MostrarAyuda();
    } else if (n == "mnuAcerca") {
        if (Splash* s = Forms().splash) {
            s->Tshow();
            CentrarEnMdi(s);
            s->show();
            s->raise();
        }
    } else if (n == "mnuActualizar") {
        Actualizar(kDireccionWeb);
    } else if (n == "mnuChatListBorrar") {
        if (Forms().chat) Forms().chat->ChatList()->clear();
    } else if (n == "mnuCambiarNick") {
        Ejecutar(en.CambiarNick);
    } else if (auto it = en.Comandos.find(n); it != en.Comandos.end() && it->second) {
        it->second();
    }
}

} // namespace qa
