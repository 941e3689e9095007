#!/usr/bin/env bash
# Fails unless the session in the README prints what the README says.
#   readme.sh ZEP TOP
set -euo pipefail
block() { awk -v fence="\`\`\`$1" '$0 == "```" { inside = 0 } inside { print } $0 == fence { inside = 1 }' "$2"; }
session=$(block zep "$2/README.md")
[ -n "$session" ]
diff -u <(block text "$2/README.md") <("$1" <<<"$session" 2>/dev/null)
