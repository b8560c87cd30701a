#!/usr/bin/env python3
"""Cuts Debian's import libraries down to the names that work on the first Windows 95: exported, and not as a stub.

A member of an import library represents one function and defines the symbol __imp__NAME@N. Members with other names,
and the members that contain code, are deleted from a copy. The rest is enough for a link, and makes the use of a later
function, or of a stub, a link error. Each member also loses a word that would end up in the exe for nothing.
"""
import argparse
import pathlib
import re
import shutil
import subprocess
import tempfile

from export_lists import exported_names, stubs

NM = "i686-w64-mingw32-nm"
AR = "i686-w64-mingw32-ar"
RANLIB = "i686-w64-mingw32-ranlib"
OBJCOPY = "i686-w64-mingw32-objcopy"
IMPORT_SYMBOL = re.compile(r"^__imp__(?P<name>.+?)(@\d+)?$")


def head_and_tail(library):
    """Every link needs the head and the tail of the import table."""
    return [f"{library.stem}h.o", f"{library.stem}t.o"]


def members_to_drop(library, names):
    listing = subprocess.run([NM, "-A", "-g", "--defined-only", str(library)], check=True, capture_output=True,
                             text=True).stdout
    kept = set(head_and_tail(library))
    for line in listing.splitlines():
        location, _, symbol = line.rpartition(" ")
        match = IMPORT_SYMBOL.match(symbol)
        if match and match.group("name") in names:
            kept.add(location.split(":")[1])
    members = subprocess.run([AR, "t", str(library)], check=True, capture_output=True, text=True).stdout.split()
    return sorted(set(members) - kept)


def drop_link_words(source, target):
    """Removes the section in which each member refers to the head of its library. The reference itself stays and makes
    the linker take the head; the section would only be copied into the exe. The tail keeps the name of the DLL in a
    section of the same name, so it must not lose it."""
    subprocess.run([OBJCOPY, "-D", "--remove-section=.idata$7", str(target)], check=True)
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([AR, "x", str(source.resolve()), *head_and_tail(source)], check=True, cwd=folder)
        members = [str(pathlib.Path(folder) / member) for member in head_and_tail(source)]
        subprocess.run([AR, "rD", str(target), *members], check=True)


def reduce_library(source, names, target):
    shutil.copyfile(source, target)
    dropped = members_to_drop(source, names)
    for start in range(0, len(dropped), 2000):
        subprocess.run([AR, "dD", str(target), *dropped[start:start + 2000]], check=True)
    drop_link_words(source, target)
    subprocess.run([RANLIB, "-D", str(target)], check=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--exports", type=pathlib.Path, required=True)
    parser.add_argument("--libraries", type=pathlib.Path, required=True)
    parser.add_argument("--output", type=pathlib.Path, required=True)
    parser.add_argument("dlls", nargs="+")
    arguments = parser.parse_args()
    arguments.output.mkdir(parents=True, exist_ok=True)
    exported = exported_names(arguments.exports)
    failing = stubs(arguments.exports)
    for dll in arguments.dlls:
        names = exported[dll] - failing.get(dll, set())
        reduce_library(arguments.libraries / f"lib{dll}.a", names, arguments.output / f"lib{dll}.a")


if __name__ == "__main__":
    main()
