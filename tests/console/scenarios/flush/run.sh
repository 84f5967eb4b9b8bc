# Each command's output is there before the next is read.
coproc "$console" --root root
say() {
  echo "$1" >&"${COPROC[1]}"
  read -r -t 10 line <&"${COPROC[0]}" && echo "$line"
}
say 'echo one'
say 'get lblVelo(1).Caption'
say 'echo three'
