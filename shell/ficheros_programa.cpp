#include "shell/ficheros_programa.h"

#include "board/color_rgb.h"
#include "board/colores.h"
#include "core/environment.h"
#include "core/game_state.h"
#include "files/game_file.h"
#include "files/qtr_replay.h"
#include "platform/ini_file.h"
#include "platform/programa.h"
#include "platform/ruta.h"
#include "shell/configuracion.h"
#include "shell/enlaces.h"
#include "shell/formularios.h"
#include "shell/idioma.h"
#include "shell/mdi.h"
#include "shell/servicios.h"

#include <QTimer>

namespace qa {

namespace {

using namespace Variables;

struct Temporizadores {
    QTimer sendQtr, retraso;
    Temporizadores() {
        sendQtr.setInterval(100);
        retraso.setInterval(100);
        retraso.setSingleShot(true);
        QObject::connect(&sendQtr, &QTimer::timeout, [this] {
            const PasoQtr paso = SendQtr();
            entorno().RedibujarTablero();
            if (paso == PasoQtr::Sigue) return;
            sendQtr.stop();
            if (paso == PasoQtr::Final) retraso.start();
        });
        QObject::connect(&retraso, &QTimer::timeout, [] {
            TimerRetrasoQtr();
            entorno().RedibujarTablero();
        });
    }
};

Temporizadores& Timers() {
    static Temporizadores t;
    return t;
}

void AbrirPartidaQtr(const std::string& ruta) {
    Timers().sendQtr.stop();
    Timers().retraso.stop();
    if (!AbrirQtr(RutaReal(ruta))) return;
    // A replay is shown from White's side.
    if (Marcada("mnuInvertirTablero") && Forms().mdi) {
        Marcar("mnuInvertirTablero", false);
        Forms().mdi->Comando("mnuInvertirTablero");
    }
    entorno().RedibujarTablero();
    Timers().sendQtr.start();
}

std::string& CarpetaGuardar() {
    static std::string carpeta;
    return carpeta;
}

void GuardarPartidaComando() {
    if (Cargando || Cierto(Enlace().CpuVisible)) {
        MostrarMensaje("Quintarena", "80", kIconoInformacion);
        return;
    }
    if (EditandoTablero) return;
    Filtros filtros;
    for (const auto& [etiqueta, patron] : FiltrosGuardar()) {
        // Each label is preceded by its language text: 44 the game file, 48 PGN, 82 EPD.
        const int n = patron == "*.qtr" ? 44 : patron == "*.pgn" ? 48 : 82;
        filtros.push_back({Mensajes[n] + etiqueta, patron});
    }
    if (CarpetaGuardar().empty()) CarpetaGuardar() = RutaReal(DirectorioPrograma);
    const auto r = DialogoFichero(2, Mensajes[45], "", filtros, 1, CarpetaGuardar());
    if (r.fichero.empty()) return;
    CarpetaGuardar() = r.carpeta;
    if (GuardarPartida(r.fichero) == Guardado::Etiquetas) {
        if (Enlace().PedirEtiquetasPgn)
            Enlace().PedirEtiquetasPgn();
        else
            CancelarEtiquetasPgn();
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
                auto& c = Controles();
                c.ColorR = ColorR, c.ColorG = ColorG, c.ColorB = ColorB;
                c.Fondo = Fondo;
            });
    }
    if (Forms().mdi) {
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
    en.Comandos["mnuGuardarPartida"] = GuardarPartidaComando;
    en.Comandos["mnuGuardarComo"] = GuardarPartidaComando;
    en.Comandos["mnuRgb"] = MostrarColorRgb;
    en.PintarFondos = [] {
        const auto& c = Controles();
        ColorR = static_cast<int>(c.ColorR);
        ColorG = static_cast<int>(c.ColorG);
        ColorB = static_cast<int>(c.ColorB);
        Fondo = c.Fondo;
        PintarFormularios(0);
    };
}

} // namespace qa
