"""Tests the section of the benchmarks about the small machine: the verdicts on budgets, and the tables."""
import copy
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "bench"))

import small_machine

BEFORE = {"available_kb": 10000, "pages_out": 500, "idle_in_ram_kb": 40000}


def step(ms, available_kb):
    return {"ms": ms, "after": {"available_kb": available_kb, "pages_out": 1500, "idle_in_ram_kb": 12345}}


REST = {"Private_Clean": 1000, "Private_Dirty": 2000, "Pss": 4000, "Rss": 9000, "Swap": 7}
RESULT = {"memory_mb": 96, "release_mb": 40, "idle_mb": 10, "idle_programs": 4, "pumps": 10000, "before": BEFORE,
          "rounds": [{"release": step(3000 + 100 * number, 40000 + number), "loop": step(1500, 40001),
                      "pumps": step(1500, 10000), "pumping_loop": step(3000, 40000),
                      "window_pumps": step(1700, 10000)} for number in range(3)],
          "at_rest": {name: REST for name in small_machine.NAMES}}


STARTS = {"memory_mb": 96, "start_ms": {"QDIX.exe": [3200, 2800, 3000], "other.exe": [2000, 2100], "notepad.exe": [1999]}}


def changed(name, **figures):
    result = copy.deepcopy(RESULT)
    for one in result["rounds"]:
        one[name]["ms"] = figures.get("ms", one[name]["ms"])
        one[name]["after"]["available_kb"] = figures.get("available_kb", one[name]["after"]["available_kb"])
    return result


class BudgetTest(unittest.TestCase):
    def test_gaining_as_much_as_the_loop_keeps_the_budget_and_less_misses_it(self):
        row = small_machine.gain_row(RESULT)
        self.assertEqual(row, ["memory gained by a release of 40 MB with 96 MB, beside a loop",
                               "30.0 MB", "30.0 MB", "1.00", "at least the loop's", "kept"])
        self.assertEqual(small_machine.gain_row(changed("loop", available_kb=40002))[-1], "**missed**")
        self.assertEqual(small_machine.gain_row(changed("release", available_kb=40000))[-1], "**missed**")

    def test_fastest_time_is_compared_with_the_loop_that_pumps(self):
        row = small_machine.time_row(RESULT)
        self.assertEqual(row, ["time of that release, fastest of 3, beside a loop with as many pumps (10,000)",
                               "3000 ms", "3000 ms", "1.00", "at most the loop's", "kept"])
        self.assertEqual(small_machine.time_row(changed("pumping_loop", ms=2999))[-1], "**missed**")


    def test_fastest_start_may_take_two_fifths_longer_than_notepad(self):
        self.assertEqual(small_machine.start_row(STARTS, "other.exe"),
                         ["start until the window is shown with 96 MB, fastest of 3, beside notepad loaded as any other "
                          "program", "2800 ms", "2000 ms", "1.40", "at most 1.4 x notepad", "kept"])
        self.assertEqual(small_machine.start_row(STARTS, "notepad.exe")[-1], "**missed**")


class SectionTest(unittest.TestCase):
    def setUp(self):
        self.lines = small_machine.section(STARTS, [RESULT]).splitlines()

    def test_section_starts_with_the_heading_that_the_scripts_search_for(self):
        self.assertEqual(self.lines[0], "## On an emulated PC")

    def test_tables_show_median_and_range_of_the_rounds(self):
        self.assertIn("| 96 MB | 40 MB | 10.0 MB | 40.0 MB | 3.0 seconds |", self.lines)
        self.assertIn("| 96 MB | release | 30.0 MB | 3100 ms (3000 to 3200) | 1,000 | 40.0 MB to 12.3 MB |", self.lines)

    def test_starts_come_first_in_the_table_of_budgets(self):
        first = next(number for number, line in enumerate(self.lines) if line.startswith("|---"))
        self.assertIn("beside notepad loaded as any other program", self.lines[first + 1])
        self.assertIn("beside notepad loaded as Wine loads its own", self.lines[first + 2])

    def test_table_at_rest_adds_up_private_memory(self):
        self.assertIn("| 96 MB | `QDIX.exe` | 3,000 KB | 4,000 KB | 9,000 KB | 7 KB |", self.lines)


if __name__ == "__main__":
    unittest.main()
