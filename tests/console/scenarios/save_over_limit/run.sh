# A limit for the size of a file, met in the middle of a save, is told; the old memory stays whole.
make_filled_root root
printf 'set lblVelo(1).Caption "650"\nsave 5\n' | "$console" --root root
remember root/Miro-Vel-Ta/*/*
for limit in 0 1 8; do
  # Its words go through a pipe, which has no limit.
  (ulimit -f $limit; printf 'set lblVelo(1).Caption "700"\nsave 5\n' | "$console" --root root 2>&1; echo "status $?") | cat
  (ulimit -f $limit; printf 'save 6\n' | "$console" --root root 2>&1; echo "status $?") | cat
  (ulimit -f $limit; printf 'save Default\n' | "$console" --root root 2>&1; echo "status $?") | cat
done
check_unharmed
ls root/Miro-Vel-Ta/*
printf 'load 5\nget lblVelo(1).Caption\n' | run_console --root root
