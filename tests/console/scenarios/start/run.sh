echo "= no default memory"
echo start | run_console --root root

make_filled_root root
echo "= without it the instrument stands stopped; with it, it runs"
run_console --root root <<'SCRIPT'
clock 09:08:07 2026
get cmdGoTimer.BackColor
get lblScritteVarie(9).Caption
get lblSelez.Caption
start
get cmdGoTimer.BackColor
get lblScritteVarie(9).Caption
get lblSelez.Caption
get lblDir.Caption
echo A second start is a fault.
start
SCRIPT

echo "= no list of names"
rm root/Miro-Vel-Ta/Dati/Memorie.txt
echo start | run_console --root root
