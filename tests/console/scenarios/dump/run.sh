echo dump | "$console" --root root >dump
echo "= the properties of each kind of control"
for name in form 'FraPannello(0)' lblHide TxtNomeMemoria ImgZQ ShpContour TmrGoA; do
  grep -F "$name." dump | grep "^$name\\." | cut -d' ' -f1
done
echo "= by index"
grep '^lblVelo(.*Caption' dump
tail -2 dump
echo "= every line is what get prints"
cut -d' ' -f1 dump | sed 's/^/get /' | "$console" --root root >got
cut -d' ' -f2- dump | diff - got && echo same
echo "= and can be set"
{ sed 's/^/set /' dump; echo dump; } | "$console" --root root | diff dump - && echo same
