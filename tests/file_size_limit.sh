#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails unless a result file that may not grow is a warning, and not the end of the session.
#   file_size_limit.sh ZEP
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"
commands='quiet\nrandom A 4\nputscheme A %s\nalpha A\nquit\n'
status=0
# shellcheck disable=SC2059 # the commands are the format
out=$( (ulimit -f 0 && printf "$commands" "$work/points" | "$1") 2>&1) || status=$?
[ "$status" -eq 0 ] && [[ "$out" == *"warning: can't write all of $work/points"* ]] &&
  [[ "$out" == *'alpha = 2'*'thanks for using ZEP'* ]] || complain "status $status, output: $out"
exit "$failed"
