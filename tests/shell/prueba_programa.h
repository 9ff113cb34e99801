#pragma once
// A scratch copy of the program's folder and answers for the message boxes, so the shell can be
// started and closed in the test process, offscreen.
#include "shell/servicios.h"

#include <QPoint>
#include <QStringList>
#include <QWidget>
#include <deque>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace qa {
class PicBuffer;
}

namespace prueba {

// The middle of a square ("e2") on the board's picture, as this side sees the board.
QPoint Centro(const qa::PicBuffer& p, const char* casilla);
// A move ("e2e4") dragged with the mouse, press to release.
void Arrastrar(qa::PicBuffer& p, const char* jugada);

struct Caja {
    std::string titulo, texto;
    int icono = 0, botones = 0;
};

class Carpeta {
public:
    // Copies the shipped Default.ini, language files and sounds from the source tree.
    Carpeta();
    ~Carpeta();
    std::filesystem::path Ruta(const std::string& nombre = "") const { return dir_ / nombre; }
    std::string Leer(const std::string& nombre) const;
    void Escribir(const std::string& nombre, const std::string& bytes) const;
    // Sets one line "clave=valor" of Default.ini, the rest kept.
    void Ajustar(const std::string& seccion, const std::string& clave, const std::string& valor);

private:
    std::filesystem::path dir_;
};

// Records every box; Yes/No boxes take the next queued answer, or No.
class Cajas {
public:
    Cajas();
    ~Cajas();
    void Instalar(); // answers the boxes again after real ones were let through
    std::vector<Caja> vistas;
    std::deque<int> respuestas;
    bool Hay(const std::string& texto) const;
};

// Runs the event loop until `condicion` holds or the time is up.
bool Esperar(const std::function<bool()>& condicion, int milisegundos = 5000);

// Waits, inside the next modal loop, for a modal window of class `clase` and hands it to
// `hacer`, which must close it.
void AlAbrirse(const char* clase, std::function<void(QWidget*)> hacer);

// What a real Yes/No box and a real save dialog show, each closed again without a choice.
struct TextosQt {
    QStringList botones;                       // of the question box
    QString buscarEn, nombre, guardar, existe; // of the save dialog and its overwrite question
};
TextosQt LeerTextosQt(const std::filesystem::path& carpeta, Cajas& cajas);

} // namespace prueba
