#!/usr/bin/env bash
# Runs one session of the program and compares everything that it does.
#   session.sh ZEP FOLDER
# FOLDER holds input.zep (standard input) and what must come of it: out and err (the two streams),
# status (the exit status, 0 if the file is missing), files/ (lies in the working folder of the
# session) and written/ (the files that the session must write there).
# With UPDATE=1 in the environment, writes out, err and status anew, to be read before they are kept.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"
zep=$(realpath "$1")
folder=$(realpath "$2")

mkdir "$work/run"
if [ -d "$folder/files" ]; then cp "$folder"/files/* "$work/run"; fi
status=0
(cd "$work/run" && timeout 60 "$zep" <"$folder/input.zep" >"$work/out" 2>"$work/err") || status=$?

if [ "${UPDATE:-}" = 1 ]; then
  cp "$work/out" "$work/err" "$folder"
  if [ "$status" -ne 0 ]; then echo "$status" >"$folder/status"; fi
fi

expected_status=0
if [ -f "$folder/status" ]; then expected_status=$(cat "$folder/status"); fi
[ "$status" -eq "$expected_status" ] || complain "exit status $status, expected $expected_status"
diff -u "$folder/out" "$work/out" || failed=1
diff -u "$folder/err" "$work/err" || failed=1
for file in "$folder"/written/*; do
  if [ ! -e "$file" ]; then continue; fi
  diff -u "$file" "$work/run/$(basename "$file")" || failed=1
done
exit "$failed"
