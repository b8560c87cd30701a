#!/usr/bin/env bash
# Measures how much of the portable program (src/ and companions/ without what is Windows' own or simulated)
# the unit, contract, fuzz and soak tests run. Fails below 95 % of lines or 90 % of branches. The figures of each file go
# to build/coverage/lines.txt, its lines to build/coverage/report/index.html. The self-test's checks of a real machine
# count as not run.
#
# Branches are counted in code compiled without exceptions, as it ships, and unoptimised. Left out are those that
# gcov marks as made by the compiler for exceptions, and lines that can only be reached by a wrong program.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../.."
readonly least_line_percent=95 least_branch_percent=90
readonly directory=build/coverage

tools/setup/packages.sh
tools/setup/build.sh coverage unit_tests contract_tests fuzz_tests soak_tests
find "$directory" -name '*.gcda' -delete
# The random runs stay short: longer ones cover other orders, not more lines.
for tests in unit contract fuzz soak; do
  "$directory/${tests}_tests" --gtest_brief=1 >"$directory/${tests}.log" || {
    tail -n 50 "$directory/${tests}.log" >&2
    exit 1
  }
done

mkdir -p "$directory/report"
gcovr --root . "$directory" \
  --filter 'src/' --filter 'companions/' --exclude '.*/win32/.*' --exclude 'src/os/simulated/.*' --exclude 'src/runtime/.*' \
  --exclude-throw-branches --exclude-unreachable-branches --exclude-function-lines \
  --txt "$directory/lines.txt" --html-details "$directory/report/index.html" \
  --json-summary-pretty --json-summary "$directory/summary.json" \
  --print-summary --fail-under-line "$least_line_percent" --fail-under-branch "$least_branch_percent"
