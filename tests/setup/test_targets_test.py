"""What test.sh builds for the tests that its arguments choose."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).resolve().parents[2] / "tools" / "setup" / "test_targets.py"
TESTS = """
add_test(unit.shard_0 "{build}/unit_tests" "--gtest_brief=1")
add_test(unit.shard_1 "{build}/unit_tests" "--gtest_brief=1")
set_tests_properties(unit.shard_0 unit.shard_1 PROPERTIES REQUIRED_FILES "{build}/unit_tests")
add_test(contract.shard_0 "{build}/contract_tests")
add_test(lint.includes "{python}" "{build}/unit_tests")
add_test(fuzz_tests_NOT_BUILT fuzz_tests_NOT_BUILT)
"""


class TargetsOfTests(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.build = pathlib.Path(folder.name).resolve()
        for program in ("unit_tests", "contract_tests"):
            (self.build / program).touch(mode=0o755)
        (self.build / "CTestTestfile.cmake").write_text(TESTS.format(build=self.build, python=sys.executable),
                                                        encoding="utf-8")

    def targets(self, *arguments):
        return subprocess.run([sys.executable, SCRIPT, self.build, *arguments], check=True, stdout=subprocess.PIPE,
                              text=True).stdout.strip()

    def test_programs_of_the_chosen_tests_are_built_once_each(self):
        self.assertEqual(self.targets("-R", "unit"), "unit_tests")
        self.assertEqual(self.targets("-R", "shard"), "contract_tests unit_tests")

    def test_program_that_was_never_built_is_known_by_the_file_that_its_tests_require(self):
        (self.build / "unit_tests").unlink()
        self.assertEqual(self.targets("-R", "unit"), "unit_tests")
        (self.build / "contract_tests").unlink()
        self.assertEqual(self.targets("-R", "contract"), "all")

    def test_everything_is_built_for_a_script(self):
        self.assertEqual(self.targets("-R", "unit|lint"), "all")

    def test_everything_is_built_for_tests_that_are_not_known_yet(self):
        self.assertEqual(self.targets("-R", "fuzz"), "all")

    def test_nothing_is_built_without_a_test(self):
        self.assertEqual(self.targets("-R", "no such test"), "")


if __name__ == "__main__":
    unittest.main()
