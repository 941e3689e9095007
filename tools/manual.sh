#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Writes the manual page, with the commands and the version that the program itself prints.
#   manual.sh ZEP TEMPLATE PAGE
set -euo pipefail
export LC_ALL=C
zep=$1
template=$2
page=$3

# Escapes what groff would take for something else.
plain() {
  sed -e 's/\\/\\e/g' -e 's/-/\\-/g' -e 's/\^/\\(ha/g' -e 's/~/\\(ti/g' -e "s/'/\\\\(aq/g" \
    -e 's/`/\\(ga/g' -e 's/"/\\(dq/g' -e 's/  \./  \\\&./'
}

# Each line of the list is a name and arguments, two blanks or more, and the meaning.
commands() {
  local line usage name arguments meaning
  "$zep" --commands | plain | while IFS= read -r line; do
    usage=${line%%  *}
    meaning=${line#"$usage"}
    meaning=${meaning#"${meaning%%[! ]*}"}
    name=${usage%% *}
    arguments=${usage#"$name"}
    printf '.TP 20\n.BI %s "%s"\n%s\n' "$name" "$arguments" "$meaning"
  done
}

version=$("$zep" --version)
version=${version#zep }
list=$(commands)
[ -n "$version" ]
[ -n "$list" ]
trap 'rm -f "$page.new"' EXIT
while IFS= read -r line; do
  case $line in
    '.\"'*) ;;
    @COMMANDS@) printf '%s\n' "$list" ;;
    *) printf '%s\n' "${line//@VERSION@/"$version"}" ;;
  esac
done <"$template" >"$page.new"
mv "$page.new" "$page"
