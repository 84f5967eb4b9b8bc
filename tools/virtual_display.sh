# Sourced by the scripts that show the program where there is no screen, or want one of a set size.
# shellcheck shell=bash

virtual_display_folder=
virtual_display_server=
virtual_display_program=

# start_virtual_display WIDTHxHEIGHT: a screen of its own under a free number, in DISPLAY.
start_virtual_display() {
  virtual_display_folder=$(mktemp -d)
  trap stop_virtual_display EXIT
  local number="$virtual_display_folder/number" log="$virtual_display_folder/server"
  # Without -noreset it starts anew whenever the last program leaves it, and the next may find it shut.
  Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset 3>"$number" >"$log" 2>&1 &
  virtual_display_server=$!
  local wait
  for ((wait = 0; wait < 300; ++wait)); do
    if [ -s "$number" ]; then
      DISPLAY=":$(cat "$number")"
      export DISPLAY
      # The program must not find the way to another screen.
      unset WAYLAND_DISPLAY
      export QT_QPA_PLATFORM=xcb
      return
    fi
    kill -0 "$virtual_display_server" 2>/dev/null || break
    sleep 0.1
  done
  echo "The virtual display did not start:" >&2
  cat "$log" >&2
  return 1
}

# run_for SECONDS PROGRAM [ARGUMENT...]: starts the program; false if it ends within that time.
run_for() {
  local seconds=$1 wait status=0
  shift
  "$@" &
  virtual_display_program=$!
  for ((wait = 0; wait < seconds * 10; ++wait)); do
    sleep 0.1
    if ! kill -0 "$virtual_display_program" 2>/dev/null; then
      wait "$virtual_display_program" || status=$?
      virtual_display_program=
      echo "The program ended by itself within $seconds seconds, with status $status." >&2
      return 1
    fi
  done
}

# take_screenshot FILE
take_screenshot() {
  mkdir -p "$(dirname "$1")"
  scrot --overwrite --silent "$1"
}

# Ends what was started here, and nothing else.
stop_virtual_display() {
  local process
  for process in "$virtual_display_program" "$virtual_display_server"; do
    [ -n "$process" ] || continue
    kill "$process" 2>/dev/null || true
    wait "$process" 2>/dev/null || true
  done
  virtual_display_program=
  virtual_display_server=
  rm -rf "$virtual_display_folder"
}
