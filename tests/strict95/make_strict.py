#!/usr/bin/env python3
"""Puts Guard.dll between the programs and the system:   make_strict.py --output FOLDER --generated FOLDER --libraries FOLDER --exports FOLDER EXE...

Writes to the --output folder a copy of each EXE that imports everything from Guard.dll, and its symbol list. Writes to the
--generated folder the sources of that library: an entry for each imported function, and the names that the first Windows 95 exports.
"""
import argparse
import pathlib
import re
import shutil
import subprocess
import sys

from portable_exe import PortableExe

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools" / "import_libs"))
from export_lists import LATER, exported_names, listed_names, stubs  # noqa: E402

GUARD = "Guard.dll"
NM = "i686-w64-mingw32-nm"
# Functions that the programs look up at run time instead of importing them: library, and argument size in words.
LOOKED_UP = {"GetDiskFreeSpaceExA": ("KERNEL32.dll", 4), "CoCreateInstance": ("ole32.dll", 5)}

ENTRY = r"""asm(".globl _Entry_{name}\n_Entry_{name}:\n\tpushl ${index}\n\tjmp _GuardThunk");"""


def argument_words(library, libraries):
    """Returns the argument size of each function of an import library in words, read from its decorated name."""
    path = libraries / f"lib{library.lower().removesuffix('.dll')}.a"
    symbols = subprocess.run([NM, path], check=True, capture_output=True, text=True).stdout
    return {name: int(size) // 4 for name, size in re.findall(r" I __imp__(\w+)@(\d+)$", symbols, re.MULTILINE)}


def write_if_changed(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    if not path.exists() or path.read_text(encoding="ascii") != text:
        path.write_text(text, encoding="ascii")


def imports_of(exes):
    """Returns the library of each function that any of the programs imports or looks up."""
    found = {name: library for name, (library, _) in LOOKED_UP.items()}
    for exe in exes:
        for library, _, functions in PortableExe(exe.read_bytes()).libraries():
            found.update(dict.fromkeys(functions, library))
    return dict(sorted(found.items()))


def entries_source(imports, libraries):
    words = {name: count for name, (_, count) in LOOKED_UP.items()}
    for library in sorted({library for name, library in imports.items() if name not in LOOKED_UP}):
        words.update(argument_words(library, libraries))
    rows = [f'    {{"{library}", "{name}", {words[name]}}},' for name, library in imports.items()]
    entries = [ENTRY.format(name=name, index=index) for index, name in enumerate(imports)]
    return "\n".join([
        "// Made by make_strict.py.", '#include "tests/strict95/guard/imports.h"', "", "namespace qdix::strict95 {", "",
        "const Import kImports[] = {", *rows, "};", f"const std::size_t kImportCount = {len(rows)};",
        f"FARPROC system_functions[{len(rows)}] = {{}};", "", "}  // namespace qdix::strict95", "", *entries, ""])


def exports_source(exports):
    fails = stubs(exports)
    rows = [f'    {{"{library}", "{name}", Support::{"kOnlyFails" if name in fails.get(library, ()) else "kWorks"}}},'
            for library, names in sorted(exported_names(exports).items()) for name in sorted(names)]
    rows += [f'    {{"{library}", "{name}", Support::kLater}},'
             for library, names in sorted(listed_names(exports, LATER).items()) for name in sorted(names)]
    return "\n".join([
        "// Made by make_strict.py.", '#include "tests/strict95/guard/imports.h"', "", "namespace qdix::strict95 {", "",
        "const Export kExports[] = {", *rows, "};", f"const std::size_t kExportCount = {len(rows)};", "",
        "}  // namespace qdix::strict95", ""])


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    for folder in ("output", "generated", "libraries", "exports"):
        parser.add_argument(f"--{folder}", type=pathlib.Path, required=True)
    parser.add_argument("exe", type=pathlib.Path, nargs="+")
    arguments = parser.parse_args()
    imports = imports_of(arguments.exe)
    write_if_changed(arguments.generated / "imports.cpp", entries_source(imports, arguments.libraries))
    write_if_changed(arguments.generated / "exports.cpp", exports_source(arguments.exports))
    definitions = [f"  {name} = Entry_{name}" for name in imports]
    write_if_changed(arguments.generated / "guard.def", "\n".join([f"LIBRARY {GUARD}", "EXPORTS", *definitions, ""]))
    arguments.output.mkdir(parents=True, exist_ok=True)
    for exe in arguments.exe:
        program = PortableExe(exe.read_bytes())
        program.rename_libraries(GUARD)
        (arguments.output / exe.name).write_bytes(program.content)
        shutil.copyfile(f"{exe}.symbols", arguments.output / f"{exe.name}.symbols")


if __name__ == "__main__":
    main()
