#!/usr/bin/env bash
# finds_nothing.sh KIND FILE: has FILE looked at by the tool that Debian has for its kind, and fails
# if that finds an error or a warning.
set -uo pipefail
export LC_ALL=C.UTF-8
kind=$1 file=$2

case $kind in
  desktop) tool=(desktop-file-validate "$file") ;;
  metainfo) tool=(appstreamcli validate --no-net --no-color --explain "$file") ;;
  man) tool=(man --warnings -E UTF-8 -l -Tutf8 -Z "$file") ;;
  deb) tool=(lintian --fail-on "error,warning" --tag-display-limit 0 "$file") ;;
esac
command -v "${tool[0]}" >/dev/null || {
  echo "${tool[0]} is missing; ./test installs it"
  exit 1
}
errors=$(mktemp)
trap 'rm -f "$errors"' EXIT
said=$("${tool[@]}" 2>"$errors")
status=$?
cat "$errors"
# The page itself comes on standard output; two of the tools tell of warnings and succeed.
[ "$kind" = man ] || echo "$said"
[ $status -eq 0 ] || exit 1
case $kind in
  desktop) [ -z "$said$(cat "$errors")" ] ;;
  man) [ ! -s "$errors" ] ;;
esac
