"""The manual lists every stored setting in its section, with its real default, and no others."""

import re
import unittest

from manual_parts import ROOT, ManualCase, plain

SETTINGS = 26
TABLE = (ROOT / "src/registry/settings.h").read_text(encoding="utf-8")
ROW = re.compile(r'constexpr (\w+)Setting k\w+\{\{k(\w+)Section, "([^"]+)"\}(?:,\s*([^}]+))?\}')
# A default that is not a constant: the clock's for the counter's beginning, otherwise by the size of the memory.
BY_MACHINE = {"CounterDate": "today"}


def default_of(kind: str, key: str, constant: str) -> str:
    if kind == "Machine":
        return BY_MACHINE.get(key, "by memory")
    return {"true": "1", "false": "0"}.get(constant, constant.strip('"'))


class SettingsTest(ManualCase):
    def rows_of_manual(self) -> dict[tuple[str, str], str]:
        rows, section = {}, ""
        for kind, line in self.topic(SETTINGS).lines:
            if kind == "H":
                section = plain(line)
            if kind == "R" and section:
                name, _, default = plain(line).split("\t")
                rows[section, name] = default
        return rows

    def test_manual_lists_the_settings_of_the_program(self):
        stored = {(section, key): default_of(kind, key, constant)
                  for kind, section, key, constant in ROW.findall(TABLE)}
        self.assertEqual(len(stored), len(re.findall(r"Setting k\w+\{\{", TABLE)), "a row that this test cannot read")
        self.assertEqual(self.rows_of_manual(), stored)

    def test_list_of_all_settings_is_complete(self):
        names = re.findall(r"Setting (k\w+)\{\{", TABLE)
        self.assertEqual(re.findall(r"&setting::(k\w+)", TABLE), names)


if __name__ == "__main__":
    unittest.main(verbosity=2)
