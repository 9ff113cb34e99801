#!/usr/bin/env bash
# Writes a set of twelve chess pieces and two squares as SVG files, drawn on a 45x45 grid.
# Sourced by make-pieces.sh and make-skin.sh, which choose the colours.
#
# write_set DIR STYLE
#   STYLE "plain": flat fills (the built-in set); "gradient": shaded fills (a skin).
# Colours come from these variables:
#   WFILL WSHADE  fill of the white pieces (top and bottom of the shading)
#   BFILL BSHADE  fill of the black pieces
#   WLINE BLINE   outline of white and black pieces
#   WDETAIL BDETAIL  inner detail lines of white and black pieces
#   LIGHT DARK    the two squares; SQSTYLE "flat" or "bevel"

# One piece shape per function, in the 45x45 grid, using $FILL, $LINE and $DETAIL.
base() { # a rounded foot from x $1 to $2, top at y $3, bottom at y 40
  awk -v a="$1" -v b="$2" -v y="$3" 'BEGIN {
    printf "<path d=\"M %g,40 L %g,40 L %g,%g Q %g,%g %g,%g L %g,%g Q %g,%g %g,%g Z\"/>\n",
      a, b, b, y + 1.5, b, y, b - 1.5, y, a + 1.5, y, a, y, a, y + 1.5 }'
}
shape_peon() {
  echo '<circle cx="22.5" cy="12.5" r="5.5"/>'
  echo '<path d="M 14,36 C 15,30.5 18.5,27 19.5,21.5 L 25.5,21.5 C 26.5,27 30,30.5 31,36 Z"/>'
  echo '<path d="M 16,21.5 C 16,19.5 17.5,18.5 19,18.5 L 26,18.5 C 27.5,18.5 29,19.5 29,21.5 C 29,23 28,23.5 26.5,23.5 L 18.5,23.5 C 17,23.5 16,23 16,21.5 Z"/>'
  base 11 34 36
}
shape_torre() {
  echo '<path d="M 14,33.5 L 15,17 L 30,17 L 31,33.5 Z"/>'
  echo '<path d="M 12,14.5 L 12,8 L 16.5,8 L 16.5,10.5 L 20.5,10.5 L 20.5,8 L 24.5,8 L 24.5,10.5 L 28.5,10.5 L 28.5,8 L 33,8 L 33,14.5 Z"/>'
  echo '<path d="M 12,14.5 L 33,14.5 L 30.5,17.5 L 14.5,17.5 Z"/>'
  echo '<path d="M 12,33 L 33,33 L 34,36 L 11,36 Z"/>'
  base 9 36 36
  echo "<g fill=\"none\" stroke=\"$DETAIL\" stroke-width=\"1\"><path d=\"M 15,21 L 30,21 M 14.6,30 L 30.4,30\"/></g>"
}
shape_caballo() {
  echo '<path d="M 14,36 C 14.5,30 18.5,26.5 21,21.5 C 18.5,23.5 15.5,24.5 12.5,25.5 C 10.5,26.2 8.5,25 9,22.5 C 10,18 13.5,12.5 18,10 L 18.5,5.5 L 21.5,8.5 C 29,8.5 35,15 34.5,24 C 34.2,29 33,33 33,36 Z"/>'
  base 10 35 36
  echo "<g fill=\"$DETAIL\" stroke=\"none\"><circle cx=\"16.3\" cy=\"14.6\" r=\"1.1\"/><circle cx=\"11.2\" cy=\"23\" r=\"0.7\"/></g>"
  echo "<g fill=\"none\" stroke=\"$DETAIL\" stroke-width=\"1\"><path d=\"M 22.5,10.5 C 28.5,12 31.5,17 31.5,24 C 31.5,28 30.5,31.5 30.5,34\"/></g>"
}
shape_alfil() {
  echo '<path d="M 17.5,27.5 C 17,31 15,33.5 13,35.5 L 32,35.5 C 30,33.5 28,31 27.5,27.5 Z"/>'
  echo '<path d="M 22.5,8.5 C 17,12.5 14.5,17 15.8,21.8 C 16.8,24.8 28.2,24.8 29.2,21.8 C 30.5,17 28,12.5 22.5,8.5 Z"/>'
  echo '<circle cx="22.5" cy="6.8" r="2.3"/>'
  echo '<path d="M 15.5,26.5 C 15.5,25 16.5,24 18,24 L 27,24 C 28.5,24 29.5,25 29.5,26.5 C 29.5,27.8 28.5,28.5 27,28.5 L 18,28.5 C 16.5,28.5 15.5,27.8 15.5,26.5 Z"/>'
  base 10 35 35
  echo "<g fill=\"none\" stroke=\"$DETAIL\" stroke-width=\"1.2\"><path d=\"M 25.5,12.5 L 20,18.5\"/></g>"
}
shape_dama() {
  echo '<path d="M 11.5,28 C 12.5,30.5 12.5,33.5 11,36 L 34,36 C 32.5,33.5 32.5,30.5 33.5,28 Z"/>'
  echo '<path d="M 11.5,28.5 L 9,13.5 L 14,22 L 15.5,11 L 19.5,21 L 22.5,9.5 L 25.5,21 L 29.5,11 L 31,22 L 36,13.5 L 33.5,28.5 Z"/>'
  echo '<circle cx="9" cy="12" r="2.2"/><circle cx="15.5" cy="9.6" r="2.2"/><circle cx="22.5" cy="8" r="2.2"/><circle cx="29.5" cy="9.6" r="2.2"/><circle cx="36" cy="12" r="2.2"/>'
  base 9 36 36
  echo "<g fill=\"none\" stroke=\"$DETAIL\" stroke-width=\"1\"><path d=\"M 12.5,31.5 C 18,30 27,30 32.5,31.5\"/></g>"
}
shape_rey() {
  echo '<path d="M 21.3,9.5 L 21.3,6.8 L 18.8,6.8 L 18.8,4.3 L 21.3,4.3 L 21.3,1.8 L 23.7,1.8 L 23.7,4.3 L 26.2,4.3 L 26.2,6.8 L 23.7,6.8 L 23.7,9.5 Z"/>'
  echo '<path d="M 22.5,20.5 C 20.5,18 19.5,15.5 19.8,13 C 20.1,10.5 24.9,10.5 25.2,13 C 25.5,15.5 24.5,18 22.5,20.5 Z"/>'
  echo '<path d="M 12,30 C 7.5,24.5 9.5,16.8 16,16.5 C 19,16.3 21.3,18.3 22.5,21 C 23.7,18.3 26,16.3 29,16.5 C 35.5,16.8 37.5,24.5 33,30 Z"/>'
  echo '<path d="M 12,30 C 13,32.5 13,34.5 12,36.5 L 33,36.5 C 32,34.5 32,32.5 33,30 Z"/>'
  base 9 36 36
  echo "<g fill=\"none\" stroke=\"$DETAIL\" stroke-width=\"1\"><path d=\"M 22.5,21.5 L 22.5,29.5 M 13,33 C 18.5,31.8 26.5,31.8 32,33\"/></g>"
}

