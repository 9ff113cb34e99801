#pragma once
// The console tool's commands that need the event loop: network play and engines. Their holders
// are made at the first command that needs them, so a session that only plays on its own board
// starts as fast as it always did.

#include "shell/cli/cli_session.h"

#include <QTimer>
#include <functional>
#include <memory>

class MotorCli;
class RedCli;

class ProgramaCli final : public OrdenesCli {
public:
    ProgramaCli(SesionCli& cli, std::function<void()> salir);
    ~ProgramaCli() override;

    bool Ejecutar(const std::string& orden, const std::string& arg) override;
    bool Obtener(const std::string& nombre, std::string& valor) override;

    // The end of the input: connections and engines closed, then `salir`. A disconnect that
    // waits for the peer's close is given a few seconds.
    void Terminar();

private:
    RedCli& Red();
    MotorCli& Motor();

    SesionCli& cli_;
    std::function<void()> salir_;
    std::unique_ptr<RedCli> red_;
    std::unique_ptr<MotorCli> motor_;
    QTimer plazoCierre_;
    bool saliendo_ = false;
};
