#!/bin/bash
# run_scenario.sh CONSOLE SCENARIO OUTPUT: runs one scenario and compares what it says with what is
# expected. README.md beside this file tells what a scenario is.
set -u
export LC_ALL=C.UTF-8
console=$1
scenario=$(cd "$2" && pwd)
name=${scenario##*/}
actual=$3/$name.actual
mkdir -p "$3"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1

# A root folder with nothing in it but the places for files.
make_root() {
  mkdir -p "$1/Miro-Vel-Ta/Dati" "$1/Miro-Vel-Ta/Save"
}

# The same with the default memory and the list of names as they stand in a new instrument.
make_filled_root() {
  make_root "$1"
  printf 'save Default\nsave Memorie\n' | "$console" --root "$1" || exit 1
}

# Runs the console with the arguments given, standard input as it comes, and tells all that it said.
run_console() {
  "$console" "$@" 2>errors
  local status=$?
  sed 's/^/stderr: /' errors
  echo "status $status"
}

# Runs each line of standard input as a script of its own, `;` parting its lines.
run_each() {
  local line
  while IFS= read -r line; do
    echo "> $line"
    tr ';' '\n' <<<"$line" | run_console --root root
  done
}

# Tells whether a file is as it was when remembered.
remember() { sha256sum "$@" >remembered; }
check_unharmed() { sha256sum --quiet -c remembered && echo "unharmed"; }

run() {
  make_root root
  if [ -f "$scenario/run.sh" ]; then
    . "$scenario/run.sh"
  else
    run_console --root root "$scenario/script.txt"
  fi
}

run >"$actual" </dev/null 2>&1
if diff -u "$scenario/expected.txt" "$actual"; then
  rm "$actual"
else
  echo "left: $actual"
  exit 1
fi
