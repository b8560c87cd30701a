#!/usr/bin/env python3
"""The include-direction check finds forbidden includes and allows the others."""
import pathlib
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools" / "lint"))
from include_direction import PAGE, Table, violations_of  # noqa: E402

PAGE_TABLE = Table((ROOT / PAGE).read_text(encoding="utf-8"))


def violations(path, text, folder="src"):
    return list(violations_of(PAGE_TABLE, pathlib.PurePosixPath(path), text, folder))


class TableOfThePage(unittest.TestCase):
    def test_page_has_the_folders_of_both_roots(self):
        self.assertEqual(PAGE_TABLE.allowed_for("src", "base"), [])
        self.assertIn("tuning", PAGE_TABLE.allowed_for("companions", "undo"))
        self.assertIsNone(PAGE_TABLE.allowed_for("src", "undo"))

    def test_row_may_name_only_rows_above_it(self):
        page = "src/one/  first  ->\nsrc/two/  second  -> one\n"
        self.assertEqual(list(Table(page).violations()), [])
        circle = "src/one/  first  -> two\nsrc/two/  second  -> one\n"
        self.assertEqual(list(Table(circle).violations()),
                         [f"{PAGE}: src/one/ may include two, which is not above it"])


class IncludeDirection(unittest.TestCase):
    def test_downward_includes_pass(self):
        self.assertEqual(violations("memory/a.cpp", '#include "os/memory.h"\n#include "base/text.h"\n#include <string>\n'), [])

    def test_upward_include_is_found(self):
        self.assertEqual(len(violations("ui/a.h", '#include "screens/quondix_screen.h"\n')), 1)

    def test_base_includes_none_of_our_headers(self):
        self.assertEqual(len(violations("base/a.h", '#include "os/memory.h"\n')), 1)

    def test_system_header_outside_win32_is_found(self):
        self.assertEqual(len(violations("app/form1.cpp", "#include <windows.h>\n")), 1)
        self.assertEqual(violations("app/win32/main.cpp", "#include <windows.h>\n"), [])

    def test_our_win32_header_outside_win32_is_found(self):
        self.assertEqual(len(violations("app/form1.cpp", '#include "ui/win32/form_window.h"\n')), 1)

    def test_include_of_the_simulated_machine_in_the_program_is_found(self):
        self.assertEqual(len(violations("app/form1.cpp", '#include "os/simulated/simulated_machine.h"\n')), 1)

    def test_platform_condition_is_found(self):
        self.assertEqual(len(violations("base/a.cpp", "#ifdef _WIN32\n#endif\n")), 1)

    def test_subsystems_have_an_order(self):
        self.assertEqual(violations("memory/a.cpp", '#include "cpu/cpu_usage.h"\n'), [])
        self.assertEqual(len(violations("cpu/a.cpp", '#include "memory/memory_monitor.h"\n')), 1)
        self.assertEqual(len(violations("shell/a.cpp", '#include "memory/memory_monitor.h"\n')), 1)

    def test_unknown_folder_is_found(self):
        self.assertEqual(len(violations("misc/a.cpp", "")), 1)


class Companions(unittest.TestCase):
    def test_includes_of_lower_layers_and_own_folder_pass(self):
        text = '#include "undo/settings.h"\n#include "tuning/restart.h"\n#include "os/system.h"\n'
        self.assertEqual(violations("undo/a.cpp", text, "companions"), [])

    def test_include_of_the_main_program_in_a_companion_is_found(self):
        self.assertEqual(len(violations("undo/a.cpp", '#include "app/form1.h"\n', "companions")), 1)

    def test_include_of_a_companion_in_the_main_program_is_found(self):
        self.assertEqual(len(violations("app/form1.cpp", '#include "undo/settings.h"\n')), 1)

    def test_only_win32_folders_of_companions_include_system_headers(self):
        self.assertEqual(len(violations("undo/a.cpp", "#include <windows.h>\n", "companions")), 1)
        self.assertEqual(violations("undo/win32/main.cpp", '#include <windows.h>\n#include "runtime/entry.h"\n',
                                    "companions"), [])

    def test_only_entry_points_and_win32_folders_include_the_run_time(self):
        text = '#include "runtime/float_control.h"\n'
        self.assertEqual(violations("os/win32/a.cpp", text), [])
        self.assertEqual(len(violations("os/a.cpp", text)), 1)

    def test_folder_of_one_root_is_unknown_in_the_other(self):
        self.assertEqual(len(violations("undo/a.cpp", "")), 1)
        self.assertEqual(len(violations("app/a.cpp", "", "companions")), 1)


if __name__ == "__main__":
    unittest.main()
