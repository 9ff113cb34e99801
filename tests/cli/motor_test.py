"""quintarena-cli against a real engine, fairymax: a person's game scripted move by move that
ends in the person's resignation, then fairymax against itself until it is stopped. No engine
outlives its game or the program."""
import os
import sys
import tempfile

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from cli_peer import Cli, Fallo, correr, igual  # noqa: E402

FAIRYMAX = "/usr/games/fairymax"
SIN_MOTOR = 77  # ctest's skip code



def motores_vivos(carpeta):
    """Processes whose working folder lies in the engines' folder beside the program: the
    engines we started, and whatever they started."""
    carpeta = os.path.join(carpeta, "Motor")
    vivos = []
    for pid in os.listdir("/proc"):
        if pid.isdigit():
            try:
                if os.readlink(f"/proc/{pid}/cwd").startswith(carpeta):
                    vivos.append(pid)
            except OSError:
                pass
    return vivos


def main(cli, datos):
    if not os.access(FAIRYMAX, os.X_OK):
        print(f"{FAIRYMAX} is not installed (tools/install-deps.sh installs it)")
        sys.exit(SIN_MOTOR)
    with tempfile.TemporaryDirectory(prefix="qa-cli-motor-") as raiz:
        carpeta = os.path.join(raiz, "c")
        c = Cli(cli, datos, carpeta, "quintarena-cli")
        # A launcher as the install step makes one: the engine starts in a fresh folder with a
        # home of its own (two of them play each other here).
        os.makedirs(os.path.join(carpeta, "Motor", "fairymax"))
        lanzador = os.path.join(carpeta, "Motor", "fairymax", "fairymax")
        with open(lanzador, "w") as f:
            f.write('#!/bin/sh\ntrabajo=$(mktemp -d "$PWD/trabajo.XXXXXX") || exit 1\n'
                    f'cd "$trabajo" && HOME=$trabajo exec {FAIRYMAX}\n')
        os.chmod(lanzador, 0o755)
        try:
            partidas(c, carpeta)
        finally:
            c.matar()
        vivos = motores_vivos(carpeta)
        if vivos:
            raise Fallo(f"engine processes left after the program ended: {vivos}")
    print("engine games through the console tool: passed")


def partidas(c, carpeta):
    c.enviar("engine list")
    igual("engines found", c.linea("fairymax"), "fairymax")
    c.linea(".")
    igual("engine 2", c.respuesta("engine 2 fairymax"), "ok")
    igual("an engine that is not there", c.respuesta("engine 1 crafty"), "error no engine crafty")
    igual("level", c.respuesta("engine level time 1"), "st 1")
    igual("start", c.respuesta("engine start"), "ok")
    c.linea("to2 xboard")  # the start is delayed by a second
    c.linea("to2 st 1")
    c.linea("to2 easy")
    # Each start-up command ends in a line end, and the engine gets no empty line after it.
    igual("empty lines traced", [l for l in c.lineas if l == "to2 "], [])
    igual("the person's move", c.respuesta("move 5254"), "legal")
    c.linea("to2 e2e4")
    c.esperar(lambda l: l.startswith("from2 move "), "the engine's move")
    c.hasta("Turno", "1")
    igual("two half-moves", len(c.lista(1)), 2)
    igual("resign", c.respuesta("resign"), "ok")
    c.linea("to2 quit")
    igual("game over", c.obtener("MotorNegras"), "0")
    igual("no engine after the game", motores_vivos(carpeta), [])

    # Engine against engine at a shallow depth: both play through the tool, and a stop ends
    # them at once.
    igual("engine 1", c.respuesta("engine 1 fairymax"), "ok")
    igual("level", c.respuesta("engine level depth 2"), "sd 2")
    igual("start", c.respuesta("engine start"), "ok")
    c.linea("to1 sd 2")
    c.esperar(lambda l: l.startswith("from1 move "), "a move of White's engine", 60)
    c.esperar(lambda l: l.startswith("from2 move "), "a move of Black's engine", 60)
    igual("stop", c.respuesta("engine stop"), "ok")
    igual("both engines stopped", (c.obtener("MotorBlancas"), c.obtener("MotorNegras")),
          ("0", "0"))
    if len(c.lista(1)) < 2:
        raise Fallo("the engines' moves are not all on the board: " + repr(c.lista(1)))
    igual("no engine after the stop", motores_vivos(carpeta), [])
    igual("end", c.cerrar(), 0)


if __name__ == "__main__":
    correr(main)
