// The engine session: a game's start, the toolbar's commands and requests, the end of a game.

#include "engine/motores_interno.h"

#include "core/takeback.h"
#include "platform/texto.h"

namespace qa {

using namespace motor;

namespace {

// What stands before and behind the "$" of a message; with none, all of it is behind.
std::string AntesDolar(const std::string& texto) {
    const auto p = texto.find('$');
    return p == std::string::npos ? std::string() : texto.substr(0, p);
}
std::string TrasDolar(const std::string& texto) {
    return TrasPrimera(texto, '$');
}

} // namespace

void Motores::Impl::Empezar() {
    if (!Jugadas::List[1].empty() && (MotorBlancas || MotorNegras)) {
        const std::string pregunta = ReemplazarDolar(dialogos().Mensaje(84), kCrLf);
        const int r = dialogos().MostrarMensaje(kTituloMensajes, pregunta, kIconoPregunta,
                                                kBotonesSiNo, kSegundoPorDefecto);
        if (r != kRespuestaSi) return;
    }
    CmdTerminar(1);
    CmdTerminar(2);
    VariableCPUCero();
    DescargarDLL();
    if (!NombraMotor(1) && !NombraMotor(2)) {
        cpu.Player2();
        Turno = 1;
        return;
    }
    timer3.Habilitar(true);
}

void Motores::Impl::Timer3() {
    // Off first: the sends below yield, and a second tick must not start a second game.
    timer3.Habilitar(false);
    const bool blancas = Lanzar(1);
    cpu.Player2();
    Turno = blancas ? 0 : 1;
    if (!Lanzar(2)) Turno = 0;
    const bool reloj = ConReloj();
    if (reloj && Jugadas::List1.empty()) RelojesANivel();
    if (!reloj) {
        MinutosBlancas = SegundosBlancas = MinutosNegras = SegundosNegras = 0;
        cpu.PonerTexto(6, "00:00");
        cpu.PonerTexto(7, "00:00");
    }
    Saludar();
    if (reloj) {
        EncenderReloj(timer4);
        timer5.Habilitar(false);
    }
    // The person's side comes to stand at the bottom.
    if (MotorBlancas || MotorNegras) {
        if (!MotorBlancas) cpu.MarcarInvertirTablero(true);
        if (!MotorNegras) cpu.MarcarInvertirTablero(false);
    }
    timer3.Habilitar(false);
}

void Motores::Boton(int indice) {
    Impl& i = *impl_;
    switch (indice) {
    case 1:
        i.Empezar();
        break;
    case 2:
        ToolboxComand("2");
        break;
    case 4:
        ToolboxComand("3");
        break;
    case 5:
        ToolboxComand("4");
        break;
    case 7:
        ToolboxComand("5");
        break;
    case 9:
        if (Impl::DosMotores() || Turno == 0) return;
        i.Peticion("hint");
        break;
    case 10:
        if (Turno != 0 || Impl::DosMotores()) return;
        i.Peticion("?");
        break;
    default:
        break;
    }
}

void Motores::ToolboxComand(const std::string& codigo) {
    Impl& i = *impl_;
    if (codigo == "2") {
        i.PararRelojes();
        e_.ParandoMotores = true;
        i.Terminar();
        e_.ParandoMotores = false;
    } else if (codigo == "3") {
        if (Impl::DosMotores()) return;
        if (!MotorNegras && (Turno == 0 || !MotorBlancas)) return;
        std::string nombre;
        if (!i.NombraMotor(1)) nombre = i.NombreLista(2);
        if (!i.NombraMotor(2)) nombre = i.NombreLista(1);
        std::string antes = AntesDolar(dialogos().Mensaje(92));
        if (!antes.empty() && antes[0] >= 'a' && antes[0] <= 'z')
            antes[0] = static_cast<char>(antes[0] - 'a' + 'A');
        Aviso(antes + nombre + TrasDolar(dialogos().Mensaje(92)));
        i.Terminar();
    } else if (codigo == "4") {
        // An offer is made on one's own turn only.
        if (Impl::DosMotores() || Turno == 0) return;
        i.Peticion("offer draw");
    } else if (codigo == "5") {
        if (Turno == 0 || Jugadas::List1.empty()) return;
        // Only the engine has moved, or nobody at this board may take back.
        if (Jugadas::List1.size() == 1 && i.NombraMotor(1)) return;
        if (i.NombraMotor(1) && i.NombraMotor(2)) return;
        RetrocesoFuncion();
        if (i.NombraMotor(1) || i.NombraMotor(2)) RetrocesoFuncion();
        i.cpu.QuitarMarcoActivo();
        // One "remove" takes back both moves.
        for (int m = 1; m <= 2; ++m) {
            if (!Impl::Corre(m)) continue;
            i.cpu.Ceder();
            i.Enviar(m, "remove");
        }
    }
}

// A hint, a move-now or a draw offer to the engine that runs.
void Motores::Impl::Peticion(const std::string& comando) {
    for (int m = 1; m <= 2; ++m) {
        if (!Corre(m)) continue;
        cpu.Ceder();
        e.PeticionPendiente = true;
        timer1.Habilitar(true);
        Enviar(m, comando);
    }
}

void Motores::Impl::Timer1() {
    for (int i = 1; i <= 2; ++i)
        if (e.ComandoMotor[i] == "offer draw") Aviso(96);
    for (int i = 1; i <= 2; ++i)
        if (e.ComandoMotor[i] == "hint") Aviso(97);
    for (int i = 1; i <= 2; ++i)
        if (e.ComandoMotor[i] == "?") Aviso(97);
    e.PeticionPendiente = false;
    timer1.Habilitar(false);
}

void Motores::Impl::OfertaTablas(int m) {
    if (DosMotores()) {
        const int o = 3 - m;
        e.PeticionPendiente = true;
        timer1.Habilitar(true);
        Enviar(o, "offer draw");
        return;
    }
    const std::string texto = NombreLista(m) + TrasDolar(dialogos().Mensaje(94));
    const int r =
        dialogos().MostrarMensaje(kTituloMensajes, texto, kIconoPregunta, kBotonesSiNo, 0);
    if (r == kRespuestaSi) Terminar();
}

void Motores::Impl::MotorRendido(int m) {
    PararRelojes();
    const std::string aviso92 = dialogos().Mensaje(92);
    if (DosMotores())
        Aviso(NombreLista(m) + " " + AntesDolar(aviso92) + NombreLista(3 - m) + TrasDolar(aviso92));
    else if (Corre(m))
        Aviso(NombreLista(m) + TrasDolar(dialogos().Mensaje(91)));
    self.ToolboxComand("2");
}

void Motores::Impl::CerrarPartidaCPU() {
    PararRelojes();
    e.ParandoMotores = true;
    CmdTerminar(1);
    CmdTerminar(2);
    VariableCPUCero(false); // the clocks keep their last values
    Turno = 0;
    e.ParandoMotores = false;
    dibujo().OcultarMarcasUltimaJugada();
    TipoPartida.clear();
    ColorJugador.clear();
    VariablesCero();
    dibujo().RedibujarTablero();
    Cargando = false;
    dibujo().ListasCambiadas();
}

bool Motores::PuedeAbrirNiveles() const {
    return !MotorBlancas && !MotorNegras;
}

void Motores::CargarLevel() {
    Impl& i = *impl_;
    const std::string nivel =
        ComandoNivel(i.cpu.OpcionNivel(), i.cpu.TextoNivel(1), i.cpu.TextoNivel(2),
                     i.cpu.TextoNivel(3), i.cpu.JugadasNivel());
    if (!nivel.empty()) e_.NivelMotor = nivel;
}

} // namespace qa
