#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails unless everything that belongs before a prompt, and the prompt, is out before the program
# waits for input, although standard output is no terminal.
#   prompt.sh ZEP
set -euo pipefail
coproc "$1" 2>/dev/null
# Copies: bash forgets the descriptors when the program has ended.
exec {answers}<&"${COPROC[0]}" {commands}>&"${COPROC[1]}"
expect() {
  local text=
  while [[ "$text" != *"$1" ]]; do
    IFS= read -r -d '' -n 1 -t 20 -u "$answers" character || {
      printf 'waited in vain for "%s" after: %s\n' "$1" "$text"
      exit 1
    }
    text+=$character
  done
}
expect '% '
echo 'get A' >&"$commands"
expect 'enter number of points : '
echo '1 1 2 3 4' >&"$commands"
expect $'1. point entered : <1:2:3:4>\n% '
echo 'range' >&"$commands"
expect 'enter upper border : '
echo '5' >&"$commands"
expect '% '
echo 'quit' >&"$commands"
expect $'thanks for using ZEP\n'
