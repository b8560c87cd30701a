#!/usr/bin/env python3
"""Fails if a source file is longer than one subject needs: more than 500 lines."""
import pathlib
import sys

MAX_LINES = 500
FOLDERS = ("src", "companions", "tests", "bench", "tools", "cmake")
SUFFIXES = {".h", ".cpp", ".py", ".sh", ".cmake"}


def main():
    root = pathlib.Path(sys.argv[1])
    files = [file for folder in FOLDERS for file in (root / folder).rglob("*") if file.suffix in SUFFIXES]
    too_long = [(file, count) for file in sorted(files)
                if (count := len(file.read_text(encoding="utf-8").splitlines())) > MAX_LINES]
    for file, count in too_long:
        print(f"{file.relative_to(root)} has {count} lines, more than {MAX_LINES}")
    print(f"file sizes: {len(files)} files checked")
    sys.exit(1 if too_long or not files else 0)


if __name__ == "__main__":
    main()
