"""Shared by the tests of the manual: generates it, and reads the topics that the viewer receives."""

import re
import subprocess
import sys
import tempfile
import unittest
from dataclasses import dataclass, field
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
HELP = ROOT / "help"
MAKE_HELP = ROOT / "tools" / "help" / "make_help.py"

BOLD = re.compile("\x01([^\x01]*)\x01")
LITERAL = re.compile("\x02([^\x02]*)\x02")
LINK = re.compile("\x03(\\d+)\x1f([^\x04]*)\x04")


def make_help(source: Path, *arguments: str) -> subprocess.CompletedProcess:
    command = [sys.executable, str(MAKE_HELP), "--source", str(source), *arguments]
    return subprocess.run(command, capture_output=True, text=True, check=False)


def made(source: Path, option: str, target: Path) -> Path:
    """Returns the generated file or folder."""
    done = make_help(source, option, str(target))
    if done.returncode != 0:
        raise AssertionError(done.stderr)
    return target


@dataclass
class ReadTopic:
    number: int
    title: str
    lines: list[tuple[str, str]] = field(default_factory=list)

    def literals(self) -> list[str]:
        return [text for _, line in self.lines for text in LITERAL.findall(line)]

    def links(self) -> list[int]:
        return [int(number) for _, line in self.lines for number, _ in LINK.findall(line)]

    def plain_text(self) -> str:
        return "\n".join(plain(line) for _, line in self.lines)


def plain(line: str) -> str:
    """Returns the text without its markup."""
    return re.sub("[\x01\x02]", "", LINK.sub(r"\2", line))


class ManualCase(unittest.TestCase):
    """Reads the topics of the manual once for all tests of a class."""

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.stream = made(HELP, "--topics", Path(folder.name) / "topics.txt").read_bytes()
        cls.topics: list[ReadTopic] = []
        for line in cls.stream.decode("cp1252").removesuffix("\n").split("\n"):
            kind, text = line[:1], line[1:]
            if kind == "@":
                number, title = text.split("\t")
                cls.topics.append(ReadTopic(int(number), title))
            elif kind != "S":
                cls.topics[-1].lines.append((kind, text))

    def topic(self, number: int) -> ReadTopic:
        found = [topic for topic in self.topics if topic.number == number]
        self.assertEqual(len(found), 1, f"topic {number}")
        return found[0]
