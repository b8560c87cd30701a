#!/usr/bin/env python3
"""A strict copy differs from its shipped program only in the names of the imported libraries:

names_only_test.py STRICT_FOLDER SHIPPED_EXE...
"""
import pathlib
import sys
import unittest

from portable_exe import PortableExe

STRICT, *SHIPPED = (pathlib.Path(argument) for argument in sys.argv[1:])
GUARD = "Guard.dll"


def differences(shipped, strict):
    """Returns the offsets of the bytes that differ, and of those that may."""
    places = {place for place, (one, other) in enumerate(zip(shipped, strict)) if one != other}
    names = set()
    for name, begin, _ in PortableExe(shipped).libraries():
        names.update(range(begin, begin + len(name)))
    return places, names


class NamesOnly(unittest.TestCase):
    def test_all_five_programs_are_compared(self):
        self.assertEqual(sorted(path.name for path in SHIPPED), ["QDIX.exe", "QDIXTEST.exe", "configL.exe", "help.exe", "undo.exe"])

    def test_only_the_names_differ(self):
        for path in SHIPPED:
            with self.subTest(path.name):
                shipped, strict = path.read_bytes(), (STRICT / path.name).read_bytes()
                places, names = differences(shipped, strict)
                self.assertEqual(len(shipped), len(strict))
                self.assertNotEqual(places, set())
                self.assertLessEqual(places, names)

    def test_every_imported_library_is_the_guard(self):
        for path in SHIPPED:
            names = {name for name, _, _ in PortableExe((STRICT / path.name).read_bytes()).libraries()}
            self.assertEqual(names, {GUARD}, path.name)

    def test_another_difference_is_found(self):
        shipped = SHIPPED[0].read_bytes()
        changed = bytearray((STRICT / SHIPPED[0].name).read_bytes())
        changed[-1] ^= 1
        places, names = differences(shipped, bytes(changed))
        self.assertFalse(places <= names)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
