make_filled_root root
lines() { for f in "$@"; do echo "$f $(wc -l <root/Miro-Vel-Ta/$f)"; done; }

echo "= all that there is to save; nothing but the file changes"
run_console --root root <<'SCRIPT' >said
dump
save 0
save 99
save A
save E
save Default
save Memorie
echo ----
dump
SCRIPT
tail -1 said
sed '/^status/d' said | awk '/^----$/{f=1; next} {print > (f ? "after" : "before")}'
cmp before after && echo same
lines Save/0.txt Save/99.txt Save/A.txt Save/E.txt Dati/Default.txt Dati/Memorie.txt
ls root/Miro-Vel-Ta/Save

echo "= load brings back what a memory holds, and lblSelez is left alone"
run_console --root root <<'SCRIPT'
set lblSelez.Caption "Def"
set lblVelo(1).Caption "650"
set lblMiro(5).BackColor 255
save 12
set lblVelo(1).Caption "700"
set lblMiro(5).BackColor 0
set lblMiro(5).Caption "9"
set lblSelez.Caption "none"
load 12
get lblVelo(1).Caption
get lblMiro(5).BackColor
get lblMiro(5).Caption
get lblSelez.Caption
get lblNomefile.Caption
echo The list of names
set lblComb(3).Caption "Città "di" notte"
set lblSelez.Caption "7"
save Memorie
set lblComb(3).Caption ""
set lblSelez.Caption ""
load Memorie
get lblComb(3).Caption
get lblSelez.Caption
SCRIPT

echo "= save and load give an equal file"
printf 'load 12\nsave B\nload Default\nsave C\n' | run_console --root root
cmp root/Miro-Vel-Ta/Save/12.txt root/Miro-Vel-Ta/Save/B.txt && echo same
cmp root/Miro-Vel-Ta/Dati/Default.txt root/Miro-Vel-Ta/Save/C.txt && echo same

echo "= no such memory"
echo 'load 50' | run_console --root root
echo "= no such folder"
echo 'save 50' | run_console --root nowhere
