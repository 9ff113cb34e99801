#include "core/environment.h"

#include "core/peer.h"
#include "core/recorder.h"

namespace {

EntornoRegistro& registroPorDefecto() {
    static EntornoRegistro r;
    return r;
}

EntornoDibujo* dibujo_ = nullptr;
EntornoDialogos* dialogos_ = nullptr;
EntornoMotor* motor_ = nullptr;
EntornoListas* listas_ = nullptr;
EntornoRed* red_ = nullptr;

} // namespace

EntornoDibujo& dibujo() {
    return dibujo_ ? *dibujo_ : registroPorDefecto();
}
EntornoDialogos& dialogos() {
    return dialogos_ ? *dialogos_ : registroPorDefecto();
}
EntornoMotor& motor() {
    return motor_ ? *motor_ : registroPorDefecto();
}
EntornoListas& listas() {
    return listas_ ? *listas_ : registroPorDefecto();
}
EntornoRed& red() {
    return red_ ? *red_ : registroPorDefecto();
}

void InstalarDibujo(EntornoDibujo* e) {
    dibujo_ = e;
}
void InstalarDialogos(EntornoDialogos* e) {
    dialogos_ = e;
}
void InstalarMotor(EntornoMotor* e) {
    motor_ = e;
}
void InstalarListas(EntornoListas* e) {
    listas_ = e;
}
void InstalarRed(EntornoRed* e) {
    red_ = e;
}

void InstalarRegistro(EntornoRegistro* r) {
    InstalarDibujo(r);
    InstalarDialogos(r);
    InstalarMotor(r);
    InstalarListas(r);
    InstalarRed(r);
}
