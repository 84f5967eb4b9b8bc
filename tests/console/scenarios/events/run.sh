make_filled_root root
run_console --root root <<'SCRIPT'
echo A click, on an array and on a single control
get lblSposta(9).BackColor
click lblSposta 9
get lblSposta(9).BackColor
get lblMode(1).Caption
click lblHide
get lblHide.BackColor
click lblHide
echo A press and a release; a control whose name has an accent
down lblPiùTmr 1
get lblPiùTmr(1).BackColor
get TmrVeloPiù.Enabled
advance 100
up lblPiùTmr 1
get TmrVeloPiù.Enabled
get lblVelo(1).Caption
echo Enabled and Visible do not matter
set lblSposta(3).Enabled #FALSE#
set lblSposta(3).Visible #FALSE#
click lblSposta 3
get lblSposta(3).BackColor
echo A handler that a control does not have does nothing
move lblSposta 9
click lblDir
click TmrGoA
down form
keypress TxtNomeMemoria 999
keypress cmdGoTimer 13
fire TmrStepTotali
echo A key and a click on the bare form stop a run that hides the panels
click cmdGoTimer
get cmdGoTimer.BackColor
get FraPannello(0).Visible
key 16
get cmdGoTimer.BackColor
get FraPannello(0).Visible
click cmdGoTimer
surface
get cmdGoTimer.BackColor
echo A typed key leaves Text alone
set TxtNomeMemoria.Text "abc"
keypress TxtNomeMemoria 65
get TxtNomeMemoria.Text
SCRIPT
