#!/usr/bin/env bash
# Installs the Debian packages the build, the program and the tests need; skips what is there.
set -euo pipefail
pkgs=(cmake ninja-build g++ clang libclang-rt-14-dev clang-format
      qt6-base-dev qt6-svg-dev qt6-multimedia-dev qt6-translations-l10n libgl-dev
      libgtest-dev libbenchmark-dev xvfb xauth imagemagick fonts-dejavu-core
      sox librsvg2-bin pgn-extract python3
      fairymax phalanx hoichess gnuchess sjeng stockfish polyglot)
# npm only where no Node.js is present: Debian's package conflicts with other installs of it.
command -v npm >/dev/null 2>&1 || pkgs+=(npm)
missing=()
for p in "${pkgs[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if ((${#missing[@]})); then
  echo "Installing: ${missing[*]} (the first run on a fresh machine takes a few minutes)"
  SUDO=""; [ "$(id -u)" -eq 0 ] || SUDO=sudo
  export DEBIAN_FRONTEND=noninteractive
  $SUDO apt-get update -q
  $SUDO apt-get install -y -q --no-install-recommends "${missing[@]}"
fi
