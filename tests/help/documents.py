"""README.TXT beside the manual: its sections, and what both name of the registry and of files."""

import re

from manual_parts import ROOT, ReadTopic

README = ROOT / "packaging" / "README.TXT"
_KEY = re.compile(r"HKEY_(?:[^\n\\]|\\\s*)+(?=\n|$)")
_FILE = re.compile(r"\b(?:system\.qdix|[A-Za-z]\w*\.(?:lnk|LOG))\b")


def readme_section(heading: str) -> str:
    """The text below one of the headings in capitals."""
    found = re.search(rf"^{heading}\n\n(.*?)(?=\n\n\n|\Z)", README.read_text(encoding="ascii"), re.MULTILINE | re.DOTALL)
    if not found:
        raise AssertionError(f"README.TXT has no section {heading}")
    return found[1]


def lines_of(topic: ReadTopic) -> str:
    """The topic with a line for each line of code, without its marks."""
    return topic.plain_text() + "\n"


def keys_in(text: str) -> list[str]:
    """Registry keys in their order; one that is too long for its line goes on behind a backslash."""
    return [re.sub(r"\\\s*", r"\\", key).strip() for key in _KEY.findall(text)]


def files_in(text: str) -> set[str]:
    return set(_FILE.findall(text))
