#!/usr/bin/env python3
"""Checks include directions: folders include only what the table in docs/architecture.md allows, the table has an order
without a circle, and only the win32 folders include the system's headers.

Also finds conditional compilation for a platform outside those folders. Prints each violation and exits with 1 if there
is one.
"""
import pathlib
import re
import sys

PAGE = "docs/architecture.md"
ROW = re.compile(r"^(src|companions)/(\w+)/ .* ->((?: \w+)*)$", re.MULTILINE)
SYSTEM_HEADERS = {"windows.h", "commctrl.h", "shellapi.h", "shlobj.h", "commdlg.h", "windowsx.h", "objbase.h", "mmsystem.h"}
PLATFORM_MACROS = re.compile(r"#\s*(?:if|ifdef|ifndef|elif)\b.*\b(_WIN32|WIN32|__MINGW32__|__linux__|_WIN32_WINNT|WINVER)\b")
INCLUDE = re.compile(r'^\s*#\s*include\s+(["<])([^">]+)[">]', re.MULTILINE)


class Table:
    """The folders of the page and what each may include besides itself."""

    def __init__(self, page):
        self.rows = [(root, folder, allowed.split()) for root, folder, allowed in ROW.findall(page)]

    def allowed_for(self, root, folder):
        """Returns None for a folder that the table does not have."""
        return next((allowed for row_root, name, allowed in self.rows if (row_root, name) == (root, folder)), None)

    def violations(self):
        above = set()
        for root, folder, allowed in self.rows:
            yield from (f"{PAGE}: {root}/{folder}/ may include {one}, which is not above it"
                        for one in allowed if one not in above)
            above.add(folder)


def layer_of(path):
    return path.parts[0]


def knows_the_system(path):
    return "win32" in path.parts or path.parts[0] == "runtime"


def violations_of(table, path, text, folder="src"):
    """Returns the violations of one file; `path` is relative to its root folder, src/ or companions/."""
    layer = layer_of(path)
    allowed = table.allowed_for(folder, layer)
    here = f"{folder}/{path}"
    for kind, included in INCLUDE.findall(text):
        if kind == "<":
            if included.lower() in SYSTEM_HEADERS and not knows_the_system(path):
                yield f"{here} includes <{included}>, which only the win32 folders may"
            continue
        target = pathlib.PurePosixPath(included)
        if layer_of(target) != layer and layer_of(target) not in (allowed or ()):
            if not (layer_of(target) == "runtime" and "win32" in path.parts):
                yield f"{here} includes \"{included}\", against the direction of the layers"
        if "win32" in target.parts and not knows_the_system(path):
            yield f"{here} includes \"{included}\", which only the win32 folders may"
        if "simulated" in target.parts and "simulated" not in path.parts:
            yield f"{here} includes \"{included}\", which only tests may"
    if not knows_the_system(path) and PLATFORM_MACROS.search(text):
        yield f"{here} compiles by platform, which only the win32 folders may"
    if allowed is None:
        yield f"{here} is in a folder that the table does not have"


def violations_in(root):
    table = Table((root / PAGE).read_text(encoding="utf-8"))
    yield from table.violations()
    for folder in ("src", "companions"):
        source = root / folder
        for file in sorted(source.rglob("*")):
            if file.suffix in {".h", ".cpp"}:
                yield from violations_of(table, pathlib.PurePosixPath(file.relative_to(source).as_posix()),
                                         file.read_text(encoding="utf-8"), folder)


def main():
    found = list(violations_in(pathlib.Path(sys.argv[1])))
    for violation in found:
        print(violation)
    print(f"include direction: {len(found)} violations")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
