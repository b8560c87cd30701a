#!/usr/bin/env python3
"""Makes the downloads from the shipped build: zip, floppy image, CD image and their sums.

The same build, texts and time give the same bytes, whatever the clock, the time zone and the order of the folder.
"""
import argparse
import hashlib
import json
import os
import pathlib
import re
import subprocess
import tempfile
import time
import zipfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
PACKAGING = ROOT / "packaging"

# A build that lacks one of these is not delivered.
REQUIRED = ("QDIX.exe", "configL.exe", "undo.exe", "help.exe", "QDIXTEST.exe")
# Programs of the build that only the CD has, in addition to everything else.
CD_ONLY = ("QDIXTEST.exe",)
# The manual, if the build made one: one page and its pictures in this folder of the build.
MANUAL = "manual"
MANUAL_FILES = ("help.htm", "*.gif")

VOLUME = "QDIX"
# Spells QDIX. It is fixed because mformat would use the clock.
FLOPPY_SERIAL = "51444958"
FLOPPY_KB = "1440"
ZIP_METHOD = zipfile.ZIP_DEFLATED
ZIP_LEVEL = 9
# 8.3 in the characters that both DOS and the strictest CD format allow.
DOS_NAME = re.compile(r"[A-Za-z0-9_]{1,8}\.[A-Za-z0-9_]{1,3}")
ASCII_TEXT = re.compile(rb"[\r\n\x20-\x7e]*")


class Refusal(Exception):
    """The reason why this build cannot be delivered."""


def as_delivered(text, name):
    """Returns a text as Windows 95 reads it: ASCII, lines ended by CR and LF."""
    data = text.replace("\n", "\r\n").encode("utf-8")
    if not ASCII_TEXT.fullmatch(data):
        raise Refusal(f"{name} has a character that is not printable ASCII")
    return data


def programs_of(build):
    """Returns version and shipped programs, as the build itself lists them."""
    listed = json.loads((build / "shipped.json").read_text(encoding="utf-8"))
    programs = {pathlib.Path(path).name: pathlib.Path(path).read_bytes() for path in listed["programs"]}
    missing = sorted(set(REQUIRED) - set(programs))
    if missing:
        raise Refusal(f"the build has no {', '.join(missing)}")
    return listed["version"], programs


def manual_of(build):
    return {path.name: path.read_bytes() for pattern in MANUAL_FILES for path in (build / MANUAL).glob(pattern)}


def texts_of(version, names):
    """Returns the texts by their delivered names. The installation lists every file, including itself and the other
    texts."""
    def read(path):
        return path.read_text(encoding="utf-8").replace("@VERSION@", version)

    readme, licence, setup, removal = "README.TXT", "LICENSE.TXT", "qdix.inf", "remove.bat"
    listed = sorted([*names, readme, licence, setup, removal], key=str.lower)
    setup_text = read(PACKAGING / "qdix.inf.in")
    setup_text = setup_text.replace("@FILES@", "\n".join(listed))
    setup_text = setup_text.replace("@SOURCES@", "\n".join(f"{name}=1" for name in listed))
    # COMMAND.COM closes a batch file whose last line has no line break before it runs that line, which deletes the
    # file.
    removal_text = read(PACKAGING / removal).removesuffix("\n")
    texts = {readme: read(PACKAGING / readme), licence: read(ROOT / "LICENSE"), removal: removal_text, setup: setup_text}
    return {name: as_delivered(text, name) for name, text in texts.items()}


def check_names(names):
    for name in names:
        if not DOS_NAME.fullmatch(name):
            raise Refusal(f"{name} is no name of DOS")
    if len({name.lower() for name in names}) != len(names):
        raise Refusal("two files differ in nothing but the case of their names")


def stage(folder, files, at):
    """Writes the files into a folder, all with the same time; returns their paths, sorted."""
    folder.mkdir()
    for name, data in files.items():
        (folder / name).write_bytes(data)
        os.utime(folder / name, (at, at))
    os.utime(folder, (at, at))
    return sorted(folder.iterdir(), key=lambda path: path.name.lower())


def write_zip(target, paths, at):
    with zipfile.ZipFile(target, "w") as archive:
        for path in paths:
            entry = zipfile.ZipInfo(path.name, time.gmtime(at)[:6])
            entry.create_system = 0  # MS-DOS: old programs misread the attributes of other systems as theirs
            entry.create_version = entry.extract_version = 20
            archive.writestr(entry, path.read_bytes(), ZIP_METHOD, ZIP_LEVEL)


def run_tool(at, *command):
    """Runs a tool in UTC at a fixed time, without settings of the user."""
    environment = {**os.environ, "SOURCE_DATE_EPOCH": str(at), "TZ": "UTC", "LC_ALL": "C", "MTOOLSRC": os.devnull}
    done = subprocess.run(list(map(str, command)), env=environment, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    if done.returncode != 0:
        raise Refusal(f"{command[0]} failed: {done.stdout.decode(errors='replace').strip()}")


def write_floppy(target, paths, at):
    run_tool(at, "mformat", "-C", "-f", FLOPPY_KB, "-v", VOLUME, "-N", FLOPPY_SERIAL, "-i", target, "::")
    run_tool(at, "mcopy", "-m", "-i", target, *paths, "::")


def write_cd(target, folder, at):
    run_tool(at, "xorriso", "-as", "mkisofs", "-quiet", "--norock", "-iso-level", "1", "-V", VOLUME, "-o", target, folder)


def make(build, output, at):
    """Makes the downloads again, completely or not at all."""
    version, programs = programs_of(build)
    files = {**{name: data for name, data in programs.items() if name not in CD_ONLY}, **manual_of(build)}
    files |= texts_of(version, files)
    cd_only = {name: programs[name] for name in CD_ONLY}
    check_names([*files, *cd_only])

    output.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory(dir=output, prefix=".making.") as work_name:
        work = pathlib.Path(work_name)
        paths = stage(work / "common", files, at)
        stage(work / "cd", {**files, **cd_only}, at)
        archive, floppy, cd = work / f"qdix-{version}.zip", work / "qdix.img", work / "qdix.iso"
        write_zip(archive, paths, at)
        write_floppy(floppy, paths, at)
        write_cd(cd, work / "cd", at)
        made = (floppy, cd, archive)
        sums = "".join(f"{hashlib.sha256(path.read_bytes()).hexdigest()}  {path.name}\n" for path in made)
        for path in made:
            path.replace(output / path.name)
    (output / "sha256sums.txt").write_text(sums, encoding="ascii")
    return files


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=pathlib.Path, required=True, help="build folder of the shipped programs")
    parser.add_argument("--output", type=pathlib.Path, required=True, help="folder of the downloads")
    parser.add_argument("--time", type=int, required=True, help="time of every file, in seconds since 1970, UTC")
    arguments = parser.parse_args()
    try:
        files = make(arguments.build, arguments.output, arguments.time)
    except (Refusal, OSError) as refusal:
        raise SystemExit(f"dist: {refusal}") from refusal
    print(f"dist: {len(files)} files, {sum(map(len, files.values()))} bytes: {' '.join(sorted(files, key=str.lower))}")


if __name__ == "__main__":
    main()
