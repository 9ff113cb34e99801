#pragma once
// The forms of the program. Each lives from its first use to the end of the program; closing most
// of them only hides them.
#include <string>

class QAction;

namespace qa {

class Mdi;
class Quintarena;
class Jugadas;
class Chat;
class Reloj;
class Ranking;
class Opciones;
class Splash;
class Cpu;
class FormLevel2;
class Conexion;
class Ip;
class Nuevo;

struct Formularios {
    Mdi* mdi = nullptr;
    Quintarena* quintarena = nullptr;
    Jugadas* jugadas = nullptr;
    Chat* chat = nullptr;
    Reloj* reloj = nullptr;
    Ranking* ranking = nullptr;
    Opciones* opciones = nullptr;
    Splash* splash = nullptr;
    Cpu* cpu = nullptr;
    FormLevel2* formLevel2 = nullptr;
    Conexion* conexion = nullptr;
    Ip* ip = nullptr;
    Nuevo* nuevo = nullptr;
};

Formularios& Forms();

// A menu entry by its name ("mnuSonido"); nothing before the main window has made its menu.
QAction* Entrada(const std::string& nombre);
bool Marcada(const std::string& nombre);
void Marcar(const std::string& nombre, bool marcada);

} // namespace qa
