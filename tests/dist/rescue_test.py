#!/usr/bin/env python3
"""Tests that the commands which restore system.ini work at a DOS prompt without long names. Each command runs on a disk
as Windows leaves it, with short names only; mtools looks them up."""
import fnmatch
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
FOLDER = "::/WINDOWS"
OLD = b"[boot]\r\nshell=Explorer.exe\r\n[386Enh]\r\nPagingDrive=D:\r\n"
CHANGED = b"[boot]\r\nshell=Explorer.exe\r\n[386Enh]\r\nPagingDrive=C:\r\n"
SHORT_NAME = re.compile(r"[A-Z0-9_~]{1,8}(\.[A-Z0-9_~]{1,3})?")
# Short name, extension, size, date, time and the long name, if there is one.
LISTED = re.compile(r"(?m)^(\S{1,8})\s+(\S{0,3})\s+\d+ \d{4}-\d\d-\d\d\s+\d+:\d\d\s*(\S*)\s*$")


class PromptError(Exception):
    """A command that the command prompt would refuse."""


class Disk:
    """A FAT disk image with a Windows folder."""

    def __init__(self, work, files):
        self.image = work / "disk.img"
        self.scratch = work / "scratch"
        subprocess.run(["mformat", "-C", "-f", "1440", "-i", self.image, "::"], check=True, env=self.environment())
        self.tool("mmd", FOLDER)
        for name, content in files.items():
            self.write(name, content)

    @staticmethod
    def environment():
        return {**os.environ, "MTOOLSRC": os.devnull}

    def tool(self, name, *arguments):
        done = subprocess.run([name, "-i", self.image, *arguments], check=True, env=self.environment(),
                              stdout=subprocess.PIPE)
        return done.stdout

    def write(self, name, content):
        self.scratch.write_bytes(content)
        self.tool("mcopy", "-o", self.scratch, f"{FOLDER}/{name}")

    def read(self, name):
        return self.tool("mtype", f"{FOLDER}/{name}")

    def short_names(self):
        """Returns the long name, if any, for each short name, in capitals: mdir shows some short names in lower case."""
        listed = self.tool("mdir", FOLDER).decode("ascii")
        return {f"{name}.{extension}".rstrip(".").upper(): long for name, extension, long in LISTED.findall(listed)}

    def protect(self, name):
        self.tool("mattrib", "+r", f"{FOLDER}/{name}")

    def is_protected(self, name):
        return b"R" in self.tool("mattrib", f"{FOLDER}/{name}").split(b"::")[0]


class Prompt:
    """A fake of the command prompt without Windows. It knows drive C, its folder WINDOWS, and short names."""

    def __init__(self, disk):
        self.disk = disk
        self.listed = []

    def run(self, commands):
        for command in commands:
            words = command.upper().split()
            if words in (["C:"], ["CD", r"\WINDOWS"]):
                continue
            if words[0] == "DIR" and len(words) == 2:
                self.listed = fnmatch.filter(self.disk.short_names(), words[1])
            elif words[:2] == ["ATTRIB", "-R"] and len(words) == 3:
                self.disk.tool("mattrib", "-r", f"{FOLDER}/{self.existing(words[2])}")
            elif words[:2] == ["COPY", "/Y"] and len(words) == 4:
                self.copy(self.existing(words[2]), self.name(words[3]))
            else:
                raise PromptError(f"Bad command: {command}")

    @staticmethod
    def name(word):
        if not SHORT_NAME.fullmatch(word):
            raise PromptError(f"No name of DOS: {word}")
        return word

    def existing(self, word):
        name = self.name(word)
        if name not in self.disk.short_names():
            raise PromptError(f"File not found: {word}")
        return name

    def copy(self, source, target):
        if target in self.disk.short_names() and self.disk.is_protected(target):
            raise PromptError(f"Access denied: {target}")
        self.disk.write(target, self.disk.read(source))


