#!/usr/bin/env bash
# Starts the real executable offscreen in a scratch copy of its folder, ends it with SIGTERM as a
# session logout would, and checks what it leaves behind.
#   programa_real.sh <build-dir>
set -euo pipefail
build="$1"
dir="$(mktemp -d)"
trap 'rm -rf "$dir"' EXIT
cp "$build/quintarena" "$build/Default.ini" "$build"/*.lng "$dir/"
cp -r "$build/Sonidos" "$dir/"
# No registration questions: a box would wait for a click that never comes.
sed -i 's/^Regit\(Qtr\|Pgn\|Epd\)=0/Regit\1=1/' "$dir/Default.ini"
cp "$dir/Default.ini" "$dir/antes.ini"
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$dir/run" XDG_DATA_HOME="$dir/share"
mkdir -m 700 "$dir/run"

"$dir/quintarena" "$dir/NOTAS.TXT" >"$dir/salida.txt" 2>&1 &
pid=$!
for _ in $(seq 1 300); do
  [ -s "$dir/Puntuacion.dat" ] && break
  sleep 0.1
done
sleep 1
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
