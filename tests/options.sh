#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails unless every option does what it says, on the stream and with the status that it says.
#   options.sh ZEP
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"
zep=$(realpath "$1")
cd "$work"

# runs STATUS ARGUMENT...: runs zep with standard input from the file `in`, its output in out and err.
touch in
runs() {
  local expected=$1 status=0
  shift
  "$zep" "$@" <in >out 2>err || status=$?
  [ "$status" -eq "$expected" ] || complain "status $status instead of $expected: zep $*"
  what="zep $*"
}
# has FILE TEXT: the file is exactly the text.
has() { diff -u --label expected --label "$1 of $what" <(printf '%s' "$2") "$1" || failed=1; }
# begins FILE TEXT
begins() { [[ "$(cat "$1")" == "$2"* ]] || complain "$1 of $what: $(head -3 "$1")"; }
rule=$(printf -- '-%.0s' {1..79})
# The first time, a line comes before it.
alpha="$rule
alpha = 1
$rule
"

runs 0 --help
begins out 'usage: zep'
has err ''
for option in -e -i -q --echo --log --seed --stop-on-error --commands --help --version; do
  grep -q -- "^  $option" out || complain "--help leaves out $option"
done
runs 0 --version
[[ "$(cat out)" =~ ^zep\ [0-9]+\.[0-9]+\.[0-9]+$ ]] || complain "version: $(cat out)"
has err ''
runs 0 --commands
has err ''
awk '{ print $1 }' out >described
echo help | "$zep" -q | head -n -1 | tail -n +2 | tr -s ' ' '\n' | grep . >listed
diff -u listed described || complain 'commands: not those of help'
LC_ALL=C sort -cu described || complain 'commands: not in order'

for wrong in --nonsense -x --log --seed --echo=yes; do
  runs 2 "$wrong"
  has out ''
  [ "$(wc -l <err)" -eq 2 ] || complain "$wrong: $(cat err)"
  [[ "$(tail -1 err)" == "Try 'zep --help'." ]] || complain "$wrong: $(cat err)"
done
for seed in x -1 1x '' 4294967296; do
  runs 2 --seed "$seed"
  has err "zep: the seed has to be a number from 0 to 4294967295
Try 'zep --help'.
"
done

# Without arguments, and with a file, the same.
printf 'quiet\nget A 1\n1 2 3 4\nalpha A\nquit\n' >point.zep
cp point.zep in
runs 0
cp out by_hand
runs 0 point.zep
cmp out by_hand
runs 0 -
cmp out by_hand
: >in

# -q leaves out all but the answers.
runs 0 -q point.zep
has out "1. point entered : <1:2:3:4>
$alpha"
has err ''
runs 0 -q -e 'range 7'
has out "current range : [0,50]
current range : [0,7]
$rule
"

# Sessions follow each other, and what one has made is there in the next.
printf 'alpha A' >alpha.zep
runs 0 -q point.zep alpha.zep -e 'sigma A;delta A
alpha A'
has out "1. point entered : <1:2:3:4>
${alpha}alpha = 1
$rule
sigma = -1
$rule
delta = 1
$rule
alpha = 1
$rule
"
runs 0 point.zep alpha.zep
[ "$(grep -c 'welcome to ZEP' out)" -eq 1 ] || complain 'more than one banner'
[ "$(grep -c 'thanks for using ZEP' out)" -eq 1 ] || complain 'more than one farewell'
printf 'sigma A\n' >in
runs 0 -q point.zep - alpha.zep
[[ "$(cat out)" == *$'sigma = -1\n'*'alpha = 1'* ]] || complain "standard input between files: $(cat out)"
runs 0 -q -i point.zep
[[ "$(tail -2 out)" == "sigma = -1"* ]] || complain "-i: $(cat out)"
runs 0 -q -i
has out "indentifier unknown
"
: >in
runs 1 -q point.zep missing.zep alpha.zep
has err "zep: can't open missing.zep
"
[ "$(grep -c alpha out)" -eq 1 ] || complain "a session behind a missing one: $(cat out)"
mkdir folder
runs 1 -q folder
has err "zep: can't open folder
"
printf 'sigma A\n' >./--odd
runs 0 -q point.zep -- --odd
[[ "$(tail -2 out)" == "sigma = -1"* ]] || complain "a name behind --: $(cat out)"

# --echo makes a transcript, also of what is asked for and of a line without end.
runs 0 --echo -e 'random A 1;putscheme A;points' -e 'list'
[[ "$(cat out)" == *"% random A 1
$rule
% putscheme A
enter filename : points
$rule
% % list
scheme A
% $rule
thanks for using ZEP
$rule" ]] || complain "echo: $(cat out)"
runs 0 -q --echo alpha.zep
has out "alpha A
indentifier unknown
"

# --log appends input and output.
runs 0 -q --log log alpha.zep
has out "indentifier unknown
"
has log "alpha A
indentifier unknown
"
runs 0 -q --log log --echo -e list
has out "list
"
has log "alpha A
indentifier unknown
list
"
runs 1 --log folder/missing/log -e list
has out ''
has err "zep: can't open folder/missing/log
"

# --seed draws other points, 1234 the usual ones.
points() { "$zep" -q "$@" -e 'random A 5;A' | grep '<1:'; }
[ "$(points)" = "$(points --seed 1234)" ] || complain 'the seed 1234 is not the usual one'
[ "$(points)" != "$(points --seed 1235)" ] || complain 'another seed draws the same points'
[ "$(points --seed 0)" = "$(points --seed 0)" ] || complain 'a seed draws different points'
points --seed 4294967295 >/dev/null

# --stop-on-error stops at each kind of error, and not at warnings; without it the status stays 0.
for error in 'nonsense' 'alpha' 'alpha B' 'alpha A junk' 'get A 1' 'get *' 'char 1' 'dim 1' \
  'random B 0' 'random B x' 'is_uf A x y' 'scheme B;missing' 'putscheme A;folder' 'range;0;5' \
  'scheme B;alpha.zep'; do
  runs 1 -q --stop-on-error point.zep -e "$error;hilbertfn A" alpha.zep
  ! grep -q 'H(n)' out || complain "$error does not stop: $(cat out)"
  runs 0 -q point.zep -e "$error
hilbertfn A"
done
runs 0 -q --stop-on-error -e 'char 4;get A 1;0 0 0 0;char 101'
runs 1 --stop-on-error -e 'nonsense'
[[ "$(tail -2 out)" == "thanks for using ZEP"* ]] || complain "no farewell: $(cat out)"

exit "$failed"
