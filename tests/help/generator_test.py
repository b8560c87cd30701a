"""make_help.py: the exact output for a small book in both formats, and the texts that it rejects."""

import tempfile
import unittest
from pathlib import Path

from manual_parts import HELP, made, make_help

CONTENTS = "# Book\n\n## Part\n\n- [First](00_first.md)\n- [Second](07_second.md)\n"
FIRST = """# First

A **bold** word, a `lit  eral`, and a link to [the
second](07_second.md) & back.

## Lists

- one
- two

1. do
2. look

| Key | What |
|---|---|
| F1 | 1 < 2 |
| | `x` |

    cd \\windows

![A "window"](pictures/window.gif "With a frame & more")
"""
SECOND = "# Second\n\nText of the second.\n"
# The header of a picture 258 pixels wide and 3 high. Nothing reads the rest.
PICTURE = b"GIF89a\x02\x01\x03\x00" + bytes(10)

STREAM = (b"SPart\n@0\tFirst\nPA \x01bold\x01 word, a \x02lit  eral\x02, and a link to \x037\x1fthe second\x04 & back.\n"
          b"HLists\nBone\nBtwo\nN1\tdo\nN2\tlook\nTKey\tWhat\nRF1\t1 < 2\nR\t\x02x\x02\nCcd \\windows\n"
          b'Iwindow.gif\tA "window"\n@7\tSecond\nPText of the second.\n')


