#include "motor_prueba.h"

#include "core/game_state.h"

#include "language/idioma.h"
#include "platform/programa.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace prueba {

std::vector<Paso> Guion(const std::string& texto) {
    std::vector<Paso> pasos;
    std::istringstream in(texto);
    std::string l;
    while (std::getline(in, l)) {
        if (!l.empty() && l.back() == '\r') l.pop_back();
        if (l.size() < 2 || (l[0] != '<' && l[0] != '>' && l[0] != '!') || l[1] != ' ') continue;
        pasos.push_back({l[0], l.substr(2)});
    }
    return pasos;
}

std::vector<Paso> LeerGuion(const std::string& nombre) {
    std::ifstream f(std::string(QA_GUIONES) + "/" + nombre);
    EXPECT_TRUE(f.good()) << nombre;
    std::stringstream s;
    s << f.rdbuf();
    return Guion(s.str());
}

int ConsolaGuion::Ejecutar(const std::string& r) {
    ruta = r;
    ++ejecuciones;
    if (resultadoEjecutar) Avanzar();
    return resultadoEjecutar;
}

void ConsolaGuion::Terminar() {
    terminada = true;
    salida.clear();
}

void ConsolaGuion::Enviar(const std::string& texto) {
    enviados.push_back(texto);
    if (terminada) return;
    std::string resto = texto;
    for (;;) {
        const auto p = resto.find("\r\n");
        const std::string linea = resto.substr(0, p);
        lineas.push_back(linea);
        if (paso < pasos.size() && pasos[paso].tipo == '<' && pasos[paso].texto == linea) {
            ++paso;
            Avanzar();
        }
        if (p == std::string::npos) break;
        resto = resto.substr(p + 2);
    }
}

void ConsolaGuion::Seguir(std::vector<Paso> p) {
    pasos = std::move(p);
    paso = 0;
    Avanzar();
}

void ConsolaGuion::Avanzar() {
    while (paso < pasos.size() && pasos[paso].tipo != '<') salida.push_back(pasos[paso++]);
}

qa::ConsolaMotor& CpuPrueba::NuevaConsola(int motor) {
    if (consola[motor]) consola[motor]->Terminar();
    todas.push_back(std::make_unique<ConsolaGuion>());
    ConsolaGuion* c = todas.back().get();
    c->resultadoEjecutar = resultadoEjecutar[motor];
    c->Seguir(guion[motor]);
    c->salida.clear(); // nothing is said before the program runs
    consola[motor] = c;
    return *c;
}

void CpuPrueba::SoltarConsolas() {
    ++consolasSoltadas;
    for (int m = 1; m <= 2; ++m)
        if (consola[m]) consola[m]->Terminar();
    consola[1] = consola[2] = nullptr;
}

void CpuPrueba::Ceder() {
    ++cesiones;
    // One line per turn, as events come. A console's lines do not nest: the next one waits
    // until the report of the one before has returned, as a holder reports a chunk's lines.
    for (bool algo = true; algo;) {
        algo = false;
        for (int m = 1; m <= 2; ++m) {
            ConsolaGuion* c = consola[m];
            if (!c || c->terminada || c->salida.empty() || c->informando) continue;
            const Paso p = c->salida.front();
            c->salida.pop_front();
            algo = true;
            c->informando = true;
            if (p.tipo == '!')
                motores->ErrorRecibido(m, p.texto);
            else
                motores->DatoRecibido(m, p.texto);
            c->informando = false;
        }
    }
}

void CpuPrueba::Player2() {
    ++player2;
    Variables::NuevaPartidaLocal();
    Variables::Turno = 0;
}

std::string PartidaMotor::Registro::Mensaje(int n) {
    switch (n) {
    case 84:
        return "Stop the game? $ Sure? $ Really?";
    case 91:
        return "$ resigns.";
    case 92:
        return "gives up $ wins.";
    case 94:
        return "$ offers a draw. Accept?";
    default:
        return "m" + std::to_string(n);
    }
}

namespace {
std::filesystem::path Raiz() {
    return std::filesystem::temp_directory_path() / ("qa_motor_" + std::to_string(getpid()));
}
} // namespace

void PartidaMotor::SetUp() {
    Partida::SetUp();
    InstalarRegistro(&registro);
    motores = std::make_unique<qa::Motores>(cpu, t1, t2, t3, t4, t5);
    cpu.motores = motores.get();
    InstalarMotor(motores.get());
    motores->CargarLevel(); // as the settings do at start
    registro.cpuVisible = true;
}

void PartidaMotor::TearDown() {
    InstalarMotor(nullptr);
    motores.reset();
    std::error_code ec;
    std::filesystem::remove_all(Raiz(), ec);
    Partida::TearDown();
}

void PartidaMotor::Listas(int blanco, int negro) {
    namespace fs = std::filesystem;
    const fs::path raiz = Raiz();
    for (const char* n : {"fairy", "phalanx"}) {
        fs::create_directories(raiz / "Motor" / n);
        const fs::path f = raiz / "Motor" / n / n;
        std::ofstream(f) << "#!/bin/sh\n";
        fs::permissions(f, fs::perms::owner_all);
    }
    qa::FijarDirectorioPrograma(raiz.string());
    motores->ActualizarCPU();
    ASSERT_EQ(cpu.entradas, (std::vector<std::string>{qa::TextoSinMotor, "fairy", "phalanx"}));
    cpu.indice[1] = blanco;
    cpu.indice[2] = negro;
}

void PartidaMotor::Empezar(int blanco, int negro) {
    Listas(blanco, negro);
    motores->Boton(1);
    if (blanco || negro) {
        ASSERT_TRUE(t3.Habilitado());
        t3.Vencer();
    }
    Ceder();
}

void PartidaMotor::Dice(int motor, const std::string& linea) {
    ASSERT_NE(cpu.consola[motor], nullptr);
    motores->DatoRecibido(motor, linea);
    Ceder();
}

std::string PartidaMotor::Ultimo(int motor) const {
    const ConsolaGuion* c = cpu.consola[motor];
    return c && !c->enviados.empty() ? c->enviados.back() : std::string();
}

std::vector<std::string> PartidaMotor::Nuevos(int motor) {
    std::vector<std::string> r;
    const ConsolaGuion* c = cpu.consola[motor];
    if (!c) return r;
    if (visto[motor] != c) vistos[motor] = 0;
    visto[motor] = c;
    for (std::size_t i = vistos[motor]; i < c->enviados.size(); ++i) r.push_back(c->enviados[i]);
    vistos[motor] = c->enviados.size();
    return r;
}

std::vector<std::string> PartidaMotor::Textos() const {
    std::vector<std::string> r;
    for (const auto& m : registro.mensajes) r.push_back(m.texto);
    return r;
}

} // namespace prueba
