# Timers A, B, C and F side by side for an hour, in each mode of B: the same seed and clock end in
# the same picture, on every machine.
for mode in 1 2 3 4 5 6; do
  echo "= mode $mode"
  {
    printf 'clock 12:34:56 2026\nseed 11\n'
    for k in 0 1 2 3; do echo "click cmdOnOff $k"; done
    printf 'click lblTransf %s\nclick lblSposta 7\nclick cmdGoTimer\nadvance 3600000\nfield\n' "$mode"
  } | run_console --root root
done
