#!/usr/bin/env bash
# Builds the shipped programs and makes the downloads under dist/: a zip, a floppy image, a CD image, checksums.
# Every file in them has the time of the commit, so that the same commit gives the same bytes.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"
readonly build=build/win9x
# 14 January 2000, for sources outside a checkout.
readonly time_without_commit=947808000

tools/setup/packages.sh
tools/setup/build.sh win9x
commit_time=$(git log -1 --format=%ct 2>/dev/null) || commit_time=$time_without_commit
rm -rf dist
tools/dist/make_dist.py --build "$build" --output dist --time "$commit_time"
cat dist/sha256sums.txt
