#!/usr/bin/env bash
# Makes the pictures of the documents from the photographs that the end-to-end tests leave under build/photos.
# Run ./test.sh -R e2e first.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../.."
mkdir -p docs/pictures
for name in quondix automatic cache_preset swapfile_optimised undo config_launcher; do
  photo=build/photos/$name.png
  [ -f "$photo" ] || { echo "pictures: $photo is missing; run ./test.sh -R e2e first" >&2; exit 1; }
  # The taskbar is cut off, then the empty desktop round the window.
  convert "$photo" -crop 800x572+0+0 +repage -trim +repage -strip -colors 256 "docs/pictures/$name.png"
done
echo "pictures: made anew under docs/pictures"
