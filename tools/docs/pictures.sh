#!/usr/bin/env bash
# Makes the pictures of the documents and of the manual from the photographs that the end-to-end tests leave under
# build/photos. Run ./test.sh -R e2e first.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../.."

# The desktop's own taskbar begins below this; the menu of the tray icon opens in its corner.
readonly desktop=800x572+0+0
readonly tray_corner=176x148+624+452
readonly programs_corner=260x148+540+452
# The classic screen has few colours, and a floppy disk has little room.
readonly manual_colours=16

# Photographs by name, and the pictures that the manual has of them.
declare -A manual=(
  [quondix]=quondix [automatic]=auto [time_intervals]=time [startup_other]=startup [launcher_tab]=launcher
  [cache_preset]=cache [swapfile_optimised]=swapfile [about]=about [config_launcher]=configl [undo]=undo
)

# Prints the path of a photograph; fails where it is missing.
photo() {
  local path=build/photos/$1.png
  [ -f "$path" ] || {
    echo "pictures: $path is missing; run ./test.sh -R e2e first" >&2
    return 1
  }
  printf '%s' "$path"
}

# cut_window PHOTO PICTURE [OPTION...]: the window, less the taskbar and the empty desktop round it.
cut_window() {
  local path
  path=$(photo "$1")
  convert "$path" -crop "$desktop" +repage -trim +repage -strip "${@:3}" "$2"
}

mkdir -p docs/pictures help/pictures
for name in quondix automatic cache_preset swapfile_optimised undo config_launcher; do
  cut_window "$name" "docs/pictures/$name.png" -colors 256
done
for name in "${!manual[@]}"; do
  cut_window "$name" "help/pictures/${manual[$name]}.gif" +dither -colors "$manual_colours"
done
cut_window help_topic_4 docs/pictures/help.png -colors 256
menu=$(photo tray_programs)
convert "$menu" -crop "$programs_corner" +repage -strip -colors 256 docs/pictures/tray_programs.png
menu=$(photo tray_menu)
convert "$menu" -crop "$tray_corner" +repage -strip +dither -colors "$manual_colours" help/pictures/tray.gif
echo "pictures: made anew under docs/pictures and help/pictures"
