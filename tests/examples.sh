#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs the examples, each in an empty folder, and compares what they print.
#   examples.sh ZEP FOLDER
# Each NAME.zep in FOLDER must print NAME.txt, nothing on standard error, and end with status 0. It
# must have a section `## NAME` in README.md there, and whatever that section quotes must be lines of
# NAME.txt or of a file that the session writes, but for prompts and blanks at the end.
# With UPDATE=1 in the environment, writes NAME.txt anew, to be read before it is kept.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"
zep=$(realpath "$1")
folder=$(realpath "$2")

plain_lines() { sed 's/^\(% \)*//; s/ *$//'; }

quoted_in_section() {
  awk -v heading="## $1" '
    /^## / { ours = ($0 == heading) }
    $0 == "```" { quoted = 0 }
    ours && quoted { print }
    $0 == "```text" { quoted = 1 }' "$folder/README.md"
}

run_example() {
  local name=$1 status=0 line
  mkdir "$work/run"
  (cd "$work/run" && timeout 60 "$zep" <"$folder/$name.zep" >"$work/out" 2>"$work/err") || status=$?
  [ "$status" -eq 0 ] || complain "$name: exit status $status"
  diff -u /dev/null "$work/err" || complain "$name: something on standard error"
  if [ "${UPDATE:-}" = 1 ]; then cp "$work/out" "$folder/$name.txt"; fi
  diff -u "$folder/$name.txt" "$work/out" || complain "$name: prints something else"
  find "$work/out" "$work/run" -type f -exec cat {} + | plain_lines >"$work/lines"
  quoted_in_section "$name" | plain_lines >"$work/quoted"
  [ -s "$work/quoted" ] || complain "$name: README.md quotes nothing"
  while IFS= read -r line; do
    grep -Fqx -e "$line" "$work/lines" ||
      complain "$name: README.md quotes what is not there: $line"
  done <"$work/quoted"
  rm -r "$work/run"
}

# names EXTENSION: what the files that have it are called without it, sorted.
names() { (cd "$folder" && printf '%s\n' *."$1") | sed "s/\.$1\$//" | LC_ALL=C sort; }

[ -e "$folder/README.md" ]
for example in "$folder"/*.zep; do
  run_example "$(basename "$example" .zep)"
done
diff -u <(names zep) <(names txt) || complain "each .zep needs its .txt, each .txt its .zep"
diff -u <(names zep) <(sed -n 's/^## //p' "$folder/README.md" | LC_ALL=C sort) ||
  complain "each example needs its section in README.md, each section its example"
exit "$failed"
