#!/usr/bin/env bash
# on_disk.sh CONSOLE SHARE: every tenth line of the default memory and of the list of names is
# damaged, and both files are cut there, on a disk and through the console. Each run either plays
# on, or ends with status 1 and one line that says why; no file changes.
set -euo pipefail
export LC_ALL=C
console=$1
share=$2

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
mkdir root
cp -r "$share/Miro-Vel-Ta" root/
printf 'start\nadvance 500\n' >script

fail() {
  printf 'FAILED: %s\n' "$*" >&2
  sed 's/^/  /' said >&2
  exit 1
}

# play FILE WHAT: plays with the file as it is now; leaves "refused" or "played" in $went.
play() {
  local file=$1 what=$2 status=0
  cp "$file" before
  timeout 20 "$console" --root root script >out 2>said || status=$?
  [ ! -s out ] || fail "$what: it printed something"
  case $status in
    0) went=played ;;
    1) went=refused ;;
    *) fail "$what: status $status" ;;
  esac
  if [ $went = played ]; then
    [ ! -s said ] || fail "$what: it went on and said"
  else
    # Plain text on one line, whatever was in the file.
    [ "$(wc -l <said)" = 1 ] && grep -aq '^run ended: ' said || fail "$what: not one line"
    ! grep -aq '[[:cntrl:]]' said || fail "$what: bytes that a terminal obeys"
  fi
  cmp -s "$file" before || fail "$what: the file was harmed"
  [ "$(find root -type f | wc -l)" = "$files" ] || fail "$what: a file came or went"
}

files=$(find root -type f | wc -l)
damages=('' '"Disegno"' '7' '2147483647' '99999999999999999999' '#VERO#' $'\x01\x80\xff\x1b[31m"\xc3')
runs=0 refused=0
for name in Default Memorie; do
  file=root/Miro-Vel-Ta/Dati/$name.txt
  cp "$file" whole
  lines=$(wc -l <whole)
  for ((n = 1; n <= lines; n += 10)); do
    # One kind of damage a line, each in its turn, and a cut before the line.
    damage=${damages[n / 10 % ${#damages[@]}]}
    {
      head -n $((n - 1)) whole
      printf '%s\r\n' "$damage"
      tail -n +$((n + 1)) whole
    } >"$file"
    play "$file" "$name, line $n: $(printf %q "$damage")"
    runs=$((runs + 1))
    if [ $went = refused ]; then
      refused=$((refused + 1))
      # The line by its number, or the control whose value led astray.
      grep -aqE "$name.txt, line $n, [^:]*: found '|\.Caption is \"" said || fail "$name, line $n: not named"
    fi
    head -n $((n - 1)) whole >"$file"
    play "$file" "$name, cut before line $n"
    grep -aq "$name.txt, line $n, .*: the file ends here; expected $lines lines" said ||
      fail "$name, cut before line $n: not told"
  done
  # Bytes that no line ends, and a file of zeros.
  head -c 5000 "$console" >"$file"
  play "$file" "$name is a program"
  [ $went = refused ] || fail "$name is a program, and played"
  head -c 5000 /dev/zero >"$file"
  play "$file" "$name is all zeros"
  [ $went = refused ] || fail "$name is all zeros, and played"
  cp whole "$file"
done
play root/Miro-Vel-Ta/Dati/Default.txt "the files as they ship"
[ $went = played ] || fail "the files as they ship"
echo "$runs damaged lines: $refused refused, $((runs - refused)) played on"
# Both must have come up, else the damage went nowhere.
[ "$refused" -gt 20 ] && [ "$((runs - refused))" -gt 20 ]
