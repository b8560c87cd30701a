#!/usr/bin/env bash
# Sets up what is missing, builds Q-DIX and shows what it does.
#   ./run.sh          on an emulated PC of 1998 with 96 MB. With a display ($DISPLAY) that PC is a window to try out;
#                     without one Q-DIX releases 40 MB there, and figures and two pictures show the result.
#                     The exit code is 0 only if memory was really gained.
#   ./run.sh --here   at once, on this display or, without one, on a private screen. Its memory figures mean nothing on
#                     a machine with more than 2 GB.
#   ./run.sh --help   prints this
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"
readonly program=build/win9x/QDIX.exe
readonly probe=build/win9x-tests/qdix_probe.exe
readonly end_limit_s=20

usage() { sed -n '2,9s/^# \{0,1\}//p' "${BASH_SOURCE[0]}"; }

show_on_small_machine() {
  tools/setup/packages.sh
  tools/setup/build.sh win9x
  tools/setup/build.sh win9x-tests qdix_probe idle hungry
  local command=show
  if [ -n "${DISPLAY:-}" ]; then command=window; fi
  exec tools/small_machine/small_machine.sh "$command"
}

# Either way the CPU graph moves: Wine keeps no statistic of the processor load, so the probe feeds this machine's
# load.
show_here() {
  tools/setup/packages.sh
  tools/wine/get_wine.sh
  tools/setup/build.sh win9x
  tools/wine/prefix.sh
  tools/setup/build.sh win9x-tests qdix_probe
  echo "run: the memory figures mean nothing on a machine with more than 2 GB; ./run.sh without --here shows real ones"
  if [ -z "${DISPLAY:-}" ]; then
    exec tools/desktop/desktop.sh run tools/desktop/release_session.sh "$program" "$probe" build/screenshot.png
  fi

  echo "run: $program is open on $DISPLAY; close its window to end this script"
  echo "run: its CPU graph shows the load of this machine, which the probe writes to the statistic of Windows 98"
  # Looks for the program until it runs, feeds its graph, and ends with it.
  {
    until tools/wine/wine.sh "$probe" wait-window; do :; done
    tools/wine/wine.sh "$probe" feed-load
  } >/dev/null 2>&1 &
  feeder_pid=$!
  trap 'kill "$feeder_pid" 2>/dev/null || true' EXIT
  local status=0
  tools/wine/wine.sh "$program" || status=$?
  # The desktop and the server end by themselves after the last program; a second copy may still be using them.
  timeout "$end_limit_s" tools/wine/wine.sh --server -w || true
  exit "$status"
}

case "${1:-}" in
  "") show_on_small_machine ;;
  --here) show_here ;;
  --help) usage ;;
  *)
    usage >&2
    exit 2
    ;;
esac
