#!/usr/bin/env bash
# Sets up what is missing, builds everything and runs all tests; arguments are handed to ctest (./test.sh -R unit).
# The tests of Windows programs run on a private screen with a Windows 98 desktop. The last output is ctest's summary.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"
readonly presets=(host-sanitize win9x win9x-tests)

tools/setup/packages.sh
tools/wine/get_wine.sh
for preset in "${presets[@]}"; do
  tools/setup/build.sh "$preset"
done
tools/wine/prefix.sh

# One test run over all build folders, so that there is one summary and one exit code.
mkdir -p build/all-tests
{
  printf 'subdirs('
  printf '"../%s" ' "${presets[@]}"
  printf ')\n'
} >build/all-tests/CTestTestfile.cmake

echo "test: running"
exec tools/desktop/desktop.sh run \
  ctest --test-dir build/all-tests --output-on-failure --no-tests=error --parallel "$(nproc)" "$@"
