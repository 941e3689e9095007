#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails unless each command of `help` is used in a session of the guide and has a row in its last table,
# and each link to a chapter of the guide finds one.
#   guide.sh ZEP TOP
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"
zep=$(realpath "$1")
top=$(realpath "$2")

commands() {
  "$zep" <<<help 2>&1 | awk '
    /^-/ { inside = 0 }
    inside { for (i = 1; i <= NF; ++i) print $i }
    /list of commands/ { inside = 1 }'
}

# The names under which chapters of the guide can be linked to, and the links.
chapters() { sed -n 's/^#* //p' "$top/docs/guide.md" | tr 'A-Z ' 'a-z-' | tr -cd 'a-z0-9\n-'; }
links() { grep -o '](#[^)]*)' "$top/docs/guide.md" | sed 's/^](#//; s/)$//'; }

commands >"$work/commands"
awk '/^```/ { inside = /^```zep( |$)/; next } inside' "$top/docs/guide.md" >"$work/sessions"
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
