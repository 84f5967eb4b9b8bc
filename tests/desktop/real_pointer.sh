#!/bin/bash
# real_pointer.sh PROGRAM CONSOLE SHARE: a person's session on a real X server. The program starts
# in a home that never saw it; a key brings the panels; the pointer chooses a shift, turns it round,
# holds a speed button, paints a cell, and leaves by Esc. What was saved tells whether all arrived.
set -euo pipefail
program=$1 console=$2 share=$3
work=$(mktemp -d)
export XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work
root=$XDG_DATA_HOME/caleidoscopio
trap 'kill $(jobs -p) 2>/dev/null || true; wait; rm -rf "$work"' EXIT

Xvfb -displayfd 5 -screen 0 1024x768x24 5>"$work/display" >/dev/null 2>&1 &
until number=$(cat "$work/display") && [ -n "$number" ]; do sleep 0.1; done
export DISPLAY=:$number QT_QPA_PLATFORM=xcb
"$program" &
pid=$!
for _ in $(seq 100); do
  xdotool search --name Caleidoscopio >/dev/null 2>&1 && break
  sleep 0.1
done
sleep 1

# The places of the controls, as the console has them: name, then middle in pixels.
cp -r "$share/Miro-Vel-Ta" "$work"
middle() { # CONTROL [PARENT]
  local ref
  {
    echo start
    for ref in "$@"; do
      for property in Left Top Width Height; do echo "get $ref.$property"; done
    done
  } | "$console" --root "$work" | awk -v n=$# '
    { v[NR] = $1 }
    END {
      x = v[1] + v[3] / 2; y = v[2] + v[4] / 2
      if (n == 2) { x += v[5]; y += v[6] }
      printf "%d %d\n", x / 15, y / 15
    }'
}
point() { # shellcheck disable=SC2046
  xdotool mousemove $(middle "$@")
}
press() { point "$@" && xdotool mousedown 1; }
release() { xdotool mouseup 1 && sleep 0.2; }
click() { press "$@" && sleep 0.05 && release; }

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
kill -0 $pid
xdotool mousemove 512 384 click 1 # the end picture
status=0
wait $pid || status=$?

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
