#!/usr/bin/env bash
# Makes the pictures of the documents and of the manual, about five minutes on two idle cores: plays the scenario
# `pictures` on the small machine and cuts the windows out of its photographs.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../.."

readonly photographs=build/small_machine/pictures
readonly memory_mb=96
# The taskbar begins below this; the menus of the tray icon open in its corner.
readonly desktop=800x572+0+0
readonly window_alone=(-trim +repage)
readonly menu_corner=176x148+624+452
readonly menus_corner=260x168+540+432
# The classic screen has few colours, and a floppy disk has little room.
readonly manual_colours=16

# Photographs by name, and the pictures that the manual has of them.
declare -A manual=(
  [before]=quondix [automatic]=auto [time_intervals]=time [startup_other]=startup [launcher]=launcher
  [cache_preset]=cache [swapfile_optimised]=swapfile [about]=about [config_launcher]=configl [undo]=undo
)

# cut_out PHOTOGRAPH PART PICTURE [OPTION...]
cut_out() { convert "$photographs/$1.png" -crop "$2" +repage -strip "${@:4}" "$3"; }

tools/setup/packages.sh
tools/setup/build.sh win9x
tools/setup/build.sh win9x-tests qdix_probe idle
tools/small_machine/small_machine.sh play pictures "$memory_mb" "$photographs"

mkdir -p docs/pictures help/pictures
for name in before after cache_preset swapfile_optimised undo config_launcher help; do
  cut_out "$name" "$desktop" "docs/pictures/$name.png" "${window_alone[@]}" -colors 256
done
for name in "${!manual[@]}"; do
  cut_out "$name" "$desktop" "help/pictures/${manual[$name]}.gif" "${window_alone[@]}" +dither -colors "$manual_colours"
done
cut_out tray_programs "$menus_corner" docs/pictures/tray_programs.png -colors 256
cut_out tray_menu "$menu_corner" help/pictures/tray.gif +dither -colors "$manual_colours"
echo "pictures: made again under docs/pictures and help/pictures"
