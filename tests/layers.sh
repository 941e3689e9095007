#!/usr/bin/env bash
# Fails when a file includes one of a layer above its own, or two headers include each other.
#   layers.sh TOP
set -euo pipefail
cd "$1"
layers=(arith linalg scheme front)
failed=0

allowed=()
for layer in "${layers[@]}"; do
  allowed+=("$layer")
  pattern=$(IFS='|'; echo "${allowed[*]}")
  found=$(grep -nE '^#include "' "$layer"/*.h "$layer"/*.cpp | grep -vE "#include \"($pattern)/" || true)
  if [ -n "$found" ]; then
    printf '%s reaches out of its layers:\n%s\n' "$layer" "$found"
    failed=1
  fi
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
if [ -n "$cycle" ]; then
  printf 'rooms depend on each other in a circle:\n%s\n' "$cycle"
  failed=1
fi
exit "$failed"
