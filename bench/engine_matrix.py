#!/usr/bin/env python3
"""Real chess engines played through quintarena-cli, one game at a time.

  matrix    every engine x level kind x colour against a scripted person (random legal moves
            found with the tool's own `probe`), with a time limit per game
  match     engine against engine, both colour assignments, at a fixed time per move and at a
            time control
  kill      an engine killed with SIGKILL mid-game: the game ends with a message and a new one
            starts at once
  measure   time to fairymax's first move at 1 s per move, the tool's own CPU while two
            engines play, its memory after many engine games in one run

Each run makes a scratch folder with a copy of the tool, the shipped settings and language
(English) from the source tree, and a Motor folder with one launcher per installed engine in the
layout of tools/make-engines.sh. After every game and at the
end it looks for engine processes left running from that folder.

  bench/engine_matrix.py [--cli build-debug/quintarena-cli] matrix|match|kill|measure|all
"""

import argparse
import os
import queue
import random
import re
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import threading
import time

RAIZ = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
JUEGOS = "/usr/games"
MOTORES = [
    ("fairymax", [f"{JUEGOS}/fairymax"]),
    ("phalanx", [f"{JUEGOS}/phalanx"]),
    ("hoichess", [f"{JUEGOS}/hoichess"]),
    ("gnuchess", [f"{JUEGOS}/gnuchess"]),
    ("sjeng", [f"{JUEGOS}/sjeng"]),
    ("stockfish", [f"{JUEGOS}/polyglot", "-noini", "-ec", f"{JUEGOS}/stockfish"]),
]
# Level kinds: the tool's command, and how long a game of it may last.
NIVELES = {
    "depth": ("depth 2", 90),
    "time": ("time 1", 150),
    "control": ("control 40 1", 180),
}
ENGINE_PROCS = {"fairymax", "phalanx", "hoichess", "gnuchess", "sjeng", "stockfish", "polyglot"}

# The message boxes' texts (English) that tell how a game ended.
FINALES = [
    ("Checkmate. White wins.", "mate 1-0"),
    ("Checkmate. Black wins.", "mate 0-1"),
    ("Stalemate. The game is drawn.", "stalemate"),
    ("Your time is up.", "flag (person)"),
    ("time is up. You won", "flag (engine)"),
    ("resigns. You won", "resignation"),
    ("concedes the game", "resignation"),
    ("offers a draw. Do you accept?", "draw offer accepted"),
    ("The game is drawn.", "draw claimed"),
    ("The engine has refused a command:", "refused"),
    ("[ERROR]", "engine failed"),
    ("The engine could not be started.", "not started"),
]


def instalados():
    return [(n, o) for n, o in MOTORES if all(os.access(p, os.X_OK) for p in o if p.startswith("/"))]


def preparar(cli, raiz, linebuf=()):
    """The scratch folder: the tool, its settings and language, and Motor/."""
    os.makedirs(raiz, exist_ok=True)
    destino = os.path.join(raiz, "quintarena-cli")
    shutil.copy2(cli, destino)
    # Modules the tool loads from beside itself (its event loop) go along.
    carpeta = os.path.dirname(os.path.abspath(cli))
    for nombre in os.listdir(carpeta):
        if nombre.startswith("quintarena-cli") and nombre.endswith(".so"):
            shutil.copy2(os.path.join(carpeta, nombre), raiz)
    datos = os.path.join(RAIZ, "data")
    shutil.copy2(os.path.join(datos, "English.lng"), raiz)
    with open(os.path.join(datos, "Default.ini"), encoding="latin-1") as f:
        ini = f.read()
    ini = re.sub(r"(?m)^Idioma=.*$", "Idioma=English", ini)
    with open(os.path.join(raiz, "Default.ini"), "w", encoding="latin-1") as f:
        f.write(ini)
    # The layout of tools/make-engines.sh: Motor/NAME/NAME, a launcher that execs the engine in
    # a fresh scratch folder that is also its home.
    for nombre, orden in instalados():
        if linebuf and nombre in linebuf:
            # Its output is held in a buffer on a pipe: written out line by line instead.
            orden = ["stdbuf", "-oL"] + orden
        carpeta = os.path.join(raiz, "Motor", nombre)
        os.makedirs(carpeta, exist_ok=True)
        lanzador = os.path.join(carpeta, nombre)
        with open(lanzador, "w") as f:
            f.write("#!/bin/sh\n"
                    'trabajo=$(mktemp -d "${TMPDIR:-/tmp}/quintarena-motor.XXXXXX") || exit 1\n'
                    'cd "$trabajo" || exit 1\n'
                    "HOME=$trabajo\nexport HOME\n"
                    f"exec {' '.join(orden)}\n")
        os.chmod(lanzador, 0o755)
    return destino


