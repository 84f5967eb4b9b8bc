#!/usr/bin/env bash
# installs.sh BUILD: installs below a fresh folder, starts the installed program as a user who never
# had it, and checks that this user has the shipped memories then.
set -euo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cmake --install "$1" --prefix "$work/prefix" >/dev/null
mkdir "$work/home"
status=0
env --unset=XDG_DATA_HOME HOME="$work/home" QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$work" \
  LC_ALL=C.UTF-8 timeout 5 "$work/prefix/bin/caleidoscopio" || status=$?
# 124: it was still running.
[ $status -eq 124 ] || { echo "the program ended with status $status" && exit 1; }
diff --recursive "$work/prefix/share/caleidoscopio/Miro-Vel-Ta" \
  "$work/home/.local/share/caleidoscopio/Miro-Vel-Ta"
[ -s "$work/home/.local/share/caleidoscopio/Miro-Vel-Ta/Dati/Default.txt" ]
