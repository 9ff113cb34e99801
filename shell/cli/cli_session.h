#pragma once
// quintarena-cli: drives the game core as a local two-player game would,
// one command a line, with no window. Its answers are a public interface:
// extend them, never change them.

#include <functional>
#include <iosfwd>
#include <string>

class SesionCli {
public:
    // Turns a message argument (a number or a text) into the text shown.
    using Traductor = std::function<std::string(const std::string&)>;

    SesionCli(std::ostream& salida, std::ostream& errores, Traductor traductor = {});
    ~SesionCli();
    SesionCli(const SesionCli&) = delete;
    SesionCli& operator=(const SesionCli&) = delete;

    // One input line; blank lines and comments answer nothing.
    void Ejecutar(const std::string& linea);

private:
    class Entorno;
    std::ostream& salida_;
    std::ostream& errores_;
    Traductor traductor_;
    Entorno* entorno_;

    void Mover(const std::string& arg);
    void Probar(const std::string& arg);
    void Obtener(const std::string& nombre);
    void Lista(const std::string& arg);
    void Guardar(const std::string& ruta);
    void Abrir(const std::string& ruta);
    void AbrirListaPgn(const std::string& ruta);
    void Pgn(const std::string& ruta);
    void PgnPartida(const std::string& arg);
};
