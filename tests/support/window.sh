# Sourced by the tests that use the program as a person does, on a display of its own.
# shellcheck shell=bash disable=SC2034,SC2154
# shellcheck source=tools/virtual_display.sh
. "$(dirname "${BASH_SOURCE[0]}")/../../tools/virtual_display.sh"

# start_home WIDTHxHEIGHT: a display, and a home that never saw the program; leaves $work, a scratch
# folder, and $root, where the program will keep the memories.
start_home() {
  start_virtual_display "$1"
  work=$virtual_display_folder
  root=$work/data/caleidoscopio
  export XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work LC_ALL=C.UTF-8
}

# fail WORDS: ends the test, with what the program said on standard error.
fail() {
  printf 'FAILED: %s\n' "$*" >&2
  sed 's/^/  /' "$work/said" >&2
  exit 1
}

# middle CONTROL [PARENT]: the middle of a control on a screen of 1024x768, as $console has it with
# the memories in $share.
middle() {
  local ref
  {
    echo start
    for ref in "$@"; do
      for property in Left Top Width Height; do echo "get $ref.$property"; done
    done
  } | "$console" --root "$share" | awk -v n=$# '
    { v[NR] = $1 }
    END {
      x = v[1] + v[3] / 2; y = v[2] + v[4] / 2
      if (n == 2) { x += v[5]; y += v[6] }
      printf "%d %d\n", x / 15, y / 15
    }'
}
point() { # shellcheck disable=SC2046
  xdotool mousemove $(middle "$@")
}
press() { point "$@" && xdotool mousedown 1; }
release() { xdotool mouseup 1 && sleep 0.2; }
click() { press "$@" && sleep 0.05 && release; }

# The window of the program, or the box that tells a fault.
windows() { xdotool search --onlyvisible --name '^Caleidoscopio$' 2>/dev/null; }

# close_box: a key to the box, once it is there; false as long as it is not. Without a window manager
# it is not sure which window has the keyboard: to the box and to the window behind it, which no key
# moves any more.
close_box() {
  local window found
  found=$(windows) || return
  while read -r window; do
    xdotool key --window "$window" Return 2>/dev/null || true
  done <<<"$found"
  # Where the window goes with the press, the key stays down, and the next program would feel it.
  xdotool keyup Return
}
