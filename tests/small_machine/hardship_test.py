"""Tests releases that cannot finish, on the small machine with the shipped exe:   hardship_test.py [CASE]"""
import subprocess
import unittest

from scenario_case import ScenarioCase

MAX_SWAP_FREE = 0.04
# By how much available memory may change by itself during the test.
UNREST_KB = 6 * 1024
MAX_SECONDS_TO_END = 10
# The notification area at the right end of the taskbar: width, height, x, y.
TRAY = "60x28+740+572"


class NoMemoryTest(ScenarioCase):
    scenario = "no_memory"

    def test_the_swap_file_is_full(self):
        before = self.result["before"]
        self.assertLessEqual(before["swap_total_kb"] - before["swap_used_kb"], MAX_SWAP_FREE * before["swap_total_kb"])

    def test_the_warning_is_shown_once(self):
        self.assertEqual(self.result["box"], "Warning - System Resources may be low.  "
                                             "Please check your harddisk space and swapfile size.")
        self.assertEqual(self.result["later_boxes"], "")

    def test_memory_is_unchanged(self):
        self.assertAlmostEqual(self.gain_kb("before", "after"), 0, delta=UNREST_KB)
        self.assertEqual((self.result["after"]["idle_programs"], self.result["wrong_words"]), (1, 0))
        self.assertRegex(self.result["after"]["caption"], r"^[\d.]+ MB   Q-DIX$")

    def test_the_next_release_works_when_memory_is_available(self):
        self.assertGreater(self.result["seconds_later"], 0)


class CloseDuringReleaseTest(ScenarioCase):
    scenario = "close_during_release"

    def test_the_window_was_closed_during_the_release(self):
        self.assertEqual(self.result["enabled"], "0")

    def test_the_process_ends_within_seconds(self):
        self.assertLessEqual(self.result["seconds_to_end"], MAX_SECONDS_TO_END)
        self.assertEqual(self.result["after"]["main_in_ram_kb"], 0)

    def test_its_memory_is_freed_and_other_memory_is_intact(self):
        self.assertGreater(self.gain_kb("before", "after"), 0)
        self.assertEqual(self.result["wrong_words"], 0)

    # Wine itself removes the icon of a destroyed window. The unit tests and the strict Windows 95 show that the program
    # removes it first.
    def test_no_icon_is_left(self):
        without, before, after = (self.tray(name) for name in ("without", "before", "after"))
        self.assertNotEqual(before, without, "the icon was not shown before")
        self.assertEqual(after, without)

    def tray(self, name):
        """Returns the pixels of the notification area in a screenshot."""
        return subprocess.run(["convert", self.folder / f"{name}.png", "-crop", TRAY, "rgb:-"], check=True,
                              capture_output=True).stdout


if __name__ == "__main__":
    unittest.main()