def restos(raiz):
    """Engine processes whose working folder lies under the scratch folder."""
    r = []
    for pid in os.listdir("/proc"):
        if not pid.isdigit():
            continue
        try:
            with open(f"/proc/{pid}/comm") as f:
                nombre = f.read().strip()
            cwd = os.readlink(f"/proc/{pid}/cwd")
        except OSError:
            continue
        if nombre in ENGINE_PROCS and cwd.startswith(raiz):
            r.append(f"{pid}:{nombre}")
    return r


class Cli:
    """The console tool as a process: answers apart from the engines' traced lines."""

    def __init__(self, ruta, raiz):
        entorno = dict(os.environ, TMPDIR=os.path.join(raiz, "tmp"))
        os.makedirs(entorno["TMPDIR"], exist_ok=True)
        entorno.pop("DISPLAY", None)
        entorno["ASAN_OPTIONS"] = entorno.get("ASAN_OPTIONS", "") + ":detect_leaks=0"
        self.p = subprocess.Popen([ruta], cwd=raiz, env=entorno, stdin=subprocess.PIPE,
                                  stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                                  bufsize=1, errors="replace")
        self.respuestas = queue.Queue()
        self.lock = threading.Lock()
        self.traza = []     # (time, line) of to1/to2/from1/from2
        self.mensajes = []  # (time, text) of message boxes and other standard error
        self.ultima = time.time()
        threading.Thread(target=self._leer_salida, daemon=True).start()
        threading.Thread(target=self._leer_errores, daemon=True).start()

    def _leer_salida(self):
        for linea in self.p.stdout:
            linea = linea.rstrip("\n")
            t = time.time()
            if re.match(r"(to|from)[12] ", linea) or linea in ("to1", "to2"):
                with self.lock:
                    self.traza.append((t, linea))
                    if linea.startswith("from"):
                        self.ultima = t
            else:
                self.respuestas.put(linea)
        self.respuestas.put(None)

    def _leer_errores(self):
        for linea in self.p.stderr:
            linea = linea.rstrip("\n")
            if linea.startswith("message "):
                linea = linea.split(": ", 1)[-1]
            with self.lock:
                self.mensajes.append((time.time(), linea))

    def enviar(self, *lineas):
        self.p.stdin.write("".join(l + "\n" for l in lineas))
        self.p.stdin.flush()

    def respuesta(self, plazo=60):
        r = self.respuestas.get(timeout=plazo)
        if r is None:
            raise RuntimeError("quintarena-cli ended")
        return r

    def pedir(self, linea, plazo=60):
        self.enviar(linea)
        return self.respuesta(plazo)

    def hasta_punto(self, linea):
        self.enviar(linea)
        r = []
        while (x := self.respuesta()) != ".":
            if not r and x.startswith("error"):
                raise RuntimeError(f"quintarena-cli answered '{linea}' with '{x}'")
            r.append(x)
        return r

    def get(self, nombre):
        return self.pedir("get " + nombre)

    def cerrar(self, plazo=20):
        try:
            self.p.stdin.close()
        except OSError:
            pass
        try:
            self.p.wait(plazo)
        except subprocess.TimeoutExpired:
            self.p.kill()
            self.p.wait()
            return "hung at close"
        return None

    def cpu(self):
        with open(f"/proc/{self.p.pid}/stat") as f:
            campos = f.read().rsplit(")", 1)[1].split()
        return (int(campos[11]) + int(campos[12])) / os.sysconf("SC_CLK_TCK")

    def memoria(self):
        r = {}
        with open(f"/proc/{self.p.pid}/status") as f:
            for l in f:
                if l.startswith(("VmHWM", "VmRSS")):
                    k, v = l.split(":")
                    r[k] = int(v.split()[0])
        return r


