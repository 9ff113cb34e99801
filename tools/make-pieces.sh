#!/usr/bin/env bash
# Writes the built-in pieces and squares, board/pieces/*.svg (committed).
# File names follow the skin folders: peonb (white pawn) ... reyn (black king), cuadrob, cuadron.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/pieces.sh"
WFILL="#ffffff"; WSHADE="#ffffff"; WLINE="#000000"; WDETAIL="#000000"
BFILL="#262626"; BSHADE="#262626"; BLINE="#000000"; BDETAIL="#e0e0e0"
LIGHT="#eed8b0"; DARK="#a97a50"; SQSTYLE=flat
write_set "${1:-$here/../board/pieces}" plain
