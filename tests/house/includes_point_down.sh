#!/bin/bash
# Fails where an #include of a source tree points up in the table of its README.md, leads to
# another folder of the same row, or goes round in a circle.
#
#   includes_point_down.sh SOURCE_FOLDER
#
# The table is read from the README itself, so that page and code cannot drift apart. A row is
#   | LEVEL | `folder/`, `file.*` | ...     or     | LEVEL | `folder/`: `file.h`, `other.*` | ...
# and `folder/`: the rest. The rows stand from the top down; where two rows have the same level,
# the upper one may still look at the lower.
set -euo pipefail
shopt -s extglob
cd "$1"

patterns=()  # what a row names, in the order of the table
ranks=()     # the row that each pattern stands in
row=0
while IFS='|' read -r _ level names _; do
  [[ $level =~ ^\ *[0-9]+\ *$ ]] || continue
  row=$((row + 1))
  folder=
  if [[ $names == *'`:'* ]]; then
    folder=$(sed -E 's/^ *`([^`]*)`:.*/\1/' <<<"$names")
    names=${names#*:}
    if [[ $names == *'the rest'* ]]; then names='`*`'; fi
  fi
  while read -r name; do
    [[ $name == */ ]] && name+='*'
    patterns+=("$folder$name")
    ranks+=("$row")
  done < <(grep -o '`[^`]*`' <<<"$names" | tr -d '`')
done < README.md
if [ "$row" -eq 0 ]; then
  echo "no table in $1/README.md"
  exit 1
fi

rank_of() {  # of a path from the source folder; 0 when the table does not name it
  local n
  for n in "${!patterns[@]}"; do
    # shellcheck disable=SC2053  # the right side is a pattern
    if [[ $1 == ${patterns[n]} ]]; then
      rank=${ranks[n]}
      return
    fi
  done
  rank=0
}

faults=0
fault() {
  echo "$1"
  faults=$((faults + 1))
}

edges=
files=0
includes=0
while read -r file; do
  file=${file#./}
  files=$((files + 1))
  rank_of "$file"
  from=$rank
  [ "$from" -ne 0 ] || fault "$file: stands in no row of the table"
  while read -r target; do
    if [ ! -f "$target" ]; then
      fault "$file: includes \"$target\", which is no path from the source folder"
      continue
    fi
    includes=$((includes + 1))
    edges+="$file $target"$'\n'
    rank_of "$target"
    if [ "$rank" -lt "$from" ]; then
      fault "$file: includes $target, which stands above it"
    elif [ "$rank" -eq "$from" ] && [ "${file%/*}" != "${target%/*}" ] && [[ $file == */* ]]; then
      fault "$file: includes $target, of another folder on its level"
    fi
  done < <(sed -nE 's/^[[:space:]]*#[[:space:]]*include[[:space:]]*"([^"]+)".*/\1/p' "$file")
done < <(find . -type f \( -name '*.h' -o -name '*.cpp' \) | sort)

if ! circle=$(tsort <<<"$edges" 2>&1 >/dev/null) || [ -n "$circle" ]; then
  fault "files include each other:"
  echo "$circle"
fi
if [ "$includes" -eq 0 ]; then fault "no include was found: is $1 the source folder?"; fi

echo "$files files, $includes includes, $row rows, $faults faults"
[ "$faults" -eq 0 ]