def de_ajedrez(tablero, o, d):
    """The board's rules take a few moves no engine does: a bishop or queen walk that leaves
    the board before its last column, castling with the rook gone."""
    dc, df = int(d[0]) - int(o[0]), int(d[1]) - int(o[1])
    pieza = tablero[o]
    if pieza in (4, 10) and abs(dc) != abs(df):
        return False
    if pieza in (5, 11) and abs(dc) != abs(df) and dc and df:
        return False
    if pieza in (1, 7) and dc and not tablero[d]:
        # Not even en passant: probing one takes the victim off the board, as a dragged pawn
        # does, and the engine would no longer see the same position.
        return False
    if pieza in (6, 12) and abs(dc) == 2:
        # It castles even with its rook gone.
        fila = "1" if pieza == 6 else "8"
        torre = 2 if pieza == 6 else 8
        return o == "5" + fila and tablero[("8" if dc > 0 else "1") + fila] == torre
    return True


def jugada_persona(cli, lado, azar):
    """A random legal move for the side of `lado` (1 White, 2 Black), found by probing."""
    filas = cli.hasta_punto("board")
    fen = cli.pedir("fen").split()
    tablero, propias = {}, []
    for i, fila in enumerate(filas):
        for c, v in enumerate(fila.split()):
            v = int(v)
            tablero[f"{c + 1}{8 - i}"] = v
            if v and (v <= 6) == (lado == 1):
                propias.append(f"{c + 1}{8 - i}")
    casillas = [f"{c}{f}" for c in range(1, 9) for f in range(1, 9)]
    pruebas = [o + d for o in propias for d in casillas
               if o != d and de_ajedrez(tablero, o, d)]
    cli.enviar(*("probe " + p for p in pruebas))
    legales = [p for p in pruebas if cli.respuesta() == "legal"]
    azar.shuffle(legales)
    with cli.lock:
        cli.traza.append((time.time(), "note person sees " + " ".join(fen)))
    for j in legales:
        r = cli.pedir("move " + j)
        with cli.lock:
            cli.traza.append((time.time(), f"note person move {j}: {r}"))
        if r.startswith("legal"):
            return j, r
        if r == "ignored":
            return None, r
    return None, "no legal move"


def final_de(mensajes):
    for _, texto in mensajes:
        for marca, clase in FINALES:
            if marca in texto:
                return clase, texto
    return None, None


def porque_parado(traza, motor):
    """Why the engine to move says nothing useful: the rule that dropped its last lines."""
    suyas = [l.split(" ", 1)[1] if " " in l else "" for _, l in traza if l.startswith(f"from{motor}")]
    for l in reversed(suyas[-8:]):
        k = l.lower()
        if "move " in k and not any(w in k for w in ("illegal", "error", "invalid", "unknown", "warning")):
            if len(k) > 16:
                return f"move line over 16 characters dropped: '{l}'"
            return f"move not taken by the board: '{l}'"
    ultima = suyas[-1] if suyas else "(nothing)"
    enviado = [l for _, l in traza if l.startswith(f"to{motor}")]
    return f"engine silent; last line '{ultima}', last sent '{enviado[-1] if enviado else ''}'"


def callado(cli, desde, quieto=0.7, plazo=5.0):
    """The engines have said something and then nothing for `quieto` seconds (or `plazo` has
    passed since the game's first line)."""
    with cli.lock:
        lineas = cli.traza[desde:]
    if not lineas:
        return False
    ahora = time.time()
    dichas = [t for t, l in lineas if l.startswith("from")]
    return ahora - lineas[0][0] > plazo or (dichas and ahora - dichas[-1] > quieto)


def esperar_traza(cli, desde, patron, plazo):
    limite = time.time() + plazo
    while time.time() < limite:
        with cli.lock:
            for t, l in cli.traza[desde:]:
                if re.fullmatch(patron, l):
                    return t
        time.sleep(0.02)
    return None


