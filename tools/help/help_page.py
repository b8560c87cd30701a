"""The book as one page of HTML 3.2: no script, no style sheet, readable by the browsers of 1996."""

import html
from itertools import groupby

from book import Block, Book, Bullet, CodeLine, Heading, Paragraph, Picture, Row, Spans, Step, Topic

DOCTYPE = '<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 3.2 Final//EN">'
COLOURS = 'BGCOLOR="#FFFFFF" TEXT="#000000" LINK="#0000FF" VLINK="#800080"'
CONTENTS = "Contents"
# Elements that enclose consecutive blocks; the other blocks need none.
ENCLOSURES = {
    Bullet: ("<UL>", "</UL>"),
    Step: ("<OL>", "</OL>"),
    Row: ('<TABLE BORDER="1" CELLSPACING="0" CELLPADDING="4">', "</TABLE>"),
    CodeLine: ("<PRE>", "</PRE>"),
}


def help_page(book: Book) -> str:
    lines = [
        DOCTYPE,
        "<HTML>",
        "<HEAD>",
        '<META HTTP-EQUIV="Content-Type" CONTENT="text/html; charset=windows-1252">',
        f"<TITLE>{_escaped(book.title)}</TITLE>",
        "</HEAD>",
        f"<BODY {COLOURS}>",
        f"<H1>{_escaped(book.title)}</H1>",
        *_contents(book),
    ]
    for topic in book.topics():
        lines.extend(_topic(topic))
    return "".join(line + "\r\n" for line in [*lines, "</BODY>", "</HTML>"])


def _contents(book: Book) -> list[str]:
    lines = [f'<H2><A NAME="contents">{CONTENTS}</A></H2>']
    for section in book.sections:
        links = [f'<LI><A HREF="#topic{topic.number}">{_escaped(topic.title)}</A></LI>' for topic in section.topics]
        lines += [f"<P><STRONG>{_escaped(section.title)}</STRONG></P>", "<UL>", *links, "</UL>"]
    return lines


def _topic(topic: Topic) -> list[str]:
    lines = ["<HR>", f'<H2><A NAME="topic{topic.number}">{_escaped(topic.title)}</A></H2>']
    for kind, blocks in groupby(topic.blocks, key=type):
        opening, closing = ENCLOSURES.get(kind, ("", ""))
        lines += [line for line in (opening, *map(_block, blocks), closing) if line or kind is CodeLine]
    return [*lines, f'<P><A HREF="#contents">{CONTENTS}</A></P>']


def _block(block: Block) -> str:
    match block:
        case Heading(spans):
            return f"<H3>{_text(spans)}</H3>"
        case Paragraph(spans):
            return f"<P>{_text(spans)}</P>"
        case Bullet(spans) | Step(_, spans):
            return f"<LI>{_text(spans)}</LI>"
        case Row(is_header, cells):
            name = "TH" if is_header else "TD"
            inner = "".join(f'<{name} ALIGN="LEFT" VALIGN="TOP">{_text(cell) or "&nbsp;"}</{name}>' for cell in cells)
            return f"<TR>{inner}</TR>"
        case CodeLine(text):
            return _escaped(text)
        case Picture(path, alternative, caption, width, height):
            below = f"<BR>{_escaped(caption)}" if caption else ""
            return (f'<P><IMG SRC="{path.name}" ALT="{_attribute(alternative)}" '
                    f'WIDTH="{width}" HEIGHT="{height}">{below}</P>')
    raise TypeError(block)


def _text(spans: Spans) -> str:
    forms = {
        "text": lambda span: _escaped(span.text),
        "bold": lambda span: f"<STRONG>{_escaped(span.text)}</STRONG>",
        # Texts of the screen are exact, including double blanks, which a browser would collapse.
        "literal": lambda span: f"<B>{_escaped(span.text).replace('  ', '&nbsp; ')}</B>",
        "link": lambda span: f'<A HREF="#topic{span.topic}">{_escaped(span.text)}</A>',
    }
    return "".join(forms[span.kind](span) for span in spans)


def _escaped(text: str) -> str:
    return html.escape(text, quote=False)


def _attribute(text: str) -> str:
    """Escapes without the named entity of the quotation mark, which HTML 3.2 lacks."""
    return _escaped(text).replace('"', "&#34;")