# piece_svg FILE SHAPE COLOUR(w|b) STYLE
piece_svg() {
  local file=$1 shape=$2 c=$3 style=$4 fill top bottom
  if [ "$c" = w ]; then top=$WFILL; bottom=$WSHADE; LINE=$WLINE; DETAIL=$WDETAIL
  else top=$BFILL; bottom=$BSHADE; LINE=$BLINE; DETAIL=$BDETAIL; fi
  {
    echo '<?xml version="1.0" encoding="UTF-8"?>'
    echo '<svg xmlns="http://www.w3.org/2000/svg" width="45" height="45" viewBox="0 0 45 45">'
    if [ "$style" = gradient ]; then
      echo "<defs><linearGradient id=\"g\" x1=\"0\" y1=\"0\" x2=\"1\" y2=\"1\">"
      echo "<stop offset=\"0\" stop-color=\"$top\"/><stop offset=\"1\" stop-color=\"$bottom\"/></linearGradient></defs>"
      fill="url(#g)"
    else
      fill=$top
    fi
    echo "<g fill=\"$fill\" stroke=\"$LINE\" stroke-width=\"1.5\" stroke-linejoin=\"round\" stroke-linecap=\"round\">"
    "shape_$shape"
    echo '</g>'
    echo '</svg>'
  } > "$file"
}

square_svg() { # FILE COLOUR
  {
    echo '<?xml version="1.0" encoding="UTF-8"?>'
    echo '<svg xmlns="http://www.w3.org/2000/svg" width="45" height="45" viewBox="0 0 45 45">'
    echo "<rect width=\"45\" height=\"45\" fill=\"$2\"/>"
    if [ "${SQSTYLE:-flat}" = bevel ]; then
      echo '<path d="M 0,0 L 45,0 L 43.5,1.5 L 1.5,1.5 L 1.5,43.5 L 0,45 Z" fill="#ffffff" fill-opacity="0.18"/>'
      echo '<path d="M 45,45 L 0,45 L 1.5,43.5 L 43.5,43.5 L 43.5,1.5 L 45,0 Z" fill="#000000" fill-opacity="0.12"/>'
    fi
    echo '</svg>'
  } > "$1"
}

# The file names are those of a skin folder, without the extension.
write_set() {
  local dir=$1 style=$2 s
  mkdir -p "$dir"
  for s in peon torre caballo alfil dama rey; do
    piece_svg "$dir/${s}b.svg" "$s" w "$style"
    piece_svg "$dir/${s}n.svg" "$s" b "$style"
  done
  square_svg "$dir/cuadrob.svg" "$LIGHT"
  square_svg "$dir/cuadron.svg" "$DARK"
}
