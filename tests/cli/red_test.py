"""Two quintarena-cli processes, each in a folder of its own, play over 127.0.0.1: a rated game
to mate, then every negotiation with both answers, a saved game and a position opened for both,
and a resignation; the boards, move lists and rating files of both must agree at each step."""
import os
import struct
import sys
import tempfile

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from cli_peer import Cli, Fallo, correr, igual  # noqa: E402

JAQUE_PASTOR = ["5254", "5755", "6134", "2836", "4185", "7866", "8567"]


def registro(carpeta):
    with open(os.path.join(carpeta, "Puntuacion.dat"), "rb") as f:
        datos = f.read()
    if len(datos) != 20:
        raise Fallo(f"{carpeta}: the rating record has {len(datos)} bytes")
    return struct.unpack("<5i", datos)



def jugar(mueve, espera, jugada):
    """A move on one side, seen arriving on the other."""
    r = mueve.respuesta("move " + jugada)
    if not r.startswith("legal"):
        raise Fallo(f"{mueve.nombre}: move {jugada} answered {r!r}")
    espera.linea(f"recv Movimiento {jugada}0")
    return r


def mismos_tableros(a, b):
    igual("boards", a.tablero(), b.tablero())
    igual("move lists", a.lista(3), b.lista(3))


def main(cli, datos):
    with tempfile.TemporaryDirectory(prefix="qa-cli-red-") as raiz:
        a = Cli(cli, datos, os.path.join(raiz, "a"), "waiting side")
        b = Cli(cli, datos, os.path.join(raiz, "b"), "calling side")
        try:
            partida(a, b)
        finally:
            a.matar()
            b.matar()
    print("network game over 127.0.0.1: passed")


