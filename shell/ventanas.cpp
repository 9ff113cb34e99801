#include "shell/ventanas.h"

#include "platform/ini_file.h"
#include "platform/programa.h"
#include "platform/texto.h"
#include "shell/chat.h"
#include "shell/formularios.h"
#include "shell/jugadas.h"
#include "shell/quintarena.h"
#include "shell/ranking.h"
#include "shell/reloj.h"

#include <QMdiSubWindow>
#include <cmath>

namespace qa {

namespace {

std::optional<int> PixelesDe(const std::string& seccion, const std::string& clave) {
    return Pixeles(LeerIni(FicheroOpciones, seccion, clave));
}

void Situar(QWidget* w, const char* seccion, bool conTamano) {
    if (!w) return;
    QPoint p = w->pos();
    if (auto v = PixelesDe(seccion, "Top")) p.setY(*v);
    if (auto v = PixelesDe(seccion, "Left")) p.setX(*v);
    w->move(p);
    if (!conTamano) return;
    QSize s = w->size();
    if (auto v = PixelesDe(seccion, "Width")) s.setWidth(*v);
    if (auto v = PixelesDe(seccion, "Height")) s.setHeight(*v);
    w->resize(s);
}

void SituarPendiente(Lugar& l, const char* seccion, const char* top, const char* left) {
    if (auto v = ANumero(LeerIni(FicheroOpciones, seccion, top))) l.top = *v;
    if (auto v = ANumero(LeerIni(FicheroOpciones, seccion, left))) l.left = *v;
}

void Escribir(const char* seccion, const QWidget* w, bool conTamano) {
    if (!w) return;
    Lugar l = LugarDe(w);
    EscribirIni(FicheroOpciones, seccion, "Top", TextoNumero(l.top));
    EscribirIni(FicheroOpciones, seccion, "Left", TextoNumero(l.left));
    if (!conTamano) return;
    EscribirIni(FicheroOpciones, seccion, "Width", TextoNumero(l.width));
    EscribirIni(FicheroOpciones, seccion, "Height", TextoNumero(l.height));
}

} // namespace

std::optional<int> Pixeles(const std::string& twips) {
    auto v = ANumero(twips);
    if (!v || std::abs(*v) > 1e8) return std::nullopt;
    return static_cast<int>(std::lround(*v / kTwipsPorPixel));
}

Lugar LugarDe(const QWidget* v) {
    return {v->y() * kTwipsPorPixel, v->x() * kTwipsPorPixel, v->width() * kTwipsPorPixel,
            v->height() * kTwipsPorPixel};
}

void SituarVentanas() {
    auto& f = Forms();
    Situar(static_cast<QWidget*>(f.quintarena), "Tablero", false);
    Situar(static_cast<QWidget*>(f.chat), "Chat", true);
    Situar(static_cast<QWidget*>(f.jugadas), "Jugadas", true);
    Situar(static_cast<QWidget*>(f.reloj), "Reloj", false);
    Situar(static_cast<QWidget*>(f.ranking), "Ranking", false);
    auto& c = Controles();
    SituarPendiente(c.ListaPgn, "Pgn", "TopInformacion", "LeftInformacion");
    SituarPendiente(c.PgnMovimientos, "Pgn", "TopJugadas", "LeftJugadas");
    SituarPendiente(c.Cpu, "CPU", "Top", "Left");
    SituarPendiente(c.Epd, "EPD", "Top", "Left");
    LugaresLeidos = true;
}

void EscribirLugares() {
    auto& f = Forms();
    Escribir("Tablero", static_cast<QWidget*>(f.quintarena), false);
    Escribir("Chat", static_cast<QWidget*>(f.chat), true);
    Escribir("Jugadas", static_cast<QWidget*>(f.jugadas), true);
    Escribir("Reloj", static_cast<QWidget*>(f.reloj), false);
    Escribir("Ranking", static_cast<QWidget*>(f.ranking), false);
}

QWidget* Panel(const std::string& entrada) {
    auto& f = Forms();
    if (entrada == "mnuMovimientos") return static_cast<QWidget*>(f.jugadas);
    if (entrada == "mnuVentanaChat") return static_cast<QWidget*>(f.chat);
    if (entrada == "mnuReloj") return static_cast<QWidget*>(f.reloj);
    if (entrada == "mnuMostrarRanking") return static_cast<QWidget*>(f.ranking);
    return nullptr;
}

void MostrarPanel(const std::string& entrada, bool visible) {
    if (QWidget* p = Panel(entrada)) {
        p->setVisible(visible);
        if (visible) p->raise();
    }
}

void OcultarVentanas(bool llamanteVisible) {
    static const PanelVista kOrden[] = {kPaneles[2], kPaneles[1], kPaneles[0], kPaneles[3]};
    if (!llamanteVisible)
        for (const auto& p : kOrden)
            EscribirIni(FicheroOpciones, "Configuracion", p.clave, Marcada(p.entrada) ? "1" : "0");
    for (const auto& p : kOrden) {
        if (!Marcada(p.entrada)) continue;
        Marcar(p.entrada, false);
        MostrarPanel(p.entrada, false);
    }
}

void MostrarVentanas() {
    static const PanelVista kOrden[] = {kPaneles[2], kPaneles[1], kPaneles[0], kPaneles[3]};
    for (const auto& p : kOrden) {
        int v = LeerBandera("Configuracion", p.clave);
        if (v >= 0) Marcar(p.entrada, v == 1);
    }
    for (const auto& p : kOrden)
        if (Marcada(p.entrada)) MostrarPanel(p.entrada, true);
}

} // namespace qa
