"""Plays a scenario on the small machine once for all tests of a case, with the exes of the build folders."""
import json
import pathlib
import re
import subprocess
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
SMALL_MACHINE = ROOT / "tools/small_machine/small_machine.sh"
# Of the host's time.
RUN_LIMIT_S = 2000


class PlayedCase(unittest.TestCase):
    """A case names its scenario; `result` is what that wrote, `folder` has its photographs."""
    scenario = None
    memory_mb = 96

    @classmethod
    def setUpClass(cls):
        cls.folder = ROOT / f"build/small_machine/{cls.scenario}_{cls.memory_mb}"
        subprocess.run([SMALL_MACHINE, "play", cls.scenario, str(cls.memory_mb), cls.folder], check=True,
                       stdin=subprocess.DEVNULL, timeout=RUN_LIMIT_S)
        cls.result = json.loads((cls.folder / "release.json").read_text(encoding="utf-8"))

    def gain_kb(self, before, after):
        return self.result[after]["available_kb"] - self.result[before]["available_kb"]

    def releases(self, moment):
        """How many releases the window counts at a moment."""
        text = self.result[moment]["counter"]
        found = re.match(r"(?:Auto Detection|Automatic) feature has detected and released RAM (\d+) times since ", text)
        self.assertIsNotNone(found, text)
        return int(found[1])
