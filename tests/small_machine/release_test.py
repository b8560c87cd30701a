"""Tests a release with the button on the small machine, with the shipped exe:   release_test.py MB

The figures come from the guest's kernel. What the program shows must agree with them.
"""
import re
import sys
import unittest

from scenario_case import ScenarioCase

PNG = b"\x89PNG\r\n\x1a\n"
# Share of the released amount. The smallest machine has less memory that can be paged out.
MIN_GAIN = {64: 0.30, 96: 0.60, 128: 0.60}
# Share of the released amount by which the memory in the swap file grows. Pages that are also in RAM do not count: while
# memory is short, a page that was read back keeps its place there, and paging it out again uses no more of the file. On
# the smallest machine most pages have such a place before the release.
MIN_SWAP = 0.20
# Share of the idle programs' memory that is in RAM after the release.
MAX_IDLE = 0.50
# Share of the released amount that a second release may find.
MAX_FOUND_AGAIN = 0.25
# Memory use changes between the reading of the kernel and the reading of the program.
AGREEMENT_KB = 1024
# The label shows the gauge, which has fifty steps.
STEP_PERCENT = 2


class ReleaseTest(ScenarioCase):
    scenario = "one_release"

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.before, cls.after = cls.result["before"], cls.result["after"]
        cls.amount_kb = cls.result["release_mb"] * 1024

    def test_available_memory_rises(self):
        self.assertGreaterEqual(self.gain_kb("before", "after"), MIN_GAIN[self.memory_mb] * self.amount_kb)

    def test_idle_programs_are_paged_out(self):
        self.assertEqual(self.before["idle_programs"], 4)
        self.assertLessEqual(self.after["idle_in_ram_kb"], MAX_IDLE * self.before["idle_in_ram_kb"])

    def test_swap_file_grows(self):
        rise_kb = self.after["paged_out_kb"] - self.before["paged_out_kb"]
        self.assertGreaterEqual(rise_kb, MIN_SWAP * self.amount_kb)

    def test_no_memory_is_damaged(self):
        self.assertEqual(self.result["wrong_words"], 0)
        self.assertEqual(self.result["words"], 4 * self.result["idle_mb"] * 1024 * 1024 // 4)

    def test_a_second_release_finds_little(self):
        self.assertLessEqual(self.gain_kb("after", "after_again"), MAX_FOUND_AGAIN * self.amount_kb)

    def test_window_agrees_with_the_kernel(self):
        for moment in (self.before, self.after):
            caption = re.fullmatch(r"([\d.]+) MB   Q-DIX", moment["caption"])
            self.assertIsNotNone(caption, moment["caption"])
            self.assertAlmostEqual(float(caption[1]) * 1000, moment["available_kb"], delta=AGREEMENT_KB)
            free = re.fullmatch(r"(\d+)%  Available RAM", moment["free"])
            self.assertIsNotNone(free, moment["free"])
            self.assertAlmostEqual(int(free[1]), 100 * moment["available_kb"] / moment["total_kb"],
                                   delta=STEP_PERCENT + 100 * AGREEMENT_KB / moment["total_kb"])

    def test_screenshots_before_and_after_differ(self):
        photographs = [(self.folder / f"{name}.png").read_bytes() for name in ("before", "after")]
        for photograph in photographs:
            self.assertTrue(photograph.startswith(PNG))
        self.assertNotEqual(*photographs)


if __name__ == "__main__":
    ReleaseTest.memory_mb = int(sys.argv.pop())
    unittest.main()
