"""The parts of the manual once its texts are read: topics of blocks, blocks of spans."""

from dataclasses import dataclass
from pathlib import Path


class SourceError(Exception):
    """A text that cannot become part of the manual, with file and line."""

    def __init__(self, path: Path, line: int, message: str):
        super().__init__(f"{path}:{line}: {message}")


@dataclass(frozen=True)
class Span:
    """A piece of running text. Only a link has a topic number."""

    kind: str  # text, bold, literal, link
    text: str
    topic: int = 0


Spans = tuple[Span, ...]


@dataclass(frozen=True)
class Heading:
    spans: Spans


@dataclass(frozen=True)
class Paragraph:
    spans: Spans


@dataclass(frozen=True)
class Bullet:
    spans: Spans


@dataclass(frozen=True)
class Step:
    number: int
    spans: Spans


@dataclass(frozen=True)
class Row:
    is_header: bool
    cells: tuple[Spans, ...]


@dataclass(frozen=True)
class CodeLine:
    text: str


@dataclass(frozen=True)
class Picture:
    path: Path
    alternative: str
    caption: str  # for readers who see the picture; empty if there is none
    width: int
    height: int


Block = Heading | Paragraph | Bullet | Step | Row | CodeLine | Picture


@dataclass(frozen=True)
class Topic:
    number: int
    title: str
    blocks: tuple[Block, ...]


@dataclass(frozen=True)
class Section:
    title: str
    topics: tuple[Topic, ...]


@dataclass(frozen=True)
class Book:
    """Sections and topics in reading order."""

    title: str
    sections: tuple[Section, ...]

    def topics(self) -> tuple[Topic, ...]:
        return tuple(topic for section in self.sections for topic in section.topics)
