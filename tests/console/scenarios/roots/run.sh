# Without --root the candidates are probed: the user's own folder comes last and wins.
make_filled_root "own/caleidoscopio"
make_filled_root working
printf 'set lblComb(3).Caption "of the working folder"\nsave Memorie\n' | "$console" --root working
export XDG_DATA_HOME=$PWD/own
(cd working && printf 'start\nget lblDir.Caption\nget lblComb(3).Caption\n' | run_console) |
  sed "s:$PWD:WORK:"
echo "= --root probes nothing"
printf 'start\nget lblDir.Caption\nget lblComb(3).Caption\n' | run_console --root working
echo "= before the start, paths are the working folder's"
export XDG_DATA_HOME=not/absolute
(cd working && printf 'load Memorie\nget lblDir.Caption\nget lblComb(3).Caption\n' | run_console)
