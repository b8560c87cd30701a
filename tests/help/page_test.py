"""help.htm is valid HTML 3.2, complete, and next to its pictures."""

import html.parser
import re
import subprocess
import tempfile
from pathlib import Path
import unittest

from manual_parts import HELP, ManualCase, made, plain

# Debian's validator and Debian's definitions of the HTML versions.
VALIDATOR = ["onsgmls", "-s", "-wall", "-c", "/usr/share/xml/w3c-sgml-lib/schema/dtd/sgml.soc"]
DOCTYPE = b'<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 3.2 Final//EN">\r\n'


class Page(html.parser.HTMLParser):
    """Collects anchors, links, pictures, and the text without blanks, which browsers may place freely."""

    def __init__(self, text: str):
        super().__init__()
        self.anchors, self.links, self.pictures, self.text = [], [], [], ""
        self.elements = set()
        self.feed(text)

    def handle_starttag(self, tag, attrs):
        attributes = dict(attrs)
        self.elements.add(tag)
        if tag == "a":
            self.anchors += [attributes["name"]] if "name" in attributes else []
            self.links += [attributes["href"]] if "href" in attributes else []
        if tag == "img":
            self.pictures.append(attributes)

    def handle_data(self, data):
        self.text += without_blanks(data)


def without_blanks(text: str) -> str:
    return re.sub(r"\s", "", text)


def book_of_contents() -> tuple[str, str]:
    """Returns the title, then the sections and topic titles in the order of contents.md."""
    lines = (HELP / "contents.md").read_text(encoding="utf-8").splitlines()
    texts = [re.sub(r"^- \[(.*)\]\(.*\)$", r"\1", line).lstrip("# ") for line in lines]
    return texts[0], "".join(texts[1:])


def captions_of_pictures() -> dict[str, str]:
    """Returns the caption of each picture by its name; empty if it has none."""
    found: dict[str, str] = {}
    for path in HELP.glob("*.md"):
        for name, caption in re.findall(r'^!\[[^]]*\]\(pictures/([^ )]+)(?: "([^"]*)")?\)$', path.read_text("utf-8"), re.M):
            found[name] = caption
    return found


def complaints(page: bytes) -> str:
    """Returns what the validator says; empty for a valid page."""
    with tempfile.NamedTemporaryFile(suffix=".htm") as file:
        file.write(page)
        file.flush()
        done = subprocess.run([*VALIDATOR, file.name], capture_output=True, text=True, check=False)
    return done.stdout + done.stderr + (f"exit {done.returncode}" if done.returncode else "")


class PageTest(ManualCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = made(HELP, "--html", Path(folder.name))
        cls.page = (cls.folder / "help.htm").read_bytes()
        cls.read = Page(cls.page.decode("cp1252"))

    def test_page_is_valid(self):
        self.assertTrue(self.page.startswith(DOCTYPE))
        self.assertEqual(complaints(self.page), "")

    def test_validator_finds_planted_faults(self):
        faults = {
            "unknown element": self.page.replace(b"<H1>", b"<BLINK>").replace(b"</H1>", b"</BLINK>"),
            "attribute of a later HTML": self.page.replace(b"<H1>", b'<H1 CLASS="big">'),
            "picture without a source": re.sub(rb'<IMG SRC="[^"]*"', b"<IMG", self.page, count=1),
            "list without its end": self.page.replace(b"</UL>", b"", 1),
        }
        for fault, page in faults.items():
            self.assertNotEqual(page, self.page, fault)
            self.assertNotEqual(complaints(page), "", fault)

    def test_page_has_no_scripts_and_no_styles(self):
        self.assertFalse(self.read.elements & {"script", "style", "link", "font", "frame", "applet"})

    def test_contents_and_topics_link_to_each_other(self):
        anchors = self.read.anchors
        self.assertEqual(len(anchors), len(set(anchors)))
        self.assertEqual(set(anchors), {"contents", *(f"topic{topic.number}" for topic in self.topics)})
        for link in self.read.links:
            self.assertIn(link.removeprefix("#"), anchors)
        self.assertEqual(self.read.links.count("#contents"), len(self.topics))
        in_contents = self.read.links[:len(self.topics)]
        self.assertEqual(in_contents, [f"#topic{topic.number}" for topic in self.topics])

    def test_page_adds_only_picture_captions_to_the_viewers_text(self):
        expected = ""
        captions = captions_of_pictures()
        for topic in self.topics:
            expected += without_blanks(topic.title)
            for kind, line in topic.lines:
                # The browser numbers the steps itself, and shows a picture with its caption instead of its text.
                text = line.split("\t", 1)[1] if kind == "N" else line
                expected += without_blanks(captions[line.split("\t")[0]] if kind == "I" else plain(text))
            expected += "Contents"
        self.assertTrue(self.read.text.endswith(expected), "the texts differ")
        before = self.read.text.removesuffix(expected)
        title, sections = book_of_contents()
        self.assertEqual(before, without_blanks(2 * title + "Contents" + sections))

    def test_pictures_are_next_to_the_page_and_have_the_given_sizes(self):
        self.assertEqual(len(self.read.pictures), 11)
        for picture in self.read.pictures:
            self.assertRegex(picture["src"], r"^[a-z0-9]{1,8}\.gif$")
            self.assertTrue(picture["alt"])
            found = subprocess.run(["identify", "-format", "%m %w %h", self.folder / picture["src"]],
                                   capture_output=True, text=True, check=True).stdout
            self.assertEqual(found, f"GIF {picture['width']} {picture['height']}")
            # A window of 640 pixels minus its frame and scroll bar.
            self.assertLessEqual(int(picture["width"]), 600)

    def test_every_picture_is_used(self):
        shown = {picture["src"] for picture in self.read.pictures}
        self.assertEqual({path.name for path in self.folder.iterdir()}, shown | {"help.htm"})
        self.assertEqual({path.name for path in (HELP / "pictures").iterdir()}, shown)


if __name__ == "__main__":
    unittest.main()
