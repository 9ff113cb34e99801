#include "shell/cpu.h"

#include "board/partida_local.h"
#include "board/pic_buffer.h"
#include "core/environment.h"
#include "core/game_state.h"
#include "core/local_move.h"
#include "engine/motores.h"
#include "language/idioma.h"
#include "platform/puente_consola.h"
#include "platform/temporizador_qt.h"
#include "shell/configuracion.h"
#include "shell/enlaces.h"
#include "shell/form_level2.h"
#include "shell/formularios.h"
#include "shell/mdi.h"
#include "shell/ventanas.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QRadioButton>
#include <QStyle>
#include <QTime>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

namespace qa {

namespace {

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

// Toolbar1: index and icon; the indices between are separators.
struct BotonCpu {
    int indice;
    QStyle::StandardPixmap icono;
};
constexpr BotonCpu kBotonesCpu[] = {
    {1, QStyle::SP_MediaPlay},          {2, QStyle::SP_MediaStop},
    {4, QStyle::SP_DialogCancelButton}, {5, QStyle::SP_DialogApplyButton},
    {7, QStyle::SP_ArrowBack},          {9, QStyle::SP_MessageBoxQuestion},
    {10, QStyle::SP_MediaSeekForward},  {12, QStyle::SP_FileDialogDetailedView},
};
// Tool tips: key of section "Tips" -> button.
constexpr int kTipsCpu[][2] = {{24, 1},  {25, 2}, {26, 9}, {27, 10},
                               {28, 12}, {29, 7}, {9, 4},  {10, 5}};

PicBuffer* Tablero() {
    auto& imagen = Enlace().ImagenTablero;
    return imagen ? qobject_cast<PicBuffer*>(imagen()) : nullptr;
}

} // namespace

// One engine's console: the process bridge, its lines and failures handed to the play logic.
class Cpu::Consola final : public ConsolaMotor {
public:
    Consola(Cpu& cpu, int motor) {
        puente_.alDatoRecibido = [&cpu, motor](const std::string& linea) {
            ++cpu.enInforme_;
            cpu.sesion_->DatoRecibido(motor, linea);
            --cpu.enInforme_;
        };
        puente_.alErrorRecibido = [&cpu, motor](const std::string& texto) {
            ++cpu.enInforme_;
            cpu.sesion_->ErrorRecibido(motor, texto);
            --cpu.enInforme_;
        };
    }
    int Ejecutar(const std::string& ruta) override { return puente_.Ejecutar(ruta) ? 1 : 0; }
    void Terminar() override { puente_.Terminar(); }
    void Enviar(const std::string& texto) override { puente_.Enviar(texto); }
    // Ended and silent from now on.
    void Callar() {
        puente_.Terminar();
        puente_.alDatoRecibido = nullptr;
        puente_.alErrorRecibido = nullptr;
    }

private:
    PuenteConsola puente_;
};

Cpu::Cpu(FormLevel2& niveles) : niveles_(niveles) {
    setObjectName("Cpu");
    for (int i = 1; i <= 5; ++i) timers_[i] = std::make_unique<TemporizadorQt>();
    sesion_ = std::make_unique<Motores>(*this, *timers_[1], *timers_[2], *timers_[3], *timers_[4],
                                        *timers_[5]);

    auto* cuerpo = new QWidget;
    auto* raiz = new QVBoxLayout(cuerpo);
    toolbar_ = new QToolBar("Toolbar1");
    toolbar_->setObjectName("Toolbar1");
    toolbar_->setIconSize(QSize(20, 20));
    int siguiente = 1;
    botones_.assign(13, nullptr);
    for (const auto& b : kBotonesCpu) {
        for (; siguiente < b.indice; ++siguiente) botones_[siguiente] = toolbar_->addSeparator();
        QAction* a = toolbar_->addAction(style()->standardIcon(b.icono), "");
        a->setObjectName(QString("Boton%1").arg(b.indice));
        connect(a, &QAction::triggered, this, [this, i = b.indice] { Pulsar(i); });
        botones_[b.indice] = a;
        siguiente = b.indice + 1;
    }
    raiz->addWidget(toolbar_);

    auto* motores = new QHBoxLayout;
    for (int i = 1; i <= 2; ++i) {
        frames_[i] = new QGroupBox;
        frames_[i]->setObjectName(QString("Frame%1").arg(i));
        listas_[i] = new QComboBox;
        listas_[i]->setObjectName(QString("SMotor%1").arg(i));
        listas_[i]->setMinimumWidth(140);
        (new QVBoxLayout(frames_[i]))->addWidget(listas_[i]);
        motores->addWidget(frames_[i]);
    }
    raiz->addLayout(motores);

    auto rejilla = [](QGroupBox* marco) { return new QGridLayout(marco); };
    frames_[3] = new QGroupBox;
    frames_[3]->setObjectName("Frame3");
    QGridLayout* analisis = rejilla(frames_[3]);
    frames_[4] = new QGroupBox;
    frames_[4]->setObjectName("Frame4");
    QGridLayout* reloj = rejilla(frames_[4]);
    for (int i = 1; i <= 7; ++i) {
        labels_[i] = new QLabel;
        labels_[i]->setObjectName(QString("Label%1").arg(i));
        textos_[i] = new QLineEdit;
        textos_[i]->setObjectName(QString("Text%1").arg(i));
        textos_[i]->setReadOnly(true);
        textos_[i]->setFocusPolicy(Qt::NoFocus);
        if (i <= 5) {
            analisis->addWidget(labels_[i], i - 1, 0);
            analisis->addWidget(textos_[i], i - 1, 1);
        } else {
            reloj->addWidget(labels_[i], 0, i - 6);
            reloj->addWidget(textos_[i], 1, i - 6);
            textos_[i]->setAlignment(Qt::AlignCenter);
            QFont grande = textos_[i]->font();
            grande.setPointSize(grande.pointSize() + 4);
            grande.setBold(true);
            textos_[i]->setFont(grande);
            textos_[i]->setText("00:00");
            RelojEncendido(i, false);
        }
    }
    textos_[5]->setMinimumWidth(260);
    raiz->addWidget(frames_[3]);
    raiz->addWidget(frames_[4]);
    setWidget(cuerpo);
    setWindowFlags(windowFlags() & ~Qt::WindowMaximizeButtonHint);

    niveles_.alAceptar = [this] { sesion_->CargarLevel(); };
    auto& en = Enlace();
    en.ToolboxComand = [this](const std::string& codigo) { sesion_->ToolboxComand(codigo); };
    en.MostrarCpu = [this] { Mostrar(); };
    en.NivelesLeidos = [this] {
        niveles_.CargarDeControles();
        sesion_->CargarLevel();
    };
    en.CerrarMotores = [this] { sesion_->CerrarPrograma(); };
    en.DescargarDLL = [this] { sesion_->CerrarPrograma(); };
    InstalarMotor(sesion_.get());
}

Cpu::~Cpu() {
    InstalarMotor(nullptr);
    auto& en = Enlace();
    en.ToolboxComand = nullptr;
    en.MostrarCpu = nullptr;
    en.NivelesLeidos = nullptr;
    en.CerrarMotores = nullptr;
    en.DescargarDLL = nullptr;
    for (auto& c : consolas_)
        if (c) c->Callar();
    for (auto& c : retiradas_) c->Callar();
}

void Cpu::AplicarIdioma() {
    setWindowTitle("Quintarena");
    const char* marcos[] = {nullptr, "1", "2", "3", "21"};
    for (int i = 1; i <= 4; ++i) frames_[i]->setTitle(Q(Texto("CPU", marcos[i])));
    for (int i = 1; i <= 5; ++i) labels_[i]->setText(Q(Texto("CPU", std::to_string(i + 3))));
    labels_[6]->setText(Q(Texto("Reloj", "Jugador1")));
    labels_[7]->setText(Q(Texto("Reloj", "Jugador2")));
    for (const auto& t : kTipsCpu)
        if (QAction* b = Boton(t[1])) b->setToolTip(Q(Texto("Tips", std::to_string(t[0]))));
    niveles_.AplicarIdioma();
    sesion_->ActualizarCPU();
}

QAction* Cpu::Boton(int indice) const {
    return indice >= 1 && indice < static_cast<int>(botones_.size()) ? botones_[indice] : nullptr;
}

void Cpu::Mostrar() {
    OcultarVentanas(isVisible());
    // Engines put in the folder since the last game are offered at once.
    sesion_->ActualizarCPU();
    if (!isVisible()) {
        const auto& l = Controles().Cpu;
        if (l.top != 0 || l.left != 0)
            move(static_cast<int>(l.left / kTwipsPorPixel),
                 static_cast<int>(l.top / kTwipsPorPixel));
    }
    show();
    raise();
    if (auto* area = mdiArea()) area->setActiveSubWindow(this);
}

void Cpu::Pulsar(int indice) {
    if (indice != 12) {
        sesion_->Boton(indice);
        return;
    }
    if (!sesion_->PuedeAbrirNiveles()) return;
    for (int i = 0; i < 3; ++i)
        if (niveles_.Option1(i)->isChecked()) niveles_.MuestraDatos(i);
    niveles_.show();
    niveles_.raise();
}

void Cpu::Retirar(int motor) {
    if (!consolas_[motor]) return;
    consolas_[motor]->Callar();
    retiradas_.push_back(std::move(consolas_[motor]));
    LimpiarRetiradas();
}

void Cpu::LimpiarRetiradas() {
    // Let go only once no report of ours is running: the logic may be inside one of theirs.
    QTimer::singleShot(0, this, [this] {
        if (enInforme_ == 0)
            retiradas_.clear();
        else
            LimpiarRetiradas();
    });
}

ConsolaMotor& Cpu::NuevaConsola(int motor) {
    const int m = motor == 2 ? 2 : 1;
    Retirar(m);
    consolas_[m] = std::make_unique<Consola>(*this, m);
    return *consolas_[m];
}

void Cpu::SoltarConsolas() {
    Retirar(1);
    Retirar(2);
}

void Cpu::Ceder() {
    QCoreApplication::processEvents();
}

bool Cpu::Visible() {
    return isVisible();
}

void Cpu::LlenarListas(const std::vector<std::string>& entradas) {
    for (int i = 1; i <= 2; ++i) {
        listas_[i]->clear();
        for (const auto& e : entradas) listas_[i]->addItem(Q(e));
        listas_[i]->setCurrentIndex(0);
    }
}

int Cpu::IndiceLista(int lista) {
    return lista == 1 || lista == 2 ? std::max(0, listas_[lista]->currentIndex()) : 0;
}

void Cpu::PonerTexto(int caja, const std::string& texto) {
    if (caja >= 1 && caja <= 7) textos_[caja]->setText(Q(texto));
}

void Cpu::RelojEncendido(int caja, bool encendido) {
    if (caja != 6 && caja != 7) return;
    textos_[caja]->setStyleSheet(encendido ? "background-color: rgb(255, 255, 255)"
                                           : "background-color: rgb(153, 153, 153)");
}

void Cpu::MarcarInvertirTablero(bool marcada) {
    // The entry's handler runs as a click would run it, flipping the check first.
    Marcar("mnuInvertirTablero", marcada);
    if (QAction* a = Entrada("mnuInvertirTablero")) a->trigger();
}

void Cpu::QuitarMarcoActivo() {
    if (PicBuffer* p = Tablero()) p->MarcoActivo = false;
}

void Cpu::Player2() {
    if (PicBuffer* p = Tablero())
        PartidaLocal(*p);
    else
        Variables::NuevaPartidaLocal();
    // Seen from White's side, and nobody moves until the engine start says who does.
    MarcarInvertirTablero(true);
    Variables::Turno = 0;
}

int Cpu::OpcionNivel() {
    return niveles_.Opcion();
}

std::string Cpu::TextoNivel(int caja) {
    return niveles_.Texto(caja);
}

std::string Cpu::JugadasNivel() {
    return niveles_.Jugadas();
}

int64_t Cpu::MilisegundosDelDia() {
    return QTime::currentTime().msecsSinceStartOfDay();
}

void Cpu::closeEvent(QCloseEvent* e) {
    sesion_->CerrarFormulario();
    e->ignore();
    hide();
}

void Cpu::moveEvent(QMoveEvent* e) {
    FormularioHijo::moveEvent(e);
    if (isVisible()) Controles().Cpu = LugarDe(this);
}

} // namespace qa
