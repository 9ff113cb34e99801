#!/usr/bin/env bash
# Installs the build into a scratch prefix, checks where everything lands, then starts the
# installed copy offscreen as a user who cannot write its folder and ends it as a logout would:
# its settings and ranking must land in that user's data folder, copied from the shipped ones.
#   instalacion.sh <build-dir>
set -euo pipefail
build="$1"
raiz="$(mktemp -d)"
trap 'rm -rf "$raiz"' EXIT
chmod 755 "$raiz"
prefijo="$raiz/usr"
fallo() { echo "FAIL: $*"; [ -f "$raiz/salida.txt" ] && cat "$raiz/salida.txt"; exit 1; }

cmake --install "$build" --prefix "$prefijo" >/dev/null
carpeta="$prefijo/lib/quintarena"
for f in quintarena quintarena-cli quintarena-cli-bucle.so Default.ini English.lng Español.lng Sonidos/Mueve.wav \
         Quintarena-Español.html Quintarena-English.html ayuda/es-pgn.png; do
  [ -e "$carpeta/$f" ] || fallo "$f is not in lib/quintarena"
done
[ "$(readlink -f "$prefijo/bin/quintarena")" = "$(readlink -f "$carpeta/quintarena")" ] ||
  fallo "bin/quintarena does not lead to lib/quintarena/quintarena"
[ -f "$prefijo/share/applications/quintarena.desktop" ] || fallo "no desktop entry"
[ -f "$prefijo/share/icons/hicolor/scalable/apps/quintarena.svg" ] || fallo "no icon"
grep -q '^Exec=quintarena' "$prefijo/share/applications/quintarena.desktop" || fallo "desktop Exec"
if command -v desktop-file-validate >/dev/null; then
  desktop-file-validate "$prefijo/share/applications/quintarena.desktop" || fallo "desktop entry"
fi
# The console tool finds its language beside itself through the link.
printf 'new\nmove 5254\n' | "$prefijo/bin/quintarena-cli" | grep -qx legal || fallo "cli"
# Its event loop too.
printf 'wait 1\nget ColaEnvioCuenta\n' | "$prefijo/bin/quintarena-cli" | tail -1 | grep -qx 0 ||
  fallo "the cli's event loop"

# No registration questions: a box would wait for a click that never comes.
sed -i 's/^Regit\(Qtr\|Pgn\|Epd\)=0/Regit\1=1/' "$carpeta/Default.ini"
casa="$raiz/casa"
mkdir -p "$casa/run"
chmod 700 "$casa/run"
comun=(env -i PATH="$PATH" HOME="$casa" QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$casa/run")
if [ "$(id -u)" -eq 0 ]; then
  chown -R nobody:nogroup "$casa"
  comun=(setpriv --reuid=nobody --regid=nogroup --clear-groups "${comun[@]}")
else
  chmod -R a-w "$carpeta"
fi
antes="$(ls -A "$carpeta")"
"${comun[@]}" "$prefijo/bin/quintarena" >"$raiz/salida.txt" 2>&1 &
pid=$!
datos="$casa/.local/share/Quintarena"
# The rating record is written at the end of the start, after the signal handler is in place; a
# signal that comes before the event loop runs waits for it. A program that died is not waited for.
until [ -s "$datos/Puntuacion.dat" ] || ! kill -0 "$pid" 2>/dev/null; do sleep 0.1; done
kill -TERM "$pid" 2>/dev/null || true
codigo=0
wait "$pid" || codigo=$?
[ "$codigo" -eq 0 ] || fallo "exit code $codigo"
[ -f "$datos/Default.ini" ] || fallo "no settings in $datos"
cmp -s "$carpeta/Default.ini" "$datos/Default.ini" || fallo "the settings are not the shipped ones"
[ "$(stat -c %s "$datos/Puntuacion.dat")" -eq 20 ] || fallo "Puntuacion.dat is not 20 bytes"
[ "$(ls -A "$carpeta")" = "$antes" ] || fallo "the program's folder changed"
echo "ok"
