#!/usr/bin/env bash
# Checks the shipped data files: settings, language files, sounds and skins.
# Usage: check_data.sh DATA_DIR [PIECES_DIR]
set -u
export LC_ALL=C
D=${1:?data folder}
P=${2:-}
fails=0
fail() { echo "FAIL: $*"; fails=$((fails + 1)); }

# Prints "section<TAB>key<TAB>value" for each key line of an INI-style file.
entries() {
  awk '{ sub(/\r$/, "") }
       /^[ \t]*;/ || /^[ \t]*$/ { next }
       /^[ \t]*\[/ { s = $0; sub(/^[ \t]*\[/, "", s); sub(/\].*$/, "", s); next }
       { i = index($0, "="); if (i == 0) { print "BAD\t" NR "\t" $0; next }
         k = substr($0, 1, i - 1); v = substr($0, i + 1)
         gsub(/^[ \t]+|[ \t]+$/, "", k); gsub(/^[ \t]+|[ \t]+$/, "", v)
         print s "\t" k "\t" v }' "$1"
}
value() { entries "$1" | awk -F'\t' -v s="$2" -v k="$3" '$1 == s && $2 == k { print $3; exit }'; }
has() { entries "$1" | awk -F'\t' -v s="$2" -v k="$3" '$1 == s && $2 == k { f = 1 } END { exit !f }'; }

# Encoding, line ends, value lengths, duplicates: the same rules for every text file.
check_text_file() {
  local f=$1
  [ -f "$f" ] || { fail "$f is missing"; return; }
  iconv -f UTF-8 -t UTF-8 "$f" > /dev/null 2>&1 || fail "$f is not valid UTF-8"
  [ "$(head -c 3 "$f" | od -An -tx1 | tr -d ' ')" = "efbbbf" ] && fail "$f starts with a byte order mark"
  local lines crlf
  lines=$(wc -l < "$f"); crlf=$(grep -c $'\r$' "$f")
  [ "$crlf" -eq 0 ] || [ "$crlf" -eq "$lines" ] || fail "$f mixes CRLF and LF line ends ($crlf of $lines)"
  entries "$f" | awk -F'\t' -v f="$f" '
    $1 == "BAD" { print "FAIL: " f " line " $2 " is neither a section nor a key: " $3; bad++ }
    length($3) > 255 { print "FAIL: " f " [" $1 "] " $2 " is longer than 255 bytes"; bad++ }
    seen[$1 "\t" $2]++ == 1 { print "FAIL: " f " [" $1 "] " $2 " appears twice"; bad++ }
    END { exit bad > 0 }' || fails=$((fails + 1))
}

# ---------------------------------------------------------------- settings
INI="$D/Default.ini"
check_text_file "$INI"
ini_keys=(
  "Mdi Windows" "Mdi Top" "Mdi Left" "Mdi Width" "Mdi Height"
  "Tablero Top" "Tablero Left"
  "Chat Top" "Chat Left" "Chat Width" "Chat Height"
  "Jugadas Top" "Jugadas Left" "Jugadas Width" "Jugadas Height"
  "Reloj Top" "Reloj Left" "Ranking Top" "Ranking Left"
  "Pgn TopInformacion" "Pgn LeftInformacion" "Pgn TopJugadas" "Pgn LeftJugadas"
  "Configuracion Nick"
  "CPU Top" "CPU Left" "CPU St" "CPU Sd" "CPU Tiempo" "CPU Jugadas" "CPU Option"
  "EPD Top" "EPD Left"
  "Configuracion Tiempo" "Configuracion Dir" "Configuracion Tipo" "Configuracion AutoPlay"
  "Configuracion Check1" "Configuracion Check2" "Configuracion Check3"
  "Configuracion Jugadas" "Configuracion Chat" "Configuracion Reloj" "Configuracion Elo"
  "Configuracion Sonido" "Configuracion PointClick" "Configuracion Check"
  "Configuracion Idioma" "Configuracion Apariencia" "Configuracion Tamaño"
  "Configuracion Fondo" "Configuracion Color"
  "Configuracion RegitQtr" "Configuracion RegitPgn" "Configuracion RegitEpd"
)
if [ -f "$INI" ]; then
  for sk in "${ini_keys[@]}"; do
    s=${sk%% *}; k=${sk#* }
    has "$INI" "$s" "$k" || { fail "Default.ini lacks [$s] $k"; continue; }
    v=$(value "$INI" "$s" "$k")
    # Only the folder of the file dialogs may start empty.
    [ -n "$v" ] || [ "$k" = Dir ] || fail "Default.ini [$s] $k is empty"
  done
  for sk in "Mdi Windows" "Mdi Top" "Mdi Left" "Mdi Width" "Mdi Height" "Tablero Top" "Tablero Left" \
            "Configuracion Tamaño" "Configuracion Tiempo" "Configuracion RegitQtr" \
            "Configuracion RegitPgn" "Configuracion RegitEpd" "CPU Option"; do
    v=$(value "$INI" "${sk%% *}" "${sk#* }")
    [[ "$v" =~ ^-?[0-9]+(\.[0-9]+)?$ ]] || fail "Default.ini [${sk%% *}] ${sk#* } is not a number: '$v'"
  done
  for k in Check1 Check2 Check3 Jugadas Chat Reloj Elo Sonido PointClick RegitQtr RegitPgn RegitEpd; do
    v=$(value "$INI" Configuracion "$k"); [[ "$v" =~ ^[01]$ ]] || fail "Default.ini $k is not 0 or 1: '$v'"
  done
  [[ "$(value "$INI" Configuracion Check)" =~ ^[1-4]$ ]] || fail "Default.ini Check is not 1 to 4"
  [[ "$(value "$INI" Configuracion Fondo)" =~ ^[12]$ ]] || fail "Default.ini Fondo is not 1 or 2"
  [[ "$(value "$INI" Configuracion Color)" =~ ^[0-9]{1,3}:[0-9]{1,3}:[0-9]{1,3}$ ]] || fail "Default.ini Color is not R:G:B"
  t=$(value "$INI" Configuracion Tamaño); [[ "$t" =~ ^[0-9]+$ ]] && { [ "$t" -ge 30 ] && [ "$t" -le 100 ]; } || fail "Default.ini Tamaño $t is outside 30 to 100"
  n=$(value "$INI" Configuracion Nick); [ "${#n}" -le 9 ] || fail "Default.ini Nick is longer than 9 characters"
  lang=$(value "$INI" Configuracion Idioma); [ -f "$D/$lang.lng" ] || fail "Default.ini Idioma '$lang' names no .lng file"
  skin=$(value "$INI" Configuracion Apariencia)
  [[ "$skin" == "("* ]] || [ -d "$D/apariencias/$skin" ] || fail "Default.ini Apariencia '$skin' is neither the built-in name nor a skin folder"
fi

# ---------------------------------------------------------------- language files
lng_keys=("Version Version" "Tablero Titulo" "Reloj Titulo" "Reloj Jugador1" "Reloj Jugador2"
          "Jugadas Titulo" "Coronacion Titulo" "Botones Aceptar" "Botones Cancelar" "Botones Guardar"
          "Chat Titulo" "Pgn Titulo" "Pgn Titulo2")
for i in $(seq 1 30); do lng_keys+=("Menu Menu$i"); done
for i in $(seq 1 7); do lng_keys+=("Jugadas Menu$i"); done
for i in $(seq 1 4); do lng_keys+=("Chat Menu$i"); done
for k in Titulo Frame1 Frame2 Frame3 Check1 Check2 Check3 Texto1 Opcion1; do lng_keys+=("Opciones $k"); done
for k in Titulo Frame1 Frame2 Opcion1 Opcion2 Texto1 Texto2; do lng_keys+=("Conexion $k"); done
for k in Titulo Frame1; do lng_keys+=("Ip $k"); done
for k in Titulo Frame1 Texto1 Texto2 Texto3 Opcion1 Opcion2; do lng_keys+=("Color $k"); done
for k in Titulo Frame1 Frame2 Text1 Opcion1 Opcion2 Opcion3 Opcion4; do lng_keys+=("Nuevo $k"); done
for i in $(seq 1 13); do lng_keys+=("Pgn $i"); done
for i in $(seq 1 109); do lng_keys+=("Mensajes $i"); done
for i in $(seq 1 30); do lng_keys+=("Tips $i"); done
for i in $(seq 1 21); do lng_keys+=("CPU $i"); done
for k in Titulo 1 2 Frame1 Option1 Option2 Frame2 Check1 Check2 Check3 Check4 Check5; do lng_keys+=("SetTablero $k"); done
for k in Titulo Frame1 Frame2 1 2 3 4 5; do lng_keys+=("Ranking $k"); done

dollars() { local v; v=$(value "$1" Mensajes "$2"); v=${v//[^\$]/}; echo ${#v}; }
lngs=("$D"/*.lng)
[ -f "$D/Español.lng" ] || fail "Español.lng is missing"
[ "${#lngs[@]}" -ge 2 ] || fail "fewer than two language files"
for f in "${lngs[@]}"; do
  [ -f "$f" ] || continue
  b=$(basename "$f")
  check_text_file "$f"
  [ "$(value "$f" Version Version)" = "1.55" ] || fail "$b: [Version] Version is not exactly 1.55"
  for sk in "${lng_keys[@]}"; do
    s=${sk%% *}; k=${sk#* }
    [ -n "$(value "$f" "$s" "$k")" ] || fail "$b: [$s] $k is missing or empty"
  done
  # Texts whose "$" marks are filled in by the program.
  for regla in 10:2 28:1 54:1 63:1 84:2 87:1 91:1 92:1 94:1 100:1 109:1; do
    n=$(dollars "$f" "${regla%%:*}")
    [ "$n" -eq "${regla#*:}" ] || fail "$b: message ${regla%%:*} has $n '\$' marks, wants ${regla#*:}"
  done
  [[ "$(value "$f" Mensajes 84)" =~ ^[^\$]+\ \$\ [^\$]+\ \$\ [^\$]+$ ]] || fail "$b: message 84 needs ' \$ ' twice"
  [[ "$(value "$f" Mensajes 91)" == '$'* ]] || fail "$b: message 91 must begin with the name's '\$'"
  [[ "$(value "$f" Mensajes 94)" == '$'* ]] || fail "$b: message 94 must begin with the name's '\$'"
  c=$(value "$f" Mensajes 59)
  [[ "$c" =~ \(([A-Z])/([A-Z])\)$ ]] && [ "${BASH_REMATCH[1]}" != "${BASH_REMATCH[2]}" ] \
    || fail "$b: message 59 must end in two different capital letters like (W/B)"
  for k in 1 2 3 4 5; do [[ "$(value "$f" Ranking $k)" == *:* ]] || fail "$b: [Ranking] $k needs a ':'"; done
  [[ "$(value "$f" Pgn 13)" == *:* ]] || fail "$b: [Pgn] 13 needs a ':'"
  [[ "$(value "$f" Opciones Opcion1)" == "("* ]] || fail "$b: [Opciones] Opcion1 (built-in appearance) must begin with '('"
done
# Every language file has exactly the sections and keys of Español.lng.
if [ -f "$D/Español.lng" ]; then
  ref=$(entries "$D/Español.lng" | cut -f1,2 | sort)
  for f in "${lngs[@]}"; do
    [ -f "$f" ] || continue
    diffs=$(diff <(echo "$ref") <(entries "$f" | cut -f1,2 | sort))
    [ -z "$diffs" ] || fail "$(basename "$f") has other keys than Español.lng: $(echo "$diffs" | grep '^[<>]' | tr '\t\n' ' ')"
  done
fi

# ---------------------------------------------------------------- sounds
for s in Conexion Desconectado Mueve Gana Tiempo; do
  w="$D/Sonidos/$s.wav"
  if [ ! -f "$w" ]; then fail "sound $s.wav is missing"; continue; fi
  [ "$(head -c 4 "$w")" = "RIFF" ] && [ "$(dd if="$w" bs=1 skip=8 count=4 2>/dev/null)" = "WAVE" ] || fail "$s.wav is not a WAVE file"
  [ "$(stat -c %s "$w")" -le 40000 ] || fail "$s.wav is larger than 40000 bytes"
done

# ---------------------------------------------------------------- skins
le32() { od -An -t d4 -j "$2" -N 4 "$1" | tr -d ' '; }
names=(peonb torreb caballob alfilb damab reyb peonn torren caballon alfiln daman reyn)
for dir in "$D"/apariencias/*/; do
  [ -d "$dir" ] || continue
  first=$(ls "$dir" | grep -i '^peonb\.' | head -n 1)
  [ -n "$first" ] || { fail "$dir has no peonb picture"; continue; }
  ext=${first#*.}
  want=(); for n in "${names[@]}"; do want+=("$n" "${n}f"); done; want+=(cuadrob cuadron)
  [ "${#want[@]}" -eq 26 ] || fail "internal: skin name list is not 26 long"
  w0=""; h0=""
  for n in "${want[@]}"; do
    p="$dir$n.$ext"
    [ -f "$p" ] || { fail "$p is missing"; continue; }
    if [ "${ext,,}" = bmp ]; then
      [ "$(head -c 2 "$p")" = "BM" ] || { fail "$p is not a BMP"; continue; }
      w=$(le32 "$p" 18); h=$(le32 "$p" 22); h=${h#-}
      if [ -z "$w0" ]; then w0=$w; h0=$h; fi
      [ "$w" = "$w0" ] && [ "$h" = "$h0" ] || fail "$p is ${w}x$h, the others ${w0}x$h0"
    fi
  done
  [ "$w0" = "$h0" ] || fail "$dir pictures are not square"
  # The masked drawing needs a mask of pure black and white, and a piece that is black
  # wherever its mask is white (checked for 24-bit BMP files, whose pixels start at the offset in byte 10).
  if [ "${ext,,}" = bmp ]; then
    for n in "${names[@]}"; do
      pc="$dir$n.$ext"; mk="$dir${n}f.$ext"
      [ -f "$pc" ] && [ -f "$mk" ] || continue
      [ "$(od -An -t u2 -j 28 -N 2 "$mk" | tr -d ' ')" = 24 ] || continue
      paste <(od -An -v -t u1 -w3 -j "$(le32 "$mk" 10)" "$mk") <(od -An -v -t u1 -w3 -j "$(le32 "$pc" 10)" "$pc") |
        awk -v f="$n" '{ m = $1 + $2 + $3 }
          m != 0 && m != 765 { grey++ }
          m == 765 && $4 + $5 + $6 != 0 { spill++ }
          END { if (grey) print "FAIL: mask of " f " has " grey " pixels neither black nor white"
                if (spill) print "FAIL: " f " has " spill " coloured pixels outside its mask"
                exit (grey + spill) > 0 }' || fails=$((fails + 1))
    done
  fi
done

# ---------------------------------------------------------------- user's guide
# One page per language file, named after it, and every picture it shows beside it.
for f in "$D"/*.lng; do
  n=$(basename "$f" .lng)
  g="$D/Quintarena-$n.html"
  [ -f "$g" ] || { fail "no user's guide $(basename "$g") for $n.lng"; continue; }
  iconv -f UTF-8 -t UTF-8 "$g" > /dev/null 2>&1 || fail "$g is not valid UTF-8"
  grep -q '<meta charset="utf-8">' "$g" || fail "$g does not say it is UTF-8"
  for css in $(grep -o 'href="[^#"][^"]*"' "$g" | sed 's/^href="//; s/"$//'); do
    [ -f "$D/$css" ] || fail "$g links to $css, which is not shipped"
  done
  for img in $(grep -o 'src="[^"]*"' "$g" | sed 's/^src="//; s/"$//'); do
    [ -f "$D/$img" ] || fail "$g shows $img, which is not shipped"
    case "$img" in *.png) [ "$(head -c 8 "$D/$img" | od -An -tx1 | tr -d ' ')" = 89504e470d0a1a0a ] ||
      fail "$img is not a PNG";; esac
  done
  for a in $(grep -o 'href="#[^"]*"' "$g" | sed 's/^href="#//; s/"$//'); do
    grep -q "id=\"$a\"" "$g" || fail "$g links to #$a, which it lacks"
  done
done

# ---------------------------------------------------------------- built-in pieces
if [ -n "$P" ]; then
  for n in "${names[@]}" cuadrob cuadron; do
    f="$P/$n.svg"
    [ -f "$f" ] || { fail "built-in picture $n.svg is missing"; continue; }
    grep -q '<svg[^>]*viewBox="0 0 45 45"' "$f" && grep -q '</svg>' "$f" || fail "$f is not a whole 45x45 SVG"
  done
fi

if [ "$fails" -gt 0 ]; then echo "$fails check(s) failed"; exit 1; fi
echo "data files OK"
