#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails unless all that speaks of the release and of the licence says the same.
#   release.sh TOP
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"
cd "$1"
licence=GPL-3.0-or-later

# says FILE TEXT: a line of the file is the text.
says() { grep -qxF -e "$2" "$1" || complain "$1: there is no line: $2"; }
# names FILE: the licence.
names() { grep -qwF -e "$licence" "$1" || complain "$1: the licence is not named"; }

version=$(sed -n 's/^project(zep VERSION \([^ ]*\) .*/\1/p' CMakeLists.txt)
[[ $version =~ ^[0-9]+\.[0-9]+\.[0-9]+$ ]] || complain "CMakeLists.txt: the version is $version"

sed -n 's/^## //p' CHANGELOG.md >"$work/releases"
while read -r release; do
  [[ $release =~ ^[0-9]+\.[0-9]+\.[0-9]+,\ [0-9]{4}-[0-9]{2}-[0-9]{2}$ ]] ||
    complain "CHANGELOG.md: neither version nor date: $release"
done <"$work/releases"
newest=$(head -1 "$work/releases")
[ "${newest%, *}" = "$version" ] || complain "CHANGELOG.md: $newest is not version $version"
diff <(sort -t , -k 1,1rV -u "$work/releases") "$work/releases" || complain "CHANGELOG.md: other order"

says CITATION.cff "version: $version"
says CITATION.cff "date-released: ${newest#*, }"
says CITATION.cff "license: $licence"
for paper in LICENSE CHANGELOG.md CONTRIBUTING.md README.md tools/copyright; do
  names "$paper"
done
for paper in LICENSE tools/copyright; do
  grep -qF /usr/share/common-licenses/GPL-3 "$paper" || complain "$paper: where is the licence?"
done

unmarked=$(find . -name '.git' -prune -o -name 'build*' -prune -o \( -name '*.h' -o -name '*.cpp' -o -name '*.sh' \
  -o -name '*.cmake' -o -name CMakeLists.txt -o -path ./check -o -path ./run -o -path ./.ci/run \) -type f \
  -exec awk -v mark="SPDX-License-Identifier: $licence" '
    FNR <= 2 && index($0, mark) { found = 1 }
    FNR == 2 { if (!found) print FILENAME; found = 0; nextfile }' {} +)
[ -z "$unmarked" ] || complain 'sources without their licence:'$'\n'"$unmarked"
exit "$failed"
