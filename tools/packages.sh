# SPDX-License-Identifier: GPL-3.0-or-later
# Installs Debian packages that are missing, or names them. Sourced by the scripts beside it.

# need_packages NAME...: returns when all of them are installed. Installs the missing ones as root or
# through sudo; otherwise says what to install, and ends the script.
need_packages() {
  local missing=()
  local package
  for package in "$@"; do
    dpkg-query --show --showformat='${db:Status-Status}\n' "$package" 2>/dev/null |
      grep -q '^installed$' || missing+=("$package")
  done
  [ "${#missing[@]}" -eq 0 ] && return
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      printf 'Please install these Debian packages first: %s\n' "${missing[*]}" >&2
      exit 1
    fi
    as_root=(sudo)
  fi
  printf 'Installing %s\n' "${missing[*]}" >&2
  {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq &&
      "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}"
  } >&2 </dev/null || {
    printf 'Please install these Debian packages first: %s\n' "${missing[*]}" >&2
    exit 1
  }
}

# need_packages_of ARCHITECTURE NAME...: the same where some are for another processor, NAME:ARCHITECTURE.
# Makes the architecture known first, if it isn't.
need_packages_of() {
  local architecture=$1 as_root=()
  shift
  if ! { dpkg --print-architecture && dpkg --print-foreign-architectures; } |
    grep -x "$architecture" >/dev/null; then
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    "${as_root[@]}" dpkg --add-architecture "$architecture" || {
      printf 'Please call this first, as root: dpkg --add-architecture %s\n' "$architecture" >&2
      exit 1
    }
  fi
  need_packages "$@"
}

build_packages=(g++ make cmake libgmp-dev libreadline-dev)
test_packages=(libgtest-dev libbenchmark-dev dpkg-dev file groff-base lintian)
lint_packages=(clang-format clang-tidy cppcheck)
coverage_packages=(gcovr)
fuzz_packages=(clang libclang-rt-dev llvm)
portable_packages=(clang libc++-dev libc++abi-dev googletest g++-aarch64-linux-gnu
  libgmp-dev:arm64 qemu-user)
