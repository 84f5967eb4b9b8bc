make_filled_root root
default=root/Miro-Vel-Ta/Dati/Default.txt
cp $default whole

# Puts a text in the place of a line, starts, and gets what a property then holds.
with_line() {
  echo "= line $1: $2"
  awk -v n="$1" -v text="$2" 'NR == n { print text "\r"; next } { print }' whole >$default
  remember $default root/Miro-Vel-Ta/Dati/Memorie.txt
  printf 'start\n%s\n' "${3:+get $3}" | run_console --root root
  check_unharmed
}

# line 4 and 6 hold numbers, 178 a flag, 1 a text
with_line 4 '"Disegno"'
with_line 6 'abc'
with_line 6 ''
with_line 6 '1.5'
with_line 6 '2147483648'
with_line 6 '#TRUE#'
with_line 178 '0'
with_line 178 '"#TRUE#"'
with_line 178 ''
with_line 1869 '2" "3' 'lblTmrBreak(0).Caption'
with_line 1686 '"title, "quoted""' 'lblSposta(1).Caption'
with_line 6 '"700"' TmrSequencer.Interval
with_line 178 '#true#' 'FraPannello(2).Visible'

echo "= bytes that are no letters"
head -c 3000 /dev/zero >$default
echo start | run_console --root root | tr -d '\0'
