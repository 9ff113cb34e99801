#!/usr/bin/env bash
# A first start asks whether to register .pgn and .epd; a session logout (SIGTERM) or a Ctrl+C
# (SIGINT) while that question is up must close the program without answering it: the keys stay
# "0" so the question comes back, and no window place is written before the windows were placed.
#   senal_pregunta.sh <build-dir>
set -euo pipefail
build="$1"
for senal in TERM INT; do
  dir="$(mktemp -d)"
  trap 'rm -rf "$dir"' EXIT
  cp "$build/quintarena" "$build/Default.ini" "$build"/*.lng "$dir/"
  cp -r "$build/Sonidos" "$dir/"
  sed -i 's/^RegitQtr=0/RegitQtr=1/; s/^Regit\(Pgn\|Epd\)=1/Regit\1=0/' "$dir/Default.ini"
  grep -q '^RegitPgn=0' "$dir/Default.ini"
  cp "$dir/Default.ini" "$dir/antes.ini"
  export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$dir/run" XDG_DATA_HOME="$dir/share"
  mkdir -m 700 "$dir/run"

  "$dir/quintarena" >"$dir/salida.txt" 2>&1 &
  pid=$!
  # The ranking is read just before the questions; once it is there, the question is up or
  # about to be, and a signal before it is taken by its box as well.
  for _ in $(seq 1 600); do
    [ -s "$dir/Puntuacion.dat" ] && break
    sleep 0.1
  done
  kill -"$senal" "$pid"
  codigo=0
  for _ in $(seq 1 600); do
    kill -0 "$pid" 2>/dev/null || break
    sleep 0.1
  done
  if kill -0 "$pid" 2>/dev/null; then
    kill -KILL "$pid"
    echo "FAIL($senal): the program did not end"; cat "$dir/salida.txt"; exit 1
  fi
  wait "$pid" || codigo=$?
  fallo() { echo "FAIL($senal): $*"; cat "$dir/salida.txt"; exit 1; }
  [ "$codigo" -eq 0 ] || fallo "exit code $codigo"
  cmp -s "$dir/antes.ini" "$dir/Default.ini" || {
    diff "$dir/antes.ini" "$dir/Default.ini" || true
    fallo "Default.ini changed"
  }
  rm -rf "$dir"
  trap - EXIT
done
echo "ok"
