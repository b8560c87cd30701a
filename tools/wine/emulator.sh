# shellcheck shell=bash
# Lets the private 32-bit Wine run where the kernel refuses 32-bit programs: qemu's user mode runs its programs, while
# the server, of which one serves programs of any width, is the 64-bit one. Meant to be sourced after archive.sh.
#
# Wine starts every program through its preloader if there is one: `wine-preloader wine PROGRAM`. The emulator takes
# the same arguments, so it is installed under that name and needs no kernel support to be found again.

# Before 8.1 the emulator reserved other addresses than Wine requested, and Wine searched for minutes.
readonly least_emulator_version=8.1

# Unpacks the distribution's newest emulator: the released version may be too old while its backport is not.
unpack_emulator() {
  local folder=$1 architecture pocket version
  architecture=$(dpkg --print-architecture)
  for pocket in -backports ""; do
    download_packages "$architecture" "$pocket" download qemu-user || continue
    dpkg-deb -x "$work_dir"/archives/qemu-user_*.deb "$folder"
    rm "$work_dir"/archives/qemu-user_*.deb
    version=$("$folder/usr/bin/qemu-i386" --version 2>/dev/null | sed -n '1s/.*version \([0-9.]*\).*/\1/p')
    if dpkg --compare-versions "${version:-0}" ge "$least_emulator_version"; then return 0; fi
  done
  say "this machine's kernel runs no 32-bit programs, and no qemu-user of $least_emulator_version or later was found"
  return 1
}

# Adds the emulator, the 64-bit server and the right amount of memory to the unpacked private root $1.
add_emulator() {
  local root=$1
  local programs="$root/usr/lib/wine" unpacked="$work_dir/emulator"
  say "this machine's kernel runs no 32-bit programs: adding an emulator for them (about 60 MB to download)"
  mkdir -p "$unpacked"
  unpack_emulator "$unpacked"
  download_packages "$(dpkg --print-architecture)" "" download wine64
  dpkg-deb -x "$work_dir"/archives/wine64_*.deb "$unpacked"
  cp --remove-destination "$unpacked/usr/lib/wine/wineserver64" "$programs/wineserver"
  cp --remove-destination "$unpacked/usr/bin/qemu-i386" "$programs/wine-preloader"
  gcc -m32 -O2 -fPIC -shared -nostdlib -fno-builtin -fno-stack-protector -o "$programs/whole_memory.so" \
    "$wine_tools_dir/whole_memory.c"
  patchelf --add-needed "$programs/whole_memory.so" "$programs/wine"
  cat >"$programs/$emulated_wine_name" <<WRAPPER
#!/bin/sh
exec '$programs/wine-preloader' '$programs/wine' "\$@"
WRAPPER
  chmod +x "$programs/$emulated_wine_name"
}
