echo "= composed, as the names are"
printf 'get lblPi\xc3\xb9(0).Caption\nget TmrVeloPi\xc3\xb9.Interval\n' | run_console --root root
echo "= a letter and its accent"
printf 'get lblPiu\xcc\x80(0).Caption\n' | run_console --root root | sed 's/\xcc\x80/+accent/'
echo "= text holds any bytes"
printf 'set lblDir.Caption "\xff\xfe Citt\xc3\xa0 \xe2\x82\xac"\nget lblDir.Caption\n' | run_console --root root | cat -A
