#!/usr/bin/env bash
# Runs a Windows program:   wine.sh PROGRAM [ARGUMENT...]
# Speaks to the server:     wine.sh --server -k    (ends everything in the prefix; -w waits until the last program has ended)
# The prefix is $WINEPREFIX, or build/wineprefix of the checkout; Wine and the prefix are made first if they are missing.
set -euo pipefail

# shellcheck source=tools/wine/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

main() {
  if (($# == 0)); then
    sed -n '2,4s/^# //p' "${BASH_SOURCE[0]}" >&2
    return 2
  fi
  # The standard output belongs to the program: the set-up writes only to the error output.
  "$wine_tools_dir/prefix.sh" >&2
  set_wine_programs "$(chosen_wine)"
  export_wine_environment
  if [ "$1" = --server ]; then
    shift
    exec "$wine_server" "$@"
  fi
  exec "$wine_program" "$@"
}

main "$@"
