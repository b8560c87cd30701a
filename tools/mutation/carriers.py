"""Finds the objects that carry the code of a header into the program.

Functions and tables of a header are compiled into many objects, and the linker keeps the first of each. So one object
with the changed code, linked before all others, changes the program. Numbers are different: each object that uses one
contains it.
"""
import functools
import pathlib
import re
import subprocess

CLASS = re.compile(r"^(?:struct|class) (\w+)[^;]*$", re.MULTILINE)
# A symbol as nm shows it, without parameters and template arguments, and its kind.
SYMBOL = re.compile(r"^[0-9a-f]* *([A-Za-z]) (.+)$")
CODE_AND_DATA = set("TtWVuBDRr")


def plain_name(symbol):
    """ns::C::F(int) const gives C::F, and ns::kTable gives kTable."""
    name = re.sub(r"<[^<>]*>", "", symbol.partition("(")[0]).split("[")[0]
    parts = name.split("::")
    in_class = len(parts) > 1 and parts[-2][:1].isupper()
    return "::".join(parts[-2:] if in_class else parts[-1:])


def symbols_of(objects):
    """Returns for each source the names that its object defines."""
    found = {}
    for source, path in objects.items():
        lines = subprocess.run(["nm", "-C", "--defined-only", path], capture_output=True, text=True,
                               check=True).stdout.splitlines()
        matches = [SYMBOL.match(line) for line in lines]
        found[source] = {plain_name(match[2]) for match in matches if match and match[1] in CODE_AND_DATA}
    return found


class Carriers:
    """`objects` are the objects of the program's own sources by their sources, `tests` those of the unit tests."""

    def __init__(self, objects, tests, headers):
        self.objects = objects
        self.tests = tests
        self.texts = {path: path.read_text(encoding="utf-8") for path in [*objects, *headers]}
        self.headers = headers
        self.known = {}

    @functools.cached_property
    def symbols(self):
        return symbols_of(self.objects)

    @functools.cached_property
    def test_symbols(self):
        return symbols_of(self.tests)

    def smallest_with(self, name):
        """Returns the source with the smallest object that defines a name, preferably one of the program. Only objects of
        tests define the windows of companions, which their entries make outside the unit tests."""
        for objects, symbols in ((self.objects, self.symbols), (self.tests, self.test_symbols)):
            defining = [source for source, names in symbols.items() if name in names]
            if defining:
                return [min(defining, key=lambda source: (objects[source].stat().st_size, source))]
        return []

    def users_of(self, name):
        """Returns the sources that contain the value of a name: directly, or through a class whose header names it."""
        word = re.compile(rf"\b{name}\b")
        users = {source for source in self.objects if word.search(self.texts[source])}
        for header in self.headers:
            if word.search(self.texts[header]):
                for holder in CLASS.findall(self.texts[header]):
                    users.update(self.smallest_with(f"{holder}::{holder}"))
        return sorted(users)

    def of(self, owner):
        """Returns the sources to compile for a change in a header; see Mutant.owner."""
        if owner not in self.known:
            holder, name = owner
            with_the_function = self.smallest_with(f"{holder}::{name}") if holder else []
            self.known[owner] = with_the_function or self.users_of(holder or name)
        return self.known[owner]


def include_name(header, folders):
    """Returns the name by which sources include a header, relative to a folder of the compiler's path."""
    folder = next(folder for folder in folders if header.is_relative_to(folder))
    return pathlib.PurePath(header.relative_to(folder))