def partida(cli, raiz, blancas, negras, nivel, plazo, azar, parado=20.0):
    """One game; `blancas`/`negras` are engine names or None for the scripted person.
    Returns (result, detail, seconds, extra)."""
    assert cli.pedir(f"engine 1 {blancas or 'none'}") == "ok"
    assert cli.pedir(f"engine 2 {negras or 'none'}") == "ok"
    cli.pedir(f"engine level {nivel}")
    with cli.lock:
        m0, t0i = len(cli.mensajes), len(cli.traza)
    t0 = time.time()
    assert cli.pedir("engine start") == "ok"
    persona = 1 if blancas is None else 2 if negras is None else 0
    # The game is on once the first command went to an engine.
    if esperar_traza(cli, t0i, r"to[12] .*", 15) is None:
        return "stuck", "nothing sent to the engines", time.time() - t0, {}
    fin_tablero = sin_jugada = None
    jugadas = 0
    while True:
        ahora = time.time()
        with cli.lock:
            mens = cli.mensajes[m0:]
            traza = cli.traza[t0i:]
            ultima = cli.ultima
        clase, texto = final_de(mens)
        mb, mn = cli.get("MotorBlancas"), cli.get("MotorNegras")
        corren = mb == "-1" or mn == "-1"
        if not corren:
            # Boxes come on standard error, which may lag behind the answers.
            time.sleep(0.3)
            with cli.lock:
                mens = cli.mensajes[m0:]
            clase, texto = final_de(mens)
            if clase is None:
                res = [l for _, l in traza if re.search(r"from[12] .*(1-0|0-1|1/2-1/2)", l)]
                clase, texto = ("claimed result", res[-1]) if res else ("stopped", "")
            break
        if clase in ("mate 1-0", "mate 0-1", "stalemate"):
            # The board has ended the game; the engines may still claim it.
            fin_tablero = fin_tablero or ahora
            if ahora - fin_tablero > 3:
                cli.pedir("engine stop")
                break
            time.sleep(0.1)
            continue
        turno = int(cli.get("Turno"))
        if persona and turno == persona and jugadas == 0 and not callado(cli, t0i):
            # A person makes the first move once the engine has had its say: a move made while
            # engine 2 still writes its feature lines is overwritten by the answer to them.
            time.sleep(0.05)
            continue
        if persona and turno == persona:
            j, r = jugada_persona(cli, persona, azar)
            if j is None:
                # The board's mate or stalemate box may still be on its way.
                sin_jugada = sin_jugada or ahora
                if ahora - sin_jugada > 3:
                    clase, texto = "stuck", f"person could not move: {r}"
                    cli.pedir("engine stop")
                    break
                time.sleep(0.2)
                continue
            jugadas += 1
            continue
        if ahora - t0 > plazo:
            clase, texto = "stuck", f"over {plazo} s; " + porque_parado(traza, _lado(cli))
            cli.pedir("engine stop")
            break
        if ahora - max(ultima, t0) > parado:
            clase, texto = "stuck", porque_parado(traza, _lado(cli))
            cli.pedir("engine stop")
            break
        time.sleep(0.1)
    dur = time.time() - t0
    with cli.lock:
        traza = cli.traza[t0i:]
        mens = cli.mensajes[m0:]
    extra = {
        "mensajes": mens,
        "go1": sum(1 for _, l in traza if l == "to1 go"),
        "go2": sum(1 for _, l in traza if l == "to2 go"),
        "plies": jugadas + sum(1 for _, l in traza if re.match(r"from[12] .*move ", l)),
        "traza": traza,
    }
    return clase, texto, dur, extra


def _lado(cli):
    """The side to move on the board, from the tool's FEN."""
    f = cli.pedir("fen").split()
    return 2 if len(f) > 1 and f[1] == "b" else 1


def comprobar_restos(raiz, espera=5.0):
    limite = time.time() + espera
    while time.time() < limite:
        r = restos(raiz)
        if not r:
            return []
        time.sleep(0.1)
    return restos(raiz)


def guardar(args, nombre, extra):
    """The game's lines to and from the engines and its messages, with times, for a look."""
    if not args.log:
        return
    os.makedirs(args.log, exist_ok=True)
    with open(os.path.join(args.log, nombre + ".log"), "w") as f:
        todo = sorted(extra["traza"] + [(t, "message " + m) for t, m in extra["mensajes"]])
        t0 = todo[0][0] if todo else 0
        for t, l in todo:
            f.write(f"{t - t0:8.3f} {l}\n")


def cerrar_y_tabla(cli, raiz, filas, cabecera):
    """The tool closed, the table, and what was left running after the close."""
    fallo = cli.cerrar()
    vivos = comprobar_restos(raiz)
    print()
    tabla(filas, cabecera)
    print(f"after close: {fallo or 'closed'}; engine processes left: {vivos or 'none'}")


