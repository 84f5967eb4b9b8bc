#!/usr/bin/env bash
# every_tenth_in_the_window.sh CALEIDOSCOPIO CONSOLE SHARE: every tenth line of the default memory
# and of the list of names is damaged, on a disk and through the window's program. What the console
# cannot start with, the window cannot either: the same words on standard error and in a box, which
# a key closes, and status 1. With everything else it comes up. No file changes.
set -euo pipefail
program=$1
console=$2
share=$3
# shellcheck source=tests/support/window.sh
. "$(dirname "${BASH_SOURCE[0]}")/../support/window.sh"

start_home 640x480
mkdir -p "$root"
cp -r "$share/Miro-Vel-Ta" "$root/"
printf 'start\n' >"$work/script"

# Starts the program; leaves "up" in $went, or "ended" with its status in $status.
come_up() {
  local look
  status=0 went=up
  "$program" >"$work/out" 2>"$work/said" &
  virtual_display_program=$!
  for ((look = 0; look < 200; ++look)); do
    sleep 0.05
    if ! kill -0 "$virtual_display_program" 2>/dev/null; then
      wait "$virtual_display_program" || status=$?
      virtual_display_program=
      went=ended
      return
    fi
    if [ -s "$work/said" ]; then
      close_box || true
    elif [ $look -ge 8 ]; then
      kill -KILL "$virtual_display_program"
      wait "$virtual_display_program" 2>/dev/null || true
      virtual_display_program=
      return
    fi
  done
  fail "$what: the box was not closed"
}

damages=('' '"Disegno"' '7' '2147483647' '99999999999999999999' '#VERO#' $'\x01\x80\xff\x1b[31m"\xc3')
refused=0 up=0
for name in Default Memorie; do
  file=$root/Miro-Vel-Ta/Dati/$name.txt
  cp "$file" "$work/whole"
  lines=$(wc -l <"$work/whole")
  for ((n = 1; n <= lines; n += 10)); do
    damage=${damages[n / 10 % ${#damages[@]}]}
    what="$name, line $n: $(printf %q "$damage")"
    {
      head -n $((n - 1)) "$work/whole"
      printf '%s\r\n' "$damage"
      tail -n +$((n + 1)) "$work/whole"
    } >"$file"
    cp "$file" "$work/before"
    expected=
    "$console" --root "$root" "$work/script" 2>"$work/console" || expected=$(<"$work/console")
    come_up
    if [ -n "$expected" ]; then
      refused=$((refused + 1))
      [ $went = ended ] && [ $status = 1 ] || fail "$what: $went, status $status; the console: $expected"
      # The window names the whole path, the console the one below its root.
      said=$(<"$work/said")
      [ "${said/"$root/"/}" = "caleidoscopio: ${expected#run ended: }" ] || fail "$what: the console: $expected"
    elif [ $went = up ]; then
      up=$((up + 1))
    else
      # Not the start, but a tick soon after it.
      [ $status = 1 ] && [ "$(wc -l <"$work/said")" = 1 ] || fail "$what: status $status"
    fi
    cmp -s "$file" "$work/before" || fail "$what: the file was harmed"
  done
  cp "$work/whole" "$file"
done
echo "$refused refused as the console does, $up came up"
# Both must have happened, else the damage went nowhere.
[ $refused -gt 20 ] && [ $up -gt 20 ]
