#!/usr/bin/env bash
# Sets up what is missing, builds everything and runs all tests. Arguments go to ctest: ./test.sh -R unit builds only
# what such tests run, and runs these. The last output is ctest's summary.
# The tests of Windows programs run on a private screen with a Windows 98 desktop.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"
# In the order of their need for each other: the tests under Wine run what win9x has built.
readonly all_trees=(host-sanitize win9x win9x-tests)

# Fills `trees` with those that the tests need which the arguments choose, and `targets` with what to build in each.
choose_trees() {
  local tree job jobs=()
  mkdir -p build/logs
  for tree in "${all_trees[@]}"; do
    {
      tools/setup/build.sh --configure "$tree"
      tools/setup/test_targets.py "build/$tree" "$@" >"build/logs/$tree.targets"
    } &
    jobs+=($!)
  done
  for job in "${jobs[@]}"; do wait "$job"; done
  for tree in "${all_trees[@]}"; do targets[$tree]=$(<"build/logs/$tree.targets"); done
  if [ -n "${targets[win9x-tests]}" ]; then targets[win9x]=all; fi
  # A random test has no name before its program is built.
  if [ -z "${targets[host-sanitize]}${targets[win9x]}" ]; then targets[host-sanitize]=all; fi
  trees=()
  for tree in "${all_trees[@]}"; do
    if [ -n "${targets[$tree]}" ]; then trees+=("$tree"); fi
  done
}

declare -A targets
for tree in "${all_trees[@]}"; do targets[$tree]=all; done
tools/setup/packages.sh
trees=("${all_trees[@]}")
if (($# > 0)); then choose_trees "$@"; fi
desktop=()
if [[ " ${trees[*]} " == *" win9x-tests "* ]]; then
  tools/wine/get_wine.sh
  desktop=(tools/desktop/desktop.sh run)
fi
for tree in "${trees[@]}"; do
  read -ra chosen <<<"${targets[$tree]}"
  tools/setup/build.sh "$tree" "${chosen[@]}"
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