def tabla(filas, cabecera):
    anchos = [max(len(str(x)) for x in col) for col in zip(cabecera, *filas)]
    linea = lambda f: "| " + " | ".join(str(x).ljust(a) for x, a in zip(f, anchos)) + " |"
    print(linea(cabecera))
    print("|" + "|".join("-" * (a + 2) for a in anchos) + "|")
    for f in filas:
        print(linea(f))
    sys.stdout.flush()


def cmd_matrix(args, cli_ruta, raiz):
    azar = random.Random(args.seed)
    filas = []
    motores = [n for n, _ in instalados()]
    if args.engines:
        motores = [m for m in motores if m in args.engines.split(",")]
    cli = Cli(cli_ruta, raiz)
    print("engines found:", cli.hasta_punto("engine list"))
    for motor in motores:
        for tipo, (nivel, plazo) in NIVELES.items():
            for color in ("white", "black"):
                b, n = (motor, None) if color == "white" else (None, motor)
                clase, texto, dur, extra = partida(cli, raiz, b, n, nivel, plazo, azar)
                guardar(args, f"{motor}-{tipo}-{color}", extra)
                vivos = comprobar_restos(raiz)
                filas.append((motor, tipo, color, clase, f"{dur:.0f}", extra["plies"], texto,
                              " ".join(vivos) or "none"))
                print(" ".join(str(x) for x in filas[-1]), flush=True)
    cerrar_y_tabla(cli, raiz, filas, ("engine", "level", "engine plays", "end", "s", "plies",
                                      "how / why", "left running"))


def cmd_match(args, cli_ruta, raiz):
    azar = random.Random(args.seed)
    cli = Cli(cli_ruta, raiz)
    cli.hasta_punto("engine list")
    filas = []
    dobles = 0
    cpu_total = jugado = 0.0
    for tipo, n in (("time", args.games_time), ("control", args.games_control)):
        nivel, plazo = NIVELES[tipo]
        for i in range(n):
            b, ng = ("fairymax", "phalanx") if i % 2 == 0 else ("phalanx", "fairymax")
            c0 = cli.cpu()
            clase, texto, dur, extra = partida(cli, raiz, b, ng, nivel, args.match_limit, azar)
            guardar(args, f"match-{tipo}-{i + 1}-{b}-{ng}", extra)
            cpu_total += cli.cpu() - c0
            jugado += dur
            vivos = comprobar_restos(raiz)
            doble = extra["go1"] > 1
            dobles += doble and b == "fairymax"
            filas.append((tipo, i + 1, b, ng, clase, f"{dur:.0f}", extra["plies"], extra["go1"],
                          texto, " ".join(vivos) or "none"))
            print(" ".join(str(x) for x in filas[-1]), flush=True)
    cerrar_y_tabla(cli, raiz, filas, ("level", "#", "White", "Black", "end", "s", "plies",
                                      "'go' to White", "how / why", "left running"))
    blancas_fm = sum(1 for f in filas if f[2] == "fairymax")
    print(f"fairymax as White received 'go' more than once in {dobles} of {blancas_fm} games")
    if jugado:
        print(f"tool's own CPU (polled by this script) {cpu_total:.2f} s over {jugado / 60:.1f} min "
              f"of play: {cpu_total / (jugado / 60):.2f} s per minute")


