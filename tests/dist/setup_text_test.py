#!/usr/bin/env python3
"""Tests that qdix.inf keeps the limits of the first Windows 95, is consistent, and removes what the program writes."""
import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools" / "dist"))
from make_dist import texts_of  # noqa: E402

PROGRAMS = ("QDIX.exe", "configL.exe", "undo.exe")
MAX_SECTION_NAME = 28
MAX_LINE = 511
MAX_ADD_REMOVE_NAME = 59
# DOS has 128 bytes for a command line without the program name: its length, 126 characters, and the byte that ends it.
MAX_ARGUMENTS = 126
# Sections that the engine looks up by itself.
OWN_SECTIONS = {"Version", "DefaultInstall", "DefaultUninstall", "DestinationDirs", "SourceDisksNames",
                "SourceDisksFiles", "Strings"}


def sections_of(text):
    sections, lines = {}, None
    for line in text.splitlines():
        if heading := re.fullmatch(r"\[(.+)\]", line):
            lines = sections.setdefault(heading[1], [])
        elif line and not line.startswith(";"):
            lines.append(line)
    return sections


def constant(path, name):
    """Returns the text of a constant in the source of the program."""
    found = re.search(rf'\b{name}\s*=\s*"([^"]+)"', (ROOT / path).read_text(encoding="utf-8"))
    return found[1].replace("\\\\", "\\")


class SetupText(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.text = texts_of("1.2.3", PROGRAMS)["qdix.inf"].decode("ascii").replace("\r\n", "\n")
        cls.sections = sections_of(cls.text)
        cls.strings = dict(re.fullmatch(r'(\w+)="(.*)"', line).groups() for line in cls.sections["Strings"])
        cls.plain = sections_of(re.sub(r"%(\w+)%", lambda name: cls.strings.get(name[1], name[0]), cls.text))

    def test_signature_is_that_of_windows_95(self):
        self.assertIn('Signature="$CHICAGO$"', self.sections["Version"])

    def test_names_and_lines_keep_the_length_limits(self):
        self.assertLessEqual(max(map(len, self.sections)), MAX_SECTION_NAME)
        self.assertLessEqual(max(len(line) for lines in self.plain.values() for line in lines), MAX_LINE)
        key = self.strings["UNINSTALL"].rpartition("\\")[2]
        name = re.search(r'DisplayName,,"(.+)"', "\n".join(self.plain["QDIX.Entry"]))[1]
        self.assertLessEqual(max(len(key), len(name)), MAX_ADD_REMOVE_NAME)

    def test_every_named_section_exists_and_every_section_is_named(self):
        named = {name for start in ("DefaultInstall", "DefaultUninstall")
                 for line in self.sections[start] for name in line.partition("=")[2].split(",")}
        self.assertEqual(named | OWN_SECTIONS, set(self.sections))

    def test_every_list_of_files_has_a_folder(self):
        folders = {line.partition("=")[0] for line in self.sections["DestinationDirs"]}
        lists = {name for start in ("DefaultInstall", "DefaultUninstall") for line in self.sections[start]
                 if line.startswith(("CopyFiles", "DelFiles")) for name in line.partition("=")[2].split(",")}
        self.assertEqual(folders, lists)

    def test_every_string_is_defined_and_used(self):
        directories = {"10", "24"}
        body = self.text.partition("[Strings]")[0].replace("%%", "")
        body = "\n".join(line for line in body.splitlines() if not line.startswith(";"))
        self.assertEqual(set(re.findall(r"%(\w+)%", body)) - directories, set(self.strings))

    def test_every_delivered_file_is_listed_and_copied(self):
        delivered = sorted([*PROGRAMS, *texts_of("1.2.3", PROGRAMS)], key=str.lower)
        self.assertEqual(self.sections["QDIX.Files"], delivered)
        self.assertEqual(self.sections["SourceDisksFiles"], [f"{name}=1" for name in delivered])

    def test_files_have_dos_names(self):
        lists = [name for start in ("DefaultInstall", "DefaultUninstall") for line in self.sections[start]
                 if line.startswith(("CopyFiles", "DelFiles", "RenFiles")) for name in line.partition("=")[2].split(",")]
        files = [line for name in lists for line in self.plain[name]]
        files += [line.partition("=")[0] for line in self.plain["SourceDisksFiles"]]
        self.assertIn("Quondix.lnk", files)
        for file in files:
            self.assertRegex(file, r"\A[A-Za-z0-9_~-]{1,8}\.[A-Za-z0-9_]{1,3}\Z")

    def test_start_up_shortcut_with_a_long_name_is_deleted(self):
        path = rf"%10%\{self.strings['MENU']}\{self.strings['STARTUP']}\QDIX.exe.lnk"
        self.assertIn(f'"command.com /c if exist {path} del {path}"', "\n".join(self.plain["QDIX.Rest"]))

    def test_folders_have_dos_names(self):
        for line in self.plain["DestinationDirs"]:
            for part in line.partition(",")[2].split("\\"):
                self.assertRegex(part, r"\A[A-Za-z0-9~-]{1,8}\Z", line)

    def test_command_lines_fit_the_dos_limit(self):
        lines = re.findall(r'command\.com (/c [^"]+)"', "\n".join(self.plain["QDIX.Entry"] + self.plain["QDIX.Rest"]))
        self.assertEqual(len(lines), 3)
        for line in lines:
            self.assertLessEqual(len(line.replace("%24%", "C:").replace("%10%", r"C:\WINDOWS.000")), MAX_ARGUMENTS, line)

    def test_batch_file_has_ended_when_the_engine_deletes_it(self):
        lines = texts_of("1.2.3", PROGRAMS)["remove.bat"].decode("ascii").split("\r\n")
        self.assertRegex(lines[-1], r"\A@if not \"%1\"==\"\" rundll\.exe setupx\.dll,InstallHinfSection .*qdix\.inf\Z")
        self.assertEqual(lines[-2], "cls", "a window with text in it stays open")
        self.assertEqual([line for line in lines[:-1] if "rundll" in line], [])

    def test_it_removes_what_the_program_writes(self):
        paths, store = "src/registry/registry_paths.h", "src/registry/settings_store.cpp"
        keys = "\n".join(self.plain["QDIX.Keys"]).replace('"', "")
        for line in (f"HKLM,{constant(paths, 'kMachineKey')}",
                     f"HKLM,{constant(paths, 'kRunKey')},{constant(paths, 'kRunValue')}",
                     f"HKCU,{constant('src/app/machine_record.cpp', 'kUserKey')}",
                     f"HKCU,{constant(store, 'path').rstrip(chr(92))}",
                     f"HKLM,{self.strings['UNINSTALL']}"):
            self.assertIn(line, keys.splitlines())
        list_file = (ROOT / "companions/config_launcher/list_file.cpp").read_text(encoding="utf-8")
        written = {constant("src/launcher/launcher_file.h", "kLauncherFileName"), *re.findall(r'"(launcher\.\w+)"', list_file)}
        self.assertEqual(set(self.sections["QDIX.Made"]), written)


if __name__ == "__main__":
    unittest.main(verbosity=2)
