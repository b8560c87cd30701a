#!/usr/bin/env bash
# Sets up what is missing, builds the program and starts it in a Windows 98 desktop with a taskbar.
# With a display ($DISPLAY) the program is open until it is closed. Without one it runs on a private screen: a real
# pointer presses "Free Up RAM Now", the figures before and after are printed, and build/screenshot.png is the proof.
# Either way the CPU graph moves: Wine keeps no statistic of the processor load, so the probe plays this machine's.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"
readonly program=build/win9x/QDIX.exe
readonly probe=build/win9x-tests/qdix_probe.exe
readonly end_limit_s=20

tools/setup/packages.sh
tools/wine/get_wine.sh
tools/setup/build.sh win9x
tools/wine/prefix.sh

tools/setup/build.sh win9x-tests qdix_probe

if [ -z "${DISPLAY:-}" ]; then
  exec tools/desktop/desktop.sh run tools/desktop/release_session.sh "$program" "$probe" build/screenshot.png
fi

echo "run: $program is open on $DISPLAY; close its window to end this script"
echo "run: its CPU graph shows the load of this machine, which the probe writes where Windows 98 keeps that statistic"
# Looks for the program until it is there, feeds it, and ends with it.
{
  until tools/wine/wine.sh "$probe" wait-window; do :; done
  tools/wine/wine.sh "$probe" feed-load
} >/dev/null 2>&1 &
feeder_pid=$!
trap 'kill "$feeder_pid" 2>/dev/null || true' EXIT
status=0
tools/wine/wine.sh "$program" || status=$?
# The desktop and the server end by themselves after the last program; a second copy may still be using them.
timeout "$end_limit_s" tools/wine/wine.sh --server -w || true
exit "$status"
