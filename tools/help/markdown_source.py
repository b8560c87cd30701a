"""Reads one Markdown file into blocks and refuses anything that the manual has no form for.

Allowed are one "# title" first, "## subheadings", paragraphs, bullets, numbered steps, simple tables, **bold**,
`literal`, code, links to other topics and pictures that stand alone. The title of a picture is its caption.
"""

import re
import struct
from pathlib import Path

from markdown_it import MarkdownIt
from markdown_it.tree import SyntaxTreeNode

from book import (Block, Bullet, CodeLine, Heading, Paragraph, Picture, Row, SourceError, Span, Spans, Step)

ENCODING = "cp1252"
# Fits beside the contents in a window for a 640-pixel screen, in a fixed-width font.
MAX_CODE_CHARACTERS = 60
TOPIC_FILE = re.compile(r"(\d{2})_[a-z0-9_]+\.md")
PICTURE_FILE = re.compile(r"pictures/[a-z0-9]{1,8}\.gif")
# Width and height of the picture in the head of the file, little-endian 16-bit words.
GIF_SIZE_OFFSET = 6


class MarkdownSource:
    """One file. Its lines count from 1."""

    def __init__(self, path: Path, topic_files: frozenset[str]):
        self._path = path
        self._topic_files = topic_files
        text = self._read()
        parser = MarkdownIt("commonmark").enable("table").disable("reference")
        self.nodes = SyntaxTreeNode(parser.parse(text)).children

    def fail(self, line: int, message: str) -> SourceError:
        return SourceError(self._path, line, message)

    def _read(self) -> str:
        try:
            text = self._path.read_bytes().decode("utf-8")
        except UnicodeDecodeError as error:
            raise self.fail(1, f"not UTF-8: {error.reason}") from error
        for number, line in enumerate(text.split("\n"), 1):
            for character in line:
                if ord(character) < 0x20 or not _can_be_encoded(character):
                    raise self.fail(number, f"U+{ord(character):04X} is not a character of Windows-1252 text")
        return text

    def title(self) -> str:
        """Returns the first line, which every file has."""
        if not self.nodes or not _is_heading(self.nodes[0], "#"):
            raise self.fail(1, "does not begin with '# title'")
        return self.plain_text(self.nodes[0])

    def blocks(self) -> tuple[Block, ...]:
        """Returns everything after the title."""
        return tuple(block for node in self.nodes[1:] for block in self._blocks_of(node))

    def plain_text(self, heading: SyntaxTreeNode) -> str:
        spans = self.spans(heading.children[0])
        if len(spans) != 1 or spans[0].kind != "text":
            raise self.fail(line_of(heading), "a heading is plain text")
        return spans[0].text

    def _blocks_of(self, node: SyntaxTreeNode) -> list[Block]:
        if _is_heading(node, "##"):
            return [Heading((Span("text", self.plain_text(node)),))]
        if node.type == "paragraph":
            return [self._paragraph(node)]
        if node.type == "bullet_list":
            return [Bullet(self.item(item)) for item in node.children]
        if node.type == "ordered_list":
            if node.attrs.get("start", 1) != 1:
                raise self.fail(line_of(node), "numbered steps begin with 1")
            return [Step(number, self.item(item)) for number, item in enumerate(node.children, 1)]
        if node.type == "table":
            return self._rows(node)
        if node.type in ("fence", "code_block"):
            return self._code(node)
        raise self.fail(line_of(node), f"the manual has no form for {node.type} '{node.markup}'")

    def _paragraph(self, node: SyntaxTreeNode) -> Block:
        inline = node.children[0]
        if any(child.type == "image" for child in inline.children):
            if len(inline.children) != 1:
                raise self.fail(line_of(node), "a picture stands alone")
            return self._picture(inline.children[0], line_of(node))
        return Paragraph(self.spans(inline))

    def item(self, node: SyntaxTreeNode) -> Spans:
        """Returns the text of a list item, which is one paragraph."""
        if [child.type for child in node.children] != ["paragraph"]:
            raise self.fail(line_of(node), "a list item is one paragraph")
        return self.spans(node.children[0].children[0])

    def _rows(self, table: SyntaxTreeNode) -> list[Block]:
        rows = [row for part in table.children for row in part.children]
        for row in rows:
            if any("style" in cell.attrs for cell in row.children):
                raise self.fail(line_of(table), "columns have no alignment")
        return [
            Row(row.children[0].type == "th", tuple(self._cell(cell) for cell in row.children)) for row in rows
        ]

    def _cell(self, cell: SyntaxTreeNode) -> Spans:
        inline = cell.children[0]
        return self.spans(inline) if inline.children else ()

    def _code(self, node: SyntaxTreeNode) -> list[Block]:
        if node.info:
            raise self.fail(line_of(node), "code has no language")
        lines = node.content.removesuffix("\n").split("\n")
        first = line_of(node) + (1 if node.type == "fence" else 0)
        for number, line in enumerate(lines, first):
            if len(line) > MAX_CODE_CHARACTERS:
                raise self.fail(number, f"more than {MAX_CODE_CHARACTERS} characters of code in a line")
        return [CodeLine(line) for line in lines]

    def _picture(self, image: SyntaxTreeNode, line: int) -> Picture:
        source = str(image.attrs["src"])
        path = self._path.parent / source
        if not PICTURE_FILE.fullmatch(source) or not image.content:
            raise self.fail(line, "a picture is ![text](pictures/name.gif \"caption\") with a name of 8 characters at most")
        if not path.is_file():
            raise self.fail(line, f"{source} is missing")
        head = path.read_bytes()[:GIF_SIZE_OFFSET + 4]
        if head[:6] not in (b"GIF87a", b"GIF89a"):
            raise self.fail(line, f"{source} is no GIF picture")
        width, height = struct.unpack_from("<HH", head, GIF_SIZE_OFFSET)
        return Picture(path, image.content, str(image.attrs.get("title", "")), width, height)

    def spans(self, inline: SyntaxTreeNode) -> Spans:
        """Returns running text; a line break of the source becomes a blank."""
        line = line_of(inline)
        spans: list[Span] = []
        for node in inline.children:
            if node.type == "softbreak":
                line += 1
                self._append(spans, Span("text", " "))
            else:
                self._append(spans, self._span(node, line))
        return tuple(span for span in spans if span.text)

    @staticmethod
    def _append(spans: list[Span], span: Span) -> None:
        if span.kind == "text" and spans and spans[-1].kind == "text":
            spans[-1] = Span("text", spans[-1].text + span.text)
        else:
            spans.append(span)

    def _span(self, node: SyntaxTreeNode, line: int) -> Span:
        if node.type == "text":
            return Span("text", node.content)
        if node.type == "code_inline":
            return Span("literal", node.content)
        if node.type == "strong":
            return Span("bold", self._inner_text(node, line))
        if node.type == "link":
            return self._link(node, line)
        raise self.fail(line, f"the manual has no form for {node.type} '{node.markup}'")

    def _link(self, node: SyntaxTreeNode, line: int) -> Span:
        target = str(node.attrs["href"])
        if target not in self._topic_files or "title" in node.attrs:
            raise self.fail(line, f"'{target}' is not a topic of the manual")
        return Span("link", self._inner_text(node, line), topic_number(target))

    def _inner_text(self, node: SyntaxTreeNode, line: int) -> str:
        if any(child.type not in ("text", "softbreak") for child in node.children):
            raise self.fail(line, f"plain text only inside {node.type}")
        return "".join(child.content if child.type == "text" else " " for child in node.children)


def topic_number(file_name: str) -> int:
    return int(file_name[:2])


def line_of(node: SyntaxTreeNode) -> int:
    while node.map is None:
        node = node.parent
    return node.map[0] + 1


def _is_heading(node: SyntaxTreeNode, markup: str) -> bool:
    return node.type == "heading" and node.markup == markup


def _can_be_encoded(character: str) -> bool:
    try:
        character.encode(ENCODING)
    except UnicodeEncodeError:
        return False
    return True
