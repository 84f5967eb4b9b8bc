# A default memory that ends at any tenth line ends the run, and stays as it is.
make_filled_root root
default=root/Miro-Vel-Ta/Dati/Default.txt
cp $default whole
for ((kept = 0; kept < 1869; kept += 10)); do
  head -n $kept whole >$default
  remember $default root/Miro-Vel-Ta/Dati/Memorie.txt
  echo start | run_console --root root >said
  name=$(sed -n 's/.*line [0-9]*, \([^:]*\):.*/\1/p' said)
  told="stderr: run ended: Miro-Vel-Ta/Dati/Default.txt, line $((kept + 1)), $name: the file ends here; expected 1869 lines"
  [ "$(cat said)" = "$told"$'\nstatus 1' ] && [ -n "$name" ] || { echo "cut after $kept:"; cat said; }
  check_unharmed >/dev/null || echo "harmed: cut after $kept"
  [ $((kept % 300)) = 0 ] && cat said
done
echo "= in the middle of a line: what is left of it counts"
head -c -1 whole >$default
echo start | run_console --root root
head -c -4 whole >$default
echo start | run_console --root root
