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

build_packages=(g++ make cmake libgmp-dev libreadline-dev)
test_packages=(libgtest-dev libbenchmark-dev dpkg-dev file groff-base lintian)
lint_packages=(clang-format clang-tidy cppcheck)
coverage_packages=(gcovr)
fuzz_packages=(clang libclang-rt-dev llvm)
