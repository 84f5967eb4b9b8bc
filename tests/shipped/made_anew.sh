#!/bin/bash
# made_anew.sh CONSOLE SOURCE: the scripts in share/memories give the shipped files, byte for byte.
set -euo pipefail
console=$1 source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$source/tools/make-memories" "$console" "$work"
diff -r "$source/share/Miro-Vel-Ta" "$work/Miro-Vel-Ta"
