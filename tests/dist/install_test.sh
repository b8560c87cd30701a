#!/usr/bin/env bash
# Installs Q-DIX from the floppy disk by its qdix.inf, uses it and removes it:   install_test.sh BUILD PROBE
# BUILD is the folder of the shipped programs; PROBE is the program that looks at windows. Runs in a new Wine prefix with
# the folders of Windows 98. packaging/README.md lists what replaces parts of Windows that Wine lacks.
set -euo pipefail

readonly build=${1:?the folder of the shipped programs}
readonly probe=${2:?the program that looks at windows}
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=tools/wine/common.sh
source "$here/../../tools/wine/common.sh"
# shellcheck source=tools/wine/own_prefix.sh
source "$wine_tools_dir/own_prefix.sh"

use_own_prefix install-test

wine() { "$wine_tools_dir/wine.sh" "$@" </dev/null; }

# Names the shell folders as Windows 98 does without user profiles.
lay_out_as_windows_98() {
  local drive=$1 key='HKCU\Software\Microsoft\Windows\CurrentVersion\Explorer\User Shell Folders'
  mkdir -p "$drive/windows/Desktop" "$drive/windows/Start Menu/Programs/StartUp"
  wine reg add "$key" /v Desktop /d 'C:\windows\Desktop' /f >/dev/null
  wine reg add "$key" /v 'Start Menu' /d 'C:\windows\Start Menu' /f >/dev/null
  wine reg add "$key" /v Programs /d 'C:\windows\Start Menu\Programs' /f >/dev/null
  wine reg add "$key" /v Startup /d 'C:\windows\Start Menu\Programs\StartUp' /f >/dev/null
  ln -s 'Program Files' "$drive/PROGRA~1"
  ln -s 'Start Menu' "$drive/windows/STARTM~1"
  cp "$drive/windows/system32/cmd.exe" "$drive/windows/system32/command.com"
}

main() {
  "$wine_tools_dir/prefix.sh"
  set_wine_programs "$(chosen_wine)"
  export_wine_environment
  lay_out_as_windows_98 "$WINEPREFIX/drive_c"
  "$checkout_dir/tools/dist/make_dist.py" --build "$build" --output "$work_dir/dist" --time 947808000
  mkdir "$WINEPREFIX/drive_c/disk"
  MTOOLSRC=/dev/null mcopy -i "$work_dir/dist/qdix.img" '::*' "$WINEPREFIX/drive_c/disk"
  # Always a separate desktop, even if the other tests have one.
  env -u QDIX_DESKTOP "$checkout_dir/tools/desktop/desktop.sh" run \
    "$here/install_session.sh" "$WINEPREFIX/drive_c" "$probe"
}

main
