#!/usr/bin/env bash
# Measures a release on the small machine with 64, 96 and 128 MB beside a bare loop, about ten minutes on two idle
# cores, and writes that part of docs/benchmarks.md.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
readonly report=docs/benchmarks.md
readonly sizes_mb=(64 96 128)

tools/setup/packages.sh
tools/setup/build.sh win9x
tools/setup/build.sh win9x-tests qdix_probe idle
tools/small_machine/small_machine.sh make "${sizes_mb[@]}"

results=()
for size_mb in "${sizes_mb[@]}"; do
  folder=build/small_machine/beside_loop_$size_mb
  tools/small_machine/small_machine.sh play beside_loop "$size_mb" "$folder"
  results+=("$folder/release.json")
done

# What bench/run.sh wrote comes before that part, what bench/held.sh wrote after it; both stay as they are.
{
  sed '/^## On an emulated PC$/,$d; /^<!-- held/,$d' "$report"
  bench/small_machine.py "${results[@]}"
  if grep -q '^<!-- held' "$report"; then
    printf '\n'
    sed -n '/^<!-- held/,/^<!-- end of held/p' "$report"
  fi
} >"$report.new"
mv "$report.new" "$report"
sed -n '/^## On an emulated PC$/,$p' "$report"
