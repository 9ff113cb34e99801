#pragma once
// quintarena-cli: drives the game core as a local two-player game would,
// one command a line, with no window. Its answers are a public interface:
// extend them, never change them.

#include <functional>
#include <iosfwd>
#include <string>

// Commands of a holder that runs the session inside an event loop (network, engines). It sees
// each command first, so it can also take over a board command while a peer owns the game.
class OrdenesCli {
public:
    virtual ~OrdenesCli() = default;
    // False when the command is not one of its own.
    virtual bool Ejecutar(const std::string& orden, const std::string& arg) = 0;
    // A variable of its own state for `get`; false when it has none of that name.
    virtual bool Obtener(const std::string& nombreMinusculas, std::string& valor) = 0;
};

class SesionCli {
public:
    // Turns a message argument (a number or a text) into the text shown.
    using Traductor = std::function<std::string(const std::string&)>;

    SesionCli(std::ostream& salida, std::ostream& errores, Traductor traductor = {});
    void FijarOrdenes(OrdenesCli* ordenes) { ordenes_ = ordenes; }
    std::ostream& Salida() { return salida_; }
    // A text for the next input box, as `answer text` gives it.
    void ResponderTexto(const std::string& texto);
    // The last input box found no text waiting and was cancelled.
    bool CajaSinRespuesta() const;
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
    OrdenesCli* ordenes_ = nullptr;

    void Mover(const std::string& arg);
    void Probar(const std::string& arg);
    void Obtener(const std::string& nombre);
    void Lista(const std::string& arg);
    void Guardar(const std::string& ruta);
    void Abrir(const std::string& ruta);
    void AbrirListaPgn(const std::string& ruta);
    void Pgn(const std::string& ruta);
    void PgnPartida(const std::string& arg);
    void Responder(const std::string& arg);
};
