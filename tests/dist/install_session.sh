#!/usr/bin/env bash
# Installs, uses and removes the files in C:\disk of the machine that it runs on:   install_session.sh DRIVE_C PROBE
# Checks files and registry after every step, not only exit codes.
set -euo pipefail

readonly drive=${1:?the folder that is drive C:}
readonly probe=${2:?the program that looks at windows}
tools_dir=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../tools" && pwd)
readonly tools_dir
readonly folder="$drive/PROGRA~1/QDIX"
readonly windows_key='Software\Microsoft\Windows\CurrentVersion'
readonly settings_key='HKCU\Software\VB and VBA Program Settings\QDIX'
readonly engine=(rundll.exe 'setupx.dll,InstallHinfSection')
readonly step_limit_s=180

fail() {
  printf 'install: %s\n' "$*" >&2
  exit 1
}

wine() { timeout "$step_limit_s" "$tools_dir/wine/wine.sh" "$@" </dev/null; }

# Prints the text of a registry value; false if there is none.
value_of() { wine reg query "$1" /v "$2" 2>/dev/null | tr -d '\r' | sed -n 's/^ .*    REG_SZ    //p' | grep .; }
has_key() { wine reg query "$1" >/dev/null 2>&1; }

# Waits until a command is true.
await() {
  local deadline=$((SECONDS + step_limit_s))
  until "$@"; do
    ((SECONDS < deadline)) || fail "still false after $step_limit_s seconds: $*"
    sleep 0.2
  done
}

is_deleted() { [ -z "$(find "$folder" -type f)" ]; }

expect_value() {
  local found
  found=$(value_of "$1" "$2") || fail "$1 has no value '$2'"
  [ "$found" = "$3" ] || fail "'$2' in $1 is '$found', not '$3'"
}

expect_no_value() {
  local found
  if found=$(value_of "$1" "$2"); then fail "$1 still has '$2': $found"; fi
}

install() {
  wine "${engine[@]}" DefaultInstall 132 'C:\disk\qdix.inf'
  diff -r "$drive/disk" "$folder" || fail "the installed files differ from the delivered ones"
  expect_value "HKLM\\$windows_key\\Uninstall\\QDIX" DisplayName "$(sed -n '1s/ for .*//p' "$drive/disk/README.TXT")"
  expect_value "HKLM\\$windows_key\\RunOnce" 'QDIX Menu' 'grpconv.exe -o'
  grep -qi '^QDIX=Q-DIX' "$drive/windows/setup.ini" || fail "setup.ini asks for no group in the Start menu"
  grep -qiF '"Q-DIX","C:\PROGRA~1\QDIX\QDIX.exe"' "$drive/windows/setup.ini" || fail "the Start menu lacks Q-DIX"
  grep -qiF '"Q-DIX Undo","C:\PROGRA~1\QDIX\undo.exe"' "$drive/windows/setup.ini" ||
    fail "the Start menu lacks Q-DIX Undo"
}

# Starts the installed program for the first time, and then leaves the files that a user of it would have.
use() {
  "$tools_dir/wine/wine.sh" 'C:\PROGRA~1\QDIX\QDIX.exe' >/dev/null 2>&1 </dev/null &
  local program=$!
  wine "$probe" wait-window || fail "the installed program does not start"
  until [[ "$(wine "$probe" caption)" == *' MB   Q-DIX'* ]]; do
    wine "$probe" answer-boxes >/dev/null
    kill -0 "$program" 2>/dev/null || fail "the installed program ended unexpectedly"
  done
  wine "$probe" close
  wait "$program" || fail "the installed program ended with exit code $?"
  # The first start opens the help, which stays open.
  if [ -f "$folder/help.exe" ]; then wine taskkill /f /im help.exe >/dev/null 2>&1 || true; fi
  value_of "HKLM\\$windows_key\\Run" Quondix >/dev/null || fail "the first start did not add the program to the Run key"
  has_key 'HKLM\SOFTWARE\QDIX' || fail "the program made no machine-wide key"
  has_key "$settings_key" || fail "the program stored no setting"
  local shortcut
  for shortcut in Desktop/Quondix.lnk 'Start Menu/Programs/StartUp/'{Quondix,QDIX.exe}.lnk; do
    : >"$drive/windows/$shortcut"
  done
  : >"$folder/launcher.dat"
  : >"$folder/launcher.bak"
  # The folder that grpconv.exe of Windows makes from setup.ini.
  mkdir "$drive/windows/Start Menu/Programs/Q-DIX"
}

remove() {
  local command_line removal
  command_line=$(value_of "HKLM\\$windows_key\\Uninstall\\QDIX" UninstallString)
  # Split at spaces: the test also covers that no word contains one.
  local -a words
  read -r -a words <<<"$command_line"
  mkfifo "$drive/keyboard"
  exec 8<>"$drive/keyboard"
  timeout "$step_limit_s" "$tools_dir/wine/wine.sh" "${words[@]}" <&8 >"$drive/removal.log" 2>&1 &
  removal=$!
  wine "$probe" --undo wait-window || fail "removal does not show Q-DIX Undo: $(<"$drive/removal.log")"
  has_key 'HKLM\SOFTWARE\QDIX' || fail "the record is deleted while Q-DIX Undo is open"
  diff -r "$drive/disk" "$folder" | grep -v "^Only in .*: launcher\." && fail "a file is deleted while Q-DIX Undo is open"
  wine "$probe" --undo close
  printf '\r\n' >&8
  wait "$removal" || fail "remove.bat ended with exit code $?"
  await is_deleted
}

# Runs the RunOnce commands, as the system does at its next start.
restart() { wine wineboot; }

expect_nothing_left() {
  local left
  left=$(find "$drive/Program Files" "$drive/windows/Desktop" "$drive/windows/Start Menu" \
    -iname '*qdix*' -o -iname '*q-dix*' -o -iname 'quondix*' -o -iname 'launcher.*')
  [ -z "$left" ] || fail "still there: $left"
  expect_no_value "HKLM\\$windows_key\\Run" Quondix
  expect_no_value "HKLM\\$windows_key\\RunOnce" 'QDIX Rest'
  local key
  for key in "HKLM\\$windows_key\\Uninstall\\QDIX" 'HKLM\SOFTWARE\QDIX' 'HKCU\Software\QDIX' "$settings_key"; do
    if has_key "$key"; then fail "still there: $key"; fi
  done
  local name
  for name in Q-DIX 'Q-DIX Undo'; do
    sed -n '/^\[QDIX.Gone\]/,$p' "$drive/windows/setup.ini" | grep -q "^\"$name\"=\?.\?$" ||
      fail "setup.ini does not remove $name from the Start menu"
  done
}

install
use
remove
restart
expect_nothing_left
echo "install: $(find "$drive/disk" -type f | wc -l) files installed, used and removed"
