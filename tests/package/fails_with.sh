#!/usr/bin/env bash
# fails_with.sh WORDS COMMAND...: the command must fail, and say WORDS.
set -uo pipefail
words=$1
shift
said=$("$@" 2>&1) && {
  echo "It did not fail: $said"
  exit 1
}
echo "$said"
grep -qF -- "$words" <<<"$said"
