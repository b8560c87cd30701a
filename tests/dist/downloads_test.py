#!/usr/bin/env python3
"""Tests that the downloads contain what was built, that the oldest machines can read them, and that they are reproducible.

downloads_test.py BUILD [arguments of unittest]    BUILD is the build folder of the shipped programs
"""
import hashlib
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import zipfile

from downloads import Cd, Floppy, of_zip

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(sys.argv.pop(1))
MAKE = ROOT / "tools" / "dist" / "make_dist.py"
# 14 January 2000, 00:00:00 UTC.
TIME = 947808000
COLUMNS = 72
CD_ONLY = ("QDIXTEST.exe",)
TEXTS = ("README.TXT", "LICENSE.TXT", "qdix.inf", "remove.bat")


def make(output, *before):
    command = [*before, sys.executable, MAKE, "--build", BUILD, "--output", output, "--time", str(TIME)]
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL)


class Downloads(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.work = pathlib.Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.work)
        cls.made = cls.work / "dist"
        make(cls.made)
        listed = json.loads((BUILD / "shipped.json").read_text(encoding="utf-8"))
        cls.version = listed["version"]
        cls.programs = {pathlib.Path(path).name: pathlib.Path(path).read_bytes() for path in listed["programs"]}
        manual = BUILD / "manual"
        cls.manual = {path.name: path.read_bytes() for path in [*manual.glob("help.htm"), *manual.glob("*.gif")]}
        cls.zip = cls.made / f"qdix-{cls.version}.zip"
        cls.files = of_zip(cls.zip)

    def test_there_are_exactly_four_downloads(self):
        self.assertEqual(sorted(path.name for path in self.made.iterdir()),
                         [f"qdix-{self.version}.zip", "qdix.img", "qdix.iso", "sha256sums.txt"])

    def test_the_zip_contains_only_programs_manual_and_texts(self):
        delivered = set(self.programs) - set(CD_ONLY)
        self.assertEqual(sorted(self.files), sorted([*delivered, *self.manual, *TEXTS]))
        self.assertEqual({name: self.files[name] for name in delivered}, {name: self.programs[name] for name in delivered})
        self.assertEqual({name: self.files[name] for name in self.manual}, self.manual)
        self.assertLessEqual({"QDIX.exe", "configL.exe", "undo.exe"}, set(self.files))

    def test_the_zip_is_flat_and_uses_only_plain_deflate(self):
        with zipfile.ZipFile(self.zip) as archive:
            for entry in archive.infolist():
                with self.subTest(entry.filename):
                    self.assertRegex(entry.filename, r"\A[A-Za-z0-9_]{1,8}\.[A-Za-z0-9_]{1,3}\Z")
                    self.assertEqual(entry.compress_type, zipfile.ZIP_DEFLATED)
                    self.assertEqual((entry.flag_bits, entry.extra, entry.create_system), (0, b"", 0))
                    self.assertLessEqual(entry.extract_version, 20)
                    self.assertEqual(entry.date_time, (2000, 1, 14, 0, 0, 0))

    def test_unzip_reads_the_zip(self):
        subprocess.run(["unzip", "-tqq", self.zip], check=True)

    def test_the_floppy_has_the_same_files_and_a_third_of_its_space_free(self):
        floppy = Floppy(self.made / "qdix.img")
        self.assertEqual(len(floppy.data), 1474560)
        self.assertEqual(floppy.sectors, 2880)
        self.assertEqual(floppy.data[510:512], b"\x55\xaa")
        self.assertEqual(floppy.files(), {name.upper(): data for name, data in self.files.items()})
        self.assertGreaterEqual(floppy.free_bytes() * 3, len(floppy.data))

    def test_mtools_reads_the_floppy(self):
        folder = self.work / "floppy"
        folder.mkdir()
        environment = {**os.environ, "MTOOLSRC": os.devnull}
        subprocess.run(["mcopy", "-i", self.made / "qdix.img", "::*", folder], check=True, env=environment)
        self.assertEqual({path.name.upper(): path.read_bytes() for path in folder.iterdir()},
                         {name.upper(): data for name, data in self.files.items()})

    def test_the_cd_is_plain_level_1_and_has_the_same_files_and_the_self_test(self):
        cd = Cd(self.made / "qdix.iso")
        primary, terminator = 1, 255
        self.assertEqual(cd.descriptors, [primary, terminator])
        for name, extension, _ in cd.records():
            with self.subTest(name):
                self.assertRegex(name, r"\A[A-Z0-9_]{1,8}\.[A-Z0-9_]{1,3};1\Z")
                self.assertEqual(extension, b"")
        on_the_cd = {**self.files, **{name: self.programs[name] for name in CD_ONLY}}
        self.assertEqual(cd.files(), {f"{name.upper()};1": data for name, data in on_the_cd.items()})

    def test_the_installation_does_not_mention_files_only_on_the_cd(self):
        for name in CD_ONLY:
            self.assertNotIn(name.lower(), self.files["qdix.inf"].decode("ascii").lower())

    def test_the_checksums_match_the_downloads(self):
        listed = [line.split("  ") for line in (self.made / "sha256sums.txt").read_text(encoding="ascii").splitlines()]
        self.assertEqual(sorted(name for _, name in listed), sorted([self.zip.name, "qdix.img", "qdix.iso"]))
        for digest, name in listed:
            self.assertEqual(digest, hashlib.sha256((self.made / name).read_bytes()).hexdigest(), name)

    def test_another_day_and_time_zone_give_the_same_bytes(self):
        again = self.work / "again"
        # Fakes only the clock. With fake file times the tools would see different inputs.
        make(again, "env", "TZ=Asia/Tokyo", "NO_FAKE_STAT=1", "faketime", "2031-07-08 09:10:11")
        for path in self.made.iterdir():
            self.assertEqual(path.read_bytes(), (again / path.name).read_bytes(), path.name)

    def test_all_times_in_the_images_are_the_given_time(self):
        date_of_dos, midnight = (2000 - 1980) << 9 | 1 << 5 | 14, 0
        self.assertEqual(Floppy(self.made / "qdix.img").times(), {(midnight, date_of_dos)})
        self.assertEqual(Cd(self.made / "qdix.iso").times(), {(100, 1, 14, 0, 0, 0, 0)})

    def test_texts_are_ascii_with_windows_line_ends(self):
        for name in TEXTS:
            with self.subTest(name):
                last_line = rb"[\x20-\x7e]+" if name.lower() == "remove.bat" else b""  # it has no line end on purpose
                self.assertRegex(self.files[name], re.compile(rb"\A([\x20-\x7e]*\r\n)+" + last_line + rb"\Z"))

    def test_the_readme_fits_into_72_columns_and_names_every_file(self):
        text = self.files["README.TXT"].decode("ascii")
        self.assertLessEqual(max(map(len, text.split("\r\n"))), COLUMNS)
        self.assertIn(f"Q-DIX {self.version}", text)
        for name in [*self.programs, *TEXTS]:
            self.assertRegex(text, rf"(?m)^  {re.escape(name)} ", name)


if __name__ == "__main__":
    unittest.main(verbosity=2)
