#!/usr/bin/env bash
# Renders the built-in SVG pieces on their squares at 20, 40, 60 and 100 pixels into one PNG.
# Needs rsvg-convert (librsvg2-bin) and ImageMagick. Usage: preview-pieces.sh [OUT.png] [SVG_DIR]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
out=${1:-/tmp/quintarena-pieces.png}; src=${2:-$here/../board/pieces}
tmp=$(mktemp -d); trap 'rm -rf "$tmp"' EXIT
rows=()
for size in 20 40 60 100; do
  for c in b n; do
    tiles=(); i=0; off=0; [ "$c" = n ] && off=1
    for p in torre caballo alfil dama rey peon; do
      if [ $(( (i + off) % 2 )) -eq 0 ]; then sq=cuadrob; else sq=cuadron; fi
      rsvg-convert -w "$size" -h "$size" "$src/$sq.svg" -o "$tmp/sq.png"
      rsvg-convert -w "$size" -h "$size" "$src/$p$c.svg" -o "$tmp/pc.png"
      convert "$tmp/sq.png" "$tmp/pc.png" -compose over -composite "$tmp/t$i.png"
      tiles+=("$tmp/t$i.png"); i=$((i + 1))
    done
    convert "${tiles[@]}" +append "$tmp/r$size$c.png"; rows+=("$tmp/r$size$c.png")
  done
done
convert "${rows[@]}" -background "#808080" -gravity northwest -splice 0x4 -append "$out"
echo "$out"
