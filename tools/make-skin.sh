#!/usr/bin/env bash
# Makes the skin folder data/apariencias/coral: 26 BMP pictures of 60x60 pixels
# (twelve pieces, twelve masks, two squares), from the shapes of pieces.sh in other colours.
# A piece picture is black outside the piece; its mask is black inside the piece and white outside.
# Needs rsvg-convert (librsvg2-bin) and ImageMagick. Run by hand; the pictures are committed.
# Usage: make-skin.sh [SKIN_DIR] [PREVIEW.png]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
out=${1:-$here/../data/apariencias/coral}
preview=${2:-/tmp/quintarena-skin-coral.png}
size=60
tmp=$(mktemp -d); trap 'rm -rf "$tmp"' EXIT
. "$here/pieces.sh"
# Ivory and coral-red pieces, dark brown outlines, on cream and sage-green squares.
WFILL="#fffaf0"; WSHADE="#e2c98f"; WLINE="#3a2414"; WDETAIL="#3a2414"
BFILL="#d9583f"; BSHADE="#7a1f12"; BLINE="#2a0f08"; BDETAIL="#ffd9c8"
LIGHT="#f1e9d2"; DARK="#7f9a68"; SQSTYLE=bevel
write_set "$tmp/svg" gradient
mkdir -p "$out"

for p in peon torre caballo alfil dama rey; do
  for c in b n; do
    n=$p$c
    rsvg-convert -w $size -h $size "$tmp/svg/$n.svg" -o "$tmp/$n.png"
    # Mask: the piece wherever it is at least half opaque.
    convert "$tmp/$n.png" -alpha extract -threshold 50% -negate -type TrueColor "BMP3:$out/${n}f.bmp"
    # Piece: laid over black, and black wherever the mask is white.
    convert "$tmp/$n.png" -background black -alpha remove -alpha off \
      \( "$out/${n}f.bmp" -negate \) -compose multiply -composite -type TrueColor "BMP3:$out/$n.bmp"
  done
done
for s in cuadrob cuadron; do
  rsvg-convert -w $size -h $size "$tmp/svg/$s.svg" -o "$tmp/$s.png"
  convert "$tmp/$s.png" -background black -alpha remove -alpha off -type TrueColor "BMP3:$out/$s.bmp"
done

# Preview: each piece drawn as the board does it, (square AND mask) then XOR piece,
# which here is the square times the mask plus the piece.
rows=()
for c in b n; do
  tiles=(); i=0; off=0; [ "$c" = n ] && off=1
  for p in torre caballo alfil dama rey peon; do
    if [ $(( (i + off) % 2 )) -eq 0 ]; then sq=cuadrob; else sq=cuadron; fi
    convert "$out/$sq.bmp" "$out/$p${c}f.bmp" -compose multiply -composite \
      "$out/$p$c.bmp" -compose plus -composite "$tmp/t$i.png"
    tiles+=("$tmp/t$i.png"); i=$((i + 1))
  done
  convert "${tiles[@]}" +append "$tmp/r$c.png"; rows+=("$tmp/r$c.png")
done
convert "${rows[@]}" -append -scale 200% "$preview"
echo "$preview"
