#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails unless exhausted memory ends the program with status 10 and a message on standard error.
#   out_of_memory.sh ZEP
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"
zep=$(realpath "$1")
message=$'\nNew: can\'t allocate enough memory'

# try WHAT KILOBYTES: runs the commands on standard input in so much address space.
try() {
  local status=0 err
  # The dot keeps the line end, which the shell would drop.
  err=$( (ulimit -v "$2" && exec "$zep") 2>&1 >/dev/null || status=$?; printf .; exit "$status") ||
    status=$?
  [ "$status" -eq 10 ] && [[ "$err" == *"$message"$'\n.' ]] ||
    complain "$1: status $status, standard error: $(head -c 200 <<<"$err")"
}

# pad SIZE CHARACTER
pad() { head -c "$1" /dev/zero | tr '\0' "$2"; }

try 'large tables' 100000 < <(printf 'quiet\nrandom A 20000\nbumo A\n')
try 'many points' 100000 < <(printf 'dim 26\nrandom A 2147483647\n')
try 'a long number' 30000 < <(printf 'get A 1\n1 '; pad 20000000 7; printf ' 1 1\n')
try 'a number that is read, but too long for what comes then' 30000 \
  < <(printf 'get A 1\n1 '; pad 7800000 7; printf ' 1 1\n')
try 'a long word' 30000 < <(printf 'scheme A '; pad 60000000 a; printf '\n')

# Every computation, in all sizes of address space from one that is hardly enough for the program to
# one that is enough for all: it ends in order or with the message, and a result file holds either
# the whole result or nothing; that of putlinres may hold the part of putlinid.
cd "$work"
exhausted=0
least=1000
enough() { echo quit | (ulimit -v "$1" && exec "$zep") >/dev/null; }
while [ "$least" -lt 24000 ] && ! enough "$least"; do least=$((least + 500)); done 2>/dev/null

# squeeze SET COMMAND: carries the command out on the set and writes the result if it has a file.
squeeze() {
  local limit status err
  rm -f whole part result
  printf 'quiet\n%s\n%s A whole\nputlinid A part\n' "$1" "$2" | "$zep" >/dev/null 2>&1
  for ((limit = least; limit <= least + 12000; limit += 250)); do
    rm -f result
    status=0
    err=$(printf 'quiet\n%s\n%s A result\n' "$1" "$2" |
      (ulimit -v "$limit" && exec "$zep") 2>&1 >/dev/null) || status=$?
    case $status in
      0) ;;
      10)
        exhausted=$((exhausted + 1))
        [[ "$err" == *"$message" ]] || status=message
        if [ -s result ] && ! cmp -s whole result &&
          ! { [ "$2" = putlinres ] && cmp -s part result; }; then
          status='half a result'
        fi
        ;;
      *) status="status $status" ;;
    esac
    case $status in
      0 | 10) ;;
      *) complain "$2 in $limit KB: $status: $(head -c 200 <<<"$err")" ;;
    esac
  done
}

for command in bumo sep betamat is_duf min socle omega linres linsyz \
  putscheme putsep putgbasis putbeta putmin putomega putlinid putlinom putlinres write; do
  squeeze 'random A 400' "$command"
done
squeeze $'dim 5\nrandom A 90' linres
squeeze $'dim 5\nrandom A 90' putlinres
[ "$exhausted" -ge 60 ] || complain "memory was exhausted $exhausted times only"

# What is deleted gives its memory back: there is room for the large set or for the small ones.
small_ones() { for i in {1..20}; do printf 'random S%s 1000\nbumo S%s\n' "$i" "$i"; done; }
large_one() { printf 'random A 3000\nbumo A\n'; }
(echo quiet; small_ones; echo del_all; large_one) |
  (ulimit -v 45000 && exec "$zep") >/dev/null 2>&1 || complain 'no room behind del_all'
try 'large and small sets together' 45000 < <(echo quiet; small_ones; large_one)

# Points that are only announced need no memory either.
cd "$work"
printf '4 2147483647\n1 2 3 4\n' >announced
said=$(printf 'scheme A announced\nget A 2147483647\n1 2 3 4\n' |
  (ulimit -v 60000 && exec "$zep") 2>&1) || complain 'announced points end the program'
for message in 'malformed point file' 'unexpected end of input'; do
  [[ "$said" == *"$message"* ]] || complain "announced points: no '$message'"
done

# What is only reported or dropped needs no memory.
if ! (printf 'list '; pad 40000000 a; printf '\n') | (ulimit -v 30000 && exec "$zep") >/dev/null; then
  complain 'a long line was not reported'
fi
exit "$failed"
