#!/usr/bin/env bash
# Starts the program under Xvfb (24-bit, 1280x1024) from a scratch copy of the build folder,
# waits, and saves a picture of the whole screen.
#   tools/screenshot.sh [build-dir] [out.png] [seconds] [program arguments...]
# The scratch copy has its Regit keys set, so no registration question covers the window.
# QA_IDIOMA=English takes the pictures in that language.
set -euo pipefail
cd "$(dirname "$0")/.."
build="${1:-build}"
out="${2:-/tmp/quintarena.png}"
espera="${3:-4}"
shift $(( $# < 3 ? $# : 3 ))
scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT
cp "$build/quintarena" "$scratch/"
cp -r data/. "$scratch/"
rm -f "$scratch/CMakeLists.txt"
sed -i 's/^Regit\(Qtr\|Pgn\|Epd\)=0/Regit\1=1/' "$scratch/Default.ini"
if [ -n "${QA_IDIOMA:-}" ]; then
  sed -i "s/^Idioma=.*/Idioma=$QA_IDIOMA/" "$scratch/Default.ini"
fi
export XDG_RUNTIME_DIR="$scratch/run" XDG_DATA_HOME="$scratch/share"
mkdir -p "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
xvfb-run -a -s "-screen 0 1280x1024x24" bash -c '
  "$1/quintarena" "${@:4}" & pid=$!
  sleep "$3"
  import -window root "$2"
  kill "$pid"; wait "$pid" 2>/dev/null || true
' _ "$scratch" "$out" "$espera" "$@"
echo "$out"
