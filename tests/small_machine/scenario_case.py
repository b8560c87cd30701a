"""Plays a scenario on the small machine once for all tests of a case, with the exes from the build folders."""
import json
import pathlib
import re
import subprocess
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
SMALL_MACHINE = ROOT / "tools/small_machine/small_machine.sh"
# Seconds of the host's time.
RUN_LIMIT_S = 2000


def play(scenario, memory_mb):
    """Plays a scenario and returns its result and the folder with its screenshots."""
    folder = ROOT / f"build/small_machine/{scenario}_{memory_mb}"
    subprocess.run([SMALL_MACHINE, "play", scenario, str(memory_mb), folder], check=True, stdin=subprocess.DEVNULL,
                   timeout=RUN_LIMIT_S)
    return json.loads((folder / "release.json").read_text(encoding="utf-8")), folder


class ScenarioCase(unittest.TestCase):
    """Base of the cases. Each names its scenario; `result` is the result and `folder` has the screenshots."""
    scenario = None
    memory_mb = 96

    @classmethod
    def setUpClass(cls):
        cls.result, cls.folder = play(cls.scenario, cls.memory_mb)

    def gain_kb(self, before, after):
        return self.result[after]["available_kb"] - self.result[before]["available_kb"]

    def releases(self, moment):
        """Returns the number of releases that the window shows at a moment."""
        text = self.result[moment]["counter"]
        found = re.match(r"(?:Auto Detection|Automatic) feature has detected and released RAM (\d+) times since ", text)
        self.assertIsNotNone(found, text)
        return int(found[1])
