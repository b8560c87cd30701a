#!/usr/bin/env bash
# Measures the shipped programs beside Wine's own in one run of about eight minutes (thirteen through an emulator), and
# writes docs/benchmarks.md except for the sections of bench/small_machine.sh and bench/held.sh. Nothing else should run on
# the machine during that time.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=tools/wine/common.sh
source tools/wine/common.sh
readonly report=docs/benchmarks.md
readonly bench=build/win9x-tests/qdix_bench.exe

tools/setup/packages.sh
tools/wine/get_wine.sh
tools/setup/build.sh win9x
tools/setup/build.sh win9x-tests qdix_bench
tools/wine/prefix.sh

set_wine_programs "$(chosen_wine)"
emulation=""
if [ "${wine_program##*/}" = "$emulated_wine_name" ]; then emulation=" through an emulator of 32-bit programs"; fi
measured=$(tools/desktop/desktop.sh run tools/wine/wine.sh "$bench" | tr -d '\r')
{
  cat <<'HEAD'
# Benchmarks

Made by `bench/run.sh`, which measures the shipped programs beside Wine's own in one run on one machine. Compare the ratios; the other
numbers depend on the machine. A series shows its median, with minimum and maximum in brackets. Work that is the same each time shows its
fastest run, because other load on the machine makes the other runs slower. A missed budget is reported as missed.

HEAD
  printf 'Wine %s%s, %s processors, commit %s of %s.\n\n' \
    "$(tools/wine/wine.sh --version | tr -d '\r' | sed 's/^wine-//')" "$emulation" "$(nproc)" \
    "$(git rev-parse --short HEAD)" "$(git log -1 --format=%cs)"
  printf '%s\n' "$measured"
  cat <<'TAIL'

## How it is measured

- Start: the time from the request to start the program until its main window is visible, to a millisecond. The programs take turns.
  An emulator spends most of a start translating code; the start on the emulated PC below counts instructions instead.
- Notepad is measured twice. Wine recognizes its own programs by a mark in their files. In Windows 98 mode it gives all other programs what
  16-bit programs need: a first megabyte of memory, a kernel, two drivers. Wine loads a copy of notepad without the mark as it loads Q-DIX.
- Memory: private committed pages. Images and shared pages do not count.
- Idle minute: user and system time of the process, as the process itself sees it, in steps of 10 ms. Both programs are measured during the
  same three minutes. Work that Wine's server does for them is not included.
- Release: processor time, because pumps that wait for Wine's server take most of the elapsed time. The loop takes as many bytes in one
  block, writes to every page and frees it. It pumps as often as a release, because pumps cost more while much memory is held: a bare loop
  without them looked a fifth cheaper. Both sides show the difference between the fastest run with 232 MB and the fastest with 1 MB, which
  leaves only the cost of memory.
- Ticks: the handler of `Timer1` on the simulated machine, compiled with the arithmetic of the shipped programs.
- Timers: stopped one by one from inside the process; the result of each call tells whether the timer existed. Top-level windows include
  those that Wine's input methods add to every program.

TAIL
  # Keeps the sections of bench/small_machine.sh and bench/held.sh.
  sed -n '/^## On an emulated PC$/,$p' "$report"
} >"$report.new"
mv "$report.new" "$report"
cat "$report"
