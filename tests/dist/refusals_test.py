#!/usr/bin/env python3
"""Tests that an incomplete or unsuitable build is refused with a reason and leaves no downloads behind."""
import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

MAKE = pathlib.Path(__file__).resolve().parents[2] / "tools" / "dist" / "make_dist.py"
PROGRAMS = ("QDIX.exe", "QDIXTEST.exe", "configL.exe", "help.exe", "undo.exe")


class Refusals(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.build = pathlib.Path(folder.name)
        self.output = self.build / "dist"
        (self.build / "manual").mkdir()
        self.list_programs(PROGRAMS)

    def list_programs(self, names):
        for name in names:
            (self.build / name).write_bytes(b"MZ")
        listed = {"version": "1.2.3", "programs": [str(self.build / name) for name in names]}
        (self.build / "shipped.json").write_text(json.dumps(listed), encoding="utf-8")

    def make(self):
        return subprocess.run([sys.executable, MAKE, "--build", self.build, "--output", self.output, "--time", "947808000"],
                              check=False, capture_output=True, text=True)

    def expect_refusal(self, reason):
        done = self.make()
        self.assertNotEqual(done.returncode, 0)
        self.assertIn(reason, done.stderr)
        self.assertEqual(list(self.output.glob("*")), [])

    def test_a_complete_build_is_delivered(self):
        (self.build / "manual" / "help.htm").write_bytes(b"<HTML>")
        done = self.make()
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertTrue((self.output / "qdix-1.2.3.zip").is_file())

    def test_a_program_that_is_not_in_the_build_is_refused(self):
        self.list_programs([name for name in PROGRAMS if name != "undo.exe"])
        self.expect_refusal("the build has no undo.exe")

    def test_a_listed_program_that_is_missing_is_refused(self):
        (self.build / "QDIX.exe").unlink()
        self.expect_refusal("QDIX.exe")

    def test_a_long_name_is_refused(self):
        (self.build / "manual" / "a_long_name.gif").write_bytes(b"GIF")
        self.expect_refusal("a_long_name.gif is no name of DOS")

    def test_names_that_differ_only_in_case_are_refused(self):
        (self.build / "manual" / "a.gif").write_bytes(b"GIF")
        (self.build / "manual" / "A.gif").write_bytes(b"GIF")
        self.expect_refusal("differ in nothing but the case")

    def test_more_data_than_a_floppy_holds_is_refused(self):
        (self.build / "manual" / "big.gif").write_bytes(b"G" * 1500000)
        self.expect_refusal("mcopy failed")


if __name__ == "__main__":
    unittest.main(verbosity=2)
