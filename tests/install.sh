#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the program into an empty folder and through its Debian package, and looks whether all of it
# is there and works.
#   install.sh BUILD TOP
# Leaves out the package where the tools that make it are missing, what groff says of the manual page
# where groff is, and what lintian says of the package where lintian is.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"
build=$(realpath "$1")
top=$(realpath "$2")

# Installing leaves a list in the build folder; an older one is put back.
manifest=$build/install_manifest.txt
if [ -e "$manifest" ]; then cp -p "$manifest" "$work/manifest"; fi
tidy_up() {
  rm -f "$manifest"
  if [ -e "$work/manifest" ]; then cp -p "$work/manifest" "$manifest"; fi
  rm -rf "$work"
}
trap tidy_up EXIT

# What has to be in a prefix, sorted.
expected_files() {
  {
    printf '%s\n' bin/zep share/man/man1/zep.1.gz share/bash-completion/completions/zep \
      share/doc/zep/{README.md,changelog.gz,copyright,guide.md}
    (cd "$top" && printf 'share/doc/zep/%s\n' examples/README.md examples/*.zep examples/*.txt)
  } | LC_ALL=C sort
}

# is_compressed FILE: as far as it goes, and without a name or a time.
is_compressed() {
  gzip -dc "$1" | gzip -9 --no-name | cmp - "$1" || complain "$1: compressed in another way"
}

# prefix_works FOLDER: the files in it, their permissions, and a session.
prefix_works() {
  local doc=$1/share/doc/zep status=0
  diff -u <(expected_files) <(cd "$1" && find . -type f | sed 's,^\./,,' | LC_ALL=C sort) ||
    complain "$1: other files"
  [ "$(find "$1" -type f -perm 0755)" = "$1/bin/zep" ] || complain "$1: what can be executed"
  [ -z "$(find "$1" -type f ! -path "$1/bin/*" ! -perm 0644)" ] || complain "$1: permissions"
  cmp "$top/README.md" "$doc/README.md" || failed=1
  cmp "$top/docs/guide.md" "$doc/guide.md" || failed=1
  cmp "$top/tools/copyright" "$doc/copyright" || failed=1
  is_compressed "$1/share/man/man1/zep.1.gz"
  is_compressed "$doc/changelog.gz"
  diff -r "$top/examples" "$doc/examples" || failed=1
  mkdir "$work/run"
  (cd "$work/run" && timeout 60 "$1/bin/zep" <"$doc/examples/five-points.zep" >"$work/out") ||
    status=$?
  [ "$status" -eq 0 ] || complain "$1: exit status $status"
  diff -u "$doc/examples/five-points.txt" "$work/out" || complain "$1: prints something else"
  rm -r "$work/run"
}

commands() { "$prefix/bin/zep" --commands | sed 's/ .*//'; }
options() { "$prefix/bin/zep" --help | grep -oE '^  --?[a-z-]+' | tr -d ' '; }

# tagged SECTION: what the manual page explains there.
tagged() {
  sed -n "/^\.SH $1\$/,/^\.SH /{/^\.TP/{n;s/^\.BI\{0,1\} \([^ ]*\).*/\1/p}}" "$page" |
    sed 's/\\-/-/g'
}

manual_is_complete() {
  diff -u <(commands) <(tagged COMMANDS) || complain "the manual page has other commands"
  diff -u <(options) <(tagged OPTIONS) || complain "the manual page has other options"
  grep -qF "\"ZEP ${version}\"" "$page" || complain "the manual page has another version"
  ! grep -E '@[A-Z]+@' "$page" || complain "the manual page has gaps"
  if command -v groff >/dev/null; then
    groff -man -Tascii -ww -z "$page" >"$work/warnings" 2>&1 || failed=1
    diff -u /dev/null "$work/warnings" || complain "groff warns of the manual page"
  fi
}

# items MARK: the items of a changelog, whose first lines begin with the mark.
items() { grep -E "^($1|  ) *[^][ ]" | sed "s/^$1//; s/^ *//"; }

changelog_is_complete() {
  gzip -dc "$prefix/share/doc/zep/changelog.gz" >"$work/changelog"
  [ "$(head -1 "$work/changelog")" = "zep ($version) unstable; urgency=medium" ] ||
    complain "the changelog begins with another version"
  sed -n '/^## /,$p' "$top/CHANGELOG.md" | items - >"$work/items"
  [ -s "$work/items" ] || complain "CHANGELOG.md has no items"
  diff -u "$work/items" <(items '  [*]' <"$work/changelog") || complain "the changelog has other items"
  ! grep -E '^.{81}' "$work/changelog" || complain "the changelog has lines that are too long"
  if command -v dpkg-parsechangelog >/dev/null; then
    dpkg-parsechangelog -l "$work/changelog" --all >"$work/parsed" 2>"$work/warnings" || failed=1
    diff -u /dev/null "$work/warnings" || complain "dpkg warns of the changelog"
  fi
}

# offered WORD...: what is offered for the last one behind zep, sorted.
offered() {
  bash --norc --noprofile -euc '
    . "$1"
    shift
    [[ "$(complete -p zep)" == *" -F _zep zep" ]]
    COMP_WORDS=(zep "$@")
    COMP_CWORD=$#
    _zep zep "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
    if [ "${#COMPREPLY[@]}" -gt 0 ]; then printf "%s\n" "${COMPREPLY[@]}"; fi' \
    bash "$prefix/share/bash-completion/completions/zep" "$@" | LC_ALL=C sort
}

# offers EXPECTED WORD...
offers() {
  local expected=$1
  shift
  diff -u <(printf '%s' "$expected") <(offered "$@" 2>&1) || complain "completion of: zep $*"
}

completion_is_complete() {
  offers $'--stop-on-error\n' --st
  offers "$(options | LC_ALL=C sort)"$'\n' -
  offers $'--echo\n' session.zep --e
  # Left to readline, which knows the files; where none can be meant, nothing.
  offers '' ''
  offers '' --log -
  offers '' --log = -
  offers '' --seed -
  offers '' -e -
  offers '' -- -
}

package_works() {
  local tool
  for tool in dpkg-deb dpkg-shlibdeps file; do
    command -v "$tool" >/dev/null && continue
    echo "$tool is missing: no package is made"
    return
  done
  # With this generator named, what is there is packed as it is; with others it would be built first.
  if ! (umask 077 && cd "$build" &&
    cpack -G DEB -B "$work/package" -D CPACK_CMAKE_GENERATOR=Ninja) >"$work/log" 2>&1; then
    cat "$work/log"
    complain "no package"
    return
  fi
  local package
  package=$(find "$work/package" -maxdepth 1 -name "zep_${version}_*.deb")
  dpkg-deb -x "$package" "$work/root"
  prefix_works "$work/root/usr"
  diff -u <(echo usr) <(ls -A "$work/root") || complain "the package has more than /usr"
  ! dpkg-deb -c "$package" | grep -v -E '^(drwxr-xr-x|-rw-r--r--|-rwxr-xr-x) root/root ' ||
    complain "the package has other owners or permissions"
  ! file "$work/root/usr/bin/zep" | grep 'not stripped' || failed=1
  diff -u - <(dpkg-deb -f "$package" Package Version Section Maintainer) <<END || failed=1
Package: zep
Version: $version
Section: math
Maintainer: ZEP developers <developers@zep.invalid>
END
  dpkg-deb -f "$package" Depends | grep -qw libc6 || complain "the package has no dependencies"
  policy_is_kept "$package"
}

# policy_is_kept PACKAGE: lintian sees no error in it.
policy_is_kept() {
  if ! command -v lintian >/dev/null; then
    echo "lintian is missing: the package is not held against Debian's policy"
    return
  fi
  if ! lintian --no-cfg --fail-on error "$1" >"$work/log" 2>&1; then
    cat "$work/log"
    complain "lintian finds errors"
  fi
}

prefix=$work/prefix
page=$work/zep.1
cmake --install "$build" --prefix "$prefix" >/dev/null
gzip -dc "$prefix/share/man/man1/zep.1.gz" >"$page"
version=$("$prefix/bin/zep" --version)
version=${version#zep }
prefix_works "$prefix"
manual_is_complete
changelog_is_complete
completion_is_complete
package_works
exit "$failed"
