#!/usr/bin/env python3
"""The plain-words check finds the words to avoid, and only those."""
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools" / "lint"))
from plain_words import findings  # noqa: E402


class PlainWords(unittest.TestCase):
    def test_each_word_to_avoid_is_found_on_its_line(self):
        for words in ("// Starts anew.", "the list of before", "you shall see", "constexpr int kMostRows = 3;", "dots_an_inch",
                      "// Gets along without memory.", "the wish of the caller"):
            self.assertEqual([number for number, _ in findings(f"plain\n{words}\n")], [2], words)

    def test_ordinary_words_pass(self):
        text = "// Starts again.\n// The previous list. A shallow copy; kMostly is a name, kMaxRows too.\n"
        self.assertEqual(list(findings(text)), [])

    def test_report_suggests_better_words(self):
        self.assertIn("again", next(findings("anew"))[1])


if __name__ == "__main__":
    unittest.main()
