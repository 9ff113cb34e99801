#!/usr/bin/env python3
"""Engine games through quintarena-cli, as figures: how each installed engine ends a game
against a scripted person at each level kind and colour, and a match of two engines.

    bench/cli_motores.py CLI table [ENGINE ...]          engine x level kind x colour
    bench/cli_motores.py CLI match E1 E2 GAMES LEVEL...  e.g. match fairymax phalanx 20 time 1
    bench/cli_motores.py CLI first                      start to fairymax's first move at st 1

The engines are the ones Debian installs in /usr/games, each started by a launcher in a fresh
folder, as the install step sets them up. The person plays a random legal move (found with
`probe`); a game that makes no progress for a minute is reported as stuck.
"""
import os
import random
import sys
import tempfile
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "cli"))
from cli_peer import Cli, Fallo, rss_kb  # noqa: E402

JUEGOS = "/usr/games"
MOTORES = {
    "fairymax": f"{JUEGOS}/fairymax",
    "phalanx": f"{JUEGOS}/phalanx",
    "hoichess": f"{JUEGOS}/hoichess",
    "gnuchess": f"{JUEGOS}/gnuchess",
    "sjeng": f"{JUEGOS}/sjeng",
    "stockfish": f"{JUEGOS}/polyglot -noini -ec {JUEGOS}/stockfish",
}
NIVELES = {"depth": "depth 3", "time": "time 1", "control": "control 40 2"}
SIN_AVANCE = 60.0


def preparar(cli, datos, raiz, nombres):
    c = Cli(cli, datos, os.path.join(raiz, "c"), "cli")
    for n in nombres:
        carpeta = os.path.join(c.carpeta, "Motor", n)
        os.makedirs(carpeta, exist_ok=True)
        lanzador = os.path.join(carpeta, n)
        with open(lanzador, "w") as f:
            f.write('#!/bin/sh\ntrabajo=$(mktemp -d "$PWD/trabajo.XXXXXX") || exit 1\n'
                    f'cd "$trabajo" && HOME=$trabajo exec {MOTORES[n]}\n')
        os.chmod(lanzador, 0o755)
    return c


def final(c, desde):
    """The messages the game ended with."""
    c._recoger_errores()
    return [e[len("message Quintarena: "):] for e in c.errores[desde:] if e.startswith("message ")]


def jugada_al_azar(c, color):
    propias = range(1, 7) if color == 1 else range(7, 13)
    filas = c.tablero()  # row 8 first
    piezas = {(col, 8 - i): p for i, f in enumerate(filas)
              for col, p in enumerate((int(x) for x in f.split()), 1) if p in propias}
    casillas = list(piezas)
    random.shuffle(casillas)
    destinos = [(x, y) for x in range(1, 9) for y in range(1, 9)]
    for co, fo in casillas:
        random.shuffle(destinos)
        for cd, fd in destinos:
            # The board takes a bishop's or queen's walk that runs off the board as legal; an
            # engine does not, and the person here plays chess.
            tipo, dc, df = (piezas[(co, fo)] - 1) % 6 + 1, abs(cd - co), abs(fd - fo)
            if (tipo == 4 and dc != df) or (tipo == 5 and dc != df and dc and df):
                continue
            j = f"{co}{fo}{cd}{fd}"
            if c.respuesta("probe " + j) == "legal":
                return j
    return None


def partida(c, blancas, negras, nivel, persona=0):
    """One game; persona 1 or 2 is the colour the scripted person plays. Returns how it ended."""
    c.respuesta("engine 1 " + blancas)
    c.respuesta("engine 2 " + negras)
    c.respuesta("engine level " + nivel)
    desde = len(c.errores)
    c.respuesta("answer yes")
    c.respuesta("engine start")
    c.esperar(lambda l: l.startswith(("to1 xboard", "to2 xboard")), "engine start", 30)
    ultimo, avance = -1, time.monotonic()
    empezada = False
    while True:
        mb, mn = c.obtener("MotorBlancas"), c.obtener("MotorNegras")
        if mb == "-1" or mn == "-1":
            empezada = True
        elif empezada:
            break
        n = len(c.lista(1))
        if n != ultimo:
            ultimo, avance = n, time.monotonic()
        elif time.monotonic() - avance > SIN_AVANCE:
            c.respuesta("engine stop")
            return "stuck", n, final(c, desde)
        if persona and c.obtener("Turno") == str(persona):
            j = jugada_al_azar(c, persona)
            if j:
                c.respuesta("move " + j)
        time.sleep(0.05)
    return "finished", len(c.lista(1)), final(c, desde)


