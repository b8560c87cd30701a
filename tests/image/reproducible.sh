#!/usr/bin/env bash
# Builds the program once more from a copy of the sources in another folder and compares the bytes:   reproducible.sh SOURCE_DIR BUILT_EXE
set -euo pipefail

source_dir=$1
built=$2
copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT
cp -r "$source_dir"/{CMakeLists.txt,CMakePresets.json,cmake,src,tools,tests} "$copy"
cd "$copy"
# A cache of compiler results would compare the first build with itself.
export CCACHE_DISABLE=1
cmake --preset win9x >/dev/null
cmake --build --preset win9x --target QDIX >/dev/null
cmp "$built" build/win9x/QDIX.exe
echo "two builds, the same $(stat -c %s "$built") bytes"
