#!/usr/bin/env bash
# small_file_system.sh CONSOLE: a file system that is full, and one that goes read-only while the
# program runs, as one does that has met a fault. Both are mounted where nobody else sees them.
set -euo pipefail
console=$1
if [ "${2:-}" != within ]; then
  # Root mounts by itself, others as the root of a name space of their own.
  for space in "--mount" "--mount --user --map-root-user"; do
    # shellcheck disable=SC2086 # several options
    unshare $space sh -c 'mount -t tmpfs none /mnt' 2>/dev/null || continue
    # shellcheck disable=SC2086
    exec unshare $space bash "$0" "$console" within
  done
  echo "SKIPPED: nothing can be mounted here; a limit for the size of a file stands in for a full disk"
  exit 77
fi
# shellcheck source=tests/power_loss/helpers.sh
. "$(dirname "${BASH_SOURCE[0]}")/helpers.sh"

mkdir root
mount -t tmpfs -o size=160k none root
trap 'cd /; umount "$work/root"; rm -rf "$work"' EXIT
make_root root
printf 'save 5\n' | "$console" --root root
sha256sum root/Miro-Vel-Ta/*/* >remembered

unharmed() {
  sha256sum --quiet -c remembered || fail "$1: a file was harmed"
  [ "$(find root -name '*.new*' | wc -l)" = 0 ] || fail "$1: something was left beside"
}

# refused WORDS SAVE: the save ends the run with these words.
refused() {
  local words=$1 save=$2 status=0
  printf '%s\n%s\necho not reached\n' "$set_long" "$save" | "$console" --root root >out 2>errors || status=$?
  [ $status = 1 ] && [ ! -s out ] && grep -qxF "run ended: $words" errors ||
    fail "$save: status $status, $(cat errors)"
  unharmed "$save"
}

# Ever less room: from a page too few for the memory to none at all.
head -c 1M /dev/zero >root/filler 2>/dev/null || true
full="cannot be written: No space left on device"
for free in 8 4 0; do
  truncate -s $((($(stat -c %s root/filler) / 4096 - free / 4) * 4096)) root/filler
  refused "Miro-Vel-Ta/Save/5.txt: $full" "save 5"
  refused "Miro-Vel-Ta/Save/6.txt: $full" "save 6"
  refused "Miro-Vel-Ta/Dati/Default.txt: $full" "click lblComandiVari 2"
  head -c 1M /dev/zero >>root/filler 2>/dev/null || true
done
rm root/filler
printf '%s\nsave 5\n' "$set_long" | "$console" --root root || fail "with room again it does not save"
sha256sum root/Miro-Vel-Ta/*/* >remembered

mkfifo commands
"$console" --root root <commands >out 2>errors &
process=$!
exec 3>commands
printf 'start\nadvance 1000\nsave 7\necho saved\n' >&3
until grep -q saved out; do sleep 0.01; done
rm -f root/Miro-Vel-Ta/Save/7.txt
mount -o remount,bind,ro root
# The console may be gone before the last line is sent.
trap '' PIPE
printf '%s\nsave 5\necho not reached\n' "$set_short" 2>/dev/null >&3 || true
exec 3>&-
status=0
wait $process || status=$?
[ $status = 1 ] || fail "read-only: status $status"
grep -qxF "run ended: Miro-Vel-Ta/Save/5.txt: cannot be written: Read-only file system" errors ||
  fail "read-only: $(cat errors)"
unharmed "read-only"
echo "told, and nothing harmed"
