// The language of the forms: every caption, menu and message comes from the current file.
#include "language/idioma.h"
#include "platform/ini_file.h"
#include "platform/programa.h"
#include "platform/texto.h"
#include "shell/arranque.h"
#include "shell/chat.h"
#include "shell/configuracion.h"
#include "shell/cpu.h"
#include "shell/formas_red.h"
#include "shell/formularios.h"
#include "shell/jugadas.h"
#include "shell/mdi.h"
#include "shell/opciones.h"
#include "shell/quintarena.h"
#include "shell/ranking.h"
#include "shell/reloj.h"
#include "shell/servicios.h"
#include "shell/splash.h"
#include "shell/ventanas.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace qa {

namespace {

// Qt's own dialogs and buttons speak the language of the file; one not in the table keeps
// Qt's own texts.
void TraducirQt() {
    static const std::pair<const char*, const char*> kTabla[] = {{"Español", "es"},
                                                                 {"English", "en"}};
    static QTranslator* actual = nullptr;
    if (actual) {
        QCoreApplication::removeTranslator(actual);
        delete actual;
        actual = nullptr;
    }
    const std::size_t barra = FicheroIdioma.find_last_of("/\\");
    QString nombre = QString::fromStdString(
        barra == std::string::npos ? FicheroIdioma : FicheroIdioma.substr(barra + 1));
    nombre.chop(4); // ".lng"
    for (const auto& [idioma, codigo] : kTabla) {
        if (nombre.compare(QString::fromUtf8(idioma), Qt::CaseInsensitive) != 0) continue;
        auto* t = new QTranslator(qApp);
        if (t->load(QStringLiteral("qt_") + codigo,
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath)) &&
            QCoreApplication::installTranslator(t))
            actual = t;
        else
            delete t;
    }
}

} // namespace

void Idioma() {
    auto& f = Forms();
    if (!LeerTextosIdioma()) {
        MostrarMensaje("Quintarena", "Versión del idioma incorrecto.", kIconoInformacion);
        SituarVentanas();
        TerminarPrograma();
        return;
    }
    std::string titulo = std::string("Quintarena") + " Versión " + kVersionIdioma;
    if (!AutorIdioma().empty()) titulo += " - " + AutorIdioma();
    if (f.mdi) {
        f.mdi->setWindowTitle(QString::fromStdString(titulo));
        f.mdi->AplicarIdioma();
    }
    if (f.quintarena) f.quintarena->AplicarIdioma();
    if (f.reloj) f.reloj->AplicarIdioma();
    if (f.jugadas) f.jugadas->AplicarIdioma();
    if (f.chat) f.chat->AplicarIdioma();
    if (f.opciones) f.opciones->AplicarIdioma();
    if (f.ranking) f.ranking->AplicarIdioma();
    if (f.splash) f.splash->AplicarIdioma();
    if (f.cpu) f.cpu->AplicarIdioma();
    if (f.conexion) f.conexion->AplicarIdioma();
    if (f.ip) f.ip->AplicarIdioma();
    if (f.nuevo) f.nuevo->AplicarIdioma();
    TraducirQt();
    // The forms that read their own texts (the board's, the browsers) read them again now.
    for (QWidget* w : QApplication::topLevelWidgets()) {
        QEvent cambio(QEvent::LanguageChange);
        QCoreApplication::sendEvent(w, &cambio);
    }
}

void CambiarIdioma() {
    Opciones* op = Forms().opciones;
    if (!op) return;
    const std::string texto = op->TextoIdioma();
    const auto idiomas = op->Idiomas();
    // Entry 0 is not looked at: the file named last by the listing stays current for it.
    for (std::size_t i = 1; i < idiomas.size(); ++i) {
        if (idiomas[i].compare(0, texto.size(), texto) != 0) continue;
        op->FijarTextoIdioma(idiomas[i]);
        FijarIdioma(Minusculas(idiomas[i].substr(0, texto.size()) + ".lng"));
    }
    if (!ExisteFichero(FicheroIdioma)) {
        TerminarPrograma();
        return;
    }
    Idioma();
}

void AvisarIdiomaIncorrecto() {
    MostrarMensaje("Quintarena",
                   std::string("Fichero de idioma incorrecto.") + FinLinea + "Cambie el fíchero.",
                   kIconoInformacion);
    // The plain name, in the current folder, as it has always been written.
    EscribirIni("Default.ini", "Configuracion", "Idioma", "Español");
    if (Forms().opciones) Forms().opciones->FijarTextoIdioma("Español");
}

} // namespace qa
