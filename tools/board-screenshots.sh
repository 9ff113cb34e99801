#!/usr/bin/env bash
# Photographs the board with board-demo under a 24-bit virtual display: two sizes, reversed,
# the coral skin, the set-up form, a promotion form, and a broken skin falling back.
# Usage: board-screenshots.sh [BUILD_DIR] [OUT_DIR]
set -euo pipefail
build=${1:-build}; out=${2:-/tmp/quintarena-board-shots}
demo=$build/board-demo
[ -x "$demo" ] || { echo "no $demo: build the board-demo target first" >&2; exit 1; }
mkdir -p "$out"
export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$(mktemp -d)}
export LSAN_OPTIONS=suppressions=$(cd "$(dirname "$0")/.." && pwd)/tests/board/lsan.supp
opening="5254 5755 7163 2836 6125 7866"
shot() { # name, then demo options
  local name=$1; shift
  timeout 60 xvfb-run -a -s "-screen 0 1280x1024x24" "$demo" --grab "$out/$name-full.png" "$@"
  convert "$out/$name-full.png" -trim +repage "$out/$name.png" && rm "$out/$name-full.png"
  echo "$out/$name.png"
}
shot board-60 --size 60 --moves "$opening"
shot board-32 --size 32 --lines --moves "$opening"
shot reversed --size 60 --flip --moves "$opening"
shot coral --size 60 --skin coral --moves "$opening"
shot setup --size 48 --setup
shot promotion --size 60 --fen "8/P6k/8/8/8/8/8/4K3 w - - 0 1" --moves "1718"
# A skin with a picture missing: the built-in board and message 25.
skins=$(dirname "$demo")/apariencias
rm -rf "$skins/rota"; cp -r "$skins/coral" "$skins/rota"; rm "$skins/rota/damanf.bmp"
shot broken-skin --size 60 --skin rota --wait 900
rm -rf "$skins/rota"
