#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Writes the changelog of the Debian package, from the one in Markdown.
#   changelog.sh CHANGELOG MAINTAINER OUT
# A chapter there is a release, `## VERSION, YYYY-MM-DD`, with sections of items and nothing else, in
# lines of up to 78 characters.
set -euo pipefail
export LC_ALL=C
changelog=$1
maintainer=$2
out=$3

# The line that ends a release, of the day DATE.
trailer() {
  local day
  day=$(date -u -R -d "$1")
  printf '\n -- %s  %s\n' "$maintainer" "$day"
}

trap 'rm -f "$out.new"' EXIT
date=
while IFS= read -r line; do
  case $line in
    '## '*', '*)
      if [ -n "$date" ]; then
        trailer "$date"
        echo
      fi
      version=${line#'## '}
      date=${version#*, }
      printf 'zep (%s) unstable; urgency=medium\n' "${version%%, *}"
      ;;
    '') ;;
    *)
      [ -n "$date" ] || continue
      case $line in
        '### '*) printf '\n  [ %s ]\n' "${line#'### '}" ;;
        '- '*) printf '  * %s\n' "${line#- }" ;;
        '  '*) printf '    %s\n' "${line#  }" ;;
        *)
          printf '%s: neither release, section nor item: %s\n' "$changelog" "$line" >&2
          exit 1
          ;;
      esac
      ;;
  esac
done <"$changelog" >"$out.new"
[ -n "$date" ]
trailer "$date" >>"$out.new"
mv "$out.new" "$out"
