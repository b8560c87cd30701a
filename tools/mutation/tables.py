"""Changes to a braced list: its entries, their order, and the ends of a range."""
import itertools
import re

from clang.cindex import TypeKind

ARRAYS = {TypeKind.CONSTANTARRAY, TypeKind.INCOMPLETEARRAY}
# Positions of controls: photographs show whether they are right, and a test could only repeat the numbers.
PLACES = re.compile(r"\b(?:ui::)?Place$")
END_OF_RANGE = r"\.{}\s*=\s*([^,{{}}]+?)\s*(?=[,}}])"


def is_place(cursor):
    return PLACES.search(cursor.type.spelling) is not None


def is_table(cursor, source, children):
    """True for a list of entries of one kind, false for the members of a record."""
    canonical = cursor.type.get_canonical()
    if canonical.kind not in ARRAYS and not canonical.spelling.removeprefix("const ").startswith("std::array<"):
        return False
    before = [source[:child.extent.start.offset].rstrip()[-1:] for child in children]
    return len(children) > 1 and before == [b"{", *[b","] * (len(children) - 1)]


def entry_changes(source, entries):
    """Yields operator, start, end and text of each change of a list; `entries` are the positions of its entries."""
    for (start, end), following in itertools.zip_longest(entries, entries[1:]):
        if following:
            yield "entry left out", start, following[0], ""
        else:
            yield "entry left out", entries[-2][1], end, ""
    for (start, end), (other_start, other_end) in itertools.pairwise(entries):
        one, other = source[start:end].decode(), source[other_start:other_end].decode()
        if one != other:
            yield "order of entries", start, other_end, other + source[end:other_start].decode() + one


def turned_range(text):
    """Returns the text of a record with the ends of its range swapped; None for another record."""
    ends = [re.search(END_OF_RANGE.format(name), text) for name in ("minimum", "maximum")]
    if None in ends:
        return None
    (first, one), (second, other) = sorted((found.span(1), found[1]) for found in ends)
    return text[:first[0]] + other + text[first[1]:second[0]] + one + text[second[1]:]
