#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails when the program has a writable global that is not listed here with a reason, or when one that
# is listed is gone.
#   globals.sh ZEP
# Local statics are globals too.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"
zep=$1

# permitted SYMBOL REASON
permitted() { printf '%s\n' "$1" >>"$work/permitted"; }
# The same for one that a compiler may leave out.
permitted_if_there() { printf '%s\n' "$1" >>"$work/dispensable"; }

ring='operators on field elements and monomials must not have to look for their ring'
permitted 'zep::arith::ring_data::current()::R' "$ring"
permitted 'zep::arith::ring_data::p_' "$ring"
permitted 'zep::arith::ring_data::reciprocal_' "$ring"
permitted 'zep::arith::ring_data::dim_' "$ring"
permitted 'zep::arith::ring_data::proj_' "$ring"
permitted 'zep::arith::ring_data::names_' "$ring"
permitted 'zep::arith::order_in_force::lt_' "$ring"
permitted 'zep::arith::order_in_force::le_' "$ring"
permitted 'zep::arith::order_in_force::proj_lt_' "$ring"
permitted 'zep::arith::order_in_force::proj_le_' "$ring"
tables='each operation in the field of the ring in force is a look-up'
permitted 'zep::arith::Fp8::add_' "$tables"
permitted 'zep::arith::Fp8::sub_' "$tables"
permitted 'zep::arith::Fp8::mul_' "$tables"
permitted 'zep::arith::Fp8::div_' "$tables"
permitted 'zep::arith::Fp8::filled_for_' "$tables"
permitted 'zep::linalg::kernels_in_force::current_' 'one processor, and one choice for it'
case $(uname -m) in
  x86_64 | i?86)
    permitted 'zep::linalg::avx512_kernels()::kernels' 'constant, but made from another one'
    ;;
esac
permitted 'zep::base::interrupt_requested' 'a signal handler reaches nothing else'
# Where checks are not counted, it stays 0.
permitted_if_there 'zep::base::(anonymous namespace)::checks_left' 'tests interrupt at a check'
permitted 'zep::front::(anonymous namespace)::pending' 'a signal handler reaches nothing else'
permitted 'zep::front::(anonymous namespace)::keyboard()::descriptor' 'a process has one terminal'
permitted 'zep::front::(anonymous namespace)::open_file' 'the handler of new takes it back'
if nm -D "$zep" | grep ' readline$' >/dev/null; then
  permitted 'zep::front::(anonymous namespace)::editor()::the_editor' 'the library calls functions'
  permitted 'zep::front::(anonymous namespace)::continued' 'a signal handler reaches nothing else'
fi

# Those of our own, by the sections that stay writable when the program has been loaded; the flag that
# says whether a local static has been made counts as the static itself.
nm --demangle --format=sysv "$zep" |
  awk -F'|' '$7 ~ /^\.t?(data|bss)/ && $7 !~ /^\.data\.rel\.ro/ { print $1 }' |
  sed -E 's/ +$//; s/^guard variable for //' | { grep 'zep::' || true; } | sort -u >"$work/found"
sort -u -o "$work/permitted" "$work/permitted"

unlisted=$(comm -23 "$work/found" <(sort -u "$work/permitted" "$work/dispensable"))
[ -z "$unlisted" ] || complain 'writable globals without a reason:'$'\n'"$unlisted"
gone=$(comm -13 "$work/found" "$work/permitted")
[ -z "$gone" ] || complain 'listed, but not there:'$'\n'"$gone"
exit "$failed"
