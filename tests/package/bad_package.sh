#!/usr/bin/env bash
# bad_package.sh FINDS_NOTHING: makes a package that lacks its changelog and its copyright, and has
# it looked at.
set -euo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/bad/DEBIAN" "$work/bad/usr/bin"
cat >"$work/bad/DEBIAN/control" <<'END'
Package: caleidoscopio-bad
Version: 1
Architecture: all
Maintainer: Caleidoscopio maintainers <maintainers@example.org>
Section: graphics
Priority: optional
Description: package that lacks what a package must have
 It is made to see whether that is found.
END
printf '#!/bin/sh\n' >"$work/bad/usr/bin/caleidoscopio-bad"
chmod +x "$work/bad/usr/bin/caleidoscopio-bad"
dpkg-deb --root-owner-group --build "$work/bad" "$work/bad.deb" >/dev/null
"$1" deb "$work/bad.deb"
