"""The texts in the sources: string literals, joined as the compiler joins them."""

import re
from collections.abc import Iterator
from pathlib import Path

from manual_parts import ROOT

_TOKEN = re.compile(
    r"""//[^\n]*|/\*.*?\*/|\#include[^\n]*     # what holds no text
    |'(?:\\.|[^'\\\n])+'                        # a character
    |(?P<text>"(?:\\.|[^"\\\n])*")
    |(?P<blank>\s+)
    |(?P<other>.)""", re.VERBOSE | re.DOTALL)
_ESCAPE = re.compile(r"\\(r\\n|n|x[0-9a-fA-F]{2}|.)")
_ESCAPED = {"r\\n": "\n", "n": "\n", "0": "\0"}
_CAPTION = re.compile(r'\.caption =\s*((?:"(?:\\.|[^"\\\n])*"\s*)+)')
_OPERATED = re.compile(r'ui::(?:Button|CheckBox|OptionButton)\s+\w+\{.*?\.caption =\s*((?:"(?:\\.|[^"\\\n])*"\s*)+)',
                       re.DOTALL)
_SHOWS_BOXES = re.compile(r"MessageBoxA\(|\bboxes_?\.[A-Z]|UntrappedErrorText|kLowResourcesWarning =")
_MENU_CAPTION = re.compile(r'ui::MenuItem \w+\{\w+, "\w+", "([^"]+)"\}')

_MENU_TITLE = re.compile(r'ui::MenuItem \w+\{events, "\w+", "([^"]+)"\}')

# A text with at least this many words counts as a sentence in any file.
SENTENCE_WORDS = 5
# Fragments up to this length are too short to prove anything.
SHORT_TEXT = 8


def _unescaped(literal: str) -> str:
    return _ESCAPE.sub(lambda match: _ESCAPED.get(match[1], match[1]), literal)


def texts_of(code: str) -> list[str]:
    """Joins adjacent literals into one text."""
    texts: list[str] = []
    joins = False
    for token in _TOKEN.finditer(code):
        if token["text"] is not None:
            text = _unescaped(token["text"][1:-1])
            if joins:
                texts[-1] += text
            else:
                texts.append(text)
            joins = True
        elif token["other"] is not None:
            joins = False
    return texts


def in_one_line(text: str) -> str:
    """Returns a text as the manual quotes it: a line break becomes a blank, blanks at the ends are removed."""
    return re.sub(r"\n+", " ", text).strip()


def sources(*folders: str, without: tuple[str, ...] = ()) -> Iterator[str]:
    """Returns the code of every file in the folders whose path contains none of the parts."""
    for folder in folders:
        for path in sorted((ROOT / folder).rglob("*")):
            name = path.relative_to(ROOT).as_posix()
            if path.suffix in (".h", ".cpp") and not any(part in name for part in without):
                yield path.read_text(encoding="utf-8")


def texts_below(*folders: str) -> set[str]:
    """Returns the texts of all sources in the folders, each in one line."""
    return {in_one_line(text) for code in sources(*folders) for text in texts_of(code)}


def messages_below(*folders: str, without: tuple[str, ...] = ()) -> set[str]:
    """Returns the texts that message boxes can contain: texts of two words or more from files that show boxes or hold
    texts for them, and sentences from all other files."""
    found: set[str] = set()
    for code in sources(*folders, without=without):
        fewest_words = 2 if _SHOWS_BOXES.search(code) else SENTENCE_WORDS
        texts = {in_one_line(text) for text in texts_of(code)}
        found |= {text for text in texts if len(text.split()) >= fewest_words and len(text) > SHORT_TEXT}
    return found


def captions_of_screen(screen: Path) -> set[str]:
    """Returns the captions of controls, tabs and menu entries."""
    code = screen.read_text(encoding="utf-8")
    return {texts_of(literals)[0].strip() for literals in _CAPTION.findall(code)} | set(_MENU_CAPTION.findall(code))


def menu_captions() -> set[str]:
    """Returns the captions of the tray menu and its entries."""
    code = (ROOT / "src/screens/tray_menu.h").read_text(encoding="utf-8")
    return set(_MENU_CAPTION.findall(code)) | set(_MENU_TITLE.findall(code))


def captions_of_operated_controls(screen: Path) -> set[str]:
    """Returns the captions of buttons, check boxes and option buttons that have a name on a screen."""
    return {texts_of(literals)[0].strip() for literals in _OPERATED.findall(screen.read_text(encoding="utf-8"))}
