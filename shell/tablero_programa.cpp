#include "shell/tablero_programa.h"

#include "board/apariencia.h"
#include "board/colores.h"
#include "board/dibujo_tablero.h"
#include "board/lista_jugadas.h"
#include "board/partida_local.h"
#include "board/set_tablero.h"
#include "board/vista_tablero.h"
#include "core/environment.h"
#include "core/game_state.h"
#include "core/move_list.h"
#include "core/takeback.h"
#include "language/idioma.h"
#include "platform/ini_file.h"
#include "platform/programa.h"
#include "platform/ruta.h"
#include "platform/texto.h"
#include "shell/chat.h"
#include "shell/configuracion.h"
#include "shell/enlaces.h"
#include "shell/formularios.h"
#include "shell/jugadas.h"
#include "shell/mdi.h"
#include "shell/opciones.h"
#include "shell/quintarena.h"
#include "shell/ranking.h"
#include "shell/reloj.h"
#include "shell/servicios.h"
#include "shell/ventanas.h"

#include <QMdiSubWindow>
#include <limits>

namespace qa {

namespace {

using namespace Variables;

struct Tablero {
    VistaTablero* vista = nullptr;
    SetTableroF* set = nullptr;
    std::unique_ptr<DibujoTablero> dibujo;
};

Tablero& T() {
    static Tablero t;
    return t;
}

int TamanoOpciones() {
    Opciones* op = Forms().opciones;
    const double v = op ? Val(op->Tamano()) : 60;
    if (v < 1) return 30;
    // A size no int holds is unreadable: the board keeps the one it has.
    if (v > std::numeric_limits<int>::max()) return T().vista ? T().vista->Tamano() : 60;
    return static_cast<int>(v);
}

// The three board options of the dialog, as its boxes stand.
void AplicarOpciones() {
    Opciones* op = Forms().opciones;
    VistaTablero* v = T().vista;
    if (!op || !v) return;
    v->PonerMarcos(op->Check(1));
    v->PonerCoordenadas(op->Check(2));
    v->PonerLineas(op->Check(3));
}

void CrearTablero() {
    auto& f = Forms();
    if (!f.quintarena || T().vista) return;
    auto* vista = new VistaTablero;
    T().vista = vista;
    vista->PonerNombreBase(NombreBase());
    vista->PonerCarpetaApariencias(
        QString::fromStdString(RutaReal(DirectorioPrograma + "apariencias")));
    f.quintarena->PonerTablero(vista);

    T().dibujo = std::make_unique<DibujoTablero>(*vista);
    if (f.jugadas) T().dibujo->PonerListaJugadas(f.jugadas->Lista());
    InstalarDibujo(T().dibujo.get());

    // The forms go with the main window; the core must not reach a board that is gone.
    QObject::connect(vista, &QObject::destroyed, [] {
        InstalarDibujo(nullptr);
        T().vista = nullptr;
        T().dibujo.reset();
    });
    T().set = new SetTableroF(*vista->Picture(), f.mdi);
    QObject::connect(T().set, &QObject::destroyed, [] { T().set = nullptr; });
    QObject::connect(vista, &VistaTablero::ImagenesCambiadas, T().set,
                     &SetTableroF::PaintImagenesSet);
    QObject::connect(vista, &VistaTablero::TamanoCambiado, f.quintarena, [](QSize) {
        if (Forms().quintarena) Forms().quintarena->adjustSize();
    });
    QObject::connect(vista, &VistaTablero::AparienciaCambiada, vista, [](const QString& nombre) {
        EscribirIni(FicheroOpciones, "Configuracion", "Apariencia", nombre.toStdString());
        if (Forms().opciones) Forms().opciones->CargarApariencia(nombre.toStdString());
    });
    if (ListaJugadas* lista = f.jugadas ? f.jugadas->Lista() : nullptr) {
        QObject::connect(lista, &ListaJugadas::NotacionElegida, lista, [](int check) {
            if (check >= 1 && check <= 4 && Forms().mdi) {
                Marcar(kNotaciones[check - 1], true);
                Forms().mdi->Comando(kNotaciones[check - 1]);
            }
        });
        QObject::connect(lista, &ListaJugadas::GuardarComo, lista, [] {
            if (Forms().mdi) Forms().mdi->Comando("mnuGuardarPartida");
        });
        lista->PonerNotacion(NotacionMarcada());
    }

    PonerFichas(); // shown from the start, though nobody moves until a game begins
    Opciones* op = f.opciones;
    vista->PonerApariencia(op ? QString::fromStdString(op->TextoSkin()) : vista->NombreBase());
    AplicarOpciones();
    vista->PonerInvertido(Marcada("mnuInvertirTablero"));
    vista->PonerPointClick(Marcada("mnuPointClick"));
    vista->PonerTamano(TamanoOpciones(), false);
    vista->Redimensionar();
    f.quintarena->adjustSize();

    // The colour scheme's groups: board and clock, lists and options, chat, ranking, set-up.
    // Inside the frames of the main window only, so that their title bars stay readable.
    auto dentro = [](QMdiSubWindow* w) { return w ? w->widget() : nullptr; };
    const std::pair<QWidget*, int> grupos[] = {{dentro(f.quintarena), 1},
                                               {dentro(f.reloj), 1},
                                               {dentro(f.jugadas), 2},
                                               {f.opciones, 2},
                                               {dentro(f.chat), 3},
                                               {dentro(f.ranking), 4},
                                               {T().set, 9}};
    for (const auto& [forma, grupo] : grupos)
        if (forma) RegistrarFormulario(forma, grupo);
    Ejecutar(Enlace().PintarFondos);
}

// The guards every game command shares, for the game at one machine.
bool PartidaOcupada() {
    if (listas().ListaPgnVisible() || EditandoTablero) return true;
    if (Cargando) {
        MostrarMensajeNumero(80, kIconoInformacion);
        return true;
    }
    return false;
}

} // namespace

void InstalarTablero() {
    auto& en = Enlace();
    en.CargarImagenes = CrearTablero;
    en.PointClickCambiado = [] {
        if (T().vista) T().vista->PonerPointClick(Marcada("mnuPointClick"));
        MovimientoAnulado();
    };
    en.NotacionCambiada = [] {
        if (Forms().jugadas) Forms().jugadas->Lista()->PonerNotacion(NotacionMarcada());
    };
    en.AlturaFichas = [] { return T().vista ? T().vista->Tamano() : 0; };
    en.CambiarTamano = [] {
        if (T().vista) T().vista->PonerTamano(TamanoOpciones());
    };
    // The size box's rules are the board's; without a board the box keeps what it shows.
    using Regla = QString (VistaTablero::*)(const QString&);
    auto regla = [](Regla r) {
        return [r](const std::string& texto) {
            return T().vista ? (T().vista->*r)(QString::fromStdString(texto)).toStdString() : texto;
        };
    };
    en.TamanoEnter = regla(&VistaTablero::TamanoEnter);
    en.TamanoMas = regla(&VistaTablero::TamanoMas);
    en.TamanoMenos = regla(&VistaTablero::TamanoMenos);
    en.SetTableroVisible = [] { return T().set && T().set->isVisible(); };
    en.RepintarPaleta = [] {
        if (T().set) T().set->PaintImagenesSet();
    };
    en.ImagenTablero = []() -> QWidget* { return T().vista ? T().vista->Picture() : nullptr; };
    en.ModoEdicion = [] { return EditandoTablero; };
    en.Cargando = [] { return Cargando; };
    en.OpcionesAplicadas = AplicarOpciones;
    en.SkinElegida = [](const std::string& nombre) {
        VistaTablero* v = T().vista;
        Opciones* op = Forms().opciones;
        if (!v || !op) return;
        const bool base = EsNombreBase(QString::fromStdString(nombre));
        if (v->PonerApariencia(QString::fromStdString(nombre)) && !base) {
            // A skin drawn for another square size: offer its size.
            const QSize s = v->TamanoSkin();
            if (s.isValid() && s.height() != TamanoOpciones() &&
                MostrarMensajeNumero(64, kIconoPregunta, kBotonesSiNo) == kRespuestaSi)
                op->FijarTamano(std::to_string(s.width()));
        }
        v->PonerTamano(TamanoOpciones(), !base);
        if (T().set) T().set->PaintImagenesSet();
    };

    en.Comandos["mnuInvertirTablero"] = [] {
        if (T().vista) T().vista->PonerInvertido(Marcada("mnuInvertirTablero"));
    };
    en.Comandos["mnuRetroceder"] = [] {
        if (::Jugadas::List1.empty() || EditandoTablero || Cargando) return;
        if (!Conectado && Turno != 0) RetrocesoFuncion();
    };
    en.Comandos["mnuSetTablero"] = [] {
        if (Variables::Conectado) {
            MostrarMensajeNumero(83, kIconoInformacion);
        } else if (motor().CpuVisible()) {
            MostrarMensajeNumero(84, kIconoInformacion);
        } else if (T().set) {
            T().set->show();
            T().set->raise();
        }
    };
    // At one machine a new game is the engine form's: an engine on either side or none. Without
    // that form the command gives the same clean board with White to move.
    en.Comandos["mnuNuevaPartida"] = [] {
        if (PartidaOcupada() || Variables::Conectado || !T().vista) return;
        if (Enlace().MostrarCpu) {
            Enlace().MostrarCpu();
            return;
        }
        PartidaLocal(*T().vista->Picture());
        // A new game is seen from White's side.
        if (Marcada("mnuInvertirTablero")) {
            Marcar("mnuInvertirTablero", false);
            T().vista->PonerInvertido(false);
        }
    };
}

} // namespace qa
