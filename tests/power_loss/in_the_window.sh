#!/usr/bin/env bash
# in_the_window.sh CONSOLE CALEIDOSCOPIO SHARE: a folder that is lost, and a disk that takes no more,
# while a person plays in the window. The save by Esc says so on standard error and in a box, which a
# key closes, ends with status 1, and leaves what was on the disk as it was.
set -euo pipefail
console=$1
program=$2
share=$3
# shellcheck source=tests/support/window.sh
. "$(dirname "${BASH_SOURCE[0]}")/../support/window.sh"

start_home 1024x768

files_in() { (cd "$1" && find . -type f -exec sha256sum {} + | sort); }

# refused HOW WORDS WHERE: plays, meets HOW, and leaves by Esc; the memories are then in WHERE.
refused() {
  local how=$1 words=$2 where=$3 status=0 wait
  rm -rf "$root" "$work/kept"
  mkdir -p "$root"
  cp -r "$share/Miro-Vel-Ta" "$root/"
  files_in "$root/Miro-Vel-Ta" >"$work/before"
  "$program" 2>"$work/said" &
  virtual_display_program=$!
  for ((wait = 0; wait < 100; ++wait)); do
    ! windows >/dev/null || break
    sleep 0.1
  done
  sleep 0.5
  xdotool key a # stops the run that the start began, and shows the panels
  sleep 0.3
  click 'lblSposta(9)' 'FraPannello(0)'
  $how
  click 'lblComandiVari(2)' 'FraPannello(1)'
  for ((wait = 0; wait < 100; ++wait)); do
    [ ! -s "$work/said" ] || close_box || true
    kill -0 "$virtual_display_program" 2>/dev/null || break
    sleep 0.1
  done
  ! kill -0 "$virtual_display_program" 2>/dev/null || fail "$how: the box was not closed"
  wait "$virtual_display_program" || status=$?
  virtual_display_program=
  [ $status = 1 ] || fail "$how: status $status"
  [ "$(<"$work/said")" = "caleidoscopio: $root/Miro-Vel-Ta/Dati/Default.txt: cannot be written: $words" ] ||
    fail "$how: expected $words"
  files_in "$where" | cmp -s - "$work/before" || fail "$how: a file was harmed or added"
}

moved_away() { mv "$root/Miro-Vel-Ta" "$work/kept"; }
# A limit on the size of files stands for the disk; it takes a part of the memory, and no more.
full() { prlimit --pid "$virtual_display_program" --fsize=8192; }

refused moved_away "No such file or directory" "$work/kept"
refused full "File too large" "$root/Miro-Vel-Ta"
echo "told in the window, and nothing harmed"
