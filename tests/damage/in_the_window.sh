#!/usr/bin/env bash
# in_the_window.sh CALEIDOSCOPIO SHARE: damaged files end the window's program with status 1, with
# their message on standard error and in a box, which a key closes.
set -euo pipefail
program=$1
share=$2
# shellcheck source=tests/support/window.sh
. "$(dirname "${BASH_SOURCE[0]}")/../support/window.sh"

start_home 640x480
dati=$root/Miro-Vel-Ta/Dati

# refused FILE LINE DAMAGE WORDS: starts with that line damaged, closes the box, and finds the words.
refused() {
  local file=$dati/$1 number=$2 damage=$3 words=$4 status=0 wait
  rm -rf "$XDG_DATA_HOME"
  mkdir -p "${dati%/Dati}"
  cp -r "$share"/Miro-Vel-Ta/* "${dati%/Dati}/"
  N=$number DAMAGE=$damage awk 'NR == ENVIRON["N"] { print ENVIRON["DAMAGE"] "\r"; next } { print }' \
    "$share/Miro-Vel-Ta/Dati/$1" >"$file"
  cp "$file" "$work/before"
  "$program" 2>"$work/said" &
  virtual_display_program=$!
  for ((wait = 0; wait < 100; ++wait)); do
    # The message is there before the box is closed: whoever started it from a terminal sees it.
    [ ! -s "$work/said" ] || close_box || true
    kill -0 "$virtual_display_program" 2>/dev/null || break
    sleep 0.1
  done
  ! kill -0 "$virtual_display_program" 2>/dev/null || fail "$1, line $number: the box was not closed"
  wait "$virtual_display_program" || status=$?
  virtual_display_program=
  [ $status = 1 ] || fail "$1, line $number: status $status"
  grep -qF "caleidoscopio: $words" "$work/said" || fail "$1, line $number: expected $words"
  cmp -s "$file" "$work/before" || fail "$1, line $number: the file was harmed"
}

# A number, a flag, a text that the start counts with; and one that a later tick counts with, when
# the window is there.
refused Default.txt 6 '"Disegno"' "$dati/Default.txt, line 6, TmrSequencer.Interval: found '\"Disegno\"'; expected a whole number of 32 bits"
refused Default.txt 178 $'<b>\x1b[31m' "$dati/Default.txt, line 178, FraPannello(2).Visible: found '<b>\\x1B[31m'; expected #TRUE# or #FALSE#"
refused Default.txt 1166 '"#"' 'lblComCol(2).Caption is "#"; expected a whole number of 32 bits'
refused Default.txt 1802 '"0"' 'division by zero: a random pick among 0; expected 1 or more; lblRndC(0).Caption is "0"'
echo "refused as they should be"
