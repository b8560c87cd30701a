#!/usr/bin/env bash
# Measures the shipped programs beside Wine's own in one run, about eight minutes, and writes docs/benchmarks.md but
# for the part of bench/small_machine.sh. Nothing else should run on the machine meanwhile.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
readonly report=docs/benchmarks.md
readonly bench=build/win9x-tests/qdix_bench.exe

tools/setup/packages.sh
tools/wine/get_wine.sh
tools/setup/build.sh win9x
tools/setup/build.sh win9x-tests qdix_bench
tools/wine/prefix.sh

measured=$(tools/desktop/desktop.sh run tools/wine/wine.sh "$bench" | tr -d '\r')
{
  cat <<'HEAD'
# Benchmarks

Made by `bench/run.sh`. The shipped programs beside Wine's own in one run on one machine: the ratios count, the other numbers are this
machine's. Series show the middle, and the smallest and the largest in brackets; work that is the same each time shows its fastest run,
because the rest of the machine makes the others slower. A missed budget is reported as missed.

HEAD
  printf 'Wine %s, %s processors, commit %s of %s.\n\n' "$(tools/wine/wine.sh --version | tr -d '\r' | sed 's/^wine-//')" \
    "$(nproc)" "$(git rev-parse --short HEAD)" "$(git log -1 --format=%cs)"
  printf '%s\n' "$measured"
  cat <<'TAIL'

## How it is measured

- Start: from the request to start the program until its main window is visible, to a millisecond, all in turn.
- Notepad twice: Wine knows its own programs by a mark in their files. All others it gives, in a Windows 98, what 16-bit programs need as
  well: a first megabyte of memory, a kernel, two drivers. A copy of notepad without the mark is loaded as Q-DIX is.
- Memory: private committed pages; images and shared pages do not count.
- Idle minute: user and system time of the process, as it is told itself, in steps of 10 ms; both programs live through the same three
  minutes. What Wine's server does for them is in neither.
- Release: processor time, because elapsed time is that of the pumps above all, which wait for Wine's server. The loop takes as many bytes
  in one block, writes into every page and frees it. It pumps as often as a release, because pumps cost more while much memory is held:
  a bare loop without them looked a fifth cheaper. What is compared is the difference between the fastest run with 232 MB and the fastest
  with 1 MB, on both sides, and so memory alone.
- Ticks: the handler of `Timer1` on the simulated machine, in the arithmetic of the shipped programs.
- Timers: stopped one by one from inside the process, which tells whether each was there. Top-level windows include those that
  Wine's input methods add to every program.

TAIL
  # What bench/small_machine.sh and bench/held.sh wrote stays as it is.
  sed -n '/^## On an emulated PC$/,$p' "$report"
} >"$report.new"
mv "$report.new" "$report"
cat "$report"
