#include "shell/ficheros_programa.h"

#include "board/color_rgb.h"
#include "board/colores.h"
#include "board/vista_tablero.h"
#include "core/environment.h"
#include "core/game_state.h"
#include "files/epd_list.h"
#include "files/game_file.h"
#include "files/gui/epd_form.h"
#include "files/gui/lista_pgn_form.h"
#include "files/gui/tablero_mini.h"
#include "files/qtr_replay.h"
#include "language/idioma.h"
#include "platform/ini_file.h"
#include "platform/programa.h"
#include "platform/ruta.h"
#include "shell/configuracion.h"
#include "shell/enlaces.h"
#include "shell/formularios.h"
#include "shell/mdi.h"
#include "shell/quintarena.h"
#include "shell/servicios.h"
#include "shell/ventanas.h"

#include <QMdiArea>
#include <QPointer>
#include <QTimer>

namespace qa {

namespace {

using namespace Variables;

// The replay's two timers, SendQtr and TimerRetrasoQTR; the board form owns them, as it owns
// its other timers, so they end with it. Null without a board form.
struct Temporizadores {
    QTimer* sendQtr = nullptr;
    QTimer* retraso = nullptr;
};

Temporizadores Timers() {
    QWidget* tablero = Forms().quintarena;
    if (!tablero) return {};
    constexpr auto kDirectos = Qt::FindDirectChildrenOnly;
    if (auto* sendQtr = tablero->findChild<QTimer*>("SendQtr", kDirectos))
        return {sendQtr, tablero->findChild<QTimer*>("TimerRetrasoQTR", kDirectos)};
    auto* sendQtr = new QTimer(tablero);
    auto* retraso = new QTimer(tablero);
    sendQtr->setObjectName("SendQtr");
    retraso->setObjectName("TimerRetrasoQTR");
    sendQtr->setInterval(100);
    retraso->setInterval(100);
    retraso->setSingleShot(true);
    QObject::connect(sendQtr, &QTimer::timeout, retraso, [sendQtr, retraso] {
        const PasoQtr paso = SendQtr();
        dibujo().RedibujarTablero();
        if (paso == PasoQtr::Sigue) return;
        sendQtr->stop();
        if (paso == PasoQtr::Final) retraso->start();
    });
    QObject::connect(retraso, &QTimer::timeout, retraso, [] {
        TimerRetrasoQtr();
        dibujo().RedibujarTablero();
    });
    return {sendQtr, retraso};
}

void AbrirPartidaQtr(const std::string& ruta) {
    const Temporizadores t = Timers();
    if (!t.sendQtr) return;
    t.sendQtr->stop();
    t.retraso->stop();
    // The file says what kind of game it is; nothing of the one before is kept.
    TipoPartida.clear();
    ColorJugador.clear();
    Turno = 0;
    if (!AbrirQtr(RutaUsuario(ruta))) return;
    // A replay is shown from White's side.
    if (Marcada("mnuInvertirTablero") && Forms().mdi) {
        Marcar("mnuInvertirTablero", false);
        Forms().mdi->Comando("mnuInvertirTablero");
    }
    dibujo().RedibujarTablero();
    t.sendQtr->start();
}

std::string& CarpetaGuardar() {
    static std::string carpeta;
    return carpeta;
}

// The small boards of the browsers take the pieces the main board shows.
void PonerPiezas(TableroMini* mini) {
    auto* vista =
        Forms().quintarena ? qobject_cast<VistaTablero*>(Forms().quintarena->PicBuffer()) : nullptr;
    if (mini && vista) mini->PonerJuego(vista->Picture()->R());
}

// A browser opens where it was last, in twips from the corner of the main window's work area.
void Situar(QWidget* forma, const Lugar& lugar) {
    Mdi* mdi = Forms().mdi;
    if (!mdi || !mdi->Area()) return;
    const QPoint origen = mdi->Area()->mapToGlobal(QPoint(0, 0));
    forma->move(origen +
                QPoint(static_cast<int>(lugar.left / 15), static_cast<int>(lugar.top / 15)));
}

// The browsers are windows of their own; they go with the main window.
template <typename Forma> Forma* Navegador(QPointer<Forma>& forma) {
    if (!forma) {
        forma = new Forma(nullptr);
        if (Forms().mdi)
            QObject::connect(Forms().mdi, &QObject::destroyed, forma, &QObject::deleteLater);
    }
    return forma;
}

QPointer<ListaPgnF>& FormaPgn() {
    static QPointer<ListaPgnF> forma;
    return forma;
}

ListaPgnF* FormularioPgn() {
    const bool nueva = !FormaPgn();
    ListaPgnF* f = Navegador(FormaPgn());
    if (nueva) {
        QObject::connect(f, &ListaPgnF::TableroCambiado, [] { dibujo().RedibujarTablero(); });
        QObject::connect(f, &ListaPgnF::Cerrado, [] {
            dibujo().RedibujarTablero();
            // The panels it hid come back once it is really gone.
            QTimer::singleShot(0, [] { MostrarVentanas(); });
        });
    }
    PonerPiezas(f->Miniatura());
    return f;
}

void CargarPgn(const std::string& ruta) {
    ListaPgnF* f = FormularioPgn();
    OcultarVentanas(f->isVisible());
    f->Abrir(QString::fromStdString(RutaUsuario(ruta)));
    Situar(f, Controles().ListaPgn);
    f->show();
    f->raise();
}

QPointer<EpdF>& FormaEpd() {
    static QPointer<EpdF> forma;
    return forma;
}

EpdF* FormularioEpd() {
    const bool nueva = !FormaEpd();
    EpdF* f = Navegador(FormaEpd());
    if (nueva) {
        QObject::connect(f, &EpdF::PosicionAbierta, [] { dibujo().RedibujarTablero(); });
        QObject::connect(f, &EpdF::Cerrado, [] { dibujo().RedibujarTablero(); });
    }
    return f;
}

// The browser opens the file, with no question: the position on show was given up before.
void LeerFicheroEpd(const std::string& ruta) {
    EpdF* f = FormularioEpd();
    PonerPiezas(f->Tablero());
    f->Abrir(QString::fromStdString(RutaUsuario(ruta)));
    Situar(f, Controles().Epd);
    f->show();
    f->raise();
}

void AbrirFicheroEpd(const std::string& ruta) {
    EpdF* f = FormularioEpd();
    // A position on show is replaced only when the player agrees.
    if (f->isVisible()) {
        if (MostrarMensajeNumero(57, kIconoPregunta, kBotonesSiNo) != kRespuestaSi) return;
        f->close();
    }
    LeerFicheroEpd(ruta);
}

// The PGN browser for the core: closing it is the form's own close, which puts the board back.
class ListasPrograma final : public EntornoListas {
public:
    bool ListaPgnVisible() override { return FormaPgn() && FormaPgn()->isVisible(); }
    void CerrarListaPgn() override {
        if (FormaPgn()) FormaPgn()->close();
    }
    void MostrarVentanas() override { qa::MostrarVentanas(); }
};

void GuardarPartidaComando() {
    if (Cargando || motor().CpuVisible()) {
        MostrarMensajeNumero(80, kIconoInformacion);
        return;
    }
    if (EditandoTablero) return;
    Filtros filtros;
    for (const auto& [etiqueta, patron] : FiltrosGuardar()) {
        // Each label is preceded by its language text: 44 the game file, 48 PGN, 82 EPD.
        const int n = patron == "*.qtr" ? 44 : patron == "*.pgn" ? 48 : 82;
        filtros.push_back({Mensajes[n] + etiqueta, patron});
    }
    if (CarpetaGuardar().empty()) CarpetaGuardar() = RutaReal(DirectorioDatos);
    const auto r = DialogoFichero(2, Mensajes[45], "", filtros, 1, CarpetaGuardar());
    if (r.fichero.empty()) return;
    CarpetaGuardar() = r.carpeta;
    if (GuardarPartida(r.fichero) == Guardado::Etiquetas) {
        ListaPgnF* f = FormularioPgn();
        f->AbrirComoDialogo();
        Situar(f, Controles().ListaPgn);
        f->show();
        f->raise();
    }
}

void MostrarColorRgb() {
    static ColorRgb* dialogo = nullptr;
    if (!dialogo) {
        dialogo = new ColorRgb(Forms().mdi);
        QObject::connect(dialogo, &QObject::destroyed, [] { dialogo = nullptr; });
        QObject::connect(
            dialogo, &ColorRgb::Aceptado, [](const QString& color, const QString& fondo) {
                EscribirIni(FicheroOpciones, "Configuracion", "Color", color.toStdString());
                EscribirIni(FicheroOpciones, "Configuracion", "Fondo", fondo.toStdString());
            });
    }
    if (Forms().mdi) {
        dialogo->adjustSize(); // before its first show it does not know its own size
        const QRect m = Forms().mdi->geometry();
        dialogo->move(m.center() - dialogo->rect().center());
    }
    dialogo->show();
    dialogo->raise();
}

} // namespace

void InstalarFicheros() {
    auto& en = Enlace();
    en.AbrirQtr = AbrirPartidaQtr;
    en.CargarPgn = CargarPgn;
    en.AbrirEpd = AbrirFicheroEpd;
    en.EpdVisible = [] { return FormaEpd() && FormaEpd()->isVisible(); };
    en.LeerEpd = LeerFicheroEpd;
    en.CerrarEpd = [] {
        if (FormaEpd()) FormaEpd()->close();
    };
    en.CancelarEpd = [] {
        FEpd::CancelarEPD();
        dibujo().RedibujarTablero();
    };
    static ListasPrograma listas;
    InstalarListas(&listas);
    en.Comandos["mnuGuardarPartida"] = GuardarPartidaComando;
    en.Comandos["mnuGuardarComo"] = GuardarPartidaComando;
    en.Comandos["mnuRgb"] = MostrarColorRgb;
    en.PintarFondos = [] { PintarFormularios(0); };
}

} // namespace qa
