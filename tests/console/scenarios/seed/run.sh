make_filled_root root
echo "= the same on every machine"
picks() { for i in 1 2 3 4 5 6 7 8; do echo 'pick 101'; done; }
{ printf 'clock 12:00:00 2026\nseed 7\n'; picks; } | run_console --root root | tr '\n' ' '
echo
echo "= the seed holds for a later start, and seeds anew after one"
{ printf 'clock 12:00:00 2026\nseed 7\npick 5\nstart\n'; picks; } | run_console --root root | tail -n +2 >first
tr "\n" " " <first
echo
{ printf 'clock 12:00:00 2026\nstart\nseed 7\n'; picks; } | run_console --root root | tr '\n' ' '
echo
{ printf 'clock 12:00:00 2026\nseed 7\npick 5\npick 5\npick 5\nstart\n'; picks; } |
  run_console --root root | tail -n +4 | diff first - && echo same
echo "= other seeds, other draws; a negative one is one, too"
for n in 8 -1 18446744073709551615 9223372036854775807; do
  { printf 'clock 12:00:00 2026\nseed %s\n' $n; picks; } | run_console --root root | tr '\n' ' '
  echo
done
echo "= without a seed, the clock's"
for year in 2026 2026 2027; do
  { printf 'clock 12:00:00 %s\nstart\n' $year; picks; } | run_console --root root | tr '\n' ' '
  echo
done
