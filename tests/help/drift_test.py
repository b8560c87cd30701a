"""The manual quotes the program: whatever it marks as literal is in the sources, and whatever the program can say is
in the manual."""

import re
import unittest

from manual_parts import ROOT, ManualCase
from source_texts import (captions_of_operated_controls, captions_of_screen, in_one_line, messages_below,
                          sources, texts_below, texts_of)

TOPIC_OF_SCREEN = {"quondix": 4, "automatic": 5, "time_intervals": 6, "startup": 7, "launcher": 8, "cache": 9,
                   "swap_file": 10, "about": 11}
TAB_OF_SCREEN = {"quondix": "Quondix", "automatic": "Automatic", "time_intervals": "Time Intervals",
                 "startup": "Startup / Other", "launcher": "Launcher", "cache": "Cache Settings",
                 "swap_file": "Optimize Swapfile", "about": "About"}
# Controls without a tab of their own, or known on every tab.
OF_ALL_TABS = ("main_window.h", "tray_menu.h")
KNOWN_EVERYWHERE = {"Free Up RAM Now"}
MESSAGE_TOPICS = (22, 23)
# Folders without texts for the user: forwarding, control models, and form designs. The self-test writes
# to a log, which README.TXT describes.
WITHOUT_MESSAGES = ("src/os/", "src/ui/", "src/screens/", "src/controls/", "src/base/text", "_screen.h",
                    "win32/resources.h", "companions/self_test/")
# Long texts of the program that are not messages.
NOT_IN_A_BOX = {
    # captions and labels written while the program runs
    "Total Physical Memory:", "Virtual Memory (Swapfile) :", "%  Available RAM", "MB   Q-DIX",
    "- This reading is Incorrect. See our support page.", "(no name)",
    "Auto Detection feature has detected and released RAM", "Automatic feature has detected and released RAM",
    "times since Q-DIX was started on", "Next Release of RAM is due in", "Your system has been running for",
    "Q-DIX recorded these settings before it first changed this computer. Tick the ones that you want to put back.",
    "Backup: system.qdix in the Windows folder",
    # kinds of drives, which no window shows
    "The drive type cannot be determined.", "The root directory does not exist.", "Hard drive; can not be removed.",
    # titles
    "Quondix Tip", "Start the program in this folder:", "unwanted instance",
    # errors that the program handles without their description, and one for numbers that it does not raise
    "Out of memory", "Division by zero", "Set not permitted", "Application-defined error",
    # names
    "Software\\VB and VBA Program Settings\\QDIX\\", "Quondix Settings",
}


class DriftTest(ManualCase):
    def test_captions_in_the_topic_of_a_tab_are_on_its_screen(self):
        """Expects a control of another tab to be named together with that tab."""
        screens = {name: captions_of_screen(ROOT / f"src/screens/{name}_screen.h") for name in TOPIC_OF_SCREEN}
        everywhere = KNOWN_EVERYWHERE.union(*(captions_of_screen(ROOT / f"src/screens/{name}") for name in OF_ALL_TABS))
        for screen, number in TOPIC_OF_SCREEN.items():
            literals = {literal.strip() for literal in self.topic(number).literals()}
            captions = screens[screen] | everywhere
            captions = captions.union(*(screens[other] for other, tab in TAB_OF_SCREEN.items() if tab in literals))
            self.assertEqual(literals - captions, set(), f"topic {number}")

    def test_every_control_of_a_tab_is_in_its_topic(self):
        topics_of: dict[str, set[int]] = {}
        for screen, number in TOPIC_OF_SCREEN.items():
            for caption in captions_of_operated_controls(ROOT / f"src/screens/{screen}_screen.h"):
                topics_of.setdefault(caption, set()).add(number)
        self.assertGreater(len(topics_of), 30)
        for caption, numbers in topics_of.items():
            # A control that is on several tabs is described once.
            described = any(caption in self.topic(number).plain_text() for number in numbers)
            self.assertTrue(described, f"'{caption}' is not in the topics {sorted(numbers)}")

    def test_literals_of_the_other_topics_are_in_the_sources(self):
        texts = texts_below("src", "companions")
        for topic in self.topics:
            for literal in topic.literals():
                self.assertTrue(literal.strip() in texts, f"'{literal}' in topic {topic.number} is not in the sources")

    def test_every_message_of_the_program_is_in_the_manual(self):
        quoted = {literal.strip() for number in MESSAGE_TOPICS for literal in self.topic(number).literals()}
        messages = messages_below("src", "companions", without=WITHOUT_MESSAGES)
        self.assertGreater(len(messages), 60)
        self.assertEqual(messages - quoted - NOT_IN_A_BOX, set())

    def test_every_described_error_is_raised(self):
        header, table = (ROOT / f"src/base/runtime_error.{kind}" for kind in ("h", "cpp"))
        numbers = dict(re.findall(r"RuntimeError (k\w+)\{(\d+)\}", header.read_text(encoding="utf-8")))
        self.assertGreater(len(numbers), 8)
        code = "".join(sources("src", "companions", without=("src/base/runtime_error.", "src/os/simulated/")))
        raised = {number for name, number in numbers.items() if re.search(rf"\b{name}\b", code)}
        described = re.findall(r"\{(\d+), \"", table.read_text(encoding="utf-8"))
        self.assertEqual(sorted(described, key=int), sorted(raised, key=int))

    def test_every_exception_is_needed(self):
        self.assertEqual(NOT_IN_A_BOX - messages_below("src", "companions", without=WITHOUT_MESSAGES), set())

    def test_adjacent_literals_are_one_text(self):
        code = '#include "a.h"\n// "no"\nShow("One \\"two\\"\\r\\n\\r\\n"\n  "three" + x + " four\'s", \'"\', "five");'
        self.assertEqual(texts_of(code), ['One "two"\n\nthree', " four's", "five"])
        self.assertEqual(in_one_line('One "two"\n\nthree '), 'One "two" three')


if __name__ == "__main__":
    unittest.main()
