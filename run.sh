#!/usr/bin/env bash
# Sets up what is missing, builds the program and starts it in a Windows 98 desktop with a taskbar.
# With a display ($DISPLAY) the program is open until it is closed. Without one it runs on a private screen: a real
# pointer presses "Free Up RAM Now", the figures before and after are printed, and build/screenshot.png is the proof.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"
readonly program=build/win9x/QDIX.exe
readonly probe=build/win9x-tests/qdix_probe.exe
readonly end_limit_s=20

tools/setup/packages.sh
tools/wine/get_wine.sh
tools/setup/build.sh win9x
tools/wine/prefix.sh

if [ -z "${DISPLAY:-}" ]; then
  tools/setup/build.sh win9x-tests qdix_probe
  exec tools/desktop/desktop.sh run tools/desktop/release_session.sh "$program" "$probe" build/screenshot.png
fi

echo "run: $program is open on $DISPLAY; close its window to end this script"
status=0
tools/wine/wine.sh "$program" || status=$?
# The desktop and the server end by themselves after the last program; a second copy may still be using them.
timeout "$end_limit_s" tools/wine/wine.sh --server -w || true
exit "$status"
