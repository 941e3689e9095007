#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails unless each folder of the floors has a README of one screen that names each of its rooms, a
# header with its source, and no document for developers names a file that does not exist.
#   developers.sh TOP
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"
cd "$1"
one_screen=60

mapfile -t floors < <(sed -n 's|^//     ||p' base/floors.h)
for folder in "${floors[@]}"; do
  readme=$folder/README.md
  [ -f "$readme" ] || { complain "$folder has no README.md"; continue; }
  lines=$(wc -l <"$readme")
  [ "$lines" -le "$one_screen" ] || complain "$readme has $lines lines, a screen $one_screen"
  for file in "$folder"/*.h "$folder"/*.cpp; do
    [ -e "$file" ] || continue
    room=$(basename "${file%.*}")
    grep -q "\`$room\`" "$readme" || complain "$readme says nothing of $room"
  done
  while read -r room; do
    [ -e "$folder/$room.h" ] || [ -e "$folder/$room.cpp" ] || complain "$readme: there is no room $room"
  done < <(sed -n '/^| `/{s/^| \([^|]*\)|.*/\1/; s/[`,]/ /g; p}' "$readme" | tr -s ' ' '\n' | grep . || true)
done

# shellcheck disable=SC2016 # backquotes are what is looked for
files_named() {
  { grep -oE '`[A-Za-z0-9_-]+/[A-Za-z0-9_./-]+`' "$1" || true; } | tr -d '`' |
    grep -vE '^build[a-z-]*/' | sort -u
}
for document in docs/developers.md tests/README.md bench/README.md CONTRIBUTING.md; do
  while read -r name; do
    [ -e "$name" ] || [ -e "$name.h" ] || complain "$document: $name does not exist"
  done < <(files_named "$document")
done
exit "$failed"
