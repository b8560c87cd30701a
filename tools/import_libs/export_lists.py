"""Reads the lists in cmake/win95-exports: what the libraries of the first Windows 95 export, and what of that works there."""
import pathlib

# Lists whose lines name a library as well: "kernel32!MoveFileExA".
LATER = "later-than-95"
STUBS = "stubs-in-95"


def _lines(path):
    return [line.strip() for line in path.read_text(encoding="ascii").splitlines() if line.strip() and not line.startswith("#")]


def exported_names(folder):
    """The exported names of each library, without the extension of its file name."""
    return {path.stem: set(_lines(path)) for path in pathlib.Path(folder).glob("*.txt") if path.stem not in (LATER, STUBS)}


def listed_names(folder, stem):
    """The names of each library in a list whose lines name the library as well."""
    found = {}
    for line in _lines(pathlib.Path(folder) / f"{stem}.txt"):
        dll, _, name = line.partition("!")
        found.setdefault(dll, set()).add(name)
    return found


def stubs(folder):
    """Of each library the names that are exported only to fail or to do nothing."""
    return listed_names(folder, STUBS)
