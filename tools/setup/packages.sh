#!/usr/bin/env bash
# Installs the packages for building and testing from the archive of a Debian-like machine. Asks dpkg once and changes
# nothing if everything is installed; never deliberately upgrades or removes a package.
set -euo pipefail

readonly packages=(
  # the compiler of this machine, the build and its checks
  g++ cmake ninja-build git python3 clang-format clang-tidy libgtest-dev libgmock-dev googletest
  # a quick linker for the tests of this machine
  lld
  # code coverage of the tests
  gcovr
  # the mutation check: parsing sources as the compiler does, and limits on its processes
  python3-clang util-linux
  # the compiler for Windows programs
  g++-mingw-w64-i686-win32 binutils-mingw-w64-i686 mingw-w64-i686-dev
  # the manual: its Markdown, and a check of its HTML
  python3-markdown-it opensp w3c-sgml-lib
  # a private screen, simulated input, and screenshots
  xvfb xdotool x11-utils imagemagick
  # the private Wine: unpacking it, and setting the library paths of its programs
  patchelf xz-utils ca-certificates debian-archive-keyring procps
  # the small machine: the emulated PC, its window, and its disks
  qemu-system-x86 qemu-system-gui qemu-utils e2fsprogs
  # the downloads: floppy and CD images, and a fake date to make them again
  mtools xorriso unzip faketime
)
readonly attempts=3
readonly apt_options=(-q -y -o Dpkg::Use-Pty=0 -o DPkg::Lock::Timeout=300 -o Acquire::Retries=3)

# Prints the packages that are not completely installed, one per line.
missing_packages() {
  local installed
  # dpkg-query ends with 1 if it does not know one of the names: that is an answer here, not a failure.
  installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "${packages[@]}" 2>/dev/null || true)
  local name
  for name in "${packages[@]}"; do
    grep -qx "installed $name" <<<"$installed" || printf '%s\n' "$name"
  done
}

# Runs apt-get with the necessary rights; keeps its output in a file and shows it only on failure.
run_apt() {
  local log=$1
  shift
  local -a as_root=()
  if [ "$(id -u)" -ne 0 ]; then as_root=(sudo -n); fi
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get "${apt_options[@]}" "$@" </dev/null >"$log" 2>&1
}

install_packages() {
  local log=$1
  shift
  local attempt
  for ((attempt = 1; attempt <= attempts; attempt++)); do
    # An unreadable third-party source must not stop the installation of these packages.
    run_apt "$log" update || echo "setup: could not refresh all package lists; continuing with the existing ones"
    if run_apt "$log" install --no-install-recommends "$@"; then return 0; fi
    echo "setup: attempt $attempt of $attempts failed" >&2
    if ((attempt < attempts)); then sleep $((attempt * 5)); fi
  done
  return 1
}

main() {
  if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "setup: this machine has no apt; install the equivalents of these packages by hand:" >&2
    printf '  %s\n' "${packages[@]}" >&2
    return 1
  fi
  local -a missing
  mapfile -t missing < <(missing_packages)
  if ((${#missing[@]} == 0)); then return 0; fi

  echo "setup: installing ${#missing[@]} packages: ${missing[*]}"
  if [ "$(id -u)" -ne 0 ] && ! sudo -n true 2>/dev/null; then
    echo "setup: installing needs root or sudo without a password; run this once as root:" >&2
    echo "  apt-get install --no-install-recommends ${missing[*]}" >&2
    return 1
  fi
  local log
  log=$(mktemp)
  if ! install_packages "$log" "${missing[@]}"; then
    echo "setup: apt-get could not install the packages. Its last lines:" >&2
    tail -n 25 "$log" >&2
    rm -f "$log"
    return 1
  fi
  rm -f "$log"

  mapfile -t missing < <(missing_packages)
  if ((${#missing[@]} > 0)); then
    echo "setup: apt-get reported success, but these are still missing: ${missing[*]}" >&2
    return 1
  fi
  echo "setup: packages installed"
}

main "$@"
