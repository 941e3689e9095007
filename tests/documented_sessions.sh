#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs the sessions in documents, and compares what they do with what stands there.
#   documented_sessions.sh ZEP DOCUMENT...
# With UPDATE=1 in the environment, writes into the documents what the sessions do, also where no block
# shows it yet, to be read before it is kept.
# All fenced blocks count, and there are no others than these:
#   given NAME   before a session: a file that lies in its folder, which is empty otherwise
#   zep          a session, or its first turn
#   zep more     its next turn
#                With `escaped` behind one of these kinds, backslashes in the block begin escapes, those
#                of printf '%b', for characters that are not seen, such as \r.
# and behind a turn, each at most once,
#   output       all that standard output gets until the program wants the first line of the next turn;
#                the greeting belongs to the first turn, and all to the end to the last
#   errors       what standard error gets meanwhile; without such a block, nothing
#   status       behind the last turn: the exit status; without such a block, 0
# and behind a session
#   text         a run of lines that it prints, below those of the text block before
#   file NAME    all of a file that it writes, as it is in the end
# Each turn that prints anything has its output, and each file that is written its block; but a session
# of one turn can do with text or file blocks that show some of that. Comparisons are exact, blanks at
# the ends included. The last line end in a block belongs to what it shows, unless the word `unended`
# comes last behind the fence, as it does where a turn ends at a prompt.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"
zep=$(realpath "$1")
shift
# Typed in place of the next turn, to see where that is read.
mark='~ here begins the next turn ~'

# take_apart DOCUMENT: puts its blocks and what stands between them into files piece.0, piece.1, ...
# Prints for each where it begins, and what stands behind its opening fence, or `prose`.
take_apart() {
  LC_ALL=C awk -v pieces="$work/piece." '
    function begin(kind) {
      if (count) close(piece)
      piece = pieces (count++)
      printf "" > piece
      print NR, kind
    }
    BEGIN { begin("prose") }
    inside && /^```$/ { inside = 0; begin("prose"); next }
    !inside && /^[ \t]*(```|~~~)/ { inside = 1; begin(substr($0, 4)); next }
    { print > piece }
    END { if (inside) print NR, "unclosed" }' "$1"
}

# What is known of the document at hand. Turns and sessions are named by the number of the piece that
# they begin with. `has` has "turn NAME KIND" and "session NAME KIND" for the blocks behind them. What
# is typed in a turn, or lies in a given file, is in a file input.NUMBER.
read_document() {
  local line kind number session='' turn=''
  document=$1
  lines=() kinds=() turns=() escaped=()
  declare -gA has=()
  while read -r line kind; do
    number=${#kinds[@]}
    if [[ "$kind" == *' unended' ]]; then truncate -s -1 "$work/piece.$number"; fi
    kind=${kind% unended}
    case "$kind" in
      zep*' escaped' | given*' escaped')
        kind=${kind% escaped}
        escaped[number]=' escaped'
        unescape <"$work/piece.$number" >"$work/input.$number"
        ;;
      zep* | given*) cp "$work/piece.$number" "$work/input.$number" ;;
    esac
    lines+=("$line")
    kinds+=("$kind")
    case "$kind" in
      zep) session=$number turn=$number turns[session]=$number ;;
      'zep more') turn=$number turns[session]+=" $number" ;;
    esac
    has[turn $turn ${kind%% *}]=yes
    has[session $session ${kind%% *}]=yes
    has[session $session $kind]=yes
  done < <(take_apart "$document")
}

unescape() {
  local text
  text=$(cat && echo .)
  printf '%b' "${text%.}"
}

# run INPUT OPTION...: a run of the program among the given files alone. It leaves out, err and status.
run() {
  status=0
  rm -rf "$work/run"
  cp -r "$work/given" "$work/run"
  (cd "$work/run" && timeout 60 "$zep" "${@:2}" <"$1" >"$work/out" 2>"$work/err") || status=$?
}

# part FILE FROM TO: the bytes between two places; TO may lie behind the end.
part() { head -c "$3" "$1" | tail -c "+$(($2 + 1))"; }

# carry_out TURN...: runs a session, and makes what it does into files TURN.output, TURN.errors and
# TURN.status. Where a turn ends is seen in a run with --echo, which repeats each line when it is read,
# with the mark in place of all that follows the turn. The mark says nothing on standard error.
carry_out() {
  local turn place last=${*: -1} out_from=0 err_from=0
  local -A out_to=() err_to=()
  : >"$work/typed"
  for turn in "$@"; do
    cat "$work/input.$turn" >>"$work/typed"
    [ "$turn" != "$last" ] || break
    { cat "$work/typed" && echo "$mark"; } >"$work/marked"
    run "$work/marked" --echo
    place=$(LC_ALL=C grep -m 1 -obaF -e "$mark" "$work/out" | cut -d : -f 1) || true
    # Without the mark the program has ended before; then all the rest belongs to this turn.
    [ -n "$place" ] || continue
    out_to[$turn]=$((place - $(wc -c <"$work/typed")))
    err_to[$turn]=$(wc -c <"$work/err")
  done
  run "$work/typed"
  : >"$work/all_output"
  : >"$work/all_errors"
  for turn in "$@"; do
    : "${out_to[$turn]:=$(wc -c <"$work/out")}" "${err_to[$turn]:=$(wc -c <"$work/err")}"
    part "$work/out" "$out_from" "${out_to[$turn]}" >"$work/$turn.output"
    part "$work/err" "$err_from" "${err_to[$turn]}" >"$work/$turn.errors"
    : >"$work/$turn.status"
    cat "$work/$turn.output" >>"$work/all_output"
    cat "$work/$turn.errors" >>"$work/all_errors"
    out_from=${out_to[$turn]} err_from=${err_to[$turn]}
  done
  [ "$status" -eq 0 ] || echo "$status" >"$work/$last.status"
  { cmp "$work/all_output" "$work/out" && cmp "$work/all_errors" "$work/err"; } ||
    complain "$where: the turns are not all that is printed"
}

