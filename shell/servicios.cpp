#include "shell/servicios.h"

#include "core/environment.h"
#include "language/idioma.h"
#include "platform/escritura.h"
#include "platform/programa.h"
#include "platform/ruta.h"
#include "platform/sonido.h"
#include "platform/texto.h"
#include "shell/chat.h"
#include "shell/enlaces.h"
#include "shell/formularios.h"
#include "shell/mdi.h"
#include "shell/quintarena.h"

#include <QAction>
#include <QBuffer>
#include <QCursor>
#include <QDate>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <algorithm>
#include <chrono>
#include <filesystem>

namespace qa {

int ResultadoMensaje = 0;

namespace {

PresentadorMensajes& Presentador() {
    static PresentadorMensajes p;
    return p;
}

PresentadorDialogos& Dialogos() {
    static PresentadorDialogos p;
    return p;
}

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

int CajaReal(const CMensaje& m) {
    QMessageBox caja(Forms().mdi);
    caja.setWindowTitle(Q(m.Titulo));
    caja.setText(Q(m.Texto));
    caja.setIcon(m.Icono == kIconoStop          ? QMessageBox::Critical
                 : m.Icono == kIconoPregunta    ? QMessageBox::Question
                 : m.Icono == kIconoInformacion ? QMessageBox::Information
                                                : QMessageBox::NoIcon);
    if (m.Botones == kBotonesSiNo) {
        auto* si = caja.addButton(QMessageBox::Yes);
        auto* no = caja.addButton(QMessageBox::No);
        caja.setDefaultButton(m.Extra == kSegundoPorDefecto ? no : si);
        caja.exec();
        return caja.clickedButton() == si ? kRespuestaSi : kRespuestaNo;
    }
    caja.addButton(QMessageBox::Ok);
    caja.exec();
    return 1;
}

} // namespace

void AvisoNoEscribible(const std::string& ruta) {
    std::string t = ReemplazarDolar(Mensajes[28], FinLinea + ruta + FinLinea);
    if (!t.empty()) MostrarMensaje("Quintarena", t, kIconoInformacion);
}

int CMensaje::Muestra() {
    ResultadoMensaje = Presentador() ? Presentador()(*this) : CajaReal(*this);
    return ResultadoMensaje;
}

int MostrarMensaje(const std::string& titulo, const std::string& texto, int icono, int botones,
                   int extra) {
    static CMensaje mensaje;
    mensaje.Extra = extra;
    mensaje.Botones = botones;
    mensaje.Icono = icono;
    mensaje.Titulo = titulo;
    mensaje.Texto = TextoMensaje(texto);
    return mensaje.Muestra();
}

int MostrarMensajeNumero(int numero, int icono, int botones, int extra) {
    return MostrarMensaje(kTituloMensajes, std::to_string(numero), icono, botones, extra);
}

void FijarPresentadorMensajes(PresentadorMensajes presentador) {
    Presentador() = std::move(presentador);
}

namespace {
PresentadorTextos& PresentadorDeTextos() {
    static PresentadorTextos p;
    return p;
}
} // namespace

std::string PedirTexto(const std::string& pregunta, const std::string& titulo) {
    if (PresentadorDeTextos()) return PresentadorDeTextos()(pregunta);
    bool aceptado = false;
    QString t = QInputDialog::getText(Forms().mdi, Q(titulo), Q(pregunta), QLineEdit::Normal,
                                      QString(), &aceptado);
    return aceptado ? t.toStdString() : std::string();
}

void FijarPresentadorTextos(PresentadorTextos presentador) {
    PresentadorDeTextos() = std::move(presentador);
}

void Sonar(int n) {
    static const char* const kSonidos[] = {"",          "Conexion.wav", "Desconectado.wav",
                                           "Mueve.wav", "Gana.wav",     "Tiempo.wav"};
    const std::string carpeta = DirectorioPrograma + "Sonidos\\";
    if (!Marcada("mnuSonido") || n < 1 || n > 5) return;
    const std::string fichero = carpeta + kSonidos[n];
    if (ExisteRuta(fichero)) {
        if (Forms().mdi) Forms().mdi->Sonido()->Reproducir(RutaReal(fichero));
        return;
    }
    // Said once: the sound goes off until the user turns it on again.
    Marcar("mnuSonido", false);
    MostrarMensaje("Quintarena", ReemplazarDolar(Mensajes[54], RutaReal(carpeta)), kIconoStop);
}

std::string NombreFiltro(const std::string& etiqueta, const std::string& patron) {
    std::string p = patron;
    std::replace(p.begin(), p.end(), ';', ' ');
    const QString entre = "(" + Q(p) + ")";
    QString nombre = Q(etiqueta);
    nombre.remove(entre);
    nombre = nombre.simplified();
    if (nombre.isEmpty() || nombre == Q(patron)) return p;
    return (nombre + " " + entre).toStdString();
}

RespuestaDialogo DialogoFichero(int modo, const std::string& titulo, const std::string& fichero,
                                const Filtros& filtros, int filtroIndice, const std::string& dir) {
    if (Dialogos()) return Dialogos()(modo, titulo);
    QStringList lista;
    for (const auto& [etiqueta, patron] : filtros) lista << Q(NombreFiltro(etiqueta, patron));
    QFileDialog d(Forms().mdi, Q(titulo), Q(RutaUsuario(dir)));
    // Qt's own dialog, so that it speaks the program's language and not the desktop's.
    d.setOption(QFileDialog::DontUseNativeDialog);
    d.setNameFilters(lista);
    if (filtroIndice >= 1 && filtroIndice <= lista.size())
        d.selectNameFilter(lista[filtroIndice - 1]);
    d.setAcceptMode(modo == kDialogoAbrir ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    d.setFileMode(modo == kDialogoAbrir ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    if (!fichero.empty()) d.selectFile(Q(fichero));
    RespuestaDialogo r;
    if (d.exec() != QDialog::Accepted || d.selectedFiles().isEmpty()) return r;
    r.fichero = d.selectedFiles().front().toStdString();
    r.carpeta = d.directory().absolutePath().toStdString();
    r.filtro = static_cast<int>(lista.indexOf(d.selectedNameFilter())) + 1;
    return r;
}

void FijarPresentadorDialogos(PresentadorDialogos presentador) {
    Dialogos() = std::move(presentador);
}

void GuardarImagen() {
    auto r =
        DialogoFichero(2, Mensajes[49], "Quintarena", {{"Mapa de bits (*.bmp)", "*.bmp"}}, 1, "");
    if (r.fichero.empty()) return;
    // The one type the dialog offers, as a save dialog adds it.
    if (std::filesystem::path(r.fichero).extension().empty()) r.fichero += ".bmp";
    if (!QuitarSoloLectura(r.fichero)) {
        AvisoNoEscribible(r.fichero);
        return;
    }
    QWidget* picBuffer = Enlace().ImagenTablero ? Enlace().ImagenTablero()
                         : Forms().quintarena   ? Forms().quintarena->PicBuffer()
                                                : nullptr;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!picBuffer || !picBuffer->grab().save(&buffer, "BMP") ||
        !EscribirFichero(r.fichero, std::string_view(bytes.constData(),
                                                     static_cast<std::size_t>(bytes.size())))) {
        AvisoNoEscribible(r.fichero);
        return;
    }
    MostrarMensajeNumero(37, kIconoInformacion);
}

void GuardarChat() {
    if (Cierto(Enlace().SetTableroVisible) || motor().CpuVisible()) return;
    auto r =
        DialogoFichero(2, Mensajes[45], "Chat", {{"*.txt", "*.txt"}, {" (*.*)", "*.*"}}, 1, "");
    if (r.fichero.empty()) return;
    if (!QuitarSoloLectura(r.fichero)) {
        AvisoNoEscribible(r.fichero);
        return;
    }
    // A heading with the day, then the lines as the chat shows them.
    QString chat = Forms().chat ? Forms().chat->TextoChat() : QString();
    chat.replace("\n", FinLinea);
    const QString dia = QLocale().toString(QDate::currentDate(), QLocale::LongFormat);
    const QByteArray texto = ("Quintarena. " + dia + FinLinea + chat).toUtf8();
    if (!EscribirFichero(r.fichero, std::string_view(texto.constData(),
                                                     static_cast<std::size_t>(texto.size())))) {
        AvisoNoEscribible(r.fichero);
        return;
    }
    MostrarMensajeNumero(33, kIconoInformacion);
}

void MenuContextual(QMenu* menu) {
    if (menu) menu->popup(QCursor::pos());
}

std::int64_t Cronometro(std::int64_t inicio) {
    const std::int64_t ahora = std::chrono::duration_cast<std::chrono::nanoseconds>(
                                   std::chrono::steady_clock::now().time_since_epoch())
                                   .count();
    return inicio != -1 ? ahora - inicio : ahora;
}

std::int64_t FrecuenciaCronometro() {
    return 1'000'000'000;
}

} // namespace qa
