#!/usr/bin/env bash
# killed_saves.sh CONSOLE COUNT: kills the console COUNT times at random moments while it saves the
# same memory over and over. Each time the file is one of the two memories, whole; what is left
# beside it does not hinder the next save, nor pile up; and at the end it still loads and plays.
set -euo pipefail
console=$1
count=$2
# shellcheck source=tests/power_loss/helpers.sh
. "$(dirname "${BASH_SOURCE[0]}")/helpers.sh"

make_root root
printf '%s\nsave 5\n' "$set_long" | "$console" --root root
cp "$memory" long
printf '%s\nsave 5\n' "$set_short" | "$console" --root root
cp "$memory" short
! cmp -s long short || fail "the two memories are alike"

{
  echo 'echo saving'
  for ((i = 0; i < 1500; ++i)); do printf '%s\nsave 5\n%s\nsave 5\n' "$set_long" "$set_short"; done
} >script

within=0 longs=0
mkfifo said
for ((n = 1; n <= count; ++n)); do
  "$console" --root root script >said 2>errors &
  process=$!
  # From here on it does nothing but save.
  read -r line <said || true
  [ "$line" = saving ] || fail "kill $n: $(cat errors)"
  sleep "0.0$((RANDOM % 3))$((RANDOM % 10))$((RANDOM % 10))"
  kill -KILL $process 2>/dev/null || fail "kill $n: it ended by itself: $(cat errors)"
  wait $process 2>/dev/null || true
  if cmp -s "$memory" long; then
    longs=$((longs + 1))
  elif ! cmp -s "$memory" short; then
    fail "kill $n: the memory is neither the old nor the new one: $(wc -c <"$memory") bytes"
  fi
  beside=$(find root/Miro-Vel-Ta/Save -name '*.new*' | wc -l)
  # What the kill before left has made way.
  [ "$beside" -le 1 ] || fail "kill $n: $beside files beside the memory"
  within=$((within + beside))
done
[ $within -gt 0 ] || fail "no kill fell within a save"

printf '%s\nsave 5\nload 5\nstart\nadvance 1000\necho played\n' "$set_short" >script
[ "$("$console" --root root script)" = played ] || fail "it does not start and play"
cmp -s "$memory" short || fail "the last save went wrong"
[ "$(ls root/Miro-Vel-Ta/Save)" = 5.txt ] || fail "left beside: $(ls root/Miro-Vel-Ta/Save)"
echo "$count kills, $within of them with the new file half there: the memory was whole each time" \
  "($longs times the long one)"
