#include "fuzz/engine_driver.h"
#include "fuzz/lector_bytes.h"

#include "core/game_state.h"
#include "core/local_move.h"
#include "core/recorder.h"
#include "engine/lector_motor.h"
#include "engine/motores.h"
#include "platform/programa.h"

#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

using namespace Variables;

namespace {

// A line: the bytes up to a newline, or a length-prefixed run of any bytes.
std::string Linea(Lector& l) {
    std::string s;
    if (l.Byte() & 1) {
        for (int n = l.Byte(); n > 0 && l.Queda(); --n) s += static_cast<char>(l.Byte());
        return s;
    }
    while (l.Queda()) {
        const char c = static_cast<char>(l.Byte());
        if (c == '\n') break;
        s += c;
    }
    return s;
}

struct Consola final : qa::ConsolaMotor {
    bool corriendo = false;
    bool informando = false;
    int resultado = 1;
    std::deque<std::pair<bool, std::string>> salida; // (failure, text)
    int Ejecutar(const std::string&) override {
        corriendo = resultado != 0;
        return resultado;
    }
    void Terminar() override {
        corriendo = false;
        salida.clear();
    }
    void Enviar(const std::string&) override {}
};

struct Cpu final : qa::EntornoCpu {
    qa::Motores* motores = nullptr;
    Consola* consola[3] = {};
    std::vector<std::unique_ptr<Consola>> todas;
    int indice[3] = {0, 0, 0};
    int resultado[3] = {1, 1, 1};
    int opcion = 1;
    std::string nivel[4] = {"", "5", "6", "5"};
    int64_t ms = 0;
    int profundidad = 0;

    qa::ConsolaMotor& NuevaConsola(int m) override {
        if (consola[m]) consola[m]->Terminar();
        todas.push_back(std::make_unique<Consola>());
        consola[m] = todas.back().get();
        consola[m]->resultado = resultado[m];
        return *consola[m];
    }
    void SoltarConsolas() override {
        for (int m = 1; m <= 2; ++m)
            if (consola[m]) consola[m]->Terminar();
        consola[1] = consola[2] = nullptr;
    }
    void Ceder() override {
        if (profundidad > 8) return;
        ++profundidad;
        for (int m = 1; m <= 2; ++m) {
            Consola* c = consola[m];
            if (!c || !c->corriendo || c->informando || c->salida.empty()) continue;
            auto [fallo, texto] = c->salida.front();
            c->salida.pop_front();
            c->informando = true;
            if (fallo)
                motores->ErrorRecibido(m, texto);
            else
                motores->DatoRecibido(m, texto);
            c->informando = false;
        }
        --profundidad;
    }
    bool Visible() override { return true; }
    void LlenarListas(const std::vector<std::string>&) override {}
    int IndiceLista(int l) override { return indice[l == 2 ? 2 : 1]; }
    void PonerTexto(int, const std::string&) override {}
    void RelojEncendido(int, bool) override {}
    void MarcarInvertirTablero(bool) override {}
    void QuitarMarcoActivo() override {}
    void Player2() override {
        NuevaPartidaLocal();
        Turno = 0;
    }
    int OpcionNivel() override { return opcion; }
    std::string TextoNivel(int caja) override { return nivel[caja & 3]; }
    std::string JugadasNivel() override { return "40"; }
    int64_t MilisegundosDelDia() override { return ms; }
};

// Two engines found in a folder of our own, made once and removed at exit.
struct Carpeta {
    std::filesystem::path raiz =
        std::filesystem::temp_directory_path() / ("qa_fuzz_motor_" + std::to_string(getpid()));
    Carpeta() {
        for (const char* n : {"uno", "dos"}) {
            std::filesystem::create_directories(raiz / "Motor" / n);
            std::ofstream(raiz / "Motor" / n / "motor.exe") << "x";
        }
    }
    ~Carpeta() {
        std::error_code ec;
        std::filesystem::remove_all(raiz, ec);
    }
};

void PrepararCarpeta() {
    static Carpeta carpeta;
    qa::FijarDirectorioPrograma(carpeta.raiz.string());
}

std::string Casilla(Lector& l) {
    const uint8_t b = l.Byte();
    return std::string(1, char('1' + (b & 7))) + char('1' + ((b >> 3) & 7));
}

void Comprobar(const Cpu& cpu) {
    if (MotorBlancas || MotorNegras) return;
    for (const auto& c : cpu.todas)
        if (c->corriendo && c.get() != cpu.consola[1] && c.get() != cpu.consola[2]) std::abort();
    for (int m = 1; m <= 2; ++m)
        if (cpu.consola[m] && cpu.consola[m]->corriendo) std::abort();
}

} // namespace

