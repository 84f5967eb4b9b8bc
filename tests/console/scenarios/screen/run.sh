make_filled_root root
places='get form.Width
get lblMiro(1).Left
get lblMiro(1).Top
get lblMiro(1).Height
get lblVelo(1).FontSize
get FraPannello(0).Left'
for size in "15360 11520" "20490 11520" "19200 14400" "20490 10800" "13660.4 11520"; do
  echo "= screen $size"
  { echo "screen $size"; echo start; echo "$places"; } | run_console --root root
done
echo "= it holds without a start, where Go and Stop place the table"
printf 'screen 20490 11520\nset lblHide.BackColor 12632319\nclick cmdGoTimer\nget FraPannello(2).Left\n' |
  run_console --root root
echo "= after the start it is too late"
printf 'start\nscreen 20490 11520\n' | run_console --root root
