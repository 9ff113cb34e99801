#!/usr/bin/env bash
# Installs what is missing, builds the program in build/ and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
tools/install-deps.sh
cmake --preset release >/dev/null
cmake --build --preset release
exec build/quintarena "$@"