def cmd_kill(args, cli_ruta, raiz):
    cli = Cli(cli_ruta, raiz)
    cli.hasta_punto("engine list")
    filas = []
    for b, n, victima in (("fairymax", None, "fairymax"), (None, "phalanx", "phalanx"),
                          ("fairymax", "phalanx", "phalanx"), ("phalanx", "fairymax", "phalanx")):
        for nivel in ("time 1", "control 40 1"):
            cli.pedir(f"engine 1 {b or 'none'}")
            cli.pedir(f"engine 2 {n or 'none'}")
            cli.pedir(f"engine level {nivel}")
            with cli.lock:
                m0, t0 = len(cli.mensajes), len(cli.traza)
            cli.pedir("engine start")
            esperar_traza(cli, t0, r"from[12] .*", 15)
            # Mid-game: after the first move, or once the engines have talked for a while.
            esperar_traza(cli, t0, r"from[12] move .*", 3)
            pids = [p.split(":")[0] for p in restos(raiz) if p.endswith(":" + victima)]
            for p in pids:
                os.kill(int(p), signal.SIGKILL)
            limite = time.time() + 10
            fin = None
            while time.time() < limite:
                if cli.get("MotorBlancas") == "0" and cli.get("MotorNegras") == "0":
                    fin = time.time()
                    break
                time.sleep(0.05)
            with cli.lock:
                mens = [m for _, m in cli.mensajes[m0:]]
            vivos = comprobar_restos(raiz)
            # The tool goes on: a new game at once, and its first engine line.
            with cli.lock:
                t1 = len(cli.traza)
            cli.pedir("engine 1 fairymax")
            cli.pedir("engine 2 none")
            cli.pedir("engine level depth 1")
            cli.pedir("engine start")
            nueva = esperar_traza(cli, t1, r"from1 move .*", 15)
            cli.pedir("engine stop")
            filas.append((b or "person", n or "person", nivel, victima, "ended" if fin else "NOT ended",
                          "; ".join(mens) or "(no message)", " ".join(vivos) or "none",
                          "yes" if nueva else "NO"))
            print(" | ".join(filas[-1]), flush=True)
    cerrar_y_tabla(cli, raiz, filas, ("White", "Black", "level", "killed", "game", "message",
                                      "left running", "new game plays"))


def cmd_measure(args, cli_ruta, raiz):
    partes = args.parts.split(",")
    if "first" in partes:
        primera_jugada(args, cli_ruta, raiz)
    if "cpu" in partes:
        cpu_propia(args, cli_ruta, raiz)
    if "memory" in partes:
        memoria_tras_partidas(args, cli_ruta, raiz)


def primera_jugada(args, cli_ruta, raiz):
    """1. fairymax's first move at 1 s per move."""
    cli = Cli(cli_ruta, raiz)
    cli.hasta_punto("engine list")
    cli.pedir("engine 1 fairymax")
    cli.pedir("engine 2 none")
    cli.pedir("engine level time 1")
    totales, arranques, piensa = [], [], []
    for _ in range(args.repeat):
        with cli.lock:
            t0i = len(cli.traza)
        cli.enviar("engine start")
        t0 = time.time()
        cli.respuesta()
        tgo = esperar_traza(cli, t0i, r"to1 go", 15)
        tmov = esperar_traza(cli, t0i, r"from1 move .*", 15)
        cli.pedir("engine stop")
        if tgo and tmov:
            totales.append(tmov - t0)
            arranques.append(tgo - t0)
            piensa.append(tmov - tgo)
    cli.cerrar()
    # The same engine over plain pipes: the same commands, the time from "go" to its move.
    directo = []
    for _ in range(args.repeat):
        p = subprocess.Popen([os.path.join(raiz, "Motor", "fairymax", "fairymax")], cwd=raiz,
                             env=dict(os.environ, TMPDIR=os.path.join(raiz, "tmp")),
                             stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, bufsize=1)
        p.stdin.write("xboard\nprotover 2\nnew\nrandom\nics -\nst 1\npost\neasy\n")
        p.stdin.flush()
        time.sleep(0.3)
        t = time.time()
        p.stdin.write("go\n")
        p.stdin.flush()
        for linea in p.stdout:
            if linea.startswith("move "):
                directo.append(time.time() - t)
                break
        p.stdin.write("quit\n")
        p.stdin.close()
        p.wait(5)
    med = statistics.median
    print(f"start to fairymax's first move at 1 s per move, {len(totales)} runs: median "
          f"{med(totales):.3f} s (min {min(totales):.3f}, max {max(totales):.3f})")
    print(f"  start to 'go' sent: {med(arranques):.3f} s (the 1 s delayed start, then the "
          f"start-up sends: {med(arranques) - 1.0:+.3f} s)")
    print(f"  'go' to the move line read: {med(piensa):.3f} s; the same engine over plain "
          f"pipes: {med(directo):.3f} s (fairymax stops short of its second)")
    print(f"  overhead above the engine's own time and the delayed start: "
          f"{med(totales) - 1.0 - med(directo):+.3f} s")



