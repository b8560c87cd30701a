#!/usr/bin/env python3
"""Prints the section of docs/benchmarks.md about the small machine:   small_machine.py STARTS.json RELEASE.json..."""
import json
import pathlib
import statistics
import sys

# As in the title bar of the main window.
KB_PER_MB = 1000
KEPT, MISSED = "kept", "**missed**"
# Of the time that notepad takes, whose window is a single one.
MAX_START_RATIO = 1.4
NAMES = {"QDIX.exe": "`QDIX.exe`", "other.exe": "notepad loaded as any other program",
         "notepad.exe": "notepad loaded as Wine loads its own"}


class Step:
    """The results of one step in all rounds of a run. Every round starts from the same stored state."""

    def __init__(self, result, name):
        rounds = [one[name] for one in result["rounds"]]
        before = result["before"]
        self.ms = [one["ms"] for one in rounds]
        self.gained_kb = [one["after"]["available_kb"] - before["available_kb"] for one in rounds]
        self.pages_out = [one["after"]["pages_out"] - before["pages_out"] for one in rounds]
        self.available_kb = [one["after"]["available_kb"] for one in rounds]
        self.idle_in_ram_kb = [one["after"]["idle_in_ram_kb"] for one in rounds]
        self.fastest_ms = min(self.ms)


def mb(kilobytes):
    return f"{kilobytes / KB_PER_MB:.1f} MB"


def spread(values, unit, show):
    """Formats the median, with minimum and maximum in brackets."""
    middle, least, most = show(statistics.median(values)), show(min(values)), show(max(values))
    return f"{middle}{unit}" if least == most else f"{middle}{unit} ({least} to {most})"


def spread_mb(kilobytes):
    return spread(kilobytes, " MB", lambda one: f"{one / KB_PER_MB:.1f}")


def table(heading, rows):
    return [f"| {' | '.join(heading)} |", "|" + "---|" * len(heading), *(f"| {' | '.join(row)} |" for row in rows)]


def gain_row(result):
    release, loop = Step(result, "release").gained_kb, Step(result, "loop").gained_kb
    ratio = statistics.median(release) / statistics.median(loop)
    return [f"memory gained by a release of {result['release_mb']} MB with {result['memory_mb']} MB, beside a loop",
            spread_mb(release), spread_mb(loop), f"{ratio:.2f}", "at least the loop's", KEPT if ratio >= 1 else MISSED]


def time_row(result):
    ours = Step(result, "release").fastest_ms
    loop = Step(result, "pumping_loop").fastest_ms
    rounds = len(result["rounds"])
    return [f"time of that release, fastest of {rounds}, beside a loop with as many pumps ({result['pumps']:,})",
            f"{ours:.0f} ms", f"{loop:.0f} ms", f"{ours / loop:.2f}", "at most the loop's",
            KEPT if ours <= loop else MISSED]


def start_row(starts, beside):
    ours, theirs = min(starts["start_ms"]["QDIX.exe"]), min(starts["start_ms"][beside])
    rounds = len(starts["start_ms"]["QDIX.exe"])
    return [f"start until the window is shown with {starts['memory_mb']} MB, fastest of {rounds}, beside {NAMES[beside]}",
            f"{ours:.0f} ms", f"{theirs:.0f} ms", f"{ours / theirs:.2f}", f"at most {MAX_START_RATIO} x notepad",
            KEPT if ours <= MAX_START_RATIO * theirs else MISSED]


def release_row(result):
    release = Step(result, "release")
    return [f"{result['memory_mb']} MB", f"{result['release_mb']} MB", mb(result["before"]["available_kb"]),
            mb(statistics.median(release.available_kb)), f"{release.fastest_ms / 1000:.1f} seconds"]


def step_rows(result):
    names = {"release": "release", "loop": "bare loop", "pumping_loop": "loop that pumps as a release does, with a window",
             "pumps": f"{result['pumps']:,} pumps alone", "window_pumps": "as many in a program with a window"}
    for name, shown in names.items():
        step = Step(result, name)
        yield [f"{result['memory_mb']} MB", shown, spread_mb(step.gained_kb),
               spread(step.ms, " ms", lambda ms: f"{ms:.0f}"),
               spread(step.pages_out, "", lambda pages: f"{pages:,.0f}"),
               f"{mb(result['before']['idle_in_ram_kb'])} to {mb(statistics.median(step.idle_in_ram_kb))}"]


def rest_rows(result):
    for name, shown in NAMES.items():
        memory = result["at_rest"][name]
        own_kb = memory["Private_Clean"] + memory["Private_Dirty"]
        yield [f"{result['memory_mb']} MB", shown, f"{own_kb:,} KB", f"{memory['Pss']:,} KB", f"{memory['Rss']:,} KB",
               f"{memory['Swap']:,} KB"]


HEAD = """\
## On an emulated PC

Made by `bench/small_machine.sh` on the small machine (`tools/small_machine/README.md`): an emulated Pentium II, a Linux
kernel, and Wine. Linux pages here, not Windows. Series are shown as above. 1 MB is 1,024,000 bytes, as in the title bar.
"""

METHOD = """
### How it is measured there

- The idle programs, {idle}, read all their memory. Then the state of the machine (memory, disks,
  devices) is stored, and every step of each of the {rounds} rounds starts from exactly that state.
- Release: the time from a message that presses `Command1` until its handler has ended. The loop takes as many bytes in
  one block, writes to every page and frees it. One program times both. Memory figures come from the kernel, once the
  machine is idle again.
- Pumps: in each pump of a program with a window, such as Q-DIX, Wine asks the X server. The loop that pumps has a window
  and, like a release, does half of its pumps while it holds its block and half after freeing it. Its time is more than
  the sum of the bare loop and the pumps alone, because the system keeps paging during the pumps. It draws nothing; a
  release draws its bar and its figures.
- Time counts instructions, 4 ns each, and skips idle time. Waiting for a disk of a busy host makes a run longer.
- Start: from the request to start the program until its window is shown. The programs take turns; an earlier round, which
  is not counted, reads them from the disk.
- At rest: each program is started alone from the stored desktop; figures from the kernel's smaps_rollup. Notepad is
  measured twice, as above."""


def section(starts, results):
    lines = [HEAD]
    lines += table(["What", "Q-DIX", "beside it", "ratio", "budget", ""],
                   [*(start_row(starts, beside) for beside in ("other.exe", "notepad.exe")),
                    *(row for result in results for row in (gain_row(result), time_row(result)))])
    lines += ["", "### A release", ""]
    lines += table(["Memory", "Amount", "Available before", "Available after", "Time"], map(release_row, results))
    lines += ["", "### Its steps", ""]
    lines += table(["Memory", "Step", "gained", "time", "pages to the swap file", "idle programs in RAM"],
                   [row for result in results for row in step_rows(result)])
    lines += ["", "### The program at rest", ""]
    lines += table(["Memory", "Program", "its own in RAM", "with its share of common pages", "with all common pages",
                    "in the swap file"], [row for result in results for row in rest_rows(result)])
    idle = ", ".join(f"{result['idle_programs']} of {result['idle_mb']} MB" for result in results)
    return "\n".join([*lines, METHOD.format(idle=idle, rounds=len(results[0]["rounds"]))])


def main():
    starts, *results = (json.loads(pathlib.Path(file).read_text(encoding="utf-8")) for file in sys.argv[1:])
    print(section(starts, results))


if __name__ == "__main__":
    main()
