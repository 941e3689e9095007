#!/usr/bin/env bash
# Fails unless the program takes closed or unreadable standard streams in its stride.
#   closed_streams.sh ZEP
set -euo pipefail
zep=$1
farewell=$'thanks for using ZEP\n-------------------------------------------------------------------------------'
failed=0

# ends_well WHAT STATUS OUTPUT
ends_well() {
  if [ "$2" -ne 0 ] || [[ "$3" != *"$farewell" ]]; then
    printf '%s: status %s, output: %s\n' "$1" "$2" "$3"
    failed=1
  fi
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
