"""The topics of the manual: complete, linked, and narrow enough for the viewer on a small screen."""

import unittest

from manual_parts import HELP, ManualCase, plain

# The topics that the program opens: first the first start, then the tabs in order.
TOPICS_OF_THE_PROGRAM = {0: "First Steps", 4: "Quondix", 5: "Automatic", 6: "Time Intervals", 7: "Startup / Other",
                         8: "Launcher", 9: "Cache Settings", 10: "Optimize Swapfile", 11: "About"}
# A topic pane of 300 pixels, in a font of about 6 pixels per character.
PANE_CHARACTERS = 50
CODE_CHARACTERS = 60
MAX_BYTES = 48000


class ManualTest(ManualCase):
    def test_every_topic_that_the_program_opens_exists(self):
        titles = {topic.number: topic.title for topic in self.topics}
        for number, title in TOPICS_OF_THE_PROGRAM.items():
            self.assertEqual(titles.get(number), title)

    def test_unused_topic_numbers_stay_free(self):
        self.assertFalse({1, 2, 3} & {topic.number for topic in self.topics})

    def test_every_topic_is_in_the_contents_once(self):
        numbers = [topic.number for topic in self.topics]
        self.assertEqual(len(numbers), len(set(numbers)))
        files = {int(path.name[:2]) for path in HELP.glob("[0-9][0-9]_*.md")}
        self.assertEqual(set(numbers), files)

    def test_every_link_leads_to_another_topic(self):
        numbers = {topic.number for topic in self.topics}
        links = [(topic.number, target) for topic in self.topics for target in topic.links()]
        self.assertGreater(len(links), 20)
        for source, target in links:
            self.assertIn(target, numbers - {source}, f"link in topic {source}")

    def test_no_word_is_wider_than_the_pane(self):
        for topic in self.topics:
            for kind, line in topic.lines:
                if kind == "C":
                    self.assertLessEqual(len(line), CODE_CHARACTERS, line)
                elif kind != "I":
                    longest = max(map(len, plain(line).split()), default=0)
                    self.assertLessEqual(longest, PANE_CHARACTERS, line)

    def test_longest_words_of_a_row_fit_side_by_side(self):
        tables = 0
        for topic in self.topics:
            widths: list[int] = []
            for kind, line in [*topic.lines, ("P", "")]:
                if kind in "TR":
                    words = [max(map(len, cell.split()), default=0) for cell in plain(line).split("\t")]
                    widths = words if kind == "T" else [max(pair) for pair in zip(widths, words, strict=True)]
                elif widths:
                    tables += 1
                    blank_columns = 2 * (len(widths) - 1)
                    self.assertLessEqual(sum(widths) + blank_columns, PANE_CHARACTERS, f"topic {topic.number}")
                    widths = []
        self.assertGreater(tables, 3)

    def test_stream_is_small_enough_for_the_viewer(self):
        self.assertLess(len(self.stream), MAX_BYTES)


if __name__ == "__main__":
    unittest.main()
