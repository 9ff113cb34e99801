#include "shell/cli/motor_cli.h"

#include "core/environment.h"
#include "core/game_state.h"
#include "core/local_move.h"
#include "engine/niveles.h"
#include "platform/ini_file.h"
#include "platform/programa.h"
#include "shell/cli/cli_session.h"
#include "shell/cli/traza.h"

#include <QTime>
#include <QTimer>
#include <ostream>
#include <sstream>

using namespace Variables;

MotorCli::Consola::Consola(MotorCli& cpu, int motor) : cpu_(cpu), motor_(motor) {
    puente_.alDatoRecibido = [this](const std::string& linea) {
        cpu_.cli_.Salida() << "from" << motor_ << ' ' << TextoVisible(linea) << std::endl;
        ++cpu_.enInforme_;
        cpu_.motores_.DatoRecibido(motor_, linea);
        --cpu_.enInforme_;
    };
    puente_.alErrorRecibido = [this](const std::string& texto) {
        ++cpu_.enInforme_;
        cpu_.motores_.ErrorRecibido(motor_, texto);
        --cpu_.enInforme_;
    };
}

int MotorCli::Consola::Ejecutar(const std::string& ruta) {
    return puente_.Ejecutar(ruta) ? 1 : 0;
}

void MotorCli::Consola::Terminar() {
    puente_.Terminar();
}

void MotorCli::Consola::Enviar(const std::string& texto) {
    if (!puente_.Ejecutando()) return;
    std::ostream& salida = cpu_.cli_.Salida();
    size_t ini = 0;
    for (;;) {
        const size_t fin = texto.find("\r\n", ini);
        salida << "to" << motor_ << ' '
               << TextoVisible(texto.substr(ini, fin == std::string::npos ? fin : fin - ini))
               << '\n';
        if (fin == std::string::npos) break;
        ini = fin + 2;
        // A command that ends in a line end goes out with that one line end, no empty line.
        if (ini == texto.size()) break;
    }
    salida.flush();
    puente_.Enviar(texto);
}

void MotorCli::Consola::Callar() {
    puente_.alDatoRecibido = nullptr;
    puente_.alErrorRecibido = nullptr;
}

namespace {

std::string Ini(const char* clave, const char* defecto) {
    std::string v = qa::LeerIni(qa::FicheroOpciones, "CPU", clave);
    return v.empty() ? defecto : v;
}

} // namespace

MotorCli::MotorCli(SesionCli& cli, std::function<void()> ceder)
    : cli_(cli), ceder_(std::move(ceder)), motores_(*this, t1_, t2_, t3_, t4_, t5_) {
    // The levels dialog starts from the settings, as the program's does.
    texto_[1] = Ini("St", "1");
    texto_[2] = Ini("Sd", "1");
    texto_[3] = Ini("Tiempo", "5");
    jugadas_ = Ini("Jugadas", "40");
    opcion_ = qa::OpcionGuardada(qa::LeerIni(qa::FicheroOpciones, "CPU", "Option"));
    motores_.CargarLevel();
    InstalarMotor(&motores_);
    motores_.ActualizarCPU();
}

MotorCli::~MotorCli() {
    InstalarMotor(nullptr);
    motores_.CerrarPrograma();
    SoltarConsolas();
    soltadas_.clear();
}

void MotorCli::Soltar(int motor) {
    auto& c = consola_[motor == 2];
    if (!c) return;
    c->Callar();
    soltadas_.push_back(std::move(c));
    LimpiarSoltadas();
}

// A console may be dropped inside one of its own reports, and a yield inside a report runs this
// timer too: they go only once no report is running.
void MotorCli::LimpiarSoltadas() {
    QTimer::singleShot(0, &contexto_, [this] {
        if (enInforme_ == 0)
            soltadas_.clear();
        else
            LimpiarSoltadas();
    });
}

qa::ConsolaMotor& MotorCli::NuevaConsola(int motor) {
    Soltar(motor);
    consola_[motor == 2] = std::make_unique<Consola>(*this, motor == 2 ? 2 : 1);
    return *consola_[motor == 2];
}

void MotorCli::SoltarConsolas() {
    Soltar(1);
    Soltar(2);
}

void MotorCli::Ceder() {
    if (ceder_) ceder_();
}

void MotorCli::LlenarListas(const std::vector<std::string>& entradas) {
    entradas_ = entradas;
    indice_[0] = indice_[1] = 0;
}

void MotorCli::PonerTexto(int caja, const std::string& texto) {
    if (caja >= 1 && caja <= 7) cajas_[caja] = texto;
}

void MotorCli::Player2() {
    NuevaPartidaLocal();
    Turno = 0;
}

std::string MotorCli::TextoNivel(int caja) {
    return caja >= 1 && caja <= 3 ? texto_[caja] : std::string();
}

int64_t MotorCli::MilisegundosDelDia() {
    return QTime::currentTime().msecsSinceStartOfDay();
}

