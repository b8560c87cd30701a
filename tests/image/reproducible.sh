#!/usr/bin/env bash
# Rebuilds programs from a copy of the sources in another folder and compares the bytes:
#   reproducible.sh SOURCE_DIR BUILT_EXE...
set -euo pipefail

source_dir=$1
shift
copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT
cp -r "$source_dir"/{CMakeLists.txt,CMakePresets.json,cmake,companions,help,src,tools,tests} "$copy"
cd "$copy"
# With a compiler cache, the first build would be compared with itself.
export CCACHE_DISABLE=1
cmake --preset win9x >/dev/null
for built in "$@"; do
  name=$(basename "$built")
  cmake --build --preset win9x --target "$name" >/dev/null
  cmp "$built" "build/win9x/$name"
  echo "$name: two builds, identical $(stat -c %s "$built") bytes"
done
