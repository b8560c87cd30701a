#!/usr/bin/env python3
"""The strict Windows 95 reports each planted fault with the function that contains it, and nothing else.

planted_test.py EXE EMULATOR
"""
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

EMULATOR = sys.argv.pop()
EXE = pathlib.Path(sys.argv.pop())

# Function of planted.cpp, number of the rule, the call, and the reported text.
EXPECTED = [
    ("BoxBehindOthers", 5, "MessageBoxA", "a box of a window that nobody sees"),
    ("LookupOfAStub", 1, "GetProcAddress", "MoveFileExA exists only to fail"),
    ("LaterRecord", 2, "SetScrollInfo", "SCROLLINFO is 0x20"),
    ("LaterToolRecord", 2, "SendMessageA", "TOOLINFO is 0x2c"),
    ("MessageOfAnotherClass", 3, "SendMessageA", "ListBox does not know message 0xf3"),
    ("LaterMessage", 3, "SendMessageA", "message 0x127 came with later systems"),
    ("LaterStyle", 3, "CreateWindowExA", "SysTabControl32 does not know style 0x2"),
    ("LaterFlag", 3, "SetWindowPos", "SWP is 0x8000"),
    ("LaterNumber", 3, "SHGetSpecialFolderLocation", "CSIDL is 0x1a"),
    ("WaitWithADevice", 4, "GetMessageA", "waits with 1 common device contexts"),
    ("TooManyDevices", 4, "GetDC", "more than 4 common device contexts"),
    ("DeletionOfASelectedObject", 4, "DeleteObject", "deletes an object that is still selected"),
    ("DeletionOfAForeignObject", 4, "DeleteObject", "gives back one of its GDI objects that it does not hold"),
    ("start", 4, "ExitProcess", "1 menus left"),
    ("start", 4, "ExitProcess", "1 tray icons left"),
    # Those of the copy that PassesTheStartCommandOn starts.
    ("start", 4, "ExitProcess", "3 windows left"),
    ("WideCoordinate", 6, "MoveWindow", "width is 0x9c40"),
    ("LongInterval", 6, "SetTimer", "interval is 0x11170"),
    ("WideWord", 6, "SendMessageA", "word 0x12345 of message 0x18a to ListBox"),
    ("RootWithoutBackslash", 7, "GetDriveTypeA", 'asks for "C:" without the backslash'),
    ("QuestionToAnEmptyDrive", 7, "GetFileAttributesA", "asks a drive that is not ready without an error mode"),
    ("ForeignControlWord", 8, "PeekMessageA", "continues with the control word 0x87f that other code set"),
    ("ClosedKey", 9, "RegQueryValueExA", "uses a key that it does not hold"),
    ("KeyClosedTooOften", 9, "RegCloseKey", "uses a key that it does not hold"),
    ("KeyOpenedTooOften", 9, "RegOpenKeyExA", "opens hkcu\\software more than 65535 times"),
    ("start", 9, "ExitProcess", "leaves hkcu\\software open"),
    ("CopyOfAnUnwrittenProfile", 10, "CopyFileA", "planted.ini is not flushed yet"),
    ("KeepsProfilesInMemory", 10, "CopyFileA", "planted.ini is not flushed yet"),
    # The wide coordinate that it needs to show the truncation is reported too.
    ("CutsCoordinates", 6, "MoveWindow", "left is 0x10007"),
]
# Rules that simulate an answer and report nothing; planted.exe checks these answers itself.
PLAYED = {11, 12, 13}
TABLE = (pathlib.Path(__file__).parent / "README.md").read_text(encoding="utf-8")
LINE = re.compile(r"violation (?P<rule>\d+) planted\.exe (?P<call>\w+): (?P<text>.*); in (?:.*::)?(?P<place>\w+)(?:\(.*)?$")


class Planted(unittest.TestCase):
    def violations_on(self, machine):
        with tempfile.TemporaryDirectory() as folder:
            log = pathlib.Path(folder) / "strict.log"
            environment = {**os.environ, "QDIX_STRICT": machine, "QDIX_STRICT_EMPTY_DRIVE": "R",
                           "QDIX_STRICT_LOG": "Z:" + str(log).replace("/", "\\")}
            run = subprocess.run([EMULATOR, EXE], env=environment, check=False)
            lines = log.read_text(encoding="utf-8").splitlines() if log.exists() else []
        self.assertEqual(run.returncode, 0, "number of the first answer of Windows 95 that is not played")
        return [line for line in lines if line.startswith("violation ")]

    def check(self, machine, expected):
        found = []
        for line in self.violations_on(machine):
            match = LINE.match(line)
            self.assertIsNotNone(match, line)
            found.append((match["place"], int(match["rule"]), match["call"], match["text"]))
        for one in expected:
            with self.subTest(one):
                self.assertIn(one[:3], [each[:3] for each in found])
                self.assertTrue(any(each[:3] == one[:3] and one[3] in each[3] for each in found), found)
        self.assertEqual(len(found), len(expected), found)

    def test_every_reporting_rule_has_a_planted_fault(self):
        rules = {int(number) for number in re.findall(r"^\| (\d+) \|", TABLE, re.MULTILINE)}
        self.assertEqual(rules - PLAYED, {rule for _, rule, _, _ in EXPECTED})

    def test_windows_98_reports_every_fault(self):
        self.check("98", EXPECTED)

    def test_the_first_windows_95_has_no_foreground_lock(self):
        self.check("rtm", [one for one in EXPECTED if one[1] != 5])


if __name__ == "__main__":
    unittest.main()
