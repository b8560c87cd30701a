#!/usr/bin/env python3
"""Checks include directions: layers point one way, and only the win32 folders include the system's headers.

Also finds conditional compilation for a platform outside those folders. Prints each violation and exits with 1 if there
is one.
"""
import pathlib
import re
import sys

# Folder -> folders of ours that its files may include, besides its own.
LAYERS = {
    "base": set(),
    "os": {"base"},
    "ui": {"base"},
    "controls": {"base", "ui"},
    "screens": {"base", "ui", "controls"},
    "shell": {"base", "os", "ui", "controls", "screens", "memory"},
    "memory": {"base", "os", "ui", "controls", "screens", "shell", "cpu"},
    "cpu": {"base", "os", "ui", "controls", "screens", "shell"},
    "tuning": {"base", "os", "ui", "controls", "screens", "shell", "memory"},
    "launcher": {"base", "os", "ui", "controls", "screens", "shell", "memory", "cpu"},
    "app": {"base", "os", "ui", "controls", "screens", "shell", "memory", "cpu", "tuning", "launcher"},
    "companion": {"base", "os", "ui"},
    "runtime": set(),
}
# The companion programs may include nothing of each other and nothing of the main program's window. Only the
# self-test may, because it opens the windows of all.
COMPANIONS = {
    "undo": {"base", "os", "ui", "shell", "tuning", "companion"},
    "help_viewer": {"base", "os", "ui", "shell", "companion"},
    "config_launcher": {"base", "os", "ui", "shell", "launcher", "companion"},
    "self_test": {"base", "os", "ui", "controls", "screens", "shell", "memory", "cpu", "launcher", "app", "undo",
                  "help_viewer", "config_launcher"},
}
ROOTS = {"src": LAYERS, "companions": COMPANIONS}
SYSTEM_HEADERS = {"windows.h", "commctrl.h", "shellapi.h", "shlobj.h", "commdlg.h", "windowsx.h", "objbase.h", "mmsystem.h"}
PLATFORM_MACROS = re.compile(r"#\s*(?:if|ifdef|ifndef|elif)\b.*\b(_WIN32|WIN32|__MINGW32__|__linux__|_WIN32_WINNT|WINVER)\b")
INCLUDE = re.compile(r'^\s*#\s*include\s+(["<])([^">]+)[">]', re.MULTILINE)


def layer_of(path):
    return path.parts[0]


def knows_the_system(path):
    return "win32" in path.parts or path.parts[0] == "runtime"


def violations_of(path, text, folder="src"):
    """Returns the violations of one file; `path` is relative to its root folder, src/ or companions/."""
    layers = ROOTS[folder]
    layer = layer_of(path)
    here = f"{folder}/{path}"
    for kind, included in INCLUDE.findall(text):
        if kind == "<":
            if included.lower() in SYSTEM_HEADERS and not knows_the_system(path):
                yield f"{here} includes <{included}>, which only the win32 folders may"
            continue
        target = pathlib.PurePosixPath(included)
        if layer_of(target) != layer and layer_of(target) not in layers.get(layer, set()):
            if not (layer_of(target) == "runtime" and (path.name == "main.cpp" or "win32" in path.parts)):
                yield f"{here} includes \"{included}\", against the direction of the layers"
        if "win32" in target.parts and not knows_the_system(path):
            yield f"{here} includes \"{included}\", which only the win32 folders may"
        if "simulated" in target.parts and "simulated" not in path.parts:
            yield f"{here} includes \"{included}\", which only tests may"
    if not knows_the_system(path) and PLATFORM_MACROS.search(text):
        yield f"{here} compiles by platform, which only the win32 folders may"
    if layer not in layers:
        yield f"{here} is in a folder that no rule knows"


def violations_in(root):
    for folder in ROOTS:
        source = pathlib.Path(root) / folder
        for file in sorted(source.rglob("*")):
            if file.suffix in {".h", ".cpp"}:
                yield from violations_of(pathlib.PurePosixPath(file.relative_to(source).as_posix()),
                                         file.read_text(encoding="utf-8"), folder)


def main():
    found = list(violations_in(sys.argv[1]))
    for violation in found:
        print(violation)
    print(f"include direction: {len(found)} violations")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
