#!/usr/bin/env python3
"""A fake console engine that follows a script, for tests of engine play over real pipes.

Usage: motor_guion.py SCRIPT

Script lines ('#' lines and others are skipped):
  < TEXT    wait until this line arrives on standard input (other lines are passed over)
  > TEXT    write this line to standard output
  ! exit N  end at once with status N
"quit" ends the program at any point; after the script it waits for "quit" or the end of input.
"""
import sys


def leer(ruta):
    pasos = []
    with open(ruta, encoding="utf-8") as f:
        for linea in f:
            linea = linea.rstrip("\r\n")
            if len(linea) >= 2 and linea[0] in "<>!" and linea[1] == " ":
                pasos.append((linea[0], linea[2:]))
    return pasos


def esperar(texto):
    for linea in sys.stdin:
        linea = linea.rstrip("\r\n")
        if linea == "quit":
            sys.exit(0)
        if linea == texto:
            return
    sys.exit(0)


def main():
    if len(sys.argv) != 2:
        sys.stderr.write(__doc__)
        return 2
    for tipo, texto in leer(sys.argv[1]):
        if tipo == "<":
            esperar(texto)
        elif tipo == ">":
            sys.stdout.write(texto + "\n")
            sys.stdout.flush()
        elif texto.startswith("exit"):
            sys.exit(int(texto.split()[1]) if len(texto.split()) > 1 else 0)
    esperar(None)
    return 0


if __name__ == "__main__":
    sys.exit(main())
