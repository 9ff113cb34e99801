#!/usr/bin/env bash
# Makes the five short sounds of data/Sonidos with sox (apt-get install sox).
# Run by hand; the WAV files are committed. 22050 Hz, 16-bit, mono.
set -euo pipefail
out=${1:-"$(cd "$(dirname "$0")/.." && pwd)/data/Sonidos"}
mkdir -p "$out"
tmp=$(mktemp -d); trap 'rm -rf "$tmp"' EXIT
fmt=(-r 22050 -b 16 -c 1)

calc() { awk "BEGIN { printf \"%.4f\", $1 }"; }

# tone NAME SECONDS FREQ [VOLUME]: a soft bell-like note, a sine with its octave, dying away.
tone() {
  sox -n "${fmt[@]}" "$tmp/a.wav" synth "$2" sine "$3" vol "${4:-0.5}"
  sox -n "${fmt[@]}" "$tmp/b.wav" synth "$2" sine "$(calc "$3 * 2")" vol "$(calc "${4:-0.5} * 0.25")"
  sox -m "$tmp/a.wav" "$tmp/b.wav" "$tmp/$1.wav" fade q 0.004 -0 "$(calc "$2 * 0.85")"
}
silence() { sox -n "${fmt[@]}" "$tmp/$1.wav" trim 0 "$2"; }

# Conexion: two notes going up (C5, G5).
tone c1 0.16 523.25; tone c2 0.26 783.99
sox "$tmp/c1.wav" "$tmp/c2.wav" "$out/Conexion.wav"

# Desconectado: the same two notes going down.
tone d1 0.16 783.99; tone d2 0.28 523.25
sox "$tmp/d1.wav" "$tmp/d2.wav" "$out/Desconectado.wav"

# Mueve: a short wooden knock, a plucked low note with a quick decay.
sox -n "${fmt[@]}" "$tmp/m1.wav" synth 0.09 pluck 180 vol 0.7
sox -n "${fmt[@]}" "$tmp/m2.wav" synth 0.09 brownnoise vol 0.25
sox -m "$tmp/m1.wav" "$tmp/m2.wav" "$tmp/m3.wav" lowpass 1800 fade q 0.002 -0 0.07
sox "$tmp/m3.wav" "$out/Mueve.wav" norm -3

# Gana: a rising major arpeggio (C5 E5 G5 C6).
tone g1 0.11 523.25 0.4; tone g2 0.11 659.25 0.4; tone g3 0.11 783.99 0.4; tone g4 0.30 1046.50 0.45
sox "$tmp/g1.wav" "$tmp/g2.wav" "$tmp/g3.wav" "$tmp/g4.wav" "$out/Gana.wav"

# Tiempo: two short beeps of the same note (A5), like a clock's alarm.
tone t1 0.12 880 0.45; silence t2 0.07; tone t3 0.18 880 0.45
sox "$tmp/t1.wav" "$tmp/t2.wav" "$tmp/t3.wav" "$out/Tiempo.wav"

# The same loudness for the four tunes, a little below full scale.
for f in Conexion Desconectado Gana Tiempo; do
  sox "$out/$f.wav" "$tmp/n.wav" norm -4 && mv "$tmp/n.wav" "$out/$f.wav"
done

for f in Conexion Desconectado Mueve Gana Tiempo; do
  printf '%-14s %6d bytes %5.2f s\n' "$f.wav" "$(stat -c %s "$out/$f.wav")" "$(soxi -D "$out/$f.wav")"
done
