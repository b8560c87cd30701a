"""The manual quotes the program: what it marks as literal stands in the sources so, and what the program can say
stands in the manual."""

import unittest

from manual_parts import ROOT, ManualCase
from source_texts import (captions_of_operated_controls, captions_of_screens, in_one_line, messages_below,
                          texts_below, texts_of)

TOPIC_OF_SCREEN = {"quondix": 4, "automatic": 5, "time_intervals": 6, "startup": 7, "launcher": 8, "cache": 9,
                   "swap_file": 10, "about": 11}
MESSAGE_TOPICS = (22, 23)
# Folders without texts for the user: forwarding, control models, and what a form designer shows. The self-test writes
# into a log, of which README.TXT tells.
WITHOUT_MESSAGES = ("src/os/", "src/ui/", "src/screens/", "src/controls/", "src/base/text", "_screen.h",
                    "win32/resources.h", "companions/self_test/")
# Long texts of the program that are no messages.
NOT_IN_A_BOX = {
    # captions and labels that are written while the program runs
    "Total Physical Memory:", "Virtual Memory (Swapfile) :", "%  Available RAM", "MB   Q-DIX",
    "MB   Q-DIX - This reading is Incorrect. See our support page.", "(no name)",
    "Auto Detection feature has detected and released RAM", "Automatic feature has detected and released RAM",
    "times since Q-DIX was started on", "Next Release of RAM is due in", "Your system has been running for",
    "These settings were recorded before Q-DIX changed this computer for the first time. Tick those that are to be "
    "put back.",
    "Backup: system.qdix in the Windows folder, the copy of system.ini that was made before the first change.",
    # kinds of drives, which no window shows
    "The drive type cannot be determined.", "The root directory does not exist.", "Hard drive; can not be removed.",
    # titles
    "Quondix Tip", "Start the program in this folder:", "unwanted instance",
    # names
    "Software\\VB and VBA Program Settings\\QDIX\\", "Quondix Settings",
}


class DriftTest(ManualCase):
    def test_captions_in_the_topics_of_the_tabs_stand_on_the_screens(self):
        captions = captions_of_screens()
        for number in TOPIC_OF_SCREEN.values():
            for literal in self.topic(number).literals():
                self.assertIn(literal.strip(), captions, f"topic {number}")

    def test_every_control_of_a_tab_stands_in_its_topic(self):
        topics_of: dict[str, set[int]] = {}
        for screen, number in TOPIC_OF_SCREEN.items():
            for caption in captions_of_operated_controls(ROOT / f"src/screens/{screen}_screen.h"):
                topics_of.setdefault(caption, set()).add(number)
        self.assertGreater(len(topics_of), 30)
        for caption, numbers in topics_of.items():
            # A control that several tabs have is described once.
            described = any(caption in self.topic(number).plain_text() for number in numbers)
            self.assertTrue(described, f"'{caption}' is not in the topics {sorted(numbers)}")

    def test_literals_of_the_other_topics_stand_in_the_sources(self):
        texts = texts_below("src", "companions")
        for topic in self.topics:
            for literal in topic.literals():
                self.assertTrue(literal.strip() in texts, f"'{literal}' in topic {topic.number} stands nowhere")

    def test_every_message_of_the_program_stands_in_the_manual(self):
        quoted = {literal.strip() for number in MESSAGE_TOPICS for literal in self.topic(number).literals()}
        messages = messages_below("src", "companions", without=WITHOUT_MESSAGES)
        self.assertGreater(len(messages), 60)
        self.assertEqual(messages - quoted - NOT_IN_A_BOX, set())

    def test_no_exception_is_needless(self):
        self.assertEqual(NOT_IN_A_BOX - messages_below("src", "companions", without=WITHOUT_MESSAGES), set())

    def test_literals_side_by_side_are_one_text(self):
        code = '#include "a.h"\n// "no"\nShow("One \\"two\\"\\r\\n\\r\\n"\n  "three" + x + " four\'s", \'"\', "five");'
        self.assertEqual(texts_of(code), ['One "two"\n\nthree', " four's", "five"])
        self.assertEqual(in_one_line('One "two"\n\nthree '), 'One "two" three')


if __name__ == "__main__":
    unittest.main()
