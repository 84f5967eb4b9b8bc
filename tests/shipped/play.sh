#!/bin/bash
# play.sh CONSOLE SHARE NAME: the shipped memory NAME plays for an hour of virtual time, is saved,
# loaded and played on; every cell keeps a colour of the palette.
set -euo pipefail
console=$1 share=$2 name=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r "$share/Miro-Vel-Ta" "$work"
"$console" --root "$work" >"$work/fields" <<EOF
clock 12:34:56 2026
seed 5
start
click cmdGoTimer
load $name
field
click cmdGoTimer
advance 3600000
click cmdGoTimer
advance 10000
field
save 99
load 99
save 98
click cmdGoTimer
advance 60000
EOF
cmp "$work/Miro-Vel-Ta/Save/99.txt" "$work/Miro-Vel-Ta/Save/98.txt"
[ "$(wc -l <"$work/fields")" = 42 ] || { echo "expected two fields"; exit 1; }
# A cell of no swatch's colour would print as 0.
if grep -qw 0 "$work/fields"; then
  echo "a cell has a colour that no swatch has"
  exit 1
fi
