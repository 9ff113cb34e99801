#include "shell/quintarena.h"

#include "language/idioma.h"
#include "platform/ini_file.h"
#include "platform/programa.h"
#include "platform/texto.h"
#include "shell/arranque.h"
#include "shell/configuracion.h"
#include "shell/enlaces.h"
#include "shell/formularios.h"
#include "shell/mdi.h"
#include "shell/opciones.h"
#include "shell/puntuacion.h"
#include "shell/servicios.h"
#include "shell/splash.h"
#include "shell/ventanas.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMdiArea>
#include <QMimeData>
#include <QScreen>
#include <QUrl>

namespace qa {

Quintarena::Quintarena() : picBuffer_(new QWidget) {
    setObjectName("Quintarena");
    picBuffer_->setObjectName("PicBuffer");
    picBuffer_->setAcceptDrops(
        false); // its drops reach the form, which passes them on as they came
    setWidget(picBuffer_);
    setAcceptDrops(true);
    setWindowFlags(Qt::SubWindow | Qt::WindowTitleHint | Qt::WindowMinimizeButtonHint);
    resize(8 * 45 + 40, 8 * 45 + 60);
}

void Quintarena::PonerTablero(QWidget* tablero) {
    QWidget* viejo = picBuffer_;
    picBuffer_ = tablero;
    setWidget(tablero);
    if (viejo != tablero) delete viejo;
}

void Quintarena::AplicarIdioma() {
    setWindowTitle(QString::fromStdString(Texto("Tablero", "Titulo")));
}

bool Quintarena::ComprobarColores(int bitsPorPixel) {
    // Planes times two to the bits per pixel; 32 bits overflow, and that passes for enough.
    if (bitsPorPixel >= 31) return true;
    const long colores = 1L << std::max(bitsPorPixel, 0);
    return colores >= 65500;
}

bool Quintarena::ComprobarResolucion(int ancho) {
    return ancho >= 800;
}

void Quintarena::Cargar() {
    auto& f = Forms();
    Splash* splash = f.splash;
    splash->Estado("Cargando configuración...");
    FijarCarpetas();
    if (!ExisteFichero(FicheroOpciones)) {
        TerminarPrograma();
        return;
    }
    LeerOpciones();
    Ejecutar(Enlace().OpcionesLeidas);

    splash->Estado("Cargando idioma...");
    Opciones* op = f.opciones;
    op->LlenarIdiomas();
    if (FinPrograma()) return;
    const std::string ajuste = LeerIni(FicheroOpciones, "Configuracion", "Idioma");
    for (const auto& nombre : op->Idiomas()) {
        if (!EmpiezaSinCaso(nombre, ajuste)) continue;
        op->FijarTextoIdioma(nombre);
        CambiarIdioma(); // as a click on the list would
        if (FinPrograma()) return;
    }
    if (op->TextoIdioma().empty()) {
        MostrarMensaje("Quintarena", "Fichero de idioma no encontrado.", 0);
        TerminarPrograma();
        return;
    }

    // A close asked for from outside while a box was up stops the start here.
    if (CierrePedido()) return;
    op->CargarApariencia(LeerIni(FicheroOpciones, "Configuracion", "Apariencia"));
    LeerPuntuacion();
    PrintPuntuacion();

    QScreen* pantalla = QGuiApplication::primaryScreen();
    if (pantalla && !ComprobarColores(pantalla->depth())) {
        MostrarMensajeNumero(71, kIconoStop);
        f.mdi->Descargar();
        if (FinPrograma()) return;
    }
    if (pantalla && !ComprobarResolucion(pantalla->geometry().width())) {
        MostrarMensajeNumero(72, kIconoStop);
        f.mdi->Descargar();
        if (FinPrograma()) return;
    }
    if (CierrePedido()) return;
    if (Controles().Nick.empty()) Ejecutar(Enlace().CambiarNick);
    if (CierrePedido()) return;

    splash->Estado("Registrando extensión...");
    RegistrarFicheros();
    if (CierrePedido()) return;

    splash->Estado("Cargando imágenes...");
    Ejecutar(Enlace().CargarImagenes);
    SituarVentanas();

    connect(f.mdi->Area(), &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* w) {
        if (w == this) Activada();
    });
}

void Quintarena::Activada() {
    Splash* s = Forms().splash;
    if (!s) return;
    if (!activadaUnaVez_ && s->isVisible()) s->hide();
    activadaUnaVez_ = true;
    if (s->EstadoVisible()) s->Tshow();
}

void Quintarena::closeEvent(QCloseEvent* e) {
    e->ignore();
}

void Quintarena::dragEnterEvent(QDragEnterEvent* e) {
    if (e->mimeData()->hasUrls()) e->acceptProposedAction();
}

void Quintarena::dropEvent(QDropEvent* e) {
    const auto urls = e->mimeData()->urls();
    if (urls.isEmpty() || !Forms().mdi) return;
    Forms().mdi->FileDrop(urls.front().toLocalFile().toStdString());
    e->acceptProposedAction();
}

} // namespace qa
