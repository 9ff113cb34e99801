"""Drives quintarena-cli processes from a test: each in a folder of its own (its settings and
rating record live beside it), commands written as the test goes, answers read as they come,
every wait bounded."""
import os
import queue
import shutil
import subprocess
import sys
import threading
import time

ESPERA = 30.0  # seconds any one condition may take before the test fails
TRAZAS = ("sent ", "recv ", "to1 ", "to2 ", "from1 ", "from2 ")  # lines of the wire and pipes


class Fallo(Exception):
    pass


class Cli:
    def __init__(self, cli, datos, carpeta, nombre):
        os.makedirs(carpeta, exist_ok=True)
        shutil.copy2(cli, os.path.join(carpeta, "quintarena-cli"))
        # Its event loop, loaded from beside it.
        shutil.copy2(os.path.join(os.path.dirname(cli), "quintarena-cli-bucle.so"), carpeta)
        for f in os.listdir(datos):
            if f.endswith(".lng") or f == "Default.ini":
                shutil.copy2(os.path.join(datos, f), carpeta)
        self.nombre = nombre
        self.carpeta = carpeta
        self.lineas = []
        self.errores = []
        self.leidas = 0  # lines before this one are all taken
        self.tomadas = set()
        self._cola = queue.Queue()
        self.proc = subprocess.Popen(
            [os.path.join(carpeta, "quintarena-cli")], cwd=carpeta, stdin=subprocess.PIPE,
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, env=dict(os.environ, LC_ALL="C.UTF-8"))
        threading.Thread(target=self._leer, args=(self.proc.stdout, self._cola), daemon=True).start()
        self._colaErr = queue.Queue()
        threading.Thread(target=self._leer, args=(self.proc.stderr, self._colaErr), daemon=True).start()

    @staticmethod
    def _leer(flujo, cola):
        for linea in flujo:
            cola.put(linea.decode("latin-1").rstrip("\n"))
        cola.put(None)

    def _recoger(self, plazo):
        try:
            l = self._cola.get(timeout=plazo)
        except queue.Empty:
            return False
        if l is None:
            raise Fallo(f"{self.nombre}: the program ended; stderr:\n" + "\n".join(self.errores))
        self.lineas.append(l)
        return True

    def _recoger_errores(self):
        while True:
            try:
                l = self._colaErr.get_nowait()
            except queue.Empty:
                return
            if l is not None:
                self.errores.append(l)

    def enviar(self, orden):
        self.proc.stdin.write((orden + "\n").encode("latin-1"))
        self.proc.stdin.flush()

    def esperar(self, pred, que, plazo=ESPERA):
        """The first line not taken yet for which pred holds, read as it comes; it is taken.
        Lines passed over stay for later waits: a trace that came before an answer is still
        there to wait for."""
        fin = time.monotonic() + plazo
        i = self.leidas
        while True:
            while i < len(self.lineas):
                l = self.lineas[i]
                if i not in self.tomadas and pred(l):
                    self.tomadas.add(i)
                    while self.leidas in self.tomadas:
                        self.leidas += 1
                    return l
                i += 1
            resta = fin - time.monotonic()
            if resta <= 0 or not self._recoger(resta):
                self._recoger_errores()
                raise Fallo(f"{self.nombre}: no {que} within {plazo} s; last lines:\n" +
                            "\n".join(self.lineas[-60:]) + "\nstderr:\n" +
                            "\n".join(self.errores[-10:]))

    def linea(self, texto, plazo=ESPERA):
        return self.esperar(lambda l: l == texto, repr(texto), plazo)

    def respuesta(self, orden):
        """Runs a command and returns its answer: the first line after it that is not a trace."""
        self.enviar(orden)
        return self.esperar(lambda l: not l.startswith(TRAZAS), f"answer to {orden!r}")

    def obtener(self, nombre):
        return self.respuesta("get " + nombre)

    def hasta(self, nombre, valor, plazo=ESPERA):
        """Asks `get nombre` until it answers `valor` (a state reached by events)."""
        fin = time.monotonic() + plazo
        while True:
            v = self.obtener(nombre)
            if v == valor:
                return
            if time.monotonic() > fin:
                raise Fallo(f"{self.nombre}: {nombre} stayed {v!r}, wanted {valor!r}")
            time.sleep(0.05)

    def bloque(self, orden):
        """The lines a command answers with, up to its closing "."."""
        self.enviar(orden)
        filas = []
        while True:
            l = self.esperar(lambda l: not l.startswith(TRAZAS), f"answer to {orden!r}")
            if l == ".":
                return filas
            filas.append(l)

    def tablero(self):
        return self.bloque("board")

    def lista(self, n):
        return self.bloque(f"list {n}")

    def cerrar(self, plazo=ESPERA):
        try:
            self.proc.stdin.close()
        except OSError:
            pass
        try:
            rc = self.proc.wait(timeout=plazo)
        except subprocess.TimeoutExpired:
            self.proc.kill()
            self.proc.wait()
            raise Fallo(f"{self.nombre}: did not end within {plazo} s of its input's end")
        while True:
            l = self._cola.get()
            if l is None:
                break
            self.lineas.append(l)
        self._recoger_errores()
        return rc

    def matar(self):
        if self.proc.poll() is None:
            self.proc.kill()
            self.proc.wait()


def rss_kb(pid):
    """A process's resident memory."""
    with open(f"/proc/{pid}/status") as f:
        for l in f:
            if l.startswith("VmRSS:"):
                return int(l.split()[1])
    return 0


def igual(que, a, b):
    if a != b:
        raise Fallo(f"{que}: {a!r} != {b!r}")


def correr(main):
    """A test's main with the program and the data folder from the command line: a failure
    prints its reason and exits 1."""
    try:
        main(sys.argv[1], sys.argv[2])
    except Fallo as e:
        print("FAILED:", e)
        sys.exit(1)
