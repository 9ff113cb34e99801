#!/bin/sh
# Answers each line it reads; "muere" makes it end with status 3, "quit" with 0.
while IFS= read -r l; do
  printf 'got:%s\n' "$l"
  case "$l" in
    quit) exit 0 ;;
    muere) exit 3 ;;
  esac
done
