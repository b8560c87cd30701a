"""The texts that the sources hold: string literals as the compiler joins them."""

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
_SHOWS_BOXES = re.compile(r"MessageBoxA\(|\bTell\(|\bAsk\(|UntrappedErrorText|kLowResourcesWarning =")
_MENU_CAPTION = re.compile(r'ui::MenuItem \w+\{\w+, "\w+", "([^"]+)"\}')

_MENU_TITLE = re.compile(r'ui::MenuItem \w+\{events, "\w+", "([^"]+)"\}')

# A text of so many words is a sentence wherever it stands; a piece of a sentence that is no longer says nothing.
SENTENCE_WORDS = 5
SHORT_TEXT = 8


def _unescaped(literal: str) -> str:
    return _ESCAPE.sub(lambda match: _ESCAPED.get(match[1], match[1]), literal)


def texts_of(code: str) -> list[str]:
    """Literals that stand side by side are one text."""
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
    """As the manual quotes a text: a line break is a blank, blanks at the ends are left out."""
    return re.sub(r"\n+", " ", text).strip()


def sources(*folders: str, without: tuple[str, ...] = ()) -> Iterator[str]:
    """The code of every file of the folders whose path holds none of the parts."""
    for folder in folders:
        for path in sorted((ROOT / folder).rglob("*")):
            name = path.relative_to(ROOT).as_posix()
            if path.suffix in (".h", ".cpp") and not any(part in name for part in without):
                yield path.read_text(encoding="utf-8")


def texts_below(*folders: str) -> set[str]:
    """Texts of all sources of the folders, in one line."""
    return {in_one_line(text) for code in sources(*folders) for text in texts_of(code)}


def messages_below(*folders: str, without: tuple[str, ...] = ()) -> set[str]:
    """What can come in a box: the words of files that show boxes or hold texts for them, and sentences anywhere."""
    found: set[str] = set()
    for code in sources(*folders, without=without):
        fewest_words = 2 if _SHOWS_BOXES.search(code) else SENTENCE_WORDS
        texts = {in_one_line(text) for text in texts_of(code)}
        found |= {text for text in texts if len(text.split()) >= fewest_words and len(text) > SHORT_TEXT}
    return found


def captions_of_screen(screen: Path) -> set[str]:
    """Captions of controls and tabs, and entries of menus."""
    code = screen.read_text(encoding="utf-8")
    return {texts_of(literals)[0].strip() for literals in _CAPTION.findall(code)} | set(_MENU_CAPTION.findall(code))


def menu_captions() -> set[str]:
    """Of the menu of the tray icon, its own included."""
    code = (ROOT / "src/screens/tray_menu.h").read_text(encoding="utf-8")
    return set(_MENU_CAPTION.findall(code)) | set(_MENU_TITLE.findall(code))


def captions_of_operated_controls(screen: Path) -> set[str]:
    """Of buttons, check boxes and option buttons that stand on a screen by name."""
    return {texts_of(literals)[0].strip() for literals in _OPERATED.findall(screen.read_text(encoding="utf-8"))}
