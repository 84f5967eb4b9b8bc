# Sourced by the tests beside it: a folder of its own with a root in it, and two memories to save.
# shellcheck shell=bash disable=SC2034,SC2154 # for those who source this
export LC_ALL=C.UTF-8
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
memory=root/Miro-Vel-Ta/Save/5.txt

fail() {
  printf 'FAILED: %s\n' "$*" >&2
  exit 1
}

# A root with the files that every start reads, as they stand in a new instrument.
make_root() {
  mkdir -p "$1/Miro-Vel-Ta/Dati" "$1/Miro-Vel-Ta/Save"
  printf 'save Default\nsave Memorie\n' | "$console" --root "$1"
}

# Two memories of unlike length: the second has a caption of 900 letters.
long=$(printf '%900s' '' | tr ' ' x)
set_short='set lblSposta(1).Caption "1"'
set_long="set lblSposta(1).Caption \"$long\""
