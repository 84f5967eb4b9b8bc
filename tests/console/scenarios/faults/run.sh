# Each line is a script of its own.
run_each <<'LINES'
no
Start
echo one;echo two;;# comment;nope here
  # a comment begins the line
start now
click
click lblSposta
click lblSposta 1 2
click lblNone 1
click lblSposta(1)
click lblSposta 25
click lblSposta -1
click lblSposta x
click lblSposta 1x
click lblMiro2 99999999999
click lblVelo 0
click cmdGoTimer 0
click lblpiù 1
down
up lblPiùTmr
move lblPiùTmr 9
key
key x
key 1 2
surface 1
keypress TxtNomeMemoria
keypress lblVelo 13
keypress TxtNomeMemoria x
keypress TxtNomeMemoria 13 13
fire
fire TmrNone
fire cmdGoTimer
fire TmrGoA 0
advance
advance -1
advance +1
advance 1.5
advance 1 2
advance 18446744073709551616
clock
clock 12:00:00
clock 12:00 2026
clock 24:00:00 2026
clock 12:60:00 2026
clock 12:00:60 2026
clock 1:00:000 2026
clock 12-00-00 2026
clock 12:00:00 year
clock 12:00:00 -1
clock 12:00:00 10000
draws
draws x
draws 0.5 1
draws 1.0e0
draws -0.5
draws -0
draws 0,5
draws 0x1p-1
draws nan
draws inf
draws 1e400
draws 0.5x
draws .
draws 0.99999999
seed
seed x
seed 1 2
seed 18446744073709551616
pick
pick x
pick 1.5
pick 2147483648
screen 100
screen 0 100
screen 100 -100
screen x y
screen 100 1e3
screen 1 2 3
save
save 100
save 05
save F
save a
save default
save 1 2
load ../x
load Def
load
get
get lblVelo
get lblVelo(1)
get lblVelo.Caption
get lblVelo(1).Colour
get lblVelo(1).caption
get lblVelo(4).Caption
get lblVelo(-1).Caption
get lblVelo().Caption
get lblVelo(1.Caption
get lblVelo(1)x.Caption
get cmdGoTimer(0).Caption
get form(0).Caption
get form.FontSize
get FraMemoria.FontSize
get TmrGoA.Caption
get lblVelo(1).Caption x
get Foo.Caption
get .Caption
set
set lblVelo(1).Caption
set lblVelo(1).Caption 500
set lblVelo(1).Caption "500
set lblVelo(1).Caption 500"
set lblVelo(1).Caption "500" x
set lblVelo(1).Caption x "500"
set lblVelo(1).Caption"500" x
set lblVelo(1).Caption "
set lblVelo(1).BackColor "500"
set lblVelo(1).BackColor 5 5
set lblVelo(1).BackColor 2147483648
set lblVelo(1).BackColor -2147483649
set lblVelo(1).BackColor 0xFF
set lblVelo(1).BackColor 5.0
set lblVelo(1).BackColor #TRUE#
set lblVelo(1).BackColor +-5
set lblVelo(1).Left 1e3
set lblVelo(1).Left nan
set lblVelo(1).Left inf
set lblVelo(1).Left +-5
set lblVelo(1).Left "5"
set lblVelo(1).Visible TRUE
set lblVelo(1).Visible 1
set lblVelo(1).Visible "#TRUE#"
set TmrGoA.Interval 2147483648
set TmrGoA.Enabled 1
dump all
field 1
LINES