# write_block KIND FILE: a block of the document as it should be.
write_block() {
  if [ ! -s "$2" ] || [ "$(tail -c 1 "$2" | wc -l)" -eq 1 ]; then
    printf '```%s\n' "$1"
    cat "$2"
    printf '```\n'
  else
    printf '```%s unended\n' "$1"
    cat "$2"
    printf '\n```\n'
  fi >>"$work/anew"
}

# write_part KIND: what the turn at hand has of that kind, but not twice, and nothing as no block.
write_part() {
  [ -s "$work/$turn.$1" ] || return 0
  write_block "$1" "$work/$turn.$1"
  : >"$work/$turn.$1"
}

# Writes what the turn at hand has and no block behind it shows, unless it can be left out.
write_missing_parts() {
  local kind
  for kind in output errors status; do
    if [ -n "${has[turn $turn $kind]:-}" ] || [ ! -s "$work/$turn.$kind" ]; then continue; fi
    if [ "$kind" = output ] && partly_shown; then continue; fi
    echo >>"$work/anew"
    write_part "$kind"
  done
  if [ "$turn" = "${turns[session]##* }" ] && ! partly_shown; then write_missing_files; fi
}

write_missing_files() {
  local file name
  for file in "$work"/run/*; do
    name=$(basename "$file")
    if [ ! -f "$file" ] || [ -n "${has[session $session file $name]:-}" ] ||
      cmp -s "$file" "$work/was_given/$name"; then continue; fi
    echo >>"$work/anew"
    write_block "file $name" "$file"
  done
}

# Whether the session at hand is a single turn, and text or file blocks show what matters of it.
partly_shown() {
  [ "${turns[session]}" = "$session" ] &&
    [ -n "${has[session $session text]:-}${has[session $session file]:-}" ]
}

# first_behind START BLOCK LINES: the number of the line behind the first run of lines, from line START
# on, that is the block; fails when there is none.
first_behind() {
  LC_ALL=C awk -v start="$1" '
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

empty_folder() { rm -rf "${work:?}/$1" && mkdir "$work/$1"; }

# write_anew NUMBER: writes what should stand in place of a piece, and complains where nothing can.
write_anew() {
  local piece=$work/piece.$1 kind=${kinds[$1]}
  local name=${kind#* }
  where=$document:${lines[$1]}
  case "$kind" in
    prose)
      cat "$piece" >>"$work/anew"
      return
      ;;
    'given '*)
      session=
      cp "$work/input.$1" "$work/given/$name"
      write_block "$kind${escaped[$1]:-}" "$piece"
      return
      ;;
    zep)
      session=$1
      next_line=1
      # shellcheck disable=SC2086 # several turns
      carry_out ${turns[session]}
      rm -rf "$work/was_given"
      mv "$work/given" "$work/was_given"
      mkdir "$work/given"
      ;;
  esac
  if [ -z "$session" ]; then
    complain "$where: no session before"
    return
  fi
  case "$kind" in
    zep | 'zep more')
      turn=$1
      write_block "$kind${escaped[$1]:-}" "$piece"
      write_missing_parts
      ;;
    output | errors | status) write_part "$kind" ;;
    text)
      [ -s "$piece" ] || complain "$where: the block is empty"
      next_line=$(first_behind "$next_line" "$piece" "$work/out") ||
        { complain "$where: no such run of lines in the output"; next_line=1; }
      write_block "$kind" "$piece"
      ;;
    'file '*)
      if [ -f "$work/run/$name" ]; then
        write_block "$kind" "$work/run/$name"
      else
        complain "$where: no such file"
      fi
      ;;
    *) complain "$where: a block that is not checked: $kind" ;;
  esac
}

check_document() {
  local i
  rm -f "$work"/piece.*
  empty_folder given
  : >"$work/anew"
  read_document "$1"
  session=
  for i in "${!kinds[@]}"; do write_anew "$i"; done
  [ "${#turns[@]}" -gt 0 ] || complain "$document: no session"
  [ -z "$(ls "$work/given")" ] || complain "$document: a file is given to no session"
  if [ "${UPDATE:-}" = 1 ] && [ "$failed" -eq 0 ]; then cp "$work/anew" "$document"; fi
  diff -u --text --label "$document" --label 'what the sessions do' "$document" "$work/anew" || failed=1
}

for document in "$@"; do check_document "$document"; done
exit "$failed"
