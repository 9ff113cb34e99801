"""A peer written here in a few lines, speaking the wire protocol over a plain TCP socket with
one message per write, plays a game against quintarena-cli, which waits for the call: the
greeting, the ping, a new game, moves both ways to mate, texts it does not know, and the close."""
import os
import socket
import sys
import tempfile
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from cli_peer import ESPERA, Cli, Fallo, correr, igual  # noqa: E402


class Par:
    """The raw peer. The program sends one message per read only when it is paced, so each read
    here is taken as one message, as the program itself takes them."""

    def __init__(self):
        fin = time.monotonic() + ESPERA
        while True:
            try:
                self.s = socket.create_connection(("127.0.0.1", 1500), timeout=ESPERA)
                return
            except ConnectionRefusedError:
                if time.monotonic() > fin:
                    raise Fallo("the program does not answer on port 1500")
                time.sleep(0.05)

    def recibir(self):
        datos = self.s.recv(1 << 20)
        if not datos:
            raise Fallo("the program closed the connection")
        return datos.decode("latin-1")

    def esperar(self, pred, que):
        vistos = []
        while True:
            m = self.recibir()
            if pred(m):
                return m
            vistos.append(m)
            if len(vistos) > 50:
                raise Fallo(f"no {que} from the program; it sent {vistos!r}")

    def enviar(self, cli, texto, visto=None):
        """One message in one write; the next only once the program has dispatched it."""
        self.s.sendall(texto.encode("latin-1"))
        cli.linea("recv " + (visto if visto is not None else texto))



def main(cli, datos):
    with tempfile.TemporaryDirectory(prefix="qa-cli-par-") as raiz:
        c = Cli(cli, datos, os.path.join(raiz, "c"), "quintarena-cli")
        par = None
        try:
            if c.respuesta("listen") != "ok":
                raise Fallo("cannot wait on port 1500: another program holds it")
            par = Par()
            par.esperar(lambda m: m.startswith("Mensaje Jugador "), "greeting")
            igual("version", par.esperar(lambda m: m.startswith("VersionQT"), "version"),
                  "VersionQT 1.55")
            par.enviar(c, "VersionQT 1.55")
            igual("peer's version", c.obtener("VersionRemota"), "1.55")
            par.enviar(c, "Ping")
            par.esperar(lambda m: m == "Pong", "Pong")
            # Texts it does not know change nothing; control bytes come out escaped.
            par.enviar(c, "\x00\x01\\ruido\r", "\\x00\\x01\\x5Cruido\\x0D")
            par.enviar(c, "Closed")
            igual("still connected", c.obtener("Conectado"), "-1")
            igual("a field that is no number", c.respuesta("get MinutosBlancas"), "0")
            par.enviar(c, "TIME x:y")
            igual("dropped", c.obtener("MinutosBlancas"), "0")

            # The peer offers a free game and takes Black.
            igual("answer", c.respuesta("answer yes"), "ok")
            par.enviar(c, "NuevoJuego 2 A 0")
            par.esperar(lambda m: m == "NuevoAceptado", "the acceptance")
            igual("colour", c.obtener("ColorJugador"), "Blancas")
            igual("move", c.respuesta("move 6263"), "legal")
            igual("move sent", par.esperar(lambda m: m.startswith("Movimiento"), "a move"),
                  "Movimiento 62630")
            par.enviar(c, "Movimiento 57550")
            igual("the program's turn again", c.obtener("Turno"), "1")
            igual("move", c.respuesta("move 7274"), "legal")
            igual("move sent", par.esperar(lambda m: m.startswith("Movimiento"), "a move"),
                  "Movimiento 72740")
            par.enviar(c, "Movimiento 48840")
            igual("game over", c.obtener("TipoPartida"), "")
            igual("list", c.lista(3)[-1], "                  Qh4++")

            # The caller says goodbye; the waiting side closes.
            par.enviar(c, "Close")
            c.hasta("Conectado", "0")
            par.s.settimeout(ESPERA)
            if par.s.recv(1 << 20) != b"":
                raise Fallo("the connection stayed open after Close")
            igual("end", c.cerrar(), 0)
        finally:
            if par:
                par.s.close()
            c.matar()
    print("raw peer over 127.0.0.1: passed")


if __name__ == "__main__":
    correr(main)
