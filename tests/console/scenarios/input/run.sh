echo "= from standard input, a carriage return at the end of a line dropped, the last line not ended"
printf 'echo one\r\n\r\n# a comment\n#echo neither\n   \t \necho two\r\r\necho three' |
  run_console --root root | cat -A

echo "= echo prints the rest of the line as it stands"
printf 'echo   two  blanks \techo\t "q" # no comment ; Città \necho\n' | run_console --root root | cat -A

echo "= from a script"
echo 'echo hello' >script.txt
run_console script.txt
run_console script.txt --root root
touch empty.txt
run_console --root root empty.txt

echo "= what was printed before a fault stands"
printf 'echo one\necho two\nno\necho three\n' | run_console --root root
