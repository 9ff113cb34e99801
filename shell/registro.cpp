// File types of the program made known to the desktop, and the Regit keys that remember it.
#include "platform/escritorio.h"
#include "platform/ini_file.h"
#include "platform/programa.h"
#include "platform/ruta.h"
#include "platform/texto.h"
#include "shell/arranque.h"
#include "shell/servicios.h"

#include <QCoreApplication>

namespace qa {

namespace {

const char* const kClaves[] = {"", "RegitQtr", "RegitPgn", "RegitEpd"};
const char* const kIconos[] = {"", "Qtr.ico", "Pgn.ico", "Epd.ico"};
const char* const kTiposMime[] = {"", "application/x-quintarena", "application/x-chess-pgn",
                                  "application/x-chess-epd"};

// Converted as a number or nothing; nothing leaves the type alone.
bool EsCero(const char* clave) {
    auto v = AEntero(LeerIni(FicheroOpciones, "Configuracion", clave));
    return v && *v == 0;
}

} // namespace

void RegistrarExtension(int tipo, const std::string& extension, const std::string& claseFichero,
                        const std::string& claseFichero2, const std::string& descripcion,
                        const std::string& claseFichero3) {
    if (tipo < 1 || tipo > 3) return;
    (void)claseFichero2;
    (void)claseFichero3;
    TipoEscritorio t;
    t.mime = kTiposMime[tipo];
    t.extension = extension;
    t.clase = claseFichero;
    t.descripcion = descripcion;
    t.programa = QCoreApplication::applicationFilePath().toStdString();
    t.icono = RutaReal(DirectorioPrograma + kIconos[tipo]);
    // A failure is not reported, and the key says registered all the same.
    RegistrarTipoEscritorio(t);
    EscribirIni(FicheroOpciones, "Configuracion", kClaves[tipo], "1");
}

void RegistrarFicheros() {
    if (EsCero("RegitQtr"))
        RegistrarExtension(1, ".qtr", "qtrfile", "qtrfile", "Quintarena", "qtrfile");
    // A question put away by a close from outside has no answer: the key stays, and it is asked
    // again at the next start.
    if (EsCero("RegitPgn")) {
        const int r = MostrarMensajeNumero(70, kIconoPregunta, kBotonesSiNo);
        if (CierrePedido()) return;
        if (r == kRespuestaSi)
            RegistrarExtension(2, ".pgn", "pgnfile", "pgnfile", "Quintarena", "pgnfile");
        else
            EscribirIni(FicheroOpciones, "Configuracion", "RegitPgn", "1");
    }
    if (EsCero("RegitEpd")) {
        const int r = MostrarMensajeNumero(85, kIconoPregunta, kBotonesSiNo);
        if (CierrePedido()) return;
        if (r == kRespuestaSi)
            RegistrarExtension(3, ".epd", "epdfile", "epdfile", "Quintarena", "epdfile");
        else
            EscribirIni(FicheroOpciones, "Configuracion", "RegitEpd", "1");
    }
}

} // namespace qa
