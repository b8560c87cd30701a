#!/usr/bin/env python3
"""Writes the section of docs/benchmarks.md about peak resource use:   held.py LOG BENCHMARKS

The guard of tests/strict95 writes LOG: the peaks of each program, when it ends.
"""
import pathlib
import re
import sys

BEGIN = "<!-- held: made by bench/held.sh -->"
END = "<!-- end of held -->"
HELD = re.compile(r"^held (?P<program>\S+) (?P<what>.+) (?P<most>\d+)$", re.MULTILINE)
PROGRAMS = ("QDIX.exe", "configL.exe", "undo.exe", "help.exe", "QDIXTEST.exe")
# The limits of Windows 95, for all programs together unless the text says otherwise.
ROOM = {
    "windows": "about 1,000 in a heap of 2 MB, their small parts in the 64 KB of USER",
    "common device contexts": "5",
    "memory and printer device contexts": "200 bytes each of GDI's 64 KB",
    "GDI objects": "30 to 100 bytes each of GDI's 64 KB",
    "menus": "a heap of 2 MB",
    "timers": "a table of USER's 64 KB",
    "icons": "a few hundred bytes each, in memory of the program",
    "registry keys": "counted in 16 bits for each key",
}


def most_of(log):
    found = {}
    for match in HELD.finditer(log):
        key = (match["program"], match["what"])
        found[key] = max(found.get(key, 0), int(match["most"]))
    return found


def section(log):
    found = most_of(log)
    missing = [program for program in PROGRAMS if (program, "windows") not in found]
    if missing:
        sys.exit(f"held: the log has no figures of {', '.join(missing)}")
    rows = [f"| {what} | " + " | ".join(str(found[program, what]) for program in PROGRAMS) + f" | {room} |"
            for what, room in ROOM.items()]
    return "\n".join([
        BEGIN, "## What a program holds at most", "",
        "The guard of `tests/strict95` counts these while the end-to-end tests use the programs. Each figure is the peak at one moment.", "",
        "| What | " + " | ".join(f"`{program}`" for program in PROGRAMS) + " | Windows 95 has |",
        "|---|" + "---|" * (len(PROGRAMS) + 1), *rows, END])


def main():
    log, benchmarks = (pathlib.Path(argument) for argument in sys.argv[1:])
    made = section(log.read_text(encoding="utf-8", errors="replace"))
    text = benchmarks.read_text(encoding="utf-8")
    if BEGIN in text:
        text = text[:text.index(BEGIN)] + made + text[text.index(END) + len(END):]
    else:
        text = text.rstrip("\n") + "\n\n" + made + "\n"
    benchmarks.write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
