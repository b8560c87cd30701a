"""Tests the report of a release, and what counts as a gain."""
import copy
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools/small_machine"))

import report

BEFORE = {"total_kb": 81540, "available_kb": 11468, "idle_in_ram_kb": 43384, "swap_used_kb": 98412,
          "idle_programs": 4, "caption": "11 MB   Q-DIX"}
AFTER = BEFORE | {"available_kb": 44324, "idle_in_ram_kb": 15144, "swap_used_kb": 115688, "caption": "43 MB   Q-DIX"}
RESULT = {"memory_mb": 96, "release_mb": 40, "idle_mb": 10, "before": BEFORE, "after": AFTER,
          "after_again": AFTER | {"available_kb": 48116}, "release_seconds": 3.347, "again_seconds": 2.5,
          "wrong_words": 0, "words": 10485760}


def changed(moment, **figures):
    result = copy.deepcopy(RESULT)
    result[moment] |= figures
    return result


class ReportTest(unittest.TestCase):
    def lines(self, result):
        return report.report(result, ["before.png", "after.png"]).splitlines()

    def test_report_shows_both_moments_in_aligned_columns(self):
        self.assertEqual(self.lines(RESULT), [
            "                                    before         after",
            "Available memory                    11.5 MB        44.3 MB",
            "Of the idle programs' 40 MB in RAM  43.4 MB        15.1 MB",
            "Swap file in use                    98.4 MB        115.7 MB",
            "Title of the window                 11 MB   Q-DIX  43 MB   Q-DIX",
            "",
            "The machine        an emulated Pentium II with 96 MB, 81.5 MB of it for programs",
            "The release        40 MB in 3.3 seconds of that machine's time",
            "A second release   found 3.8 MB more, in 2.5 seconds",
            "The idle programs  4 of 10 MB each; their memory came back unharmed",
            "Pictures           before.png and after.png",
            "",
            "Memory was gained: 32.9 MB more than before, on an emulated PC."])

    def test_damage_is_reported(self):
        text = "\n".join(self.lines(RESULT | {"wrong_words": 3}))
        self.assertIn("their memory CAME BACK WITH 3 WRONG WORDS of 10485760", text)

    def test_a_second_release_that_lost_memory_shows_zero(self):
        lines = self.lines(changed("after_again", available_kb=1))
        self.assertIn("A second release   found 0.0 MB more, in 2.5 seconds", lines)

    def test_gain_requires_idle_memory_in_the_swap_file(self):
        self.assertTrue(report.is_gain(RESULT))
        self.assertFalse(report.is_gain(changed("after", available_kb=11468)))
        self.assertFalse(report.is_gain(changed("after", idle_in_ram_kb=43384)))
        self.assertFalse(report.is_gain(changed("after", swap_used_kb=98412)))
        self.assertTrue(self.lines(changed("after", swap_used_kb=1))[-1].startswith("NO MEMORY WAS GAINED"))


if __name__ == "__main__":
    unittest.main()
