#!/usr/bin/env bash
# holds_all.sh DEB SOURCE: unpacks the package and checks what the tools for packages do not know of.
set -euo pipefail
export LC_ALL=C.UTF-8
deb=$1 source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
dpkg-deb --extract "$deb" "$work"
usr=$work/usr
faults=0
fault() {
  echo "$*"
  faults=$((faults + 1))
}

version=$(dpkg-deb --field "$deb" Version)
for program in caleidoscopio caleidoscopio-console; do
  [ "$("$usr/bin/$program" --version)" = "$program $version" ] || fault "$program: not $version"
  zcat "$usr/share/man/man1/$program.1.gz" | cmp - "$source/packaging/man/$program.1" ||
    fault "$program: another man page"
  readelf --sections --wide "$usr/bin/$program" >"$work/sections"
  ! grep -q ' \.symtab ' "$work/sections" || fault "$program: symbols"
  readelf --dynamic --wide "$usr/bin/$program" >"$work/dynamic"
  for flag in BIND_NOW PIE; do
    grep -q "$flag" "$work/dynamic" || fault "$program: not $flag"
  done
done
zcat "$usr/share/doc/caleidoscopio/changelog.gz" | head -1 | grep -qF "($version)" ||
  fault "the changelog does not begin with $version"
grep -qF "<release version=\"$version\"" "$usr"/share/metainfo/*.metainfo.xml ||
  fault "the metainfo does not know $version"

diff --recursive --exclude=.keep "$source/share/Miro-Vel-Ta" \
  "$usr/share/caleidoscopio/Miro-Vel-Ta" || fault "other memories"

# The bytes 16 to 23 of a PNG file are its width and height.
for size in 16 22 24 32 48 64 128 256; do
  icon=$usr/share/icons/hicolor/${size}x$size/apps/caleidoscopio.png
  expected=$(printf '%08x%08x' "$size" "$size")
  [ "$(od -An -tx1 -j16 -N8 "$icon" | tr -d ' ')" = "$expected" ] || fault "$icon: another size"
done
[ -f "$usr/share/icons/hicolor/scalable/apps/caleidoscopio.svg" ] || fault "no scalable icon"

depends=$(dpkg-deb --field "$deb" Depends)
for package in libc6 libqt6widgets6 fonts-liberation; do
  grep -qw "$package" <<<"$depends" || fault "does not depend on $package: $depends"
done
[ $faults -eq 0 ]