class SmallBook(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.source = Path(folder.name) / "texts"
        self.target = Path(folder.name) / "made"
        (self.source / "pictures").mkdir(parents=True)
        (self.source / "pictures" / "window.gif").write_bytes(PICTURE)
        self.write("contents.md", CONTENTS)
        self.write("00_first.md", FIRST)
        self.write("07_second.md", SECOND)

    def write(self, name: str, text: str | bytes) -> None:
        (self.source / name).write_bytes(text if isinstance(text, bytes) else text.encode("utf-8"))


class MadeTest(SmallBook):
    def test_stream_has_a_line_for_every_block(self):
        self.assertEqual(made(self.source, "--topics", self.target).read_bytes(), STREAM)

    def test_page_has_an_element_for_every_block(self):
        page = (made(self.source, "--html", self.target) / "help.htm").read_bytes().decode("cp1252")
        for element in ("<TITLE>Book</TITLE>", '<LI><A HREF="#topic7">Second</A></LI>',
                        '<H2><A NAME="topic0">First</A></H2>',
                        '<P>A <STRONG>bold</STRONG> word, a <B>lit&nbsp; eral</B>, and a link to '
                        '<A HREF="#topic7">the second</A> &amp; back.</P>',
                        "<H3>Lists</H3>", "<UL>\r\n<LI>one</LI>\r\n<LI>two</LI>\r\n</UL>",
                        "<OL>\r\n<LI>do</LI>\r\n<LI>look</LI>\r\n</OL>", "1 &lt; 2</TD></TR>",
                        '<TR><TD ALIGN="LEFT" VALIGN="TOP">&nbsp;</TD>', "<PRE>\r\ncd \\windows\r\n</PRE>",
                        '<IMG SRC="window.gif" ALT="A &#34;window&#34;" WIDTH="258" HEIGHT="3">'
                        "<BR>With a frame &amp; more</P>"):
            self.assertIn(element, page)
        self.assertEqual((self.target / "window.gif").read_bytes(), PICTURE)

    def test_texts_are_in_code_page_1252(self):
        self.write("07_second.md", "# Second\n\nCaf\u00e9 \u2013 \u20ac\n")
        self.assertIn(b"PCaf\xe9 \x96 \x80\n", made(self.source, "--topics", self.target).read_bytes())

    def test_topics_follow_the_order_of_the_contents(self):
        self.write("contents.md", "# Book\n\n## Z\n\n- [Second](07_second.md)\n\n## A\n\n- [First](00_first.md)\n")
        stream = made(self.source, "--topics", self.target).read_bytes()
        self.assertTrue(stream.startswith(b"SZ\n@7\tSecond\n"))
        self.assertIn(b"\nSA\n@0\tFirst\n", stream)

    def test_output_is_reproducible(self):
        folder = self.target.parent
        for option, name in (("--topics", ""), ("--html", "help.htm")):
            first, second = (made(HELP, option, folder / f"{option}{run}") / name for run in (1, 2))
            self.assertEqual(first.read_bytes(), second.read_bytes())


# The fault, the text of the second topic, the reported line, and part of the error message.
BAD_TOPICS = [
    ("link to nowhere", "# Second\n\nOne\n[x](09_x.md)\n", 4, "'09_x.md' is not a topic"),
    ("link out of the manual", "# Second\n\n[x](http://example.com)\n", 3, "is not a topic"),
    ("bare address", "# Second\n\n<http://example.com>\n", 3, "is not a topic"),
    ("no title", "Text\n", 1, "does not begin with '# title'"),
    ("two titles", "# Second\n\nText\n\n# Third\n", 5, "no form for heading '#'"),
    ("third level", "# Second\n\n### Deep\n", 3, "no form for heading '###'"),
    ("underlined heading", "# Second\n\nDeep\n---\n", 3, "no form for heading '-'"),
    ("marks in a heading", "# Second\n\n## A `b`\n", 3, "plain text"),
    ("no paragraph", "# Second\n\n## Heading\n", 1, "says nothing"),
    ("emphasis", "# Second\n\nText\nand *more*.\n", 4, "no form for em '*'"),
    ("literal inside bold", "# Second\n\n**a `b`**\n", 3, "plain text only inside strong"),
    ("hard line break", "# Second\n\nOne  \ntwo\n", 3, "no form for hardbreak"),
    ("quotation", "# Second\n\n> Text\n", 3, "no form for blockquote"),
    ("rule", "# Second\n\nText\n\n***\n", 5, "no form for hr"),
    ("HTML block", "# Second\n\n<div>\n</div>\n", 3, "no form for html_block"),
    ("HTML in a text", "# Second\n\nA<br>b\n", 3, "no form for html_inline"),
    ("nested list", "# Second\n\n- one\n  - two\n", 3, "one paragraph"),
    ("list that begins with 3", "# Second\n\n3. one\n", 3, "begin with 1"),
    ("aligned table", "# Second\n\n| A |\n|--:|\n| b |\n", 3, "no alignment"),
    ("code of a language", "# Second\n\n```sh\nls\n```\n", 3, "no language"),
    ("wide code", "# Second\n\n```\nls\n" + "x" * 61 + "\n```\n", 5, "more than 60 characters"),
    ("missing picture", "# Second\n\n![a](pictures/none.gif)\n", 3, "is missing"),
    ("long name of a picture", "# Second\n\n![a](pictures/longername.gif)\n", 3, "a picture is"),
    ("picture of another kind", "# Second\n\n![a](pictures/window.png)\n", 3, "a picture is"),
    ("picture without a text", "# Second\n\n![](pictures/window.gif)\n", 3, "a picture is"),
    ("picture in a text", "# Second\n\nSee ![a](pictures/window.gif)\n", 3, "stands alone"),
    ("character outside Windows-1252", "# Second\n\nOne\n\u2192 two\n", 4, "U+2192"),
    ("tab", "# Second\n\nOne\ttwo\n", 3, "U+0009"),
    ("mark of the stream", "# Second\n\nOne\x02two\n", 3, "U+0002"),
    ("other encoding", b"# Second\n\nCaf\xe9\n", 1, "not UTF-8"),
]
BAD_CONTENTS = [
    ("topic left out", "# Book\n\n## Part\n\n- [First](00_first.md)\n", 1, "topic 7 is not in the contents"),
    ("topic twice", CONTENTS + "- [First](00_first.md)\n", 7, "topic 0 is listed twice"),
    ("other title", CONTENTS.replace("[First]", "[Start]"), 5, "the title of topic 0 is 'First'"),
    ("unknown topic", CONTENTS + "- [Third](09_third.md)\n", 7, "'09_third.md' is not a topic"),
    ("item without a link", CONTENTS + "- Third\n", 7, "is a link to a topic"),
    ("list without a section", "# Book\n\n- [First](00_first.md)\n\n## Part\n", 3, "sections, each with a list"),
    ("empty", "# Book\n", 1, "sections, each with a list"),
]


class RefusedTest(SmallBook):
    def assert_refused(self, what: str, file: str, line: int, complaint: str) -> None:
        with self.subTest(what):
            page = self.target.with_name("page")
            done = make_help(self.source, "--topics", str(self.target), "--html", str(page))
            self.assertEqual(done.returncode, 1, done.stderr)
            self.assertIn(f"{file}:{line}: ", done.stderr)
            self.assertIn(complaint, done.stderr)
            self.assertFalse(self.target.exists() or page.exists(), "a file was made although the text was refused")

    def test_faulty_topics_are_rejected(self):
        for what, text, line, complaint in BAD_TOPICS:
            self.write("07_second.md", text)
            self.assert_refused(what, "07_second.md", line, complaint)

    def test_faulty_contents_are_rejected(self):
        for what, text, line, complaint in BAD_CONTENTS:
            self.write("contents.md", text)
            self.assert_refused(what, "contents.md", line, complaint)

    def test_picture_that_is_not_a_gif_is_rejected(self):
        (self.source / "pictures" / "window.gif").write_bytes(b"\x89PNG" + bytes(20))
        self.assert_refused("no GIF", "00_first.md", 21, "is no GIF picture")

    def test_file_that_is_not_a_topic_is_rejected(self):
        self.write("notes.md", "# Notes\n\nText\n")
        self.assert_refused("no number", "notes.md", 1, "NN_name.md")

    def test_duplicate_topic_number_is_rejected(self):
        self.write("07_third.md", "# Third\n\nText\n")
        self.assert_refused("same number", "07_third.md", 1, "has the number of 07_second.md")

    def test_missing_contents_are_rejected(self):
        (self.source / "contents.md").unlink()
        self.assert_refused("no contents", "contents.md", 1, "is missing")

    def test_stream_that_is_too_long_is_rejected(self):
        self.write("07_second.md", "# Second\n\n" + "Many words. " * 5000)
        done = make_help(self.source, "--topics", str(self.target))
        self.assertEqual(done.returncode, 1)
        self.assertIn("the viewer takes 48000 at most", done.stderr)

    def test_command_line_without_output_is_rejected(self):
        self.assertEqual(make_help(self.source).returncode, 2)


if __name__ == "__main__":
    unittest.main()
