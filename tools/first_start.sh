# Sourced by the scripts that measure the running program, after virtual_display.sh.
# shellcheck shell=bash
# shellcheck disable=SC2154 # the lists and the server's names are of what was sourced before

program=build/release/bin/caleidoscopio

# build_program: and the packages that measuring on a virtual screen takes.
build_program() {
  need_packages "${build_packages[@]}" "${run_packages[@]}" "${virtual_display_packages[@]}" xdotool
  (
    cmake --preset release
    cmake --build --preset release --target caleidoscopio
  ) >&2
  export LC_ALL=C.UTF-8
}

# first_start WIDTHxHEIGHT: the program on a screen of that size as on its first start ever, which
# plays the shipped default memory; let run until it has settled.
first_start() {
  start_virtual_display "$1"
  export XDG_DATA_HOME=$virtual_display_folder/data XDG_RUNTIME_DIR=$virtual_display_folder
  mkdir "$XDG_DATA_HOME"
  run_for 5 "$program"
}

# processor_ticks PID: user and system time of a process so far, in ticks of the system.
processor_ticks() {
  local line
  line=$(<"/proc/$1/stat")
  # The name, in brackets, may hold blanks; the twelfth and thirteenth after it are the times.
  # shellcheck disable=SC2086
  set -- ${line##*) }
  echo $((${12} + ${13}))
}

# voluntary_switches PID: how often its threads have gone to sleep so far.
voluntary_switches() {
  awk '/^voluntary_ctxt_switches/ { sum += $2 } END { print sum }' "/proc/$1/task/"*/status
}
