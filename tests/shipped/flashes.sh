#!/usr/bin/env bash
# Plays one shipped memory for ten minutes: it must not flash so that it could harm anyone.
#   flashes.sh CONSOLE SHARE NAME
set -euo pipefail
console=$1
share=$2
name=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r "$share/Miro-Vel-Ta" "$work"
[ "$name" = Default ] ||
  cp "$share/Miro-Vel-Ta/Save/$name.txt" "$work/Miro-Vel-Ta/Dati/Default.txt"
for seed in 1 2 3; do
  said=$(printf 'clock 12:00:00 2026\nseed %s\nstart\nflashes 600000\n' "$seed" |
    "$console" --root "$work")
  echo "seed $seed: $said"
  [[ $said =~ ^second\ [0-9]+\ flashes\ [0-9]+\ cells\ [0-9]+\ kept$ ]]
done
