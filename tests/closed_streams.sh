#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails unless the program takes closed or unreadable standard streams in its stride.
#   closed_streams.sh ZEP
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"
zep=$1
farewell=$'thanks for using ZEP\n-------------------------------------------------------------------------------'

# ends_well WHAT STATUS OUTPUT
ends_well() {
  [ "$2" -eq 0 ] && [[ "$3" == *"$farewell" ]] || complain "$1: status $2, output: $3"
}

status=0 && out=$("$zep" <&- 2>&1) || status=$?
ends_well 'closed standard input' "$status" "$out"
status=0 && out=$("$zep" </ 2>&1) || status=$?
ends_well 'a folder as standard input' "$status" "$out"
status=0 && out=$(printf 'random A 5\nsep A\n' | "$zep" 2>&-) || status=$?
ends_well 'closed standard error' "$status" "$out"
status=0 && printf "random A 5\nsep A\n" | "$zep" >&- 2>/dev/null || status=$?
ends_well 'closed standard output' "$status" "$farewell"
exit "$failed"
