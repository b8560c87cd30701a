"""Tests the launch of a program that needs 48 MB at once, with and without a release before it, with the shipped exe.

The scenario reports how long the launch takes; this test sets no limit. The figures come from the guest's kernel.
"""
import unittest

from scenario_case import play

MEMORY_MB = 96
KB_PER_MB = 1024
# How far the two runs may differ before the launch. Both start from one state; choosing the share changes little.
SAME_KB = 4 * KB_PER_MB
# Share of half the memory by which available memory has grown when the program starts.
MIN_GAIN = 0.50
# Share of the idle programs' memory that is in RAM when the program starts: with a release, and without one.
MAX_IDLE = 0.50
MIN_IDLE = 0.65


class LaunchTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.result, _ = play("launch", MEMORY_MB)
        cls.released, cls.plain = cls.result["released"], cls.result["plain"]
        cls.runs = {"released": cls.released, "plain": cls.plain}

    def idle_share(self, result):
        return result["at_start"]["idle_in_ram_kb"] / result["before"]["idle_in_ram_kb"]

    def test_both_runs_start_alike(self):
        for figure in ("available_kb", "idle_in_ram_kb", "anonymous_kb", "paged_out_kb"):
            self.assertAlmostEqual(self.released["before"][figure], self.plain["before"][figure], delta=SAME_KB,
                                   msg=figure)

    def test_the_program_gets_all_of_its_memory(self):
        for name, result in self.runs.items():
            with self.subTest(name):
                needed_mb = self.result["needed_mb"]
                self.assertRegex(result["hungry"][0], f"^holds {needed_mb} MB after ")
                self.assertEqual(result["hungry"][1], f"0 wrong words of {needed_mb * KB_PER_MB * KB_PER_MB // 4}")
                self.assertGreaterEqual(result["after"]["hungry_kb"], needed_mb * KB_PER_MB)

    def test_memory_is_released_before_the_start(self):
        before, at_start = self.released["before"], self.released["at_start"]
        self.assertLessEqual(self.idle_share(self.released), MAX_IDLE)
        self.assertGreaterEqual(at_start["available_kb"] - before["available_kb"],
                                MIN_GAIN * before["total_kb"] / 2)

    def test_nothing_is_released_without_a_share(self):
        self.assertGreaterEqual(self.idle_share(self.plain), MIN_IDLE)

    def test_the_release_of_a_launch_is_not_counted_as_an_automatic_one(self):
        for name, result in self.runs.items():
            with self.subTest(name):
                self.assertEqual(result["counter"], str(self.result["counter_before"]))

    def test_no_memory_is_damaged(self):
        for name, result in self.runs.items():
            with self.subTest(name):
                self.assertEqual(result["before"]["idle_programs"], 4)
                self.assertEqual(result["wrong_words"], 0)


if __name__ == "__main__":
    unittest.main()
