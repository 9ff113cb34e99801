// The session's construction and the state its holders read.

#include "net/sesion_interna.h"

namespace qa {

SesionRed::SesionRed(Zocalo& wcli, Zocalo& wser, VistaRed& vista, TemporizadoresRed t, Hora& hora)
    : p_(std::make_unique<Impl>(*this, wcli, wser, vista, t, hora)) {
    t.bomba.Intervalo(300);
    t.ping.Intervalo(65000);
    t.ranking.Intervalo(2500);
    t.sendQtr.Intervalo(100);
    t.retrasoQtr.Intervalo(100);
    t.relojBlancas.Intervalo(200);
    t.relojNegras.Intervalo(200);
    t.bomba.alVencer = [this] { TickBomba(); };
    t.ping.alVencer = [this] { TickPing(); };
    t.ranking.alVencer = [this] { TickRanking(); };
    t.sendQtr.alVencer = [this] { TickSendQtr(); };
    t.retrasoQtr.alVencer = [this] { TickRetrasoQtr(); };
    t.relojBlancas.alVencer = [this] { TickRelojBlancas(); };
    t.relojNegras.alVencer = [this] { TickRelojNegras(); };
}

SesionRed::~SesionRed() {
    for (Temporizador* x : {&p_->t.bomba, &p_->t.ping, &p_->t.ranking, &p_->t.sendQtr,
                            &p_->t.retrasoQtr, &p_->t.relojBlancas, &p_->t.relojNegras}) {
        x->Habilitar(false);
        x->alVencer = nullptr;
    }
}

const std::string& SesionRed::VersionRemota() const {
    return p_->versionRemota;
}
bool SesionRed::EsCliente() const {
    return p_->esCliente;
}
bool SesionRed::EsServidor() const {
    return p_->esServidor;
}
bool SesionRed::NuevoPendiente() const {
    return p_->nuevoPendiente;
}
bool SesionRed::OfertaPendiente() const {
    return p_->ofertaPendiente;
}
const std::string& SesionRed::ArchivoPendiente() const {
    return p_->archivoPendiente;
}
bool SesionRed::CierrePendiente() const {
    return p_->cierrePendiente;
}
bool SesionRed::EnvioEnCurso() const {
    return p_->envioEnCurso;
}
bool SesionRed::PingEnCurso() const {
    return p_->pingEnCurso;
}
int32_t SesionRed::PingSegundos() const {
    return p_->pingSegundos;
}
int32_t SesionRed::ColaEnvioCuenta() const {
    return p_->cuenta;
}
const std::string& SesionRed::ColaEnvio(int i) const {
    static const std::string vacio;
    return i >= 1 && i <= kCola ? p_->cola[static_cast<size_t>(i)] : vacio;
}
const DialogoConexion& SesionRed::Conexion() const {
    return p_->conexion;
}
const DialogoNuevo& SesionRed::Nuevo() const {
    return p_->nuevo;
}

} // namespace qa
