#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails unless the program that times sessions works, and notices runs that fail.
#   bench_sessions.sh SESSIONS ZEP
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"
sessions=$(realpath "$1")
zep=$(realpath "$2")
cd "$work"
mkdir temporary
export TMPDIR=$work/temporary

"$sessions" --runs 1 --filter small "$zep" >one || complain 'one program: a failure'
[ "$(grep -cE '^small .*F_101( +[0-9]+\.[0-9]){2}$' one)" -eq 3 ] || complain "one program: $(cat one)"
"$sessions" --runs 2 --filter 'small 5 ' "$zep" "$zep" >two || complain 'two programs: a failure'
[ "$(grep -cE '^small .*F_101( +[0-9]+\.[0-9]+){5}$' two)" -eq 1 ] || complain "two programs: $(cat two)"

# must_fail WHAT REASON ARGUMENT...: says the reason, and ends with status 1.
must_fail() {
  local what=$1 reason=$2 status=0
  shift 2
  "$sessions" --runs 1 "$@" >out 2>&1 || status=$?
  [ "$status" -eq 1 ] || complain "$what: status $status"
  [[ "$(cat out)" == *"$reason"* ]] || complain "$what: $(cat out)"
}

# Takes its commands, but reports one of them.
cat >complaining <<'END'
#!/bin/sh
echo '% command or indentifier unknown'
echo 'thanks for using'
END
chmod 755 complaining

must_fail 'a failing program' 'exit status 1' --filter small /bin/false
must_fail 'a failing second program' 'exit status 1' --filter 'small 5 ' "$zep" /bin/false
must_fail 'a silent program' 'no farewell' --filter small /bin/true
must_fail 'a complaining program' 'indentifier unknown' --filter small ./complaining
must_fail 'a missing program' "can't run" ./missing
must_fail 'a filter without a case' 'no such case' --filter large "$zep"
must_fail 'no program' 'usage'

[ -z "$(ls temporary)" ] || complain "left behind: $(ls temporary)"
exit "$failed"
