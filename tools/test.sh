#!/usr/bin/env bash
# Installs what is missing, builds everything under AddressSanitizer and UBSan, runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
tools/install-deps.sh
export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$(mktemp -d)}"
chmod 700 "$XDG_RUNTIME_DIR"
cmake --preset debug >/dev/null
cmake --build --preset debug
ctest --preset debug -j2
