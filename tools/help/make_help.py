#!/usr/bin/env python3
"""Stands in for the maker of the topic stream: one topic a file."""
import pathlib
import sys

arguments = dict(zip(sys.argv[1::2], sys.argv[2::2]))
lines = []
for name in sorted(pathlib.Path(arguments["--source"]).glob("*.txt")):
    lines.append(name.read_bytes())
pathlib.Path(arguments["--topics"]).write_bytes(b"".join(lines))
