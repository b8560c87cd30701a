# shellcheck shell=bash
# A Wine prefix for one script, which can so run at the same time as others. Meant to be sourced after common.sh.

remove_own_prefix() {
  set_wine_programs "$(chosen_wine)"
  remove_prefix "$WINEPREFIX"
  rm -rf "$work_dir"
}

# Makes the folder build/$1.XXXXXX, sets $work_dir to it and $WINEPREFIX to a prefix in it. Both go when the script ends,
# even by a signal.
use_own_prefix() {
  work_dir=$(mktemp -d "$checkout_dir/build/$1.XXXXXX")
  export WINEPREFIX="$work_dir/prefix"
  trap remove_own_prefix EXIT
  trap 'exit 129' HUP
  trap 'exit 130' INT
  trap 'exit 143' TERM
}
