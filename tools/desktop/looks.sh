#!/usr/bin/env bash
# Photographs every screen as other machines show it:   looks.sh [few_colours|large_fonts|high_contrast]...
#   few_colours     640 x 480 in as few colours as the X server offers
#   large_fonts     120 dots per inch
#   high_contrast   white on black, the system's scheme for users with poor sight
# All by default. The pictures go to build/photos/LOOK. A separate prefix takes the settings and keeps none of them.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../.."
readonly screens='TabSession.EachTab*:*.FilledTabIsPhotographed:UndoSession.RecordIsShown*:UndoSession.PutBackAsks*'
readonly screens_of_lists='ConfigSession.ListIsShown*:ConfigSession.WhatIsTyped*:HelpSession.OpensTheTopic*:HelpSession.Tab*'
readonly menus='LauncherSession.DoubleClick*:LauncherSession.EntryOfTheMenu*:LauncherSession.MemoryIsFreed*:TraySession.*Menu*'
export WINEPREFIX=$PWD/build/looks/wineprefix

apply() { tools/wine/wine.sh regedit /S "Z:$PWD/tools/wine/$1" >/dev/null 2>&1 && tools/wine/wine.sh --server -w; }

photograph() {
  export QDIX_PHOTOS=$1
  mkdir -p "build/photos/$1"
  tools/desktop/desktop.sh run tools/wine/wine.sh build/win9x-tests/e2e_tests.exe \
    --gtest_filter="$screens:$screens_of_lists:$menus"
}

looks=("$@")
if ((${#looks[@]} == 0)); then looks=(few_colours large_fonts high_contrast); fi
tools/wine/get_wine.sh
tools/setup/build.sh win9x
tools/setup/build.sh win9x-tests e2e_tests
tools/wine/prefix.sh

status=0
for look in "${looks[@]}"; do
  apply win98.reg # an interrupted run leaves its own settings
  case $look in
    few_colours) QDIX_SCREEN=640x480 QDIX_DEPTH=8 photograph "$look" || status=1 ;;
    large_fonts | high_contrast)
      apply "$look.reg"
      photograph "$look" || status=1
      ;;
    *)
      sed -n '2,6s/^# //p' "${BASH_SOURCE[0]}" >&2
      exit 2
      ;;
  esac
done
exit "$status"
