# A loaded caption leads outside an array: the run ends where it is used, and no file is harmed.
make_filled_root root
printf 'set lblValAttivo.Caption "8"\nsave 3\n' | "$console" --root root
remember root/Miro-Vel-Ta/*/*
run_console --root root <<'SCRIPT'
load 3
get lblValAttivo.Caption
click lblColore 9
echo not reached
SCRIPT
printf 'set lblIndexTmr.Caption "4"\nset TmrVeloPiù.Enabled #TRUE#\nadvance 70\n' | run_console --root root
check_unharmed
