#!/bin/bash
# Fails where a source of the instrument knows a toolkit, a file, a stream, a thread or a clock, or
# throws or catches. The instrument is everything but the platform and the two faces.
#
#   instrument_is_pure.sh SOURCE_FOLDER
set -euo pipefail
cd "$1"

mapfile -t files < <(find . -type f \( -name '*.h' -o -name '*.cpp' \) \
  -not -path './platform/*' -not -path './console/*' -not -path './desktop/*' | sort)
if [ "${#files[@]}" -eq 0 ]; then
  echo "no source found in $1"
  exit 1
fi

faults=0
look_for() {  # what it is, and a pattern; comments do not count
  local file found
  for file in "${files[@]}"; do
    found=$(sed -E 's@//.*@@' "$file" | grep -nE "$2" || true)
    if [ -n "$found" ]; then
      echo "${file#./}: $1: $found"
      faults=$((faults + 1))
    fi
  done
}

headers='fstream|iostream|ostream|istream|sstream|thread|mutex|future|atomic|chrono|ctime|time\.h|random|unistd\.h'
look_for "a header that the instrument does without" "^[[:space:]]*#[[:space:]]*include[[:space:]]*<($headers)>"
look_for "the toolkit" "^[[:space:]]*#[[:space:]]*include[[:space:]]*[<\"](Q[A-Za-z]|qt)"
look_for "an exception" '\b(throw|try|catch)\b'
look_for "the end of the process" '\b(exit|abort|quick_exit|_Exit)[[:space:]]*\('
look_for "output" '\b(printf|puts|fprintf|std::cout|std::cerr)\b'

echo "${#files[@]} files, $faults faults"
[ "$faults" -eq 0 ]
