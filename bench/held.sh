#!/usr/bin/env bash
# Measures how many system resources the programs hold at most, and writes that section of docs/benchmarks.md. The guard of
# tests/strict95 counts them while end-to-end tests use the programs. The optional argument is a --gtest_filter.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
tools/setup/build.sh win9x
tools/setup/build.sh win9x-tests e2e_tests

log=$(mktemp)
trap 'rm -f "$log"' EXIT
filter=${1:---gtest_filter=StartSession.*:*TabSession.*:ConfigSession.*:HelpSession.*:UndoSession.*:SelfTest.*:TraySession.*}
QDIX_PROGRAM="$PWD/build/win9x-strict/QDIX.exe" QDIX_STRICT=98 QDIX_STRICT_LOG="Z:${log//\//\\}" \
  tools/desktop/desktop.sh run tools/wine/wine.sh build/win9x-tests/e2e_tests.exe "$filter"
bench/held.py "$log" docs/benchmarks.md
