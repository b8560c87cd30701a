#!/usr/bin/env bash
# Measures a release beside a bare loop on the small machine with 64, 96 and 128 MB, and a start beside notepad's, and
# writes that section of docs/benchmarks.md. Takes about six minutes on two idle cores.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
readonly report=docs/benchmarks.md
readonly sizes_mb=(64 96 128)

tools/setup/packages.sh
tools/setup/build.sh win9x
tools/setup/build.sh win9x-tests qdix_probe idle
tools/small_machine/small_machine.sh make "${sizes_mb[@]}"

tools/small_machine/small_machine.sh play starts 96 build/small_machine/starts
results=(build/small_machine/starts/starts.json)
for size_mb in "${sizes_mb[@]}"; do
  folder=build/small_machine/beside_loop_$size_mb
  tools/small_machine/small_machine.sh play beside_loop "$size_mb" "$folder"
  results+=("$folder/release.json")
done

# Keeps the text of bench/run.sh before that section and the section of bench/held.sh after it.
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
