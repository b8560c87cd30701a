"""Reads the lists in cmake/win95-exports: the exports of the first Windows 95's libraries, and which of them work
there."""
import pathlib

# Lists whose lines also name a library: "kernel32!MoveFileExA".
LATER = "later-than-95"
STUBS = "stubs-in-95"


def _lines(path):
    return [line.strip() for line in path.read_text(encoding="ascii").splitlines() if line.strip() and not line.startswith("#")]


def exported_names(folder):
    """Returns the exported names of each library, keyed by its file name without extension."""
    return {path.stem: set(_lines(path)) for path in pathlib.Path(folder).glob("*.txt") if path.stem not in (LATER, STUBS)}


def listed_names(folder, stem):
    """Returns for each library its names in a list whose lines name the library too."""
    found = {}
    for line in _lines(pathlib.Path(folder) / f"{stem}.txt"):
        dll, _, name = line.partition("!")
        found.setdefault(dll, set()).add(name)
    return found


def stubs(folder):
    """Of each library the names that are exported only to fail or to do nothing."""
    return listed_names(folder, STUBS)
