#!/usr/bin/env bash
# Runs end-to-end tests on a strict machine with its own Wine prefix and desktop, at the same time as others:
#   on_own_machine.sh MACHINE PROGRAM WITNESS TESTS [ARGUMENT...]
# MACHINE is rtm or 98. PROGRAM is the strict QDIX.exe. It is copied with everything next to it, because the tests write
# there; so is WITNESS, the program that the tests start. TESTS is the test program. Photographs of the first Windows 95 go
# to build/photos/rtm.
set -euo pipefail

readonly machine=${1:?rtm or 98}
program=$(realpath "${2:?the strict QDIX.exe}")
witness=$(realpath "${3:?the program that the tests start}")
tests=$(realpath "${4:?the test program}")
shift 4
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=tools/wine/common.sh
source "$here/../../tools/wine/common.sh"
# shellcheck source=tools/wine/own_prefix.sh
source "$wine_tools_dir/own_prefix.sh"

use_own_prefix "strict-$machine"

if [ "$machine" = rtm ]; then export QDIX_PHOTOS=rtm; fi
cp -r "$(dirname "$program")" "$work_dir/programs"
cp "$witness" "$work_dir/"
env -u QDIX_DESKTOP QDIX_STRICT="$machine" QDIX_PROGRAM="$work_dir/programs/$(basename "$program")" \
  QDIX_WITNESS_PROGRAM="$work_dir/$(basename "$witness")" \
  "$checkout_dir/tools/desktop/desktop.sh" run "$wine_tools_dir/wine.sh" "$tests" "$@"
