#!/usr/bin/env bash
# real_pointer.sh PROGRAM CONSOLE SHARE: a person's session on a real X server. The program starts
# in a home that never saw it; a key brings the panels; the pointer chooses a shift, turns it round,
# holds a speed button, paints a cell, and leaves by Esc. What was saved tells whether all arrived.
set -euo pipefail
program=$1 console=$2 share=$3
# shellcheck source=tests/support/window.sh
. "$(dirname "${BASH_SOURCE[0]}")/../support/window.sh"

start_home 1024x768
"$program" &
virtual_display_program=$!
for _ in $(seq 100); do
  ! windows >/dev/null || break
  sleep 0.1
done
sleep 1

xdotool key a # stops the run that start-up began, and shows the panels
sleep 0.3
click 'lblSposta(9)' 'FraPannello(0)'
click lblOraria 'FraPannello(0)'
click lblSyncro 'FraPannello(0)'
press 'lblMenoTmr(1)' 'FraPannello(0)'
sleep 0.3
release
click 'lblComCol(2)' 'FraPannello(1)'
click 'lblValore(4)' 'FraPannello(1)'
click 'lblMiro(2)'
click 'lblComandiVari(2)' 'FraPannello(1)'
sleep 1
kill -0 $virtual_display_program
xdotool mousemove 512 384 click 1 # the end picture
status=0
wait $virtual_display_program || status=$?
virtual_display_program=

saved() { printf 'load Default\nget %s\n' "$1" | "$console" --root "$root"; }
faults=0
expect() { # WHAT FOUND EXPECTED
  [ "$2" = "$3" ] && return
  echo "$1 is $2, expected $3"
  faults=$((faults + 1))
}
expect 'exit status' $status 0
expect lblSomma "$(saved lblSomma.Caption)" '"209"'
expect lblOraria "$(saved lblOraria.Caption)" '"Out"'
expect lblSyncro "$(saved lblSyncro.BackColor)" 12632319
expect 'slot painted with' "$(saved lblValAttivo.Caption)" '"4"'
colour=$(saved lblValAttivo.BackColor)
for cell in 1 2 3 4; do
  expect "cell $cell" "$(saved "lblMiro($cell).BackColor")" "$colour"
  expect "design $cell" "$(saved "lblMiro2($cell).BackColor")" "$colour"
done
speed=$(saved 'lblVelo(1).Caption' | tr -d '"')
[ "$speed" -lt 900 ] || { echo "a held minus left the speed at $speed" && faults=$((faults + 1)); }
exit $((faults > 0))
