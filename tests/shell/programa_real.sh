#!/usr/bin/env bash
# Starts the real executable offscreen in a scratch folder with the shipped data files, ends it
# with SIGTERM as a session logout would, and checks what it leaves behind. The data come from the
# source tree: the copies in the build folder change whenever the program is started there.
#   programa_real.sh <executable> <source data folder>
set -euo pipefail
programa="$1"
datos="$2"
dir="$(mktemp -d)"
trap 'rm -rf "$dir"' EXIT
cp "$programa" "$datos/Default.ini" "$datos"/*.lng "$dir/"
cp -r "$datos/Sonidos" "$dir/"
# No registration questions: a box would wait for a click that never comes.
sed -i 's/^Regit\(Qtr\|Pgn\|Epd\)=0/Regit\1=1/' "$dir/Default.ini"
cp "$dir/Default.ini" "$dir/antes.ini"
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$dir/run" XDG_DATA_HOME="$dir/share"
mkdir -m 700 "$dir/run"

"$dir/quintarena" "$dir/NOTAS.TXT" >"$dir/salida.txt" 2>&1 &
pid=$!
# The record is written during the load, after the signal handler is in place; a signal that
# comes before the event loop runs waits for it.
for _ in $(seq 1 300); do
  [ -s "$dir/Puntuacion.dat" ] && break
  sleep 0.1
done
kill -TERM "$pid"
codigo=0
wait "$pid" || codigo=$?
fallo() { echo "FAIL: $*"; cat "$dir/salida.txt"; exit 1; }
[ "$codigo" -eq 0 ] || fallo "exit code $codigo"
[ "$(stat -c %s "$dir/Puntuacion.dat")" -eq 20 ] || fallo "Puntuacion.dat is not 20 bytes"
[ "$(od -An -tu4 -j16 -N4 "$dir/Puntuacion.dat" | tr -d ' ')" = 1200 ] || fallo "not 1200 points"
cmp -s "$dir/antes.ini" "$dir/Default.ini" || { diff "$dir/antes.ini" "$dir/Default.ini"; fallo "Default.ini changed"; }
ls "$dir"/*.tmp* >/dev/null 2>&1 && fallo "a temporary file was left"
echo "ok"
