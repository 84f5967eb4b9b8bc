for arguments in "--no" "-x" "--root" "--root=root" "none.txt" "." "one.txt two.txt" "--root a --root b"; do
  echo "= $arguments"
  # shellcheck disable=SC2086 # words, on purpose
  run_console $arguments
done
echo "= standard input that cannot be read"
run_console --root root <.
run_console --root root <&-
echo "= help and version need nothing"
run_console --help | head -1
run_console --version
echo "= output that cannot be written"
# shellcheck disable=SC2069 # only the words about the fault are wanted
echo 'echo hello' | "$console" 2>&1 >/dev/full
echo "status $?"
