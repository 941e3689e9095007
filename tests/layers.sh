#!/usr/bin/env bash
# Fails when a file includes one of a layer above its own, rooms depend on each other in a circle, or a
# file has more than 400 lines.
#   layers.sh TOP
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"
cd "$1"
layers=(arith linalg scheme front)

allowed=()
for layer in "${layers[@]}"; do
  allowed+=("$layer")
  pattern=$(IFS='|'; echo "${allowed[*]}")
  found=$(grep -nE '^#include "' "$layer"/*.h "$layer"/*.cpp | grep -vE "#include \"($pattern)/" || true)
  [ -z "$found" ] || complain "$layer reaches out of its layers:"$'\n'"$found"
done

# A room is a header with its source; tsort complains when rooms depend on each other in a circle.
cycle=$(
  for file in "${layers[@]/%//*}"; do
    # shellcheck disable=SC2086 # the pattern is meant to be expanded
    for room in $file; do
      grep -hoE '^#include "[^"]+' "$room" | sed -E 's/#include "//; s/\.h$//' |
        while read -r used; do echo "${room%.*} $used"; done
    done
  done | tsort 2>&1 >/dev/null
) || true
[ -z "$cycle" ] || complain 'rooms depend on each other in a circle:'$'\n'"$cycle"

long=$(find "${layers[@]}" bench tests tools -type f \( -name '*.cpp' -o -name '*.h' -o -name '*.sh' \) \
  -exec awk 'END { if (FNR > 400) print FILENAME ": " FNR }' {} \;)
[ -z "$long" ] || complain 'files of more than 400 lines:'$'\n'"$long"
exit "$failed"
