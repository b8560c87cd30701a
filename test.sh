#!/usr/bin/env bash
# Sets up what is missing, builds everything and runs all tests. Arguments go to ctest: ./test.sh -R unit builds only
# the trees that have such tests, and runs these. The last output is ctest's summary.
# The tests of Windows programs run on a private screen with a Windows 98 desktop.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"
# In the order of their need for each other: the tests under Wine run what win9x has built.
readonly all_trees=(host-sanitize win9x win9x-tests)

# has_tests TREE [ARGUMENT...]: true if ctest finds a test in that tree for these arguments.
has_tests() {
  local found
  found=$(ctest --test-dir "build/$1" -N "${@:2}")
  [[ "$found" != *"Total Tests: 0"* ]]
}

# Fills `trees` with those that the tests need which the arguments choose.
choose_trees() {
  local tree
  for tree in "${all_trees[@]}"; do
    tools/setup/build.sh --configure "$tree"
  done
  trees=()
  if has_tests host-sanitize "$@"; then trees+=(host-sanitize); fi
  if has_tests win9x "$@" || has_tests win9x-tests "$@"; then trees+=(win9x); fi
  if has_tests win9x-tests "$@"; then trees+=(win9x-tests); fi
}

tools/setup/packages.sh
trees=("${all_trees[@]}")
if (($# > 0)); then choose_trees "$@"; fi
desktop=()
if [[ " ${trees[*]} " == *" win9x-tests "* ]]; then
  tools/wine/get_wine.sh
  desktop=(tools/desktop/desktop.sh run)
fi
for tree in "${trees[@]}"; do
  tools/setup/build.sh "$tree"
done
if ((${#desktop[@]} > 0)); then tools/wine/prefix.sh; fi

# One test run over all build trees gives one summary and one exit code.
mkdir -p build/all-tests
{
  printf 'subdirs('
  printf '"../%s" ' "${trees[@]}"
  printf ')\n'
} >build/all-tests/CTestTestfile.cmake

echo "test: running"
exec "${desktop[@]}" \
  ctest --test-dir build/all-tests --output-on-failure --no-tests=error --parallel "$(nproc)" "$@"
