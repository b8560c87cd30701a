"""The book as the help viewer reads it: one line per block, whose first byte is its kind. The viewer shows no pictures,
so pictures and their captions are left out.

Inside a text \\x01 switches bold, \\x02 literal; \\x03 number \\x1F text \\x04 is a link.
"""

from book import Block, Book, Bullet, CodeLine, Heading, Paragraph, Picture, Row, Spans, Step
from markdown_source import ENCODING

# The viewer contains the stream, and it must stay small.
MAX_BYTES = 48000


class StreamTooLong(Exception):
    """The texts must become shorter."""


def topic_stream(book: Book) -> bytes:
    lines: list[str] = []
    for section in book.sections:
        lines.append("S" + section.title)
        for topic in section.topics:
            lines.append(f"@{topic.number}\t{topic.title}")
            lines.extend(_line(block) for block in topic.blocks)
    stream = "".join(line + "\n" for line in lines).encode(ENCODING)
    if len(stream) > MAX_BYTES:
        raise StreamTooLong(f"the topics have {len(stream)} bytes, and the viewer takes {MAX_BYTES} at most")
    return stream


def _line(block: Block) -> str:
    match block:
        case Heading(spans):
            return "H" + _text(spans)
        case Paragraph(spans):
            return "P" + _text(spans)
        case Bullet(spans):
            return "B" + _text(spans)
        case Step(number, spans):
            return f"N{number}\t{_text(spans)}"
        case Row(is_header, cells):
            return ("T" if is_header else "R") + "\t".join(_text(cell) for cell in cells)
        case CodeLine(text):
            return "C" + text
        case Picture(path, alternative):
            return f"I{path.name}\t{alternative}"
    raise TypeError(block)


def _text(spans: Spans) -> str:
    marks = {
        "text": lambda span: span.text,
        "bold": lambda span: f"\x01{span.text}\x01",
        "literal": lambda span: f"\x02{span.text}\x02",
        "link": lambda span: f"\x03{span.topic}\x1f{span.text}\x04",
    }
    return "".join(marks[span.kind](span) for span in spans)