def commands_of_the_manual():
    topic = (ROOT / "help/18_undo.md").read_text(encoding="utf-8")
    rescue = topic[topic.index("## If Windows does not start"):]
    return [line for block in re.findall(r"```\n(.*?)```", rescue, re.DOTALL) for line in block.splitlines()]


def commands_of_the_readme():
    text = (ROOT / "packaging/README.TXT").read_text(encoding="ascii")
    begin = text.index("\nIF WINDOWS DOES NOT START\n")
    return re.findall(r"(?m)^    (\S.*)$", text[begin:text.index("\n\n\n", begin)])


def commands_of_undo():
    """Returns the commands of the box in Q-DIX Undo, from the unit test that checks its text."""
    code = (ROOT / "tests/unit/undo/whole_file_test.cpp").read_text(encoding="utf-8")
    box = code[code.index("kReplaced ="):code.index(";", code.index("kReplaced ="))]
    commands = re.findall(r'"((?:C:|cd |attrib |copy ).*?)(?:\\r\\n)?"', box)
    return [command.replace("\\\\", "\\") for command in commands]


class Rescue(unittest.TestCase):
    def setUp(self):
        self.work = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.work)

    def disk(self, **others):
        disk = Disk(self.work, {**others, "system.ini": CHANGED, "system.qdix": OLD, "system.cb": b"cb"})
        disk.protect("system.ini")
        return disk

    def short_name_of(self, disk, long_name):
        return next(short for short, long in disk.short_names().items() if long == long_name)

    def test_the_backup_has_the_short_name_given_in_the_texts(self):
        disk = self.disk()
        self.assertEqual(self.short_name_of(disk, "system.qdix"), "SYSTEM~1.QDI")
        for text in ("help/18_undo.md", "packaging/README.TXT"):
            self.assertIn("SYSTEM~1.QDI", (ROOT / text).read_text(encoding="utf-8"), text)

    def test_manual_and_readme_restore_the_old_file_and_keep_the_changed_one(self):
        for commands in (commands_of_the_manual(), commands_of_the_readme()):
            with self.subTest(commands):
                disk = self.disk()
                prompt = Prompt(disk)
                prompt.run(commands)
                self.assertEqual(disk.read("SYSTEM.INI"), OLD)
                self.assertEqual(disk.read("SYSTEM.BAD"), CHANGED)
                self.assertIn("SYSTEM~1.QDI", prompt.listed)
                disk.image.unlink()

    def test_dir_lists_the_short_name_even_if_its_number_differs(self):
        disk = Disk(self.work, {"system.qdiff": b"", "system.ini": CHANGED, "system.qdix": OLD})
        short = self.short_name_of(disk, "system.qdix")
        self.assertNotEqual(short, "SYSTEM~1.QDI")
        for commands in (commands_of_the_manual(), commands_of_the_readme()):
            prompt = Prompt(disk)
            prompt.run([command for command in commands if command.startswith("dir")])
            self.assertIn(short, prompt.listed)

    def test_commands_of_undo_revert_a_whole_restore(self):
        commands = commands_of_undo()
        self.assertEqual(len(commands), 4, commands)
        disk = Disk(self.work, {"system.ini": OLD, "SYSTEM.Q01": CHANGED})
        disk.protect("system.ini")
        Prompt(disk).run(commands)
        self.assertEqual(disk.read("SYSTEM.INI"), CHANGED)

    def test_the_prompt_refuses_what_dos_refuses(self):
        prompt = Prompt(self.disk())
        for command in ("copy /y system.qdix system.ini", "copy /y system~1.qdi system.ini", "attrib -r system.qdix",
                        "copy /y system~2.qdi system.bad", "move system~1.qdi system.ini"):
            with self.subTest(command), self.assertRaises(PromptError):
                prompt.run([command])


if __name__ == "__main__":
    unittest.main(verbosity=2)
