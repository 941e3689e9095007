# SPDX-License-Identifier: GPL-3.0-or-later
# What tests that are scripts have in common; they source it. They tell what is wrong through complain,
# work in the folder $work, which goes when they end, and end with `exit "$failed"`.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

complain() {
  printf '%s\n' "$*"
  failed=1
}