def tabla(cli, datos, nombres):
    nombres = [n for n in nombres if os.access(MOTORES[n].split()[0], os.X_OK)]
    with tempfile.TemporaryDirectory(prefix="qa-bench-motores-") as raiz:
        c = preparar(cli, datos, raiz, nombres)
        try:
            c.enviar("engine list")
            c.linea(".")
            print(f"{'engine':10} {'level':8} {'engine plays':12} {'result':9} half-moves  how")
            for n in nombres:
                for clave, nivel in NIVELES.items():
                    for color in (1, 2):
                        b, ne = (n, "none") if color == 1 else ("none", n)
                        t = time.monotonic()
                        r, medias, como = partida(c, b, ne, nivel, persona=3 - color)
                        print(f"{n:10} {clave:8} {'White' if color == 1 else 'Black':12} {r:9} "
                              f"{medias:10}  {' / '.join(como)[:90]} ({time.monotonic() - t:.0f} s)",
                              flush=True)
        finally:
            c.cerrar()


def cpu_s(pid):
    with open(f"/proc/{pid}/stat") as f:
        campos = f.read().rsplit(")", 1)[1].split()
    return (int(campos[11]) + int(campos[12])) / os.sysconf("SC_CLK_TCK")


def primera(cli, datos, veces=5):
    """From the start button to the engine's first move, fairymax with White at 1 s a move."""
    with tempfile.TemporaryDirectory(prefix="qa-bench-primera-") as raiz:
        c = preparar(cli, datos, raiz, ["fairymax"])
        try:
            c.respuesta("engine 1 fairymax")
            c.respuesta("engine 2 none")
            c.respuesta("engine level time 1")
            tiempos = []
            for _ in range(veces):
                c.respuesta("answer yes")
                t = time.monotonic()
                c.respuesta("engine start")
                c.esperar(lambda l: l.startswith("from1 move "), "the first move", 30)
                tiempos.append(time.monotonic() - t)
                c.respuesta("engine stop")
        finally:
            c.cerrar()
    print(f"start to fairymax's first move at 'st 1' ({veces} times): median "
          f"{sorted(tiempos)[len(tiempos) // 2]:.2f} s, best {min(tiempos):.2f} s, worst "
          f"{max(tiempos):.2f} s; 1 s of it is the delayed start, the rest the engine's")


def partido(cli, datos, e1, e2, juegos, nivel):
    with tempfile.TemporaryDirectory(prefix="qa-bench-partido-") as raiz:
        c = preparar(cli, datos, raiz, sorted({e1, e2}))
        cuenta = {}
        pid = c.proc.pid
        cpu0, t0 = cpu_s(pid), time.monotonic()
        try:
            for i in range(juegos):
                b, n = (e1, e2) if i % 2 == 0 else (e2, e1)
                t = time.monotonic()
                r, medias, como = partida(c, b, n, nivel)
                clave = r + ": " + (como[-1] if como else "no message")
                cuenta[clave] = cuenta.get(clave, 0) + 1
                print(f"game {i + 1}: {b} (White) - {n} (Black): {r} after {medias} half-moves, "
                      f"{' / '.join(como)} ({time.monotonic() - t:.0f} s)", flush=True)
            cpu, pared = cpu_s(pid) - cpu0, time.monotonic() - t0
            print(f"the program itself used {cpu:.1f} s of CPU in {pared:.0f} s "
                  f"({100 * cpu / pared:.1f} %, its script's polls included); resident memory "
                  f"after the games {rss_kb(pid)} kB")
        finally:
            c.cerrar()
        print(f"{juegos} games of {e1} against {e2} at '{nivel}':")
        for k, v in sorted(cuenta.items()):
            print(f"  {v:3} {k}")


def main():
    cli, modo = sys.argv[1], sys.argv[2]
    datos = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "data")
    if modo == "table":
        tabla(cli, datos, sys.argv[3:] or list(MOTORES))
    elif modo == "first":
        primera(cli, datos)
    elif modo == "match":
        partido(cli, datos, sys.argv[3], sys.argv[4], int(sys.argv[5]), " ".join(sys.argv[6:]))
    else:
        print(__doc__)


if __name__ == "__main__":
    try:
        main()
    except Fallo as e:
        print("FAILED:", e)
        sys.exit(1)
