"""What manual and README.TXT say about windows, buttons and times is true in the sources."""

import re
import sys
import unittest

from documents import README, readme_section
from drift_test import TOPIC_OF_SCREEN
from manual_parts import HELP, ROOT, ManualCase, plain
from source_texts import menu_captions, sources, texts_below

sys.path.insert(0, str(ROOT / "tests" / "dist"))
from setup_text_test import sections_of  # noqa: E402

FIRST_STEPS, QUONDIX, TIME_INTERVALS, LAUNCHER, SWAP_FILE, RELEASE, WHEN_NOT, TRAY = 0, 4, 6, 8, 10, 12, 13, 19
# Quotations in README.TXT from elsewhere: a Windows term, the beginning of a folder name, and its own headings.
QUOTED_FROM_ELSEWHERE = {"Install", "Progra"}


def number_in(path: str, pattern: str) -> int:
    """Returns the number that follows a text in a source file."""
    return int(re.search(rf"{pattern}(\d+)", (ROOT / path).read_text(encoding="utf-8"))[1])


def timer_s(name: str) -> int:
    return number_in("src/screens/main_window.h", rf'ui::Timer {name}\{{events, "{name}", ') // 1000


def words(text: str) -> str:
    """Returns the text on one line, so that its line breaks do not matter."""
    return " ".join(text.split())


class StatementsTest(ManualCase):
    def text_of(self, number: int) -> str:
        return words(self.topic(number).plain_text())

    def test_light_bulb_is_named_only_where_a_button_shows_it(self):
        with_bulb = {number for screen, number in TOPIC_OF_SCREEN.items()
                     if "kLightBulbPicture" in (ROOT / f"src/screens/{screen}_screen.h").read_text(encoding="utf-8")}
        named = {topic.number for topic in self.topics if re.search(r"light ?bulb", plain_without_literals(topic))}
        self.assertEqual(with_bulb, {SWAP_FILE})
        self.assertEqual(named, with_bulb)

    def test_named_tray_menu_entries_exist(self):
        captions = menu_captions()
        self.assertIn("Close", captions)
        self.assertNotIn("Pause All Activity", captions)
        quoted = [text for topic in self.topics for _, line in topic.lines
                  for text in re.findall("\x02([^\x02]*)\x02 in the menu of \x03", line)]
        quoted += re.findall(r'"([^"]*)" in the menu', words(README.read_text(encoding="ascii")))
        self.assertEqual(set(quoted) - captions, set())
        first_column = [plain(line).split("\t")[0] for kind, line in self.topic(TRAY).lines if kind == "R"]
        self.assertEqual(set(first_column), captions - {"Tray Menu"})

    def test_readme_calls_pausing_a_button(self):
        self.assertRegex(words(readme_section("WHAT A RELEASE DOES AND DOES NOT DO")),
                         r'button "Pause All Activity" on the "Quondix" tab')

    def test_readme_quotes_texts_of_the_program_or_the_setup(self):
        text = README.read_text(encoding="ascii")
        own = set(re.findall(r"^[A-Z][A-Z ,]+$", text, re.MULTILINE)) | QUOTED_FROM_ELSEWHERE
        setup = sections_of((ROOT / "packaging/qdix.inf.in").read_text(encoding="ascii"))
        own |= {re.sub("%NAME%", "Q-DIX", name) for line in setup["QDIX.Entry"] for name in re.findall('"([^"]+)"', line)}
        quoted = {words(quotation) for quotation in re.findall(r'"([^"]+)"', text)}
        self.assertGreater(len(quoted), 8)
        self.assertEqual(quoted - own - texts_below("src", "companions"), set())

    def test_viewer_text_does_not_mention_pictures(self):
        for topic in self.topics:
            text = "\n".join(plain(line) for kind, line in topic.lines if kind != "I")
            self.assertNotRegex(text, r"\bpictures (were|of)\b", f"topic {topic.number}")
        quondix = (HELP / "04_quondix.md").read_text(encoding="utf-8")
        self.assertRegex(quondix, r'quondix\.gif "The pictures were taken on an emulated PC')

    def test_advice_to_pause_names_what_ignores_the_pause(self):
        for name, text in {"manual": self.text_of(WHEN_NOT), "tab": self.text_of(QUONDIX),
                           "README.TXT": words(readme_section("WHAT A RELEASE DOES AND DOES NOT DO"))}.items():
            for part in ("Pause All Activity", "Time Releases Active", "already waiting for the processor"):
                self.assertIn(part, text, name)
        self.assertIn(f"tries again every {timer_s('Timer5')} seconds", self.text_of(TIME_INTERVALS))

    def test_times_of_the_editor_watch_match_the_sources(self):
        watch, tick_s = "src/launcher/config_watch.cpp", timer_s("Timer7")
        first_look_s = tick_s * (number_in(watch, "kOpeningTicks = ") + 1)
        half_minutes = round(tick_s * number_in(watch, "kMaxTicks = ") / 30)
        text = self.text_of(LAUNCHER)
        self.assertIn(f"within {tick_s} seconds after the editor closes, but not in the first {first_look_s} ", text)
        self.assertIn(f"{half_minutes // 2} and a half minutes", text)
        self.assertEqual(half_minutes % 2, 1)

    def test_start_up_entry_is_mentioned_where_questions_are_promised(self):
        for name, text in {"manual": self.text_of(FIRST_STEPS), "README.TXT": words(readme_section("CHANGES TO WINDOWS"))}.items():
            before, promise, _ = text.partition("question")
            self.assertTrue(promise, name)
            self.assertIn("Automatically launch Q-DIX", before, name)
        code = "".join(sources("src/app"))
        self.assertRegex(code, r"Check2\.SetTicked\(true\)")

    def test_measured_figures_match_the_benchmarks(self):
        text = (HELP / "12_how_a_release_works.md").read_text(encoding="utf-8")
        rows = re.findall(r"^\| \d+ MB \|.*$", text, re.MULTILINE)
        self.assertEqual([row.split()[1] for row in rows], ["64", "96", "128"])
        self.assertEqual(set(rows) - set((ROOT / "docs/benchmarks.md").read_text(encoding="utf-8").splitlines()), set())
        for part in ("on an emulated PC", "kernel is not that of Windows 98"):
            self.assertIn(part, self.text_of(RELEASE))

    def test_swap_file_and_free_space_megabytes_are_explained(self):
        text = self.text_of(SWAP_FILE)
        self.assertIn("swap file those of 1,048,576 bytes, the free space those of 1,024,000", text)
        self.assertIn(f"1000 MB takes {1000 * 1048576 // 1024000} MB", text)


def plain_without_literals(topic) -> str:
    return "\n".join(re.sub("\x02[^\x02]*\x02", "", line) for _, line in topic.lines)


if __name__ == "__main__":
    unittest.main()
