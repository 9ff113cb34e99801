#include "shell/configuracion.h"

#include "board/colores.h"
#include "core/environment.h"
#include "core/game_state.h"
#include "language/idioma.h"
#include "platform/escritura.h"
#include "platform/ini_file.h"
#include "platform/programa.h"
#include "platform/ruta.h"
#include "platform/texto.h"
#include "shell/enlaces.h"
#include "shell/formularios.h"
#include "shell/mdi.h"
#include "shell/opciones.h"
#include "shell/puntuacion.h"
#include "shell/servicios.h"
#include "shell/ventanas.h"

#include <QAction>

namespace qa {

namespace {

std::string Leer(const std::string& seccion, const std::string& clave) {
    return LeerIni(FicheroOpciones, seccion, clave);
}
void Escribir(const std::string& seccion, const std::string& clave, const std::string& valor) {
    EscribirIni(FicheroOpciones, seccion, clave, valor);
}

void LeerEntrada(const char* clave, const char* entrada) {
    int v = LeerBandera("Configuracion", clave);
    if (v >= 0) Marcar(entrada, v == 1);
}

void EscribirLugarPendiente(const char* seccion, const char* top, const char* left,
                            const Lugar& l) {
    Escribir(seccion, top, TextoNumero(l.top));
    Escribir(seccion, left, TextoNumero(l.left));
}

} // namespace

ControlesPendientes& Controles() {
    static ControlesPendientes c;
    return c;
}

int LeerBandera(const std::string& seccion, const std::string& clave) {
    auto v = ANumero(Leer(seccion, clave));
    if (v && *v == 0) return 0;
    if (v && *v == 1) return 1;
    return -1;
}

bool ExisteFichero(const std::string& fichero) {
    if (fichero.empty()) {
        std::string idioma = Forms().opciones ? Forms().opciones->TextoIdioma() : "";
        MostrarMensaje("Quintarena", idioma + ".lng" + " no se ha encontrado.", kIconoInformacion);
        if (Forms().mdi) Forms().mdi->Descargar();
    }
    // A settings or language file must be a file we can read: a folder or a FIFO is not one.
    const bool texto = TerminaEn(fichero, "ini") || TerminaEn(fichero, "lng");
    if (texto ? IniLegible(fichero) : ExisteRuta(fichero)) return true;
    // Built and kept back: the callers that care say so themselves.
    const std::string aviso = ReemplazarDolar(Mensajes[63], FinLinea + fichero + FinLinea);
    if (TerminaEn(fichero, "ini") && Mensajes[63].empty())
        MostrarMensaje("Quintarena", "El fichero Default.ini no se ha encontrado.",
                       kIconoInformacion);
    if (TerminaEn(fichero, "dat") && GrabarPuntuacion()) PrintPuntuacion();
    (void)aviso;
    return false;
}

bool LiberarFichero(const std::string& fichero) {
    if (!ExisteRuta(fichero)) return true;
    const std::string ruta = RutaEscritura(fichero);
    if (QuitarSoloLectura(ruta)) return true;
    std::string t = ReemplazarDolar(Mensajes[28], FinLinea + ruta + FinLinea + FinLinea);
    if (!t.empty()) MostrarMensaje("Quintarena", t, kIconoInformacion);
    return false;
}

int NotacionMarcada() {
    for (int i = 0; i < 4; ++i)
        if (Marcada(kNotaciones[i])) return i + 1;
    return 1;
}

void LeerOpciones() {
    Opciones* op = Forms().opciones;
    if (op) {
        for (int i = 1; i <= 3; ++i) {
            int v = LeerBandera("Configuracion", "Check" + std::to_string(i));
            if (v >= 0) op->FijarCheck(i, v == 1);
        }
        op->FijarTamano(Leer("Configuracion", "Tamaño"));
    }
    LeerEntrada("Jugadas", "mnuMovimientos");
    LeerEntrada("Chat", "mnuVentanaChat");
    LeerEntrada("Reloj", "mnuReloj");
    LeerEntrada("Elo", "mnuMostrarRanking");
    LeerEntrada("Sonido", "mnuSonido");
    int punto = LeerBandera("Configuracion", "PointClick");
    if (punto >= 0) {
        Marcar("mnuPointClick", punto == 1);
        Ejecutar(Enlace().PointClickCambiado);
    }
    if (auto n = AEntero(Leer("Configuracion", "Check")); n && *n >= 1 && *n <= 4) {
        for (int i = 0; i < 4; ++i) Marcar(kNotaciones[i], i == *n - 1);
    }
    Ejecutar(Enlace().NotacionCambiada);

    if (auto f = AEntero(Leer("Configuracion", "Fondo")); f && (*f == 1 || *f == 2))
        Fondo = static_cast<int>(*f);
    LeerColor(Leer("Configuracion", "Color"));
    Ejecutar(Enlace().PintarFondos);

    auto& c = Controles();

    c.Nick = Leer("Configuracion", "Nick");
    c.NuevoText1 = Leer("Configuracion", "Tiempo");
    if (Val(c.NuevoText1) == 0) c.NuevoText1 = "1";
    c.AutoPlay = Leer("Configuracion", "AutoPlay");
    c.Dir = Leer("Configuracion", "Dir");
    c.Tipo = Leer("Configuracion", "Tipo");
    c.Level2Text1 = Leer("CPU", "St");
    c.Level2Text2 = Leer("CPU", "Sd");
    c.Level2Text3 = Leer("CPU", "Tiempo");
    c.Level2Combo1 = Leer("CPU", "Jugadas");
    auto opcion = AEntero(Leer("CPU", "Option"));
    c.Level2Option = opcion && *opcion >= 0 && *opcion <= 2 ? static_cast<int>(*opcion) : 0;
    Ejecutar(Enlace().NivelesLeidos);
}

void GuardarOpciones() {
    Mdi* mdi = Forms().mdi;
    if (mdi && !mdi->isMinimized()) {
        Escribir("Mdi", "Windows", mdi->isMaximized() ? "2" : "0");
        if (!mdi->isMaximized()) {
            Lugar l = LugarDe(mdi);
            Escribir("Mdi", "Top", TextoNumero(l.top));
            Escribir("Mdi", "Left", TextoNumero(l.left));
            Escribir("Mdi", "Width", TextoNumero(l.width));
            Escribir("Mdi", "Height", TextoNumero(l.height));
        }
    }
    if (LugaresLeidos) EscribirLugares();
    auto& c = Controles();
    if (LugaresLeidos) {
        EscribirLugarPendiente("Pgn", "TopInformacion", "LeftInformacion", c.ListaPgn);
        EscribirLugarPendiente("Pgn", "TopJugadas", "LeftJugadas", c.PgnMovimientos);
    }
    Escribir("Configuracion", "Nick", c.Nick);
    if (LugaresLeidos) EscribirLugarPendiente("CPU", "Top", "Left", c.Cpu);
    Escribir("CPU", "St", c.Level2Text1);
    Escribir("CPU", "Sd", c.Level2Text2);
    Escribir("CPU", "Tiempo", c.Level2Text3);
    Escribir("CPU", "Jugadas", c.Level2Combo1);
    Escribir("CPU", "Option", std::to_string(c.Level2Option));
    if (LugaresLeidos) EscribirLugarPendiente("EPD", "Top", "Left", c.Epd);
    if (Val(c.NuevoText1) < 1) c.NuevoText1 = Leer("Configuracion", "Tiempo");
    Escribir("Configuracion", "Tiempo", c.NuevoText1);
    Escribir("Configuracion", "Dir", c.Dir);
    Escribir("Configuracion", "Tipo", c.Tipo);
    Escribir("Configuracion", "AutoPlay", c.AutoPlay);
    if (Opciones* op = Forms().opciones) {
        for (int i = 1; i <= 3; ++i)
            Escribir("Configuracion", "Check" + std::to_string(i), op->Check(i) ? "1" : "0");
    }
    // The engine form and the PGN browser put the panels away for their time: what stands in
    // the file is the state from before they came up.
    if (!listas().ListaPgnVisible() && !motor().CpuVisible()) {
        Escribir("Configuracion", "Jugadas", Marcada("mnuMovimientos") ? "1" : "0");
        Escribir("Configuracion", "Chat", Marcada("mnuVentanaChat") ? "1" : "0");
        Escribir("Configuracion", "Reloj", Marcada("mnuReloj") ? "1" : "0");
        Escribir("Configuracion", "Elo", Marcada("mnuMostrarRanking") ? "1" : "0");
        Escribir("Configuracion", "Sonido", Marcada("mnuSonido") ? "1" : "0");
        Escribir("Configuracion", "PointClick", Marcada("mnuPointClick") ? "1" : "0");
    }
    for (int i = 0; i < 4; ++i)
        if (Marcada(kNotaciones[i])) Escribir("Configuracion", "Check", std::to_string(i + 1));
}

} // namespace qa
