#!/usr/bin/env bash
# Fails unless exhausted memory ends the program with status 10 and a message on standard error.
#   out_of_memory.sh ZEP
set -euo pipefail
zep=$1
message=$'\nNew: can\'t allocate enough memory'
failed=0

# try WHAT KILOBYTES: runs the commands on standard input in so much address space.
try() {
  local status=0 err
  err=$( (ulimit -v "$2" && exec "$zep") 2>&1 >/dev/null) || status=$?
  if [ "$status" -ne 10 ] || [[ "$err" != *"$message" ]]; then
    printf '%s: status %s, standard error: %s\n' "$1" "$status" "$(head -c 200 <<<"$err")"
    failed=1
  fi
}

# pad SIZE CHARACTER
pad() { head -c "$1" /dev/zero | tr '\0' "$2"; }

try 'large tables' 100000 < <(printf 'quiet\nrandom A 20000\nbumo A\n')
try 'many points' 100000 < <(printf 'dim 26\nrandom A 2147483647\n')
try 'a long number' 30000 < <(printf 'get A 1\n1 '; pad 20000000 7; printf ' 1 1\n')
try 'a long word' 30000 < <(printf 'scheme A '; pad 60000000 a; printf '\n')

# What is only reported or dropped needs no memory.
if ! (printf 'list '; pad 40000000 a; printf '\n') | (ulimit -v 30000 && exec "$zep") >/dev/null; then
  echo 'a long line was not reported'
  failed=1
fi
exit "$failed"
