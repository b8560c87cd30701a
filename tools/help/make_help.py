#!/usr/bin/python3
"""Makes the two forms of the manual from its texts:

  make_help.py --source FOLDER --topics FILE      the topics, as the help viewer reads them
  make_help.py --source FOLDER --html FOLDER      help.htm, with its pictures beside it

Refuses a text that it has no form for, with file and line. The same texts give the same bytes.
"""

import argparse
import shutil
import sys
from pathlib import Path

from book import Book, Picture, SourceError
from help_page import help_page
from markdown_source import ENCODING
from read_book import read_book
from topic_stream import StreamTooLong, topic_stream

PAGE_NAME = "help.htm"


def write_topics(book: Book, file: Path) -> None:
    file.parent.mkdir(parents=True, exist_ok=True)
    file.write_bytes(topic_stream(book))


def write_page(book: Book, folder: Path) -> None:
    folder.mkdir(parents=True, exist_ok=True)
    (folder / PAGE_NAME).write_bytes(help_page(book).encode(ENCODING))
    for topic in book.topics():
        for block in topic.blocks:
            if isinstance(block, Picture):
                shutil.copyfile(block.path, folder / block.path.name)


def main() -> int:
    parser = argparse.ArgumentParser(description="Makes the manual from its texts.")
    parser.add_argument("--source", type=Path, required=True, help="folder of the texts")
    parser.add_argument("--topics", type=Path, help="file for the topics of the help viewer")
    parser.add_argument("--html", type=Path, help="folder for help.htm and its pictures")
    options = parser.parse_args()
    if options.topics is None and options.html is None:
        parser.error("give --topics or --html")
    try:
        book = read_book(options.source)
        if options.topics is not None:
            write_topics(book, options.topics)
        if options.html is not None:
            write_page(book, options.html)
    except (SourceError, StreamTooLong) as error:
        print(error, file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
