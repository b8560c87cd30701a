#!/usr/bin/env bash
# Makes the prefix that all tests and runs use: a 32-bit Windows 98 at 96 dots per inch in its classic grey, with
# bitmap fonts, a desktop with a taskbar, no crash boxes and no links into the user's own folders.
# Quick if the prefix exists. A change of this script, of its registry contents or of Wine makes it again.
set -euo pipefail

# shellcheck source=tools/wine/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

readonly registry_file="$wine_tools_dir/win98.reg"
readonly font_metrics="$wine_tools_dir/font_metrics.sh"
readonly boot_limit_s=600
# The file in a finished prefix that records what it was made from, and marks it as made here.
readonly recipe_name=qdix-recipe

# Prints a text that changes whenever the prefix must be made again.
recipe_of() {
  { cat "${BASH_SOURCE[0]}" "$registry_file" "$font_metrics" && printf '%s %s\n' "$1" "$wine_program"; } | sha256sum
}

is_made_by() {
  [ -f "$2/$recipe_name" ] && [ "$(<"$2/$recipe_name")" = "$1" ]
}

# A prefix links Documents, Desktop and the like to the user's own folders. Tests must not write there.
cut_links_to_home() {
  local link
  while IFS= read -r -d '' link; do
    rm "$link"
    mkdir "$link"
  done < <(find "$1/drive_c/users" -type l -print0)
}

run_in_prefix() {
  if ! timeout "$boot_limit_s" "$wine_program" "$@" </dev/null >"$WINEPREFIX/../$log_name" 2>&1; then
    say "'$*' failed in the new prefix"
    tail -n 5 "$WINEPREFIX/../$log_name" >&2
    return 1
  fi
}

# Fills the empty folder $WINEPREFIX.
make_prefix() {
  unset DISPLAY # no window may appear while the prefix is made
  run_in_prefix wineboot --init
  timeout 60 "$wine_server" -w
  cut_links_to_home "$WINEPREFIX"
  if [ -d "$private_wine_root/usr/share/wine/fonts" ]; then
    cp "$private_wine_root"/usr/share/wine/fonts/* "$WINEPREFIX/drive_c/windows/Fonts/"
    find "$private_wine_root/usr/share/fonts" -name 'Liberation*.ttf' -exec cp {} "$WINEPREFIX/drive_c/windows/Fonts/" \;
  fi
  cp "$registry_file" "$WINEPREFIX/drive_c/settings.reg"
  "$font_metrics" >"$WINEPREFIX/drive_c/fonts.reg"
  run_in_prefix regedit /S 'C:\settings.reg'
  run_in_prefix regedit /S 'C:\fonts.reg'
  rm "$WINEPREFIX/drive_c/settings.reg" "$WINEPREFIX/drive_c/fonts.reg"
  stop_wine_server
}

main() {
  "$wine_tools_dir/get_wine.sh"
  local choice recipe final_prefix
  choice=$(chosen_wine)
  set_wine_programs "$choice"
  export_wine_environment
  recipe=$(recipe_of "$choice")
  final_prefix=$WINEPREFIX
  if is_made_by "$recipe" "$final_prefix"; then return 0; fi

  # $WINEPREFIX may name a prefix with the user's own programs, so never touch a prefix that was not made here.
  if [ -d "$final_prefix" ] && [ ! -f "$final_prefix/$recipe_name" ]; then
    say "$final_prefix was not made by this script and stays as it is; unset WINEPREFIX or choose another folder"
    return 1
  fi
  mkdir -p "$(dirname "$final_prefix")"
  exec 9>"$final_prefix.lock"
  if ! flock -w 600 9; then
    say "another script has been making $(basename "$final_prefix") for ten minutes"
    return 1
  fi
  if is_made_by "$recipe" "$final_prefix"; then return 0; fi

  say "making the Windows 98 prefix"
  remove_prefix "$final_prefix" 9>&-
  remove_prefix "$final_prefix.new" 9>&-
  mkdir "$final_prefix.new"
  log_name="$(basename "$final_prefix").log"
  export WINEPREFIX="$final_prefix.new"
  trap 'stop_wine_server' EXIT
  make_prefix 9>&-
  printf '%s\n' "$recipe" >"$WINEPREFIX/$recipe_name"
  mv "$WINEPREFIX" "$final_prefix"
  trap - EXIT
}

main
