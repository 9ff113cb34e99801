#!/usr/bin/env bash
# Pictures of the whole program with its board, made by its end-to-end tests (offscreen):
#   tools/program-screenshots.sh [build-dir] [out-dir]
set -euo pipefail
cd "$(dirname "$0")/.."
build="${1:-build-debug}"
out="${2:-/tmp/quintarena-shots}"
mkdir -p "$out"
export QT_QPA_PLATFORM=offscreen QA_CAPTURAS="$(realpath "$out")"
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$(mktemp -d)}"
"$build/shell_board_tests" >/dev/null
ls "$out"/programa-*.png