bool MotorCli::Ejecutar(const std::string& orden, const std::string& arg) {
    std::ostream& salida = cli_.Salida();
    if (orden != "engine") {
        // The main menu's commands belong to the engine form while it is up.
        if (!visible_ || !arg.empty()) return false;
        if (orden == "resign")
            motores_.ToolboxComand("3");
        else if (orden == "draw")
            motores_.ToolboxComand("4");
        else if (orden == "takeback")
            motores_.ToolboxComand("5");
        else
            return false;
        salida << "ok\n";
        return true;
    }
    std::istringstream palabras(arg);
    std::string que, resto;
    palabras >> que;
    std::getline(palabras >> std::ws, resto);
    visible_ = true;
    static const std::pair<const char*, int> kBotones[] = {
        {"start", 1},    {"stop", 2}, {"resign", 4},  {"draw", 5},
        {"takeback", 7}, {"hint", 9}, {"movenow", 10}};
    for (const auto& [nombre, boton] : kBotones) {
        if (que == nombre && resto.empty()) {
            motores_.Boton(boton);
            salida << "ok\n";
            return true;
        }
    }
    if (que == "list" && resto.empty()) {
        motores_.ActualizarCPU();
        for (size_t i = 1; i < entradas_.size(); ++i) salida << entradas_[i] << '\n';
        salida << ".\n";
    } else if ((que == "1" || que == "2") && !resto.empty()) {
        Elegir(que == "2" ? 2 : 1, resto);
    } else if (que == "level" && !resto.empty()) {
        Nivel(resto);
    } else if (que == "close" && resto.empty()) {
        motores_.CerrarFormulario();
        visible_ = false;
        salida << "ok\n";
    } else {
        salida << "error engine takes list, 1 NAME, 2 NAME, level, start, stop, hint, movenow, "
                  "draw, takeback, resign or close\n";
    }
    return true;
}

// "engine 1 fairymax", "engine 2 none": the entry chosen in the list of that colour.
void MotorCli::Elegir(int lista, const std::string& nombre) {
    std::ostream& salida = cli_.Salida();
    int i = -1;
    if (nombre == "none") i = 0;
    for (size_t k = 1; k < entradas_.size() && i < 0; ++k)
        if (entradas_[k] == nombre) i = static_cast<int>(k);
    if (i < 0) {
        salida << "error no engine " << nombre << '\n';
        return;
    }
    indice_[lista == 2] = i;
    salida << "ok\n";
}

// "level depth N", "level time N", "level control MOVES MINUTES": the levels dialog set and
// accepted; the answer is the level command the engines get.
void MotorCli::Nivel(const std::string& arg) {
    std::ostream& salida = cli_.Salida();
    std::istringstream palabras(arg);
    std::string tipo, a, b, resto;
    palabras >> tipo >> a >> b >> resto;
    auto numero = [](const std::string& s) {
        return !s.empty() && s.size() <= 6 &&
               s.find_first_not_of("0123456789") == std::string::npos;
    };
    int opcion = -1, caja = 0;
    if (tipo == "depth" && numero(a) && b.empty()) opcion = qa::kNivelProfundidad, caja = 2;
    if (tipo == "time" && numero(a) && b.empty()) opcion = qa::kNivelTiempo, caja = 1;
    if (tipo == "control" && numero(a) && numero(b) && a != "0") opcion = qa::kNivelReloj, caja = 3;
    if (opcion < 0 || !resto.empty()) {
        salida << "error level needs depth N, time N or control MOVES MINUTES\n";
        return;
    }
    if (!motores_.PuedeAbrirNiveles()) {
        salida << "ignored\n";
        return;
    }
    opcion_ = opcion;
    if (opcion == qa::kNivelReloj) {
        jugadas_ = a;
        a = b;
    }
    texto_[caja] = qa::CorregirNivel(a, qa::LimiteNivel(caja));
    motores_.CargarLevel();
    salida << motores_.Estado().NivelMotor << '\n';
}

bool MotorCli::Obtener(const std::string& nombre, std::string& valor) {
    const qa::EstadoMotores& e = motores_.Estado();
    if (nombre == "nivelmotor")
        valor = e.NivelMotor;
    else if (nombre == "comandomotor(1)")
        valor = e.ComandoMotor[1];
    else if (nombre == "comandomotor(2)")
        valor = e.ComandoMotor[2];
    else if (nombre == "respuestamotor(1)")
        valor = e.RespuestaMotor[1];
    else if (nombre == "respuestamotor(2)")
        valor = e.RespuestaMotor[2];
    else if (nombre == "rutamotor(1)")
        valor = e.RutaMotor[1];
    else if (nombre == "rutamotor(2)")
        valor = e.RutaMotor[2];
    else if (nombre == "relojblancas")
        valor = cajas_[6];
    else if (nombre == "relojnegras")
        valor = cajas_[7];
    else
        return false;
    return true;
}