def partida(a, b):
    igual("nick", a.respuesta("nick Ana"), "ok")
    igual("nick", b.respuesta("nick Bruno"), "ok")
    igual("a nick of ten letters", b.respuesta("nick Bartolomeo"), "refused")
    r = a.respuesta("listen")
    if r != "ok":
        raise Fallo("cannot wait on port 1500: another program holds it")
    r = b.respuesta("connect 127.0.0.1")
    if r != "ok":
        raise Fallo("cannot call from port 1501: another program holds it")
    for x in (a, b):
        x.linea("recv VersionQT 1.55")
        # Each side's record reaches the other 2.5 s after the connection.
        x.linea("recv Ranking 0-0-0-0-1200")
    igual("waiting side", a.obtener("EsServidor"), "-1")
    igual("calling side", b.obtener("EsCliente"), "-1")
    igual("peer's version", b.obtener("VersionRemota"), "1.55")

    igual("chat", b.respuesta("say hola"), "ok")
    a.linea("recv Mensaje <Bruno>hola")

    # A rated game, Ana with White, played to mate.
    igual("answer", b.respuesta("answer yes"), "ok")
    igual("new game offer", a.respuesta("new white R 5"), "ok")
    a.linea("recv NuevoAceptado")
    igual("colour", a.obtener("ColorJugador"), "Blancas")
    igual("colour", b.obtener("ColorJugador"), "Negras")
    igual("game kind", b.obtener("TipoPartida"), "R")
    igual("a move out of turn", b.respuesta("move 5755"), "ignored")
    igual("a move of the peer's piece", a.respuesta("move 5755"), "refused")
    for i, j in enumerate(JAQUE_PASTOR):
        r = jugar(*((a, b) if i % 2 == 0 else (b, a)), j)
    igual("last move", r, "legal check mate")
    mismos_tableros(a, b)
    igual("move list", a.lista(3)[-1], "4. Qxf7++")
    igual("winner's record", registro(a.carpeta), (1, 1, 0, 0, 1300))
    igual("loser's record", registro(b.carpeta), (1, 0, 1, 0, 1100))
    igual("both records", a.obtener("PuntuacionRemota"), "1-0-1-0-1100")
    igual("game over", b.obtener("TipoPartida"), "")

    # A free game offered by Bruno with Black: refused, then accepted.
    igual("answer", a.respuesta("answer no"), "ok")
    igual("new game offer", b.respuesta("new black A"), "ok")
    b.linea("recv NuevoCancelado")
    igual("offer answered", b.obtener("NuevoPendiente"), "0")
    igual("answer", a.respuesta("answer yes"), "ok")
    igual("new game offer", b.respuesta("new black A"), "ok")
    b.linea("recv NuevoAceptado")
    igual("Ana has White", a.obtener("ColorJugador"), "Blancas")
    jugar(a, b, "5254")
    # Take-back: refused, then granted.
    igual("answer", b.respuesta("answer no"), "ok")
    igual("take-back request", a.respuesta("takeback"), "ok")
    a.linea("recv RetrocesoCancelado")
    igual("still one move", len(b.lista(3)), 1)
    igual("answer", b.respuesta("answer yes"), "ok")
    igual("take-back request", a.respuesta("takeback"), "ok")
    a.linea("recv RetrocesoAceptado")
    igual("taken back", a.lista(3), [])
    mismos_tableros(a, b)
    igual("Ana's move again", a.obtener("Turno"), "1")
    jugar(a, b, "5254")
    jugar(b, a, "5755")
    # Draw: refused, then agreed; a free game leaves the records alone.
    igual("answer", a.respuesta("answer yes"), "ok")
    igual("answer", b.respuesta("answer no"), "ok")
    igual("draw offer", a.respuesta("draw"), "ok")
    a.linea("recv TablasCancelado")
    igual("answer", a.respuesta("answer yes"), "ok")
    igual("answer", b.respuesta("answer yes"), "ok")
    igual("draw offer", a.respuesta("draw"), "ok")
    a.linea("recv TablasAceptadas")
    igual("game over", a.obtener("TipoPartida"), "")
    igual("game over", b.obtener("TipoPartida"), "")
    igual("records after a free game", registro(b.carpeta), (1, 0, 1, 0, 1100))

    # The game just played, saved and opened for both: the peer replays it line by line.
    igual("save", a.respuesta("save partida.qtr"), "ok")
    igual("save", a.respuesta("save posicion.epd"), "ok")
    igual("answer", a.respuesta("answer text B"), "ok")
    igual("open a game for both", a.respuesta("open partida.qtr"), "ok")
    b.linea("recv QTR Iniciar")
    b.linea("recv QTR Terminado")
    a.hasta("Cargando", "0")
    mismos_tableros(a, b)
    igual("replayed", b.lista(3), ["1. e4", "                  e5"])

    # A position opened for both through the position browser.
    igual("answer", b.respuesta("answer yes"), "ok")
    igual("open a position for both", a.respuesta("open posicion.epd"), "ok")
    a.linea("recv AbrirAceptadoEPD")
    igual("answer", a.respuesta("answer text N"), "ok")
    igual("the browser's choice", a.respuesta("epd 0"), "ok")
    b.esperar(lambda l: l.startswith("recv EPD "), "the position")
    igual("position", a.respuesta("fen"), b.respuesta("fen"))
    igual("Ana took Black", a.obtener("ColorJugador"), "Negras")
    igual("so Bruno has White", b.obtener("ColorJugador"), "Blancas")
    igual("a position game is free", b.obtener("TipoPartida"), "A")

    # A rated game lost by resignation; the position game in progress is given up first.
    igual("answer", a.respuesta("answer yes"), "ok")
    igual("answer", b.respuesta("answer yes"), "ok")
    igual("new game offer", a.respuesta("new black R 3"), "ok")
    a.linea("recv NuevoAceptado")
    jugar(b, a, "5254")
    igual("answer", a.respuesta("answer yes"), "ok")
    igual("resign", a.respuesta("resign"), "ok")
    b.linea("recv Rendirse")
    igual("game over", b.obtener("TipoPartida"), "")  # the text is traced before it is handled
    igual("resigner's record", registro(a.carpeta), (2, 1, 1, 0, 1200))
    igual("winner's record", registro(b.carpeta), (2, 1, 1, 0, 1200))

    # Commands that would change one board alone are left for the peer's way.
    igual("local new game", a.respuesta("new"), "ignored")
    igual("local position", a.respuesta("setfen 8/8/8/8/8/8/8/K6k w - - 0 1"), "ignored")

    # The waiting side ends the connection.
    igual("disconnect", a.respuesta("disconnect"), "ok")
    b.hasta("Conectado", "0")
    a.hasta("Conectado", "0")
    for x in (a, b):
        rc = x.cerrar()
        if rc != 0:
            raise Fallo(f"{x.nombre} ended with {rc}")
    igual("records kept", registro(a.carpeta), (2, 1, 1, 0, 1200))


if __name__ == "__main__":
    correr(main)
