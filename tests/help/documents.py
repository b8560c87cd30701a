"""Reads README.TXT and topics of the manual: sections, and the registry keys and files that they name."""

import re

from manual_parts import ROOT, ReadTopic

README = ROOT / "packaging" / "README.TXT"
_KEY = re.compile(r"HKEY_(?:[^\n\\]|\\\s*)+(?=\n|$)")
_FILE = re.compile(r"\b(?:system\.qdix|[A-Za-z]\w*\.(?:lnk|LOG))\b")


def readme_section(heading: str) -> str:
    """Returns the text below a heading. Headings are in capitals."""
    found = re.search(rf"^{heading}\n\n(.*?)(?=\n\n\n|\Z)", README.read_text(encoding="ascii"), re.MULTILINE | re.DOTALL)
    if not found:
        raise AssertionError(f"README.TXT has no section {heading}")
    return found[1]


def lines_of(topic: ReadTopic) -> str:
    """Returns the topic with a line for each line of code, without its marks."""
    return topic.plain_text() + "\n"


def keys_in(text: str) -> list[str]:
    """Returns registry keys in order; a key that is too long for its line continues after a backslash."""
    return [re.sub(r"\\\s*", r"\\", key).strip() for key in _KEY.findall(text)]


def files_in(text: str) -> set[str]:
    return set(_FILE.findall(text))
