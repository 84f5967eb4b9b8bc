make_filled_root root
files() { (cd root/Miro-Vel-Ta/Save && ls); }

echo "= two memories saved, one cleared, the program left"
run_console --root root <<'SCRIPT'
start
click cmdGoTimer
set lblVelo(1).Caption "650"
click lblComandiVari 1
click lblSave 3
get FraMemoria.Visible
get lblSelez.Caption
set TxtNomeMemoria.Text "Città, "di" notte"
click lblSalvaComb 0
get FraMemoria.Visible
get lblNomefile.Caption
echo Bank 1
down lblMemo 2
up lblMemo 2
get lblSave(3).BackColor
set lblVelo(1).Caption "700"
click lblComandiVari 1
click lblSave 7
set TxtNomeMemoria.Text "Giorno"
keypress TxtNomeMemoria 13
get lblComb(17).Caption
echo Bank 0: occupied, then cleared
down lblMemo 1
up lblMemo 1
get lblSave(3).BackColor
click lblCanc
click lblSave 3
get lblSave(3).BackColor
get lblComb(3).Caption
get lblSelez.Caption
click lblComandiVari 2
click lblZQ
SCRIPT
files

echo "= the next start"
run_console --root root <<'SCRIPT'
start
click cmdGoTimer
get lblNomefile.Caption
get lblSelez.Caption
echo A cleared memory cannot be loaded
set lblVelo(1).Caption "1000"
click lblSave 3
get lblVelo(1).Caption
echo The other one can
down lblMemo 2
advance 1500
up lblMemo 2
get lblMemo(0).Caption
get lblSave(7).BackColor
click lblSave 7
get lblVelo(1).Caption
get lblNomefile.Caption
echo Cancelled, nothing is saved
click lblComandiVari 1
click lblSave 8
set TxtNomeMemoria.Text "Mai"
click lblSalvaComb 1
get lblComb(18).Caption
echo A preset that has no file
click lblSave 12
SCRIPT
files
