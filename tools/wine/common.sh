# shellcheck shell=bash
# Shared by the scripts beside it: where the caches of this machine are, which Wine is used and how it is started.
# Meant to be sourced by bash with `set -euo pipefail`; it does nothing by itself.

wine_tools_dir=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
readonly wine_tools_dir
checkout_dir=$(cd "$wine_tools_dir/../.." && pwd)
readonly checkout_dir
readonly cache_dir="${QDIX_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/qdix}"

# Raise it when get_wine.sh builds the private Wine in another way, so that every checkout rebuilds it.
readonly private_wine_recipe=1
readonly private_wine_root="$cache_dir/wine-i386-$private_wine_recipe"
# Written last. A root without it is the remains of an interrupted set-up.
readonly private_wine_stamp="$private_wine_root/proved"
# Starts the private Wine through the emulator beside it.
readonly emulated_wine_name=wine-emulated

say() { printf 'wine: %s\n' "$*" >&2; }

# Identifies the machine's own Wine by its path and version. Empty if there is none.
host_wine_identity() {
  local path
  path=$(command -v wine 2>/dev/null) || return 0
  printf '%s %s' "$path" "$("$path" --version 2>/dev/null </dev/null || true)"
}

# The file with the result of trying the machine's own Wine ("yes" or "no").
host_wine_verdict_file() {
  printf '%s/host-wine-%s' "$cache_dir" "$(sha256sum <<<"$1" | cut -c1-16)"
}

# Prints "host" or "private" for the Wine that is ready for use, or nothing.
chosen_wine() {
  local identity verdict
  identity=$(host_wine_identity)
  if [ -n "$identity" ]; then
    verdict=$(host_wine_verdict_file "$identity")
    if [ -f "$verdict" ] && [ "$(<"$verdict")" = yes ]; then
      echo host
      return 0
    fi
  fi
  # A root made under another kernel may lack the emulator that this one needs.
  if [ -f "$private_wine_stamp" ] &&
    { [ -x "$private_wine_root/usr/lib/wine/$emulated_wine_name" ] || runs_natively "$private_wine_root"; }; then
    echo private
  fi
}

# Sets wine_program and wine_server for the Wine named in $1.
set_wine_programs() {
  if [ "$1" = host ]; then
    wine_program=$(command -v wine)
    wine_server=$(command -v wineserver || true)
    if [ -z "$wine_server" ]; then
      local folder
      for folder in "$(dirname "$(readlink -f "$wine_program")")" /usr/lib/wine /opt/wine-stable/bin; do
        if [ -x "$folder/wineserver" ]; then wine_server="$folder/wineserver"; fi
      done
    fi
  else
    local programs="$private_wine_root/usr/lib/wine"
    wine_program="$programs/wine"
    # Exists on a machine whose kernel refuses 32-bit programs (emulator.sh).
    if [ -x "$programs/$emulated_wine_name" ]; then wine_program="$programs/$emulated_wine_name"; fi
    wine_server="$programs/wineserver"
  fi
}

# True if this machine's kernel itself starts the 32-bit programs of the private root $1.
runs_natively() { "$1/lib/ld-linux.so.2" --version >/dev/null 2>&1; }

# The environment of every Wine process: 32 bits only, quiet unless asked, no offers to install add-ons,
# no menu entries made on the machine's own desktop.
export_wine_environment() {
  export WINEARCH=win32
  export WINEPREFIX="${WINEPREFIX:-$checkout_dir/build/wineprefix}"
  export WINEDEBUG="${WINEDEBUG:--all}"
  export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml=d;winemenubuilder.exe=d}"
  export WINESERVER="$wine_server"
}

# Ends every program in the prefix $WINEPREFIX and waits until the server has ended, so that its files are complete.
stop_wine_server() {
  "$wine_server" -k >/dev/null 2>&1 || true
  timeout 30 "$wine_server" -w >/dev/null 2>&1 || true
}

# Deletes the prefix $1 after ending its programs, and the folder of its server's lock, whose name Wine keeps in it.
remove_prefix() {
  local prefix=$1 server_folder=""
  if [ ! -d "$prefix" ]; then return 0; fi
  WINEPREFIX="$prefix" stop_wine_server
  if [ -f "$prefix/wineserver" ]; then server_folder=$(<"$prefix/wineserver"); fi
  if [[ "$server_folder" =~ ^wine-[A-Za-z0-9]+$ ]]; then rm -rf "/tmp/$server_folder"; fi
  rm -rf "$prefix"
}
