#!/usr/bin/env python3
"""Runs clang-tidy over the sources of one build folder:   tidy.py BUILD_DIR

A host build covers the portable code, a cross build the win32 folders and the runtime. A clean file is checked again
only if it, a header of ours that it includes, its compiler command or the rules changed.
"""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
# What ships. Includes name files below these folders.
SHIPPED_FOLDERS = ("src", "companions")
CLANG_TIDY = "clang-tidy"
OWN_INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)
# Compiler flags that clang does not know.
UNKNOWN_TO_CLANG = re.compile(r" -ffloat-store| -fno-tree-loop-distribute-patterns| -fno-inline-functions-called-once"
                              r"| -fno-declone-ctor-dtor| -mno-accumulate-outgoing-args| -mpreferred-stack-boundary=2"
                              r"| -mincoming-stack-boundary=3| -fno-ipa-icf-functions")
CROSS_COMPILER = "i686-w64-mingw32-g++-win32"


def is_system_code(path):
    return "win32" in path.parts or "runtime" in path.parts


def is_shipped(path):
    return path.parts[0] in SHIPPED_FOLDERS


def included_files(file):
    """Returns the file and all headers of ours that it reaches, sorted."""
    reached = set()
    waiting = [file]
    while waiting:
        current = waiting.pop()
        if current in reached:
            continue
        reached.add(current)
        for name in OWN_INCLUDE.findall(current.read_text(encoding="utf-8")):
            candidates = (*(ROOT / folder / name for folder in SHIPPED_FOLDERS), current.parent / name)
            waiting.extend(found for found in candidates if found.is_file())
    return sorted(reached)


def cross_arguments():
    """Returns the options that tell clang where the cross compiler's headers are."""
    library = subprocess.run([CROSS_COMPILER, "-print-libgcc-file-name"], check=True, capture_output=True, text=True).stdout
    headers = pathlib.Path(library.strip()).parent / "include" / "c++"
    folders = [headers, headers / "i686-w64-mingw32", headers / "backward", "/usr/i686-w64-mingw32/include"]
    return ["--extra-arg=--target=i686-w64-mingw32", *(f"--extra-arg=-isystem{folder}" for folder in folders)]


def digest(file, command, common):
    content = hashlib.sha256(common)
    content.update(command.encode())
    for part in included_files(file):
        content.update(str(part.relative_to(ROOT)).encode() + b"\0" + part.read_bytes())
    return content.hexdigest()[:32]


def check(file, stamp, arguments):
    """Returns what clang-tidy reports for one file; nothing if the file is clean, which its stamp records."""
    if stamp.exists():
        return False, ""
    run = subprocess.run([CLANG_TIDY, "--quiet", *arguments, str(file)], cwd=ROOT, capture_output=True, text=True)
    if run.returncode != 0:
        errors = [line for line in run.stderr.splitlines() if "warnings generated" not in line]
        return True, run.stdout + "\n".join(errors)
    stamp.touch()
    return True, ""


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    entries = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    cross = any(CROSS_COMPILER in entry["command"] for entry in entries)
    database = build / "tidy-database"
    stamps = build / "tidy-stamps"
    for folder in (database, stamps):
        folder.mkdir(exist_ok=True)
    for entry in entries:
        entry["command"] = UNKNOWN_TO_CLANG.sub("", entry["command"])
    (database / "compile_commands.json").write_text(json.dumps(entries), encoding="utf-8")

    arguments = ["-p", str(database), *(cross_arguments() if cross else ["--extra-arg=-Wno-unknown-warning-option"])]
    common = (ROOT / ".clang-tidy").read_bytes() + pathlib.Path(__file__).read_bytes()
    commands = {pathlib.Path(entry["file"]): entry["command"] for entry in entries}
    files = sorted(file for file in commands
                   if file.suffix == ".cpp" and file.is_relative_to(ROOT) and is_shipped(file.relative_to(ROOT))
                   and is_system_code(file.relative_to(ROOT)) == cross)
    with concurrent.futures.ThreadPoolExecutor(max_workers=min(2, os.cpu_count() or 1)) as pool:
        results = list(pool.map(
            lambda file: check(file, stamps / digest(file, commands[file], common), arguments), files))
    for _, complaint in results:
        if complaint:
            print(complaint)
    looked_at = sum(fresh for fresh, _ in results)
    faulty = sum(bool(complaint) for _, complaint in results)
    print(f"tidy: {len(files)} files, {looked_at} checked, {faulty} with complaints")
    sys.exit(1 if faulty or not files else 0)


if __name__ == "__main__":
    main()
