"""Reads the folder of the texts: contents.md gives the order, NN_name.md the topics."""

from pathlib import Path

from book import Book, Paragraph, Section, SourceError, Topic
from markdown_source import TOPIC_FILE, MarkdownSource, line_of, topic_number

CONTENTS_FILE = "contents.md"


def read_book(folder: Path) -> Book:
    """Checks that the contents list every topic of the folder exactly once, under its own title."""
    contents_path = folder / CONTENTS_FILE
    if not contents_path.is_file():
        raise SourceError(contents_path, 1, "is missing")
    topic_files = _topic_files(folder)
    topics = {topic_number(name): _read_topic(folder / name, topic_files) for name in topic_files}
    contents = MarkdownSource(contents_path, frozenset(topic_files))
    title = contents.title()
    sections = _sections(contents, topics)
    listed = {topic.number for section in sections for topic in section.topics}
    for number in sorted(topics.keys() - listed):
        raise contents.fail(1, f"topic {number} is not in the contents")
    return Book(title, sections)


def _topic_files(folder: Path) -> list[str]:
    names = sorted(path.name for path in folder.glob("*.md") if path.name != CONTENTS_FILE)
    numbers: dict[int, str] = {}
    for name in names:
        if not TOPIC_FILE.fullmatch(name):
            raise SourceError(folder / name, 1, "a topic is NN_name.md")
        number = topic_number(name)
        if number in numbers:
            raise SourceError(folder / name, 1, f"has the number of {numbers[number]}")
        numbers[number] = name
    return names


def _read_topic(path: Path, topic_files: list[str]) -> Topic:
    source = MarkdownSource(path, frozenset(topic_files))
    topic = Topic(topic_number(path.name), source.title(), source.blocks())
    if not any(isinstance(block, Paragraph) for block in topic.blocks):
        raise source.fail(1, "the topic says nothing")
    return topic


def _sections(contents: MarkdownSource, topics: dict[int, Topic]) -> tuple[Section, ...]:
    sections: list[Section] = []
    listed: set[int] = set()
    nodes = contents.nodes[1:]
    if len(nodes) % 2 != 0 or not nodes:
        raise contents.fail(1, "the contents are sections, each with a list of topics")
    for heading, topic_list in zip(nodes[::2], nodes[1::2]):
        if heading.type != "heading" or heading.markup != "##" or topic_list.type != "bullet_list":
            raise contents.fail(line_of(heading), "the contents are sections, each with a list of topics")
        section_topics = []
        for item in topic_list.children:
            topic = _listed_topic(contents, item, topics)
            if topic.number in listed:
                raise contents.fail(line_of(item), f"topic {topic.number} is listed twice")
            listed.add(topic.number)
            section_topics.append(topic)
        sections.append(Section(contents.plain_text(heading), tuple(section_topics)))
    return tuple(sections)


def _listed_topic(contents: MarkdownSource, item, topics: dict[int, Topic]) -> Topic:
    spans = contents.item(item)
    if len(spans) != 1 or spans[0].kind != "link":
        raise contents.fail(line_of(item), "an item of the contents is a link to a topic")
    topic = topics[spans[0].topic]
    if spans[0].text != topic.title:
        raise contents.fail(line_of(item), f"the title of topic {topic.number} is '{topic.title}'")
    return topic