def cpu_propia(args, cli_ruta, raiz):
    """2. the tool's own CPU while two engines play, with nothing asked of it meanwhile but
    the start of the next game when one ends."""
    for nivel in ("time 1", "control 40 1"):
        cli = Cli(cli_ruta, raiz)
        cli.hasta_punto("engine list")
        # phalanx as White: with fairymax as White the game ends after a few moves.
        cli.pedir("engine 1 phalanx")
        cli.pedir("engine 2 fairymax")
        cli.pedir(f"engine level {nivel}")
        c0 = cli.cpu()
        t0 = time.time()
        partidas = 0
        while time.time() - t0 < args.cpu_seconds:
            with cli.lock:
                desde = len(cli.traza)
            cli.pedir("engine start")
            partidas += 1
            esperar_traza(cli, desde, r"to[12] quit", args.cpu_seconds - (time.time() - t0))
        c1 = cli.cpu()
        t1 = time.time()
        with cli.lock:
            jugadas = sum(1 for _, l in cli.traza if re.match(r"from[12] move ", l))
        cli.pedir("engine stop")
        cli.cerrar()
        print(f"tool's own CPU (user+sys) with phalanx against fairymax at '{nivel}': "
              f"{c1 - c0:.2f} s over {(t1 - t0) / 60:.2f} min ({partidas} games, {jugadas} "
              f"moves): {(c1 - c0) / ((t1 - t0) / 60):.2f} s per minute of play")


def memoria_tras_partidas(args, cli_ruta, raiz):
    """3. memory after many engine games in one run."""
    cli = Cli(cli_ruta, raiz)
    cli.hasta_punto("engine list")
    cli.pedir("engine level depth 1")
    mem1 = None
    for i in range(args.games_memory):
        # fairymax answers "time 0" at once: short games.
        b, n = "fairymax", "fairymax"
        cli.pedir(f"engine 1 {b}")
        cli.pedir(f"engine 2 {n}")
        with cli.lock:
            t0i = len(cli.traza)
        cli.pedir("engine start")
        # Ten moves, then the game is stopped (or it ended by itself).
        limite = time.time() + 10
        while time.time() < limite:
            with cli.lock:
                n_mov = sum(1 for _, l in cli.traza[t0i:] if re.match(r"from[12] move ", l))
                acabado = any(l in ("to1 quit", "to2 quit") for _, l in cli.traza[t0i + 1:])
            if n_mov >= 10 or (acabado and n_mov > 0):
                break
            time.sleep(0.05)
        cli.pedir("engine stop")
        if i == 0:
            mem1 = cli.memoria()
    mem = cli.memoria()
    vivos_antes = restos(raiz)
    cli.cerrar()
    print(f"memory of the tool: after 1 engine game VmRSS {mem1['VmRSS']} kB (peak "
          f"{mem1['VmHWM']} kB); after {args.games_memory} games VmRSS {mem['VmRSS']} kB "
          f"(peak {mem['VmHWM']} kB)")
    print(f"engine processes running before the close (the last game stopped): "
          f"{vivos_antes or 'none'}; after: {comprobar_restos(raiz) or 'none'}")


def main():
    ap = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    ap.add_argument("what", choices=("matrix", "match", "kill", "measure", "all"))
    ap.add_argument("--cli", default=os.path.join(RAIZ, "build-debug", "quintarena-cli"))
    ap.add_argument("--engines", help="comma-separated subset for the matrix")
    ap.add_argument("--seed", type=int, default=12)
    ap.add_argument("--games-time", type=int, default=20)
    ap.add_argument("--games-control", type=int, default=10)
    ap.add_argument("--match-limit", type=int, default=420)
    ap.add_argument("--repeat", type=int, default=5)
    ap.add_argument("--cpu-seconds", type=float, default=60)
    ap.add_argument("--games-memory", type=int, default=100)
    ap.add_argument("--parts", default="first,cpu,memory", help="of measure")
    ap.add_argument("--keep", action="store_true", help="keep the scratch folder")
    ap.add_argument("--linebuf", help="engines started under stdbuf -oL, comma-separated")
    ap.add_argument("--log", help="folder for each game's lines")
    args = ap.parse_args()
    raiz = tempfile.mkdtemp(prefix="engine-matrix.")
    try:
        cli = preparar(args.cli, raiz, (args.linebuf or "").split(","))
        for que in (("matrix", "match", "kill", "measure") if args.what == "all" else (args.what,)):
            print(f"== {que}", flush=True)
            globals()["cmd_" + que](args, cli, raiz)
    finally:
        if not args.keep:
            shutil.rmtree(raiz, ignore_errors=True)


if __name__ == "__main__":
    main()
