#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails unless a session outlives whatever is wrong with the files and pipes around it.
#   faults.sh ZEP
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"
zep=$(realpath "$1")
mounted=
trap '[ -z "$mounted" ] || umount "$mounted"; rm -rf "$work"' EXIT
cd "$work"
farewell='thanks for using ZEP'
results=(putscheme putbeta putsep putgbasis putmin putomega write putlinid putlinom putlinres
  putlinsyz putlinomsyz writelinid writelinom writelinres)

# session WHAT NAME: writes every kind of result into the file, in one session that goes on after
# each; the output is in $out, standard error in $err.
session() {
  local status=0 command
  {
    echo 'random A 6'
    for command in "${results[@]}"; do printf '%s A %s\nalpha A\n' "$command" "$2"; done
  } >commands
  out=$(timeout 60 "$zep" <commands 2>errors) || status=$?
  err=$(cat errors)
  [ "$status" -eq 0 ] || complain "$1: status $status"
  [[ "$out" == *"$farewell"* ]] || complain "$1: no farewell"
  [ "$(grep -c 'alpha = 2' <<<"$out")" -eq "${#results[@]}" ] || complain "$1: lost a command"
}

# count TEXT: how many lines of $out or $err hold it.
count() { grep -c -- "$1" <<<"$2" || true; }

# putlinres opens its file twice.
opened=$((${#results[@]} + 1))

cant_be_opened() {
  session "$1" "$2"
  [ "$(count "can't open file" "$out")" -eq "$opened" ] || complain "$1: not reported each time"
}

cant_be_written() {
  session "$1" "$2"
  # Of these six points, no linear syzygies are left to be written.
  [ "$(count "can't write all of $2" "$err")" -ge $((opened - 3)) ] ||
    complain "$1: $(count "can't write all" "$err") warnings"
}

cant_be_opened 'a folder' .
cant_be_opened 'a missing folder' missing/result
mkfifo idle
# Once is enough: each time it is waited for.
out=$(timeout 60 "$zep" <<<$'random A 6\nputsep A idle\nalpha A' 2>&1) || complain 'an idle pipe: status'
[[ "$out" == *"can't open file"*"alpha = 2"*"$farewell"* ]] || complain 'an idle pipe is not reported'
mkdir locked && chmod 555 locked
if [ "$(id -u)" -ne 0 ]; then
  cant_be_opened 'an unwritable folder' locked/result
elif command -v setpriv >/dev/null; then
  # Root may write everywhere: somebody else tries, with a copy of the program that all may read.
  chmod 755 . && cp "$zep" unprivileged && chmod 755 unprivileged
  out=$(timeout 60 setpriv --reuid=65534 --regid=65534 --clear-groups ./unprivileged \
    <<<$'random A 6\nputsep A locked/result\nalpha A' 2>&1) || complain 'an unwritable folder: status'
  [[ "$out" == *"can't open file"*"alpha = 2"*"$farewell"* ]] || complain 'an unwritable folder: not reported'
fi
cant_be_written 'a full device' /dev/full
mkdir tiny
if mount -t tmpfs -o size=4096 tmpfs tiny 2>/dev/null; then
  mounted=$work/tiny
  head -c 4096 /dev/zero >tiny/filling
  cant_be_written 'a full disk' tiny/result
fi

session 'the null device' /dev/null
[ "$(count "can't" "$out$err")" -eq 0 ] || complain 'the null device is refused'

# Readers that stay, and one that goes away after the first line.
mkfifo pipe
cat pipe >copy &
timeout 60 "$zep" <<<$'quiet\nrandom A 6\nputsep A pipe' >/dev/null || complain 'a pipe: status'
wait
timeout 60 "$zep" <<<$'quiet\nrandom A 6\nputsep A file' >/dev/null || complain 'a file: status'
cmp copy file || complain 'a pipe does not get what a file gets'
head -1 pipe >/dev/null &
out=$(timeout 60 "$zep" <<<$'quiet\nrandom A 400\nputsep A pipe\nalpha A' 2>errors) ||
  complain 'a reader that goes away: status'
wait
[[ "$out" == *'alpha = '*"$farewell"* ]] || complain 'a reader that goes away ends the session'

# Point files: a pipe that is written to, and one that is not.
printf '4 1 1 2 3 4\n' >pipe &
out=$(timeout 60 "$zep" <<<$'scheme A pipe\nA' 2>&1) || complain 'a point file from a pipe: status'
wait
[[ "$out" == *'<1:2:3:4>'* ]] || complain 'a point file from a pipe is not read'
out=$(timeout 60 "$zep" <<<$'scheme A idle\nlist' 2>&1) || complain 'a silent pipe: status'
[[ "$out" == *'malformed point file'*"$farewell"* ]] || complain 'a silent pipe is waited for'
for file in /dev/zero /dev/null .; do
  out=$(timeout 60 "$zep" <<<"scheme A $file" 2>&1) || complain "$file as a point file: status"
  [[ "$out" == *"$farewell"* ]] || complain "$file as a point file ends the session"
done

# A session that can be opened, but not read.
if [ -r /proc/self/mem ]; then
  out=$(timeout 60 "$zep" /proc/self/mem 2>&1) || complain "an unreadable session: status"
  [[ "$out" == *"$farewell"* ]] || complain 'an unreadable session does not end in order'
fi

# Standard output: a reader that goes away is no fault, a full disk is one.
printf 'random A 300\nsep A\nsep A\nsep A\n' >commands
status=0
timeout 60 "$zep" <commands 2>errors | head -1 >/dev/null || status=$?
[ "$status" -eq 0 ] || complain "output into a pipe that closes: status $status"
[ "$(count "can't write" "$(cat errors)")" -eq 0 ] || complain 'output into a pipe that closes: a message'
status=0
timeout 60 "$zep" <commands >/dev/full 2>errors || status=$?
[ "$status" -eq 1 ] || complain "a full standard output: status $status"
[ "$(count "can't write to standard output" "$(cat errors)")" -eq 1 ] ||
  complain 'a full standard output: no message'
exit "$failed"
