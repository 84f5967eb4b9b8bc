# "Esc" saves and shows the end picture; commands go on until the click on it.
make_filled_root root
run_console --root root <<'SCRIPT'
start
set lblVelo(1).Caption "650"
set lblComb(7).Caption "seven"
click lblComandiVari 2
get frmMiroVelTaZQ.Visible
get lblAvvertimento2.Caption
echo still here
set lblVelo(1).Caption "700"
load Default
get lblVelo(1).Caption
set lblComb(7).Caption ""
load Memorie
get lblComb(7).Caption
click lblZQ
echo not reached
SCRIPT
