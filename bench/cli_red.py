#!/usr/bin/env python3
"""Figures of network play between real quintarena-cli processes on 127.0.0.1, each in a
folder of its own: the round trip of a move, the transfer of a 100-move game, and the memory of
a program that has received 10,000 chat lines from a raw peer.

    bench/cli_red.py build/quintarena-cli [DATA_FOLDER]   (DATA_FOLDER: data/ of the sources)
"""
import os
import socket
import statistics
import sys
import tempfile
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "cli"))
from cli_peer import Cli, Fallo, rss_kb  # noqa: E402

IDA = ["7163", "7866", "6371", "6678"]  # knights out and home again: any number of moves


def conectar(a, b):
    if a.respuesta("listen") != "ok" or b.respuesta("connect 127.0.0.1") != "ok":
        raise Fallo("ports 1500/1501 are taken")
    for x in (a, b):
        x.linea("recv Ranking 0-0-0-0-1200")


def ida_y_vuelta(a, b, n=20):
    """A moves, B answers as soon as the move has arrived; A's clock runs from its command to
    the arrival of the answer."""
    a.respuesta("answer yes")
    b.respuesta("answer yes")
    if a.respuesta("new white A") != "ok":
        raise Fallo("no new game")
    a.linea("recv NuevoAceptado")
    tiempos = []
    for i in range(n):
        ja, jb = IDA[(2 * i) % 4], IDA[(2 * i + 1) % 4]
        t = time.monotonic()
        a.respuesta("move " + ja)
        b.linea(f"recv Movimiento {ja}0")
        b.respuesta("move " + jb)
        a.linea(f"recv Movimiento {jb}0")
        tiempos.append((time.monotonic() - t) * 1000)
    return tiempos


def transferencia(a, b, carpeta, movimientos=100):
    ruta = os.path.join(carpeta, "cien.qtr")
    with open(ruta, "wb") as f:
        f.write(b"0000\r\n0000\r\nA\r\n")
        for i in range(2 * movimientos):
            f.write(IDA[i % 4].encode() + b"\r\n")
    a.respuesta("answer yes text B")
    t = time.monotonic()
    if a.respuesta("open cien.qtr") != "ok":
        raise Fallo("the game was not opened")
    b.linea("recv QTR Terminado", 600)
    return time.monotonic() - t


def charla(cli, datos, raiz, lineas=10000):
    c = Cli(cli, datos, os.path.join(raiz, "c"), "chat")
    try:
        if c.respuesta("listen") != "ok":
            raise Fallo("port 1500 is taken")
        s = socket.create_connection(("127.0.0.1", 1500), timeout=30)
        c.linea("sent VersionQT 1.55")
        antes = rss_kb(c.proc.pid)
        t = time.monotonic()
        for i in range(lineas):
            texto = f"Mensaje <par>linea {i} de la charla, con algo de texto para que pese"
            s.sendall(texto.encode())
            c.linea("recv " + texto)  # one message per read: the next only when this one is in
            # Lines passed are forgotten, as the program forgets what it printed.
            c.lineas.clear()
            c.tomadas.clear()
            c.leidas = 0
        segundos = time.monotonic() - t
        despues = rss_kb(c.proc.pid)
        s.close()
        return antes, despues, segundos
    finally:
        c.matar()


def main():
    cli = sys.argv[1]
    datos = sys.argv[2] if len(sys.argv) > 2 else os.path.join(
        os.path.dirname(os.path.abspath(__file__)), "..", "data")
    with tempfile.TemporaryDirectory(prefix="qa-bench-red-") as raiz:
        a = Cli(cli, datos, os.path.join(raiz, "a"), "A")
        b = Cli(cli, datos, os.path.join(raiz, "b"), "B")
        try:
            conectar(a, b)
            t = ida_y_vuelta(a, b)
            print(f"move round trip (a move and the answer to it, {len(t)} times): median "
                  f"{statistics.median(t):.0f} ms, best {min(t):.0f} ms, worst {max(t):.0f} ms; "
                  f"the pump's floor is 2 x 300 ms")
            s = transferencia(a, b, a.carpeta)
            print(f"100-move game (200 half-moves) opened for both: {s:.1f} s to the peer's end")
            a.respuesta("answer yes")
            a.respuesta("disconnect")
            b.hasta("Conectado", "0")
        finally:
            a.matar()
            b.matar()
        antes, despues, segundos = charla(cli, datos, raiz)
        print(f"10,000 chat lines received in {segundos:.1f} s: resident memory {antes} kB "
              f"before, {despues} kB after ({(despues - antes) / 10000 * 1024:.1f} bytes a line)")


if __name__ == "__main__":
    main()
