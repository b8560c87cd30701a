#!/usr/bin/env python3
"""A file is analysed again if and only if something that the analysis depends on has changed."""
import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools" / "lint"))
import tidy  # noqa: E402


class Digest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.addCleanup(setattr, tidy, "ROOT", tidy.ROOT)
        tidy.ROOT = pathlib.Path(folder.name)
        self.source = tidy.ROOT / "src"
        (self.source / "base").mkdir(parents=True)
        self.write("a.h", '#include "base/b.h"\n')
        self.write("b.h", '#include "base/a.h"\n#include <string>\n')
        self.write("unrelated.h", "")
        self.file = self.write("a.cpp", '#include "base/a.h"\n')
        self.before = self.digest()

    def write(self, name, text):
        path = self.source / "base" / name
        path.write_text(text, encoding="utf-8")
        return path

    def digest(self, command="g++", rules=b"rules"):
        return tidy.digest(self.file, command, rules)

    def test_digest_stays_if_nothing_changes(self):
        self.assertEqual(self.digest(), self.before)

    def test_unrelated_header_keeps_the_digest(self):
        self.write("unrelated.h", "int Other();\n")
        self.assertEqual(self.digest(), self.before)

    def test_change_in_the_file_changes_the_digest(self):
        self.write("a.cpp", '#include "base/a.h"\nint one;\n')
        self.assertNotEqual(self.digest(), self.before)

    def test_change_in_an_indirect_header_changes_the_digest(self):
        self.write("b.h", "int Other();\n")
        self.assertNotEqual(self.digest(), self.before)

    def test_change_in_a_companion_header_changes_the_digest(self):
        folder = tidy.ROOT / "companions" / "undo"
        folder.mkdir(parents=True)
        self.write("b.h", '#include "undo/c.h"\n')
        without = self.digest()
        (folder / "c.h").write_text("int one;\n", encoding="utf-8")
        self.assertNotEqual(self.digest(), without)

    def test_command_and_rules_change_the_digest(self):
        self.assertNotEqual(self.digest(command="g++ -O2"), self.before)
        self.assertNotEqual(self.digest(rules=b"other"), self.before)


class SystemCode(unittest.TestCase):
    def test_win32_folders_and_run_time_belong_to_the_cross_build(self):
        self.assertTrue(tidy.is_system_code(pathlib.PurePath("src/ui/win32/a.cpp")))
        self.assertTrue(tidy.is_system_code(pathlib.PurePath("src/runtime/a.cpp")))
        self.assertFalse(tidy.is_system_code(pathlib.PurePath("src/ui/a.cpp")))


class Shipped(unittest.TestCase):
    def test_programs_are_checked_and_tests_are_not(self):
        self.assertTrue(tidy.is_shipped(pathlib.PurePath("src/ui/a.cpp")))
        self.assertTrue(tidy.is_shipped(pathlib.PurePath("companions/undo/a.cpp")))
        self.assertFalse(tidy.is_shipped(pathlib.PurePath("tests/unit/a.cpp")))


if __name__ == "__main__":
    unittest.main()
