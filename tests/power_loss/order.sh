#!/usr/bin/env bash
# order.sh CONSOLE: what a save asks of the system, in its order, as a trace shows it: the new file
# is written whole, brought to the disk, moved to its place, and then the folder is brought to the
# disk; only then the save is said to be done.
set -euo pipefail
console=$1
# shellcheck source=tests/power_loss/helpers.sh
. "$(dirname "${BASH_SOURCE[0]}")/helpers.sh"

if ! said=$(strace -o /dev/null true 2>&1); then
  echo "SKIPPED: no program can be traced here ($said); the order is also tested on a disk in memory"
  exit 77
fi
make_root root
printf 'save 5\n' | "$console" --root root

# The sanitizers' look for leaks cannot be traced itself.
printf 'save 5\necho saved\n' | ASAN_OPTIONS=detect_leaks=0 strace -y -e trace='%file,write,pwrite64,writev,fsync,fdatasync,sync_file_range,close,ftruncate' \
  -o trace "$console" --root root >/dev/null

# What concerns the memory, its folder and standard output, a word or two each.
sed -nE \
  -e 's/^(open|openat|creat)\(.*5\.txt\.new1", .*O_CREAT.*= .*/make new/p' \
  -e 's/^p?write(v|64)?\([0-9]+<[^>]*5\.txt\.new1>.*/write new/p' \
  -e 's/^p?write(v|64)?\([0-9]+<[^>]*5\.txt>.*/WRITE OLD/p' \
  -e 's/^f(data)?sync\([0-9]+<[^>]*5\.txt\.new1>\) *= 0/flush new/p' \
  -e 's/^rename(at2?)?\(.*5\.txt\.new1".*5\.txt".*= 0/move/p' \
  -e 's/^fsync\([0-9]+<[^>]*\/Save>\) *= 0/flush folder/p' \
  -e 's/^(truncate|ftruncate|unlink|unlinkat)\(.*5\.txt.*/REMOVE/p' \
  -e 's/^open(at)?\(.*5\.txt", .*(O_WRONLY|O_RDWR).*/OPEN OLD/p' \
  -e 's/^write\(1<.*"saved\\n".*/say/p' trace | uniq >order
diff -u - order <<'ORDER' || { grep -n '5\.txt\|Save' trace >&2; fail "another order"; }
make new
write new
flush new
move
flush folder
say
ORDER
echo "written, flushed, moved, folder flushed"
