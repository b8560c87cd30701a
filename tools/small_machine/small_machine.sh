#!/usr/bin/env bash
# The small machine: an emulated PC of 1998 that shows what a release of memory does.
#   small_machine.sh make [MB...]                     makes it with 96 MB, or with these sizes
#   small_machine.sh play SCENARIO [MB] [FOLDER]      runs scenarios/SCENARIO.py on it; results go to the folder
# Everything is stored in the cache folder and made again only if its inputs change. The machine runs the programs of
# build/win9x and build/win9x-tests.
set -euo pipefail

# shellcheck source=tools/wine/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/../wine/common.sh"

if (($# == 0)); then
  sed -n '2,6s/^# //p' "${BASH_SOURCE[0]}" >&2
  exit 2
fi
"$wine_tools_dir/get_wine.sh" --private
exec python3 "$checkout_dir/tools/small_machine/small_machine.py" --cache "$cache_dir" --wine "$private_wine_root" "$@"
