#!/usr/bin/env bash
# The pictures of the user's guides (data/ayuda/) and of the README (docs/quintarena.png), taken
# with tools/screenshot.sh from the program in each language, cropped and reduced to a few
# colours so they stay small in the repository.
#   tools/help-pictures.sh [build-dir]
set -euo pipefail
cd "$(dirname "$0")/.."
build="${1:-build}"
tmp="$(mktemp -d)"
unset QT_QPA_PLATFORM # the pictures come from the X server
trap 'rm -rf "$tmp"' EXIT

# A game of ten half-moves, saved by the console tool.
printf '%s\n' new 'move 5254' 'move 5755' 'move 7163' 'move 2836' 'move 6134' 'move 6835' \
  'move 3233' 'move 7866' 'move 5171' 'move 4746' "save $tmp/italiana.qtr" |
  "$build/quintarena-cli" >/dev/null
cat >"$tmp/clasicas.pgn" <<'PGN'
[Event "Casual game"]
[Site "London"]
[Date "1851.06.21"]
[Round "?"]
[White "Anderssen, Adolf"]
[Black "Kieseritzky, Lionel"]
[Result "1-0"]

1. e4 e5 2. f4 exf4 3. Bc4 Qh4+ 4. Kf1 b5 5. Bxb5 Nf6 6. Nf3 Qh6 7. d3 Nh5 8. Nh4 Qg5
9. Nf5 c6 10. g4 Nf6 11. Rg1 cxb5 12. h4 Qg6 13. h5 Qg5 14. Qf3 Ng8 15. Bxf4 Qf6
16. Nc3 Bc5 17. Nd5 Qxb2 18. Bd6 Bxg1 19. e5 Qxa1+ 20. Ke2 Na6 21. Nxg7+ Kd8
22. Qf6+ Nxf6 23. Be7# 1-0

[Event "Casual game"]
[Site "Berlin"]
[Date "1852.??.??"]
[Round "?"]
[White "Anderssen, Adolf"]
[Black "Dufresne, Jean"]
[Result "1-0"]

1. e4 e5 2. Nf3 Nc6 3. Bc4 Bc5 4. b4 Bxb4 5. c3 Ba5 6. d4 exd4 7. O-O d3 8. Qb3 Qf6
9. e5 Qg6 10. Re1 Nge7 11. Ba3 b5 12. Qxb5 Rb8 13. Qa4 Bb6 14. Nbd2 Bb7 15. Ne4 Qf5
16. Bxd3 Qh5 17. Nf6+ gxf6 18. exf6 Rg8 19. Rad1 Qxf3 20. Rxe7+ Nxe7 21. Qxd7+ Kxd7
22. Bf5+ Ke8 23. Bd7+ Kf8 24. Bxe7# 1-0

[Event "Paris Opera"]
[Site "Paris"]
[Date "1858.??.??"]
[Round "?"]
[White "Morphy, Paul"]
[Black "Duke Karl / Count Isouard"]
[Result "1-0"]

1. e4 e5 2. Nf3 d6 3. d4 Bg4 4. dxe5 Bxf3 5. Qxf3 dxe5 6. Bc4 Nf6 7. Qb3 Qe7 8. Nc3 c6
9. Bg5 b5 10. Nxb5 cxb5 11. Bxb5+ Nbd7 12. O-O-O Rd8 13. Rxd7 Rxd7 14. Rd1 Qe6
15. Bxd7+ Nxd7 16. Qb8+ Nxb8 17. Rd8# 1-0
PGN
cat >"$tmp/posiciones.epd" <<'EPD'
r1bqkb1r/pppp1ppp/2n2n2/4p2Q/2B1P3/8/PPPP1PPP/RNB1K1NR w KQkq - bm Qxf7#;
6k1/5ppp/8/8/8/8/5PPP/3R2K1 w - - bm Rd8#;
r1b1k2r/ppppqppp/2n2n2/2b5/2BPP3/5N2/PPP2PPP/RNBQK2R w KQkq - bm d5;
8/8/8/4k3/8/8/4PK2/8 w - - bm Ke3;
EPD

# name, file to open (may be empty), crop geometry
fotos=(
  "partida|$tmp/italiana.qtr|1150x880+0+0"
  "pgn|$tmp/clasicas.pgn|1280x600+0+0"
  "epd|$tmp/posiciones.epd|1010x600+0+0"
)
mkdir -p data/ayuda docs
for idioma in Español English; do
  prefijo=$([ "$idioma" = English ] && echo en || echo es)
  for f in "${fotos[@]}"; do
    IFS='|' read -r nombre fichero recorte <<<"$f"
    QA_IDIOMA=$idioma tools/screenshot.sh "$build" "$tmp/$nombre.png" 6 ${fichero:+"$fichero"} >/dev/null
    convert "$tmp/$nombre.png" -crop "$recorte" +repage -resize 62% -colors 96 \
      -define png:compression-level=9 -strip "data/ayuda/$prefijo-$nombre.png"
  done
done
cp data/ayuda/en-partida.png docs/quintarena.png
ls -l data/ayuda docs/quintarena.png
