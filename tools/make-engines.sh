#!/usr/bin/env bash
# Makes DIR/Motor with one sub-folder per chess engine installed on this machine, each holding a
# launcher that starts the engine in a fresh scratch folder of its own: some engines write files
# where they start or into the home folder, and one asks about them later. The launchers `exec`
# the engine, so what it says reaches the program untouched.
# Usage: tools/make-engines.sh DIR
set -euo pipefail
destino=${1:?usage: $0 DIR}
motor="$destino/Motor"
marca="# made by make-engines.sh"
juegos=/usr/games

# name, then the command that runs the engine.
motores=(
  "fairymax|$juegos/fairymax"
  "phalanx|$juegos/phalanx"
  "hoichess|$juegos/hoichess"
  # -x would put it in the protocol from the start, but then it holds its output on a pipe.
  "gnuchess|$juegos/gnuchess"
  "sjeng|$juegos/sjeng"
  "stockfish|$juegos/polyglot -noini -ec $juegos/stockfish"
)

mkdir -p "$motor"
for m in "${motores[@]}"; do
  nombre=${m%%|*}
  orden=${m#*|}
  carpeta="$motor/$nombre"
  lanzador="$carpeta/$nombre"
  falta=0
  for p in $orden; do
    case $p in /*) [ -x "$p" ] || falta=1 ;; esac
  done
  if ((falta)); then
    # An engine no longer installed loses the folder we made for it, and nothing else.
    if [ -f "$lanzador" ] && grep -qxF "$marca" "$lanzador"; then rm -rf "$carpeta"; fi
    continue
  fi
  mkdir -p "$carpeta"
  cat >"$lanzador.tmp" <<LANZADOR
#!/bin/sh
$marca
# Scratch folders of engines gone for a day are cleared on the way.
find "\${TMPDIR:-/tmp}" -maxdepth 1 -name 'quintarena-motor.*' -user "\$(id -u)" -mmin +1440 \\
  -exec rm -rf {} + 2>/dev/null
trabajo=\$(mktemp -d "\${TMPDIR:-/tmp}/quintarena-motor.XXXXXX") || exit 1
cd "\$trabajo" || exit 1
HOME=\$trabajo
export HOME
exec $orden
LANZADOR
  chmod 755 "$lanzador.tmp"
  mv -f "$lanzador.tmp" "$lanzador"
done
