#!/usr/bin/env bash
# Fails unless docs/developers.md has one paragraph for each room of the house, a header with its
# source, and names no file that does not exist.
#   developers.sh TOP
# A paragraph begins with the room, in bold and without extension, or with several of them.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"
cd "$1"
document=docs/developers.md

rooms() {
  find base arith linalg points text reference front -name '*.h' -o -name '*.cpp' |
    sed 's/\.[a-z]*$//' | grep -v '^base/floors$' | LC_ALL=C sort -u
}
described() {
  awk '!behind && /^\*\*/ { print } { behind = NF }' "$document" |
    { grep -oE '\*\*[a-z]+/[A-Za-z0-9_/]+\*\*' || true; } | tr -d '*' | LC_ALL=C sort
}
# shellcheck disable=SC2016 # backquotes are what is looked for
files_named() {
  { grep -oE '`[A-Za-z0-9_-]+/[A-Za-z0-9_./-]+`' "$document" || true; } | tr -d '`' |
    grep -vE '^build[a-z-]*/' | sort -u
}

if ! diff <(rooms) <(described); then
  complain "$document: < a room without a paragraph; > a paragraph without a room, or a second one"
fi
while read -r name; do
  [ -e "$name" ] || [ -e "$name.h" ] || complain "$document: $name does not exist"
done < <(files_named)
exit "$failed"
