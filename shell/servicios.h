#pragma once
// Small services all of the program shares: message boxes, sounds, file dialogs, saving the
// chat and the board picture, popup menus and the high-resolution timer.
#include "platform/mensajes.h"

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

class QMenu;

namespace qa {

class CMensaje {
public:
    std::string Titulo, Texto;
    int Icono = 0, Botones = 0, Extra = 0;
    int Muestra();
};

// What the last message box returned; 6 is Yes.
extern int ResultadoMensaje;

// `texto` is a message number ("70") or a plain text; see TextoMensaje.
int MostrarMensaje(const std::string& titulo, const std::string& texto, int icono, int botones = 0,
                   int extra = 0);

// Message `numero` of the language under the program's title; the answer as MostrarMensaje's.
int MostrarMensajeNumero(int numero, int icono, int botones = 0, int extra = 0);

// Tests answer the boxes themselves; nothing set means a real box.
using PresentadorMensajes = std::function<int(const CMensaje&)>;
void FijarPresentadorMensajes(PresentadorMensajes presentador);

// The input box: the text typed, empty when cancelled.
std::string PedirTexto(const std::string& pregunta, const std::string& titulo);
// Tests answer the input boxes themselves; nothing set means a real box.
using PresentadorTextos = std::function<std::string(const std::string& pregunta)>;
void FijarPresentadorTextos(PresentadorTextos presentador);

// 1 "Conexion.wav", 2 "Desconectado.wav", 3 "Mueve.wav", 4 "Gana.wav", 5 "Tiempo.wav".
void Sonar(int n);

struct RespuestaDialogo {
    std::string fichero; // empty when the dialog was cancelled
    std::string carpeta;
    int filtro = 1; // 1-based index of the chosen filter
};
using Filtros = std::vector<std::pair<std::string, std::string>>; // label, pattern
inline constexpr int kDialogoAbrir = 1;
// The name a dialog shows for a filter: the label with its pattern behind it once, however often
// the label already holds it.
std::string NombreFiltro(const std::string& etiqueta, const std::string& patron);
RespuestaDialogo DialogoFichero(int modo, const std::string& titulo, const std::string& fichero,
                                const Filtros& filtros, int filtroIndice, const std::string& dir);
using PresentadorDialogos = std::function<RespuestaDialogo(int modo, const std::string& titulo)>;
void FijarPresentadorDialogos(PresentadorDialogos presentador);

// Message 28, the file that cannot be written standing for its "$".
void AvisoNoEscribible(const std::string& ruta);

void GuardarImagen();
void GuardarChat();
void MenuContextual(QMenu* menu);

// The counter, or the time since `inicio` when it is not -1; FrecuenciaCronometro per second.
std::int64_t Cronometro(std::int64_t inicio);
std::int64_t FrecuenciaCronometro();

} // namespace qa
