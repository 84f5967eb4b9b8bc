# The field in columns of black and white, which Timer A moves on by one column at a time.
stripes() {
  local n
  for ((n = 1; n <= 324; ++n)); do
    echo "set lblMiro($n).BackColor $(((n - 1) / 4 % 9 % 2 ? $1 : $2))"
  done
  echo "set TmrGoA.Interval $3"
  echo "set TmrGoA.Enabled #TRUE#"
}

echo "= five changes a second, two flashes: kept; the lines of the cross between do not move"
{ stripes 0 16777215 200; echo "flashes 10000"; } | run_console --root root
echo "= ten a second: broken"
{ stripes 0 16777215 100; echo "flashes 10000"; } | run_console --root root
echo "= ten a second, but of two colours alike in light"
{ stripes 8421504 8947848 100; echo "flashes 10000"; } | run_console --root root
echo "= ten a second of red and a green of nearly the same light"
{ stripes 255 32512 100; echo "flashes 10000"; } | run_console --root root
echo "= what was before does not count, and the start is told in the time of the run"
{ stripes 0 16777215 100; echo "advance 5000"; echo "flashes 99"; echo "flashes 151"; echo "flashes 0"; } |
  run_console --root root
echo "= nothing runs"
echo "flashes 18446744073709551615" | run_console --root root
echo "= it moves the instrument on as advance does"
make_filled_root root
for command in advance flashes; do
  printf '%s\n' 'clock 12:00:00 2026' 'seed 7' start "$command 30000" dump |
    "$console" --root root | grep -v '^second' >"$command.dump"
done
cmp advance.dump flashes.dump && wc -l <flashes.dump
echo "= faults"
run_each <<'END'
flashes
flashes -1
flashes soon
flashes 1 2
END
