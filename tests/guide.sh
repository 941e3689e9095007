#!/usr/bin/env bash
# Runs the sessions in the user's guide and in README.md, and compares what they do with what stands
# there. Fails also unless each command of `help` is used in a session of the guide and has a row in its
# last table, and each link to a chapter of the guide finds one.
#   guide.sh ZEP TOP
# All fenced blocks count, and there are no others than these:
#   zep          a session; it runs in an empty folder
#   given NAME   before a session: a file that lies in its folder
# and behind a session
#   text         a run of lines that the session prints, below those of the text block before
#   output       all that it prints
#   file NAME    all of a file that it writes
#   errors       all that it says on standard error; without such a block, nothing
#   status       its exit status; without such a block, 0
# Each session needs one of text, output and file. Comparisons are exact, blanks at the ends included.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"
zep=$(realpath "$1")
top=$(realpath "$2")

# take_apart DOCUMENT: puts the contents of its blocks into files, and prints a line for each:
#   line number, that file, kind, name
take_apart() {
  awk -v work="$work" '
    inside && /^```$/ { inside = 0; close(block); next }
    inside { print > block; next }
    /^[ \t]*(```|~~~)/ {
      inside = 1
      block = work "/block" NR
      printf "" > block
      print NR, block, substr($0, 4)
    }
    END { if (inside) print NR, block, "unclosed" }' "$1"
}

# first_behind START BLOCK LINES: the number of the line behind the first run of lines, from line START
# on, that is the block; fails when there is none.
first_behind() {
  awk -v start="$1" '
    NR == FNR { block[++size] = $0; next }
    { line[FNR] = $0 }
    END {
      for (first = start; first + size - 1 <= FNR; ++first) {
        for (i = 1; i <= size && line[first + i - 1] == block[i]; ++i) {}
        if (i > size) { print first + size; exit 0 }
      }
      exit 1
    }' "$2" "$3"
}

# The session at hand: where it stands, what it printed, and what has been compared.
session=
run() {
  local status=0
  session=$1
  next_line=1
  shown=no
  : >"$work/expected_errors"
  echo 0 >"$work/expected_status"
  (cd "$work/run" && timeout 60 "$zep" <"$2" >"$work/out" 2>"$work/err") || status=$?
  echo "$status" >"$work/status"
}

finish() {
  [ -n "$session" ] || return 0
  [ "$shown" = yes ] || complain "$session: nothing shows what the session does"
  diff -u "$work/expected_errors" "$work/err" || complain "$session: other errors"
  diff -u "$work/expected_status" "$work/status" || complain "$session: another exit status"
  session=
  empty_folder
}

empty_folder() { rm -rf "$work/run" && mkdir "$work/run"; }

# check_block WHERE FILE KIND NAME
check_block() {
  local where=$1 block=$2 kind=$3 name=$4
  [ -s "$block" ] || complain "$where: the block is empty"
  case "$kind" in zep | given) finish ;; *) [ -n "$session" ] || complain "$where: no session before" ;; esac
  case "$kind${name:+ NAME}" in
    zep) run "$where" "$block" ;;
    'given NAME') cp "$block" "$work/run/$name" ;;
    text)
      shown=yes
      next_line=$(first_behind "$next_line" "$block" "$work/out") ||
        { complain "$where: no such run of lines in the output"; next_line=1; }
      ;;
    output)
      shown=yes
      diff -u "$block" "$work/out" || complain "$where: another output"
      ;;
    'file NAME')
      shown=yes
      diff -u "$block" "$work/run/$name" || complain "$where: another file"
      ;;
    errors) cp "$block" "$work/expected_errors" ;;
    status) cp "$block" "$work/expected_status" ;;
    *) complain "$where: a block that is not checked: $kind $name" ;;
  esac
}

check_document() {
  local line block kind name
  session=
  empty_folder
  take_apart "$top/$1" >"$work/blocks"
  grep -q ' zep$' "$work/blocks" || complain "$1: no session"
  while read -r line block kind name; do
    check_block "$1:$line" "$block" "$kind" "$name"
  done <"$work/blocks"
  finish
  [ -z "$(ls "$work/run")" ] || complain "$1: a file is given to no session"
}

commands() {
  "$zep" <<<help 2>&1 | awk '
    /^-/ { inside = 0 }
    inside { for (i = 1; i <= NF; ++i) print $i }
    /list of commands/ { inside = 1 }'
}

# The names under which chapters of the guide can be linked to, and the links.
chapters() { sed -n 's/^#* //p' "$top/docs/guide.md" | tr 'A-Z ' 'a-z-' | tr -cd 'a-z0-9\n-'; }
links() { grep -o '](#[^)]*)' "$top/docs/guide.md" | sed 's/^](#//; s/)$//'; }

check_document README.md
check_document docs/guide.md

commands >"$work/commands"
awk '/^```/ { inside = ($0 == "```zep"); next } inside' "$top/docs/guide.md" >"$work/sessions"
[ -s "$work/commands" ] || complain 'help lists nothing'
while read -r command; do
  grep -qx "$command\( .*\)\?" "$work/sessions" || complain "no session of the guide uses $command"
  grep -q "^| \`$command\` |" "$top/docs/guide.md" || complain "no row of the guide is for $command"
done <"$work/commands"

chapters >"$work/chapters"
while read -r link; do
  grep -Fqx -e "$link" "$work/chapters" || complain "the guide has no chapter #$link"
done < <(links)
exit "$failed"
