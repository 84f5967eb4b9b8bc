#!/usr/bin/env bash
# installs.sh BUILD: installs below a fresh folder, starts the installed program as a user who never
# had it, and checks that this user has the shipped memories then.
set -euo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cmake --install "$1" --prefix "$work/prefix" >/dev/null
mkdir "$work/home"
env --unset=XDG_DATA_HOME HOME="$work/home" QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$work" \
  LC_ALL=C.UTF-8 "$work/prefix/bin/caleidoscopio" &
program=$!
trap 'kill $program 2>/dev/null || true; wait; rm -rf "$work"' EXIT
own=$work/home/.local/share/caleidoscopio/Miro-Vel-Ta
# The default memory is copied last.
for ((tenths = 0; tenths < 300; ++tenths)); do
  [ ! -s "$own/Dati/Default.txt" ] || break
  sleep 0.1
done
diff --recursive "$work/prefix/share/caleidoscopio/Miro-Vel-Ta" "$own"
sleep 1
kill -0 $program || { echo "the program ended by itself" && exit 1; }
