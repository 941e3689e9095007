#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails when a file includes one of a floor above its own, rooms depend on each other in a circle, a
# file is on no floor, or one has more than 400 lines.
#   floors.sh TOP
# The order of the floors is that of base/floors.h.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"
cd "$1"

# Folders, from the ground up; those of one line are one floor.
mapfile -t floors < <(sed -n 's|^//     ||p' base/floors.h)
[ "${#floors[@]}" -gt 1 ] || complain 'base/floors.h names no floors'

files_of() {
  local folder
  # shellcheck disable=SC2086 # a floor may have several folders
  for folder in $1; do printf '%s\n' "$folder"/*.h "$folder"/*.cpp; done | grep -v '\*' || true
}

# includes FILE...: lines of file and included file.
includes() { grep -HoE '^#include "[^"]+' "$@" | sed 's/:#include "/ /' || true; }

allowed=()
: >"$work/files"
for floor in "${floors[@]}"; do
  mapfile -t files < <(files_of "$floor")
  printf '%s\n' "${files[@]}" >>"$work/files"
  # shellcheck disable=SC2206 # a floor may have several folders
  allowed+=($floor)
  pattern=$(IFS='|'; echo "${allowed[*]}")
  upward=$(includes "${files[@]}" | grep -vE " ($pattern)/[^/]+\$" || true)
  [ -z "$upward" ] || complain "$floor reaches above itself:"$'\n'"$upward"
done

# A room is a header with its source; tsort complains when rooms depend on each other in a circle.
mapfile -t files <"$work/files"
cycle=$(includes "${files[@]}" | sed -E 's/\.(h|cpp)( |$)/\2/g' | tsort 2>&1 >/dev/null) || true
[ -z "$cycle" ] || complain 'rooms depend on each other in a circle:'$'\n'"$cycle"

folders=$(printf '%s\n' "${floors[@]}" | tr ' ' '\n' | sed 's|/.*||' | sort -u)
# shellcheck disable=SC2086 # one folder a word
homeless=$(find $folders -name '*.h' -o -name '*.cpp' | sort | comm -13 <(sort "$work/files") -)
[ -z "$homeless" ] || complain 'on no floor:'$'\n'"$homeless"

# shellcheck disable=SC2086
long=$(find $folders bench tests tools -type f \( -name '*.cpp' -o -name '*.h' -o -name '*.sh' \) \
  -exec awk 'END { if (FNR > 400) print FILENAME ": " FNR }' {} \;)
[ -z "$long" ] || complain 'files of more than 400 lines:'$'\n'"$long"
exit "$failed"
