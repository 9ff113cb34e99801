#pragma once
// The engine form: who plays each side (an engine from the Motor folder, or a person), the
// engine's thinking, the clocks of a time-control game and the toolbar that starts and steers
// the game. It holds the engines' two consoles and the five timers of the engine play, and
// hands their events to the play logic.
#include "engine/entorno_cpu.h"
#include "shell/formulario_hijo.h"

#include <memory>
#include <vector>

class QAction;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QToolBar;

namespace qa {

class FormLevel2;
class Motores;
class TemporizadorQt;

class Cpu : public FormularioHijo, public EntornoCpu {
    Q_OBJECT
public:
    explicit Cpu(FormLevel2& niveles);
    ~Cpu() override;
    void AplicarIdioma() override;

    Motores& Sesion() { return *sesion_; }
    // The new game at this machine: the form comes up, taking the panels' room.
    void Mostrar();

    QComboBox* SMotor(int lista) const { return listas_[lista]; }
    QLineEdit* Text(int caja) const { return textos_[caja]; }
    QToolBar* Toolbar1() const { return toolbar_; }
    QAction* Boton(int indice) const;

    // The play logic's doors.
    ConsolaMotor& NuevaConsola(int motor) override;
    void SoltarConsolas() override;
    void Ceder() override;
    bool Visible() override;
    void LlenarListas(const std::vector<std::string>& entradas) override;
    int IndiceLista(int lista) override;
    void PonerTexto(int caja, const std::string& texto) override;
    void RelojEncendido(int caja, bool encendido) override;
    void MarcarInvertirTablero(bool marcada) override;
    void QuitarMarcoActivo() override;
    void Player2() override;
    int OpcionNivel() override;
    std::string TextoNivel(int caja) override;
    std::string JugadasNivel() override;
    int64_t MilisegundosDelDia() override;

protected:
    void closeEvent(QCloseEvent* e) override;
    void moveEvent(QMoveEvent* e) override;

private:
    class Consola;
    void Pulsar(int indice);
    void Retirar(int motor);
    void LimpiarRetiradas();

    FormLevel2& niveles_;
    std::unique_ptr<TemporizadorQt> timers_[6];
    std::unique_ptr<Motores> sesion_;
    std::unique_ptr<Consola> consolas_[3];
    // Consoles replaced or dropped, kept until the event loop runs free: the logic may still
    // be inside one of their reports.
    std::vector<std::unique_ptr<Consola>> retiradas_;
    int enInforme_ = 0; // depth of the consoles' reports running
    QComboBox* listas_[3] = {};
    QLineEdit* textos_[8] = {};
    QLabel* labels_[8] = {};
    QGroupBox* frames_[5] = {};
    QToolBar* toolbar_;
    std::vector<QAction*> botones_;
};

} // namespace qa