void EjecutarEntradaMotor(const uint8_t* datos, size_t tam) {
    PrepararCarpeta();
    static EntornoRegistro registro;
    InstalarRegistro(&registro);
    RestablecerTodo();
    registro = EntornoRegistro();
    registro.cpuVisible = true;
    Lector l(datos, tam);

    Cpu cpu;
    qa::TemporizadorManual t[6];
    auto motores = std::make_unique<qa::Motores>(cpu, t[1], t[2], t[3], t[4], t[5]);
    cpu.motores = motores.get();
    InstalarMotor(motores.get());

    const uint8_t modo = l.Byte();
    cpu.opcion = modo % 3;
    cpu.resultado[1] = (modo & 8) ? 0 : 1;
    cpu.resultado[2] = (modo & 16) ? 0 : 1;
    motores->CargarLevel();
    motores->ActualizarCPU();
    cpu.indice[1] = (modo >> 5) % 3;
    cpu.indice[2] = l.Byte() % 4; // 3 is past the list's end
    motores->Boton(1);
    t[3].Vencer();

    for (int pasos = 0; l.Queda() && pasos < 400; ++pasos) {
        const uint8_t op = l.Byte();
        const int m = 1 + (op >> 7);
        switch (op % 12) {
        case 0:
        case 1:
        case 2: {
            // A line from an engine, now; the codec is read alone as well.
            const std::string linea = Linea(l);
            qa::EstadoLinea e;
            e.motorBlancas = op & 16;
            e.enroquePendiente = op & 32;
            e.peticionPendiente = op & 64;
            (void)qa::LeerLinea(linea, e);
            (void)qa::LeerPensamiento(linea);
            motores->DatoRecibido(m, linea);
            break;
        }
        case 3: // a line that comes while the logic yields
            if (cpu.consola[m]) cpu.consola[m]->salida.push_back({false, Linea(l)});
            break;
        case 4:
            if (cpu.consola[m])
                cpu.consola[m]->salida.push_back({true, Linea(l)});
            else
                motores->ErrorRecibido(m, Linea(l));
            break;
        case 5:
            t[1 + l.Byte() % 5].Vencer();
            break;
        case 6:
            motores->Boton(l.Byte() % 13);
            break;
        case 7:
            motores->ToolboxComand(std::to_string(l.Byte() % 7));
            break;
        case 8: {
            const std::string o = Casilla(l), d = Casilla(l);
            SoltarFicha(o, d, l.Byte() % 13);
            break;
        }
        case 9:
            registro.respuestas.push_back(l.Byte() & 1 ? qa::kRespuestaSi : qa::kRespuestaNo);
            break;
        case 10:
            cpu.ms += l.Byte() * 37;
            if (l.Byte() & 1) {
                cpu.indice[1] = l.Byte() % 3;
                cpu.indice[2] = l.Byte() % 3;
            }
            break;
        default:
            cpu.opcion = l.Byte() % 4;
            cpu.nivel[3] = std::to_string(l.Byte());
            motores->CargarLevel();
            break;
        }
        cpu.Ceder();
        Comprobar(cpu);
        if (registro.mensajes.size() > 64) registro.mensajes.clear();
    }
    motores->CerrarPrograma();
    InstalarMotor(nullptr);
    motores.reset();
    InstalarRegistro(nullptr);
}
