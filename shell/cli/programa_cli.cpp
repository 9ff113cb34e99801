#include "shell/cli/programa_cli.h"

#include "core/game_state.h"
#include "shell/cli/entrada_cli.h"
#include "shell/cli/motor_cli.h"
#include "shell/cli/ordenes_bucle.h"
#include "shell/cli/red_cli.h"

#include <QCoreApplication>

#include <set>

namespace {

constexpr int kPlazoCierreMs = 5000;

} // namespace

ProgramaCli::ProgramaCli(SesionCli& cli, std::function<void()> salir)
    : cli_(cli), salir_(std::move(salir)) {
    plazoCierre_.setSingleShot(true);
    QObject::connect(&plazoCierre_, &QTimer::timeout, [this] { salir_(); });
}

ProgramaCli::~ProgramaCli() = default;

RedCli& ProgramaCli::Red() {
    if (!red_) {
        red_ = std::make_unique<RedCli>(cli_, [this] {
            if (saliendo_) salir_();
        });
        red_->comandoMotor = [this](int boton) { Motor().ToolboxComand(boton); };
    }
    return *red_;
}

MotorCli& ProgramaCli::Motor() {
    if (!motor_) {
        motor_ = std::make_unique<MotorCli>(cli_, [] {
            EntradaCli::Retener(true);
            QCoreApplication::processEvents();
            EntradaCli::Retener(false);
        });
    }
    return *motor_;
}

bool ProgramaCli::Ejecutar(const std::string& orden, const std::string& arg) {
    if (orden == "engine") return Motor().Ejecutar(orden, arg);
    if (motor_ && motor_->Ejecutar(orden, arg)) return true;
    if (red_ || OrdenDeRed(orden, arg)) {
        if (Red().Ejecutar(orden, arg)) return true;
    }
    return false;
}

bool ProgramaCli::Obtener(const std::string& nombre, std::string& valor) {
    if (motor_ || VariableDeMotor(nombre)) {
        if (Motor().Obtener(nombre, valor)) return true;
    }
    if (red_ || VariableDeRed(nombre)) return Red().Obtener(nombre, valor);
    return false;
}

void ProgramaCli::Terminar() {
    saliendo_ = true;
    if (motor_) motor_->CerrarPrograma();
    if (red_ && !red_->AlCerrarPrograma()) {
        plazoCierre_.start(kPlazoCierreMs);
        return;
    }
    salir_();
}
