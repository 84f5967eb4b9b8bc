#!/usr/bin/env bash
# lost_folder.sh CONSOLE: the folder stops taking files while the program runs. The next save ends
# the run with its message and status 1, and every file that there was stays whole. Root may write
# where others may not, so the folder is taken away, or something else stands in its place.
set -euo pipefail
console=$1
# shellcheck source=tests/power_loss/helpers.sh
. "$(dirname "${BASH_SOURCE[0]}")/helpers.sh"

trap '' PIPE

# lose HOW WORDS SAVE: plays and saves, loses the folder by HOW, and saves again by SAVE.
lose() {
  local how=$1 words=$2 save=$3 line status=0 was
  rm -rf root kept
  make_root root
  mkfifo commands answers
  "$console" --root root <commands >answers 2>errors &
  local process=$!
  exec 3>commands 4<answers
  printf 'start\nadvance 1000\n%s\nsave 5\necho saved\n' "$set_long" >&3
  read -r line <&4
  [ "$line" = saved ] || fail "$how: the first save"
  was=$(cat root/Miro-Vel-Ta/*/*.txt | sha256sum)
  $how
  # The console may be gone before the last line is sent.
  printf 'advance 1000\n%s\n%s\necho not reached\n' "$set_short" "$save" 2>/dev/null >&3 || true
  wait $process || status=$?
  ! read -r line <&4 || fail "$how: it went on and said $line"
  exec 3>&- 4<&-
  rm commands answers
  [ $status = 1 ] || fail "$how: status $status"
  grep -qxF "run ended: $words" errors || fail "$how: expected $words: $(cat errors)"
  # Wherever the folder is now, what was in it is whole.
  [ "$(cat "${kept:-root/Miro-Vel-Ta}"/*/*.txt | sha256sum)" = "$was" ] || fail "$how: a file was harmed"
}

moved_away() { mv root/Miro-Vel-Ta kept; }
a_file_in_its_place() {
  mv root/Miro-Vel-Ta kept
  echo >root/Miro-Vel-Ta
}
a_loop_in_its_place() {
  mv root/Miro-Vel-Ta kept
  ln -s Miro-Vel-Ta root/Miro-Vel-Ta
}

save5='Miro-Vel-Ta/Save/5.txt: cannot be written:'
kept=kept
lose moved_away "$save5 No such file or directory" "save 5"
lose a_file_in_its_place "$save5 Not a directory" "save 5"
lose a_loop_in_its_place "$save5 Too many levels of symbolic links" "save 5"
# "Esc" saves the default memory first.
lose moved_away "Miro-Vel-Ta/Dati/Default.txt: cannot be written: No such file or directory" \
  "click lblComandiVari 2"
# And where its owner forbids to write.
if [ "$(id -u)" != 0 ]; then
  closed() { chmod a-w root/Miro-Vel-Ta/Save; }
  kept=''
  lose closed "$save5 Permission denied" "save 5"
  chmod u+w root/Miro-Vel-Ta/Save
fi
echo "told, and nothing harmed"
