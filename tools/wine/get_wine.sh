#!/usr/bin/env bash
# Provides a Wine that runs 32-bit programs: the machine's own if it really does, else a private one in the cache
# folder, unpacked from the distribution's i386 packages. Where the kernel refuses 32-bit programs, the private one comes
# with an emulator that runs them. Nothing of the machine itself is changed.
#   get_wine.sh --private    provides the private one, whatever the machine has: the small machine is made of its files
set -euo pipefail

# shellcheck source=tools/wine/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
# shellcheck source=tools/wine/archive.sh
source "$wine_tools_dir/archive.sh"
# shellcheck source=tools/wine/emulator.sh
source "$wine_tools_dir/emulator.sh"

readonly wine_packages=(
  wine32 libx11-6 libxext6 libxrender1 libxrandr2 libxcursor1 libxfixes3 libxi6 libxcomposite1 libxinerama1
  fonts-wine fonts-liberation
)
# Making a prefix takes half a minute through the emulator, and several times as long on a busy machine.
readonly proof_limit_s=600

work_dir=""
clean_up() {
  if [ -z "$work_dir" ]; then return 0; fi
  local prefix
  for prefix in "$work_dir"/proof-*/prefix; do remove_prefix "$prefix"; done
  rm -rf "$work_dir"
}
trap clean_up EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

# Compiles a small 32-bit console program, runs it in a new prefix with the Wine named in $1, and checks its output
# and exit code. Only this result counts.
proves_to_run() {
  local which=$1
  local folder="$work_dir/proof-$which"
  mkdir -p "$folder"
  cat >"$folder/proof.c" <<'PROGRAM'
#include <windows.h>
#include <stdio.h>
int main(void) {
  printf("%u bits, window %d\n", (unsigned)(8 * sizeof(void*)), IsWindow(GetDesktopWindow()) != 0);
  return 42;
}
PROGRAM
  if ! i686-w64-mingw32-gcc -O1 -o "$folder/proof.exe" "$folder/proof.c" -luser32; then
    say "the compiler for Windows programs does not work; nothing can be tried"
    exit 1
  fi
  set_wine_programs "$which"
  [ -n "$wine_server" ] || return 1
  local output status=0
  output=$(
    unset DISPLAY
    export WINEPREFIX="$folder/prefix"
    export_wine_environment
    timeout "$proof_limit_s" "$wine_program" "$folder/proof.exe" 2>"$folder/errors" </dev/null
  ) || status=$?
  remove_prefix "$folder/prefix"
  if [ "$status" -eq 42 ] && [[ "$output" == "32 bits, window "* ]]; then return 0; fi
  say "a 32-bit program did not run: exit code $status, output '${output:0:200}'"
  tail -n 5 "$folder/errors" >&2
  return 1
}

# Tries the machine's own Wine once for each of its paths and versions.
try_host_wine() {
  local identity verdict
  identity=$(host_wine_identity)
  [ -n "$identity" ] || return 1
  verdict=$(host_wine_verdict_file "$identity")
  if [ ! -f "$verdict" ]; then
    say "trying the machine's own Wine ($identity)"
    if proves_to_run host; then echo yes >"$verdict"; else echo no >"$verdict"; fi
  fi
  [ "$(<"$verdict")" = yes ]
}

# Unpacks all packages into $1, without documentation.
unpack_packages() {
  local root=$1 archive
  mkdir -p "$root"
  for archive in "$work_dir"/archives/*.deb; do
    dpkg-deb -x "$archive" "$root"
    rm "$archive"
  done
  rm -rf "$root"/usr/share/{doc,man,locale,info,lintian}
}

# The one step of the packages' installation scripts that Wine cannot do without: zlib1.dll among its builtin
# libraries, marked as builtin by a text at offset 64, in the 32 bytes after the DOS header.
add_builtin_zlib() {
  local root=$1
  local builtin="$root/usr/lib/i386-linux-gnu/wine/i386-windows/zlib1.dll"
  cp --remove-destination "$root/usr/i686-w64-mingw32/lib/zlib1.dll" "$builtin"
  { printf 'Wine builtin DLL'; head -c 16 /dev/zero; } | dd of="$builtin" bs=1 seek=64 conv=notrunc status=none
}

# Makes Wine's programs in $1 use the loader and the libraries of $2, the final place of the root. The search path is
# written into the programs, so that the environment of the programs they start stays unchanged.
point_to_own_libraries() {
  local root=$1 final_root=$2 program
  cp --remove-destination "$root/usr/lib/wine/wineserver32" "$root/usr/lib/wine/wineserver"
  for program in wine wineserver; do
    patchelf --set-interpreter "$final_root/lib/ld-linux.so.2" \
      --force-rpath --set-rpath "$final_root/lib/i386-linux-gnu:$final_root/usr/lib/i386-linux-gnu" \
      "$root/usr/lib/wine/$program"
  done
}

build_private_wine() {
  say "building a private 32-bit Wine in the cache folder (about 150 MB to download)"
  download_packages i386 "" --download-only install "${wine_packages[@]}"
  say "unpacking"
  unpack_packages "$work_dir/root"
  add_builtin_zlib "$work_dir/root"
  point_to_own_libraries "$work_dir/root" "$private_wine_root"
  rm -rf "$private_wine_root"
  mv "$work_dir/root" "$private_wine_root"
  if ! runs_natively "$private_wine_root"; then add_emulator "$private_wine_root"; fi
  say "trying it"
  if ! proves_to_run private; then
    rm -rf "$private_wine_root"
    return 1
  fi
  touch "$private_wine_stamp"
  say "ready"
}

# True if there is nothing to do.
is_provided() {
  if [ "$1" = --private ]; then [ -f "$private_wine_stamp" ]; else [ -n "$(chosen_wine)" ]; fi
}

main() {
  local wanted=${1:-}
  if is_provided "$wanted"; then return 0; fi
  mkdir -p "$cache_dir"
  # One set-up at a time: a second one waits and then finds the work done.
  exec 9>"$cache_dir/wine.lock"
  if ! flock -w 1800 9; then
    say "another set-up has held the lock for half an hour"
    return 1
  fi
  if is_provided "$wanted"; then return 0; fi
  # Remains of killed set-ups. Only the owner of the lock makes such folders.
  rm -rf "$cache_dir"/building.*
  work_dir=$(mktemp -d "$cache_dir/building.XXXXXX")
  if [ "$wanted" != --private ] && try_host_wine 9>&-; then return 0; fi
  build_private_wine 9>&-
}

main "$@"
