"""Finds the small changes ("mutants") that can be made in a source file, with libclang's view of the program.

Only code that runs is changed: bodies of functions, and initialisers of variables and members. Comments, directives, types
and declarations stay as they are, and so do names and positions of controls.
"""
import dataclasses
import pathlib
import re
import textwrap

from clang.cindex import CursorKind, Index, TypeKind

from literals import changed_character, changed_number, changed_text
from tables import entry_changes, is_place, is_table, turned_range

FUNCTIONS = {CursorKind.FUNCTION_DECL, CursorKind.CXX_METHOD, CursorKind.CONSTRUCTOR, CursorKind.DESTRUCTOR,
             CursorKind.CONVERSION_FUNCTION, CursorKind.FUNCTION_TEMPLATE}
VARIABLES = {CursorKind.VAR_DECL, CursorKind.FIELD_DECL}
CLASSES = {CursorKind.CLASS_DECL, CursorKind.STRUCT_DECL}
BINARY = {CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR}
# Statements that may be left out or swapped. A return with a value or a declaration may not.
MOVABLE = {CursorKind.IF_STMT, CursorKind.FOR_STMT, CursorKind.CXX_FOR_RANGE_STMT, CursorKind.WHILE_STMT,
           CursorKind.DO_STMT, CursorKind.SWITCH_STMT}
JUMPS = {CursorKind.BREAK_STMT, CursorKind.CONTINUE_STMT}
BODY_HOLDERS = {CursorKind.IF_STMT, CursorKind.FOR_STMT, CursorKind.CXX_FOR_RANGE_STMT, CursorKind.WHILE_STMT}
# What precedes a variable's initialiser: types, not values.
REFERENCES = {CursorKind.TYPE_REF, CursorKind.TEMPLATE_REF, CursorKind.NAMESPACE_REF}

COMPARISONS = {"<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"), "==": ("!=",), "!=": ("==",)}
ARITHMETIC = {"+": ("-",), "-": ("+",), "*": ("/",), "/": ("*",), "%": ("*",), "<<": (">>",), ">>": ("<<",),
              "+=": ("-=",), "-=": ("+=",), "*=": ("/=",), "/=": ("*=",), ">>=": ("<<=",), "<<=": (">>=",)}
LOGIC = {"&&": ("||",), "||": ("&&",), "&": ("|",), "|": ("&",), "|=": ("&=",), "&=": ("|=",), "^": ("&",)}
REPLACEMENTS = {"comparison": COMPARISONS, "arithmetic": ARITHMETIC, "logic": LOGIC}
STEPS = {"++": "--", "--": "++"}
CONSTRUCTED = {CursorKind.CONSTRUCTOR, CursorKind.CONVERSION_FUNCTION}
SCALARS = {TypeKind.BOOL, TypeKind.CHAR_S, TypeKind.SHORT, TypeKind.USHORT, TypeKind.INT, TypeKind.UINT, TypeKind.LONG,
           TypeKind.ULONG, TypeKind.LONGLONG, TypeKind.ULONGLONG, TypeKind.DOUBLE, TypeKind.ENUM, TypeKind.POINTER}
# The result of an operation without a value. An operation that was left out has succeeded.
STATUS = "qdix::base::Result<void>"
# Constants of the system come in kinds, such as kMb...: flags, access rights, keys, messages.
SYSTEM_CONSTANTS = ("src", "os")
KIND_OF_CONSTANT = re.compile(r"k[A-Z][a-z0-9]*(?=[A-Z])")
# No user sees the name of a control; tests find the control by it.
NAME_OF_CONTROL = re.compile(rb"\.name =\s*$")
# The order in which handlers are bound has no effect: none runs before all are bound.
BINDING = re.compile(r"^\S+\s*=\s*[\w:]*(Handler|Callback<[^;]*>)::To<", re.DOTALL)
# An assignment that calls nothing and reads memory only by name.
PATH = r"[\w.]+"
PLAIN_ASSIGNMENT = re.compile(r"([\w.]+)\s*=\s*([\w.:?<>!&|+/ -]*);")
# Length in characters to which a report shortens a change.
LONGEST_SHOWN = 120


def shortened(text):
    return textwrap.shorten(text, LONGEST_SHOWN, placeholder=" ...")


def overlap(one, other):
    """True if one of two variables is the other or a part of it: a and a.b."""
    return one == other or one.startswith(other + ".") or other.startswith(one + ".")


def order_matters(one, other):
    """False if the order of two statements of these kinds can have no effect."""
    if BINDING.match(one) and BINDING.match(other):
        return False
    first, second = PLAIN_ASSIGNMENT.fullmatch(one), PLAIN_ASSIGNMENT.fullmatch(other)
    if not first or not second or any(step in one + other for step in STEPS):
        return True
    read_first, read_second = re.findall(PATH, first[2]), re.findall(PATH, second[2])
    return (any(overlap(first[1], path) for path in [second[1], *read_second])
            or any(overlap(second[1], path) for path in read_first))


@dataclasses.dataclass(frozen=True, order=True)
class Mutant:
    """Replaces the bytes from `start` to `end` of the file with `text`. `owner` names what is compiled with them: a class
    and its function (for a member initialiser its constructor), or the empty text and a name in the file."""
    file: str
    start: int
    end: int
    text: str
    operator: str
    line: int
    owner: tuple = ("", "")

    def applied(self, source):
        return source[:self.start] + self.text.encode() + source[self.end:]

    def described(self, source):
        before = shortened(source[self.start:self.end].decode())
        return f"{self.file}:{self.line}: {self.operator}: {before} -> {shortened(self.text) or 'nothing'}"


def plain_type(kind):
    return kind.get_canonical().spelling.replace("const ", "").rstrip("& ")


def siblings_of(declaration):
    """Returns the names of all constants of the same kind as this one, itself included, in order."""
    if declaration is None:
        return []
    if declaration.kind == CursorKind.ENUM_CONSTANT_DECL:
        return [child.spelling for child in declaration.semantic_parent.get_children()
                if child.kind == CursorKind.ENUM_CONSTANT_DECL]
    kind = KIND_OF_CONSTANT.match(declaration.spelling)
    file = declaration.location.file
    if declaration.kind != CursorKind.VAR_DECL or not kind or not file:
        return []
    if pathlib.PurePath(file.name).parts[-3:-1] != SYSTEM_CONSTANTS:
        return []
    return [child.spelling for child in declaration.lexical_parent.get_children()
            if child.kind == CursorKind.VAR_DECL and child.type.spelling == declaration.type.spelling
            and KIND_OF_CONSTANT.match(child.spelling) and KIND_OF_CONSTANT.match(child.spelling)[0] == kind[0]]


class Finder:
    """Collects the mutants of one file."""

    def __init__(self, path, name):
        self.path = str(path)
        self.name = name
        self.source = path.read_bytes()
        self.owner = ("", "")
        # Where statements begin and end: a call that is a statement is left out as a statement.
        self.whole = set()
        self.mutants = set()

    def text_of(self, start, end):
        return self.source[start:end].decode()

    def add(self, operator, start, end, text, line):
        self.mutants.add(Mutant(self.name, start, end, text, operator, line, self.owner))

    def find(self, arguments):
        unit = Index.create().parse(self.path, args=[*arguments, "-x", "c++"])
        faults = [fault for fault in unit.diagnostics if fault.severity >= fault.Error]
        if faults:
            raise ValueError(f"{self.name} does not compile: {faults[0].spelling}")
        for cursor in unit.cursor.get_children():
            if cursor.location.file and cursor.location.file.name == self.path:
                self.declaration(cursor)
        return sorted(self.mutants)

    def declaration(self, cursor):
        """Searches namespaces and classes for code that runs."""
        if cursor.kind in FUNCTIONS | VARIABLES:
            is_member = cursor.semantic_parent.kind in CLASSES
            holder = cursor.semantic_parent.spelling if is_member else ""
            self.owner = (holder, holder if cursor.kind == CursorKind.FIELD_DECL else cursor.spelling)
        if cursor.kind in FUNCTIONS:
            for child in cursor.get_children():
                if child.kind == CursorKind.COMPOUND_STMT or child.kind.is_expression():
                    self.code(child)
        elif cursor.kind in VARIABLES:
            self.initialiser(cursor)
        elif cursor.kind in {CursorKind.NAMESPACE} | CLASSES:
            for child in cursor.get_children():
                self.declaration(child)

    def initialiser(self, variable):
        """Finds values of a variable, which follow its name. What precedes it, or is between [ and ] or a width, is
        its type."""
        for child in variable.get_children():
            start = child.extent.start.offset
            is_type = child.kind in REFERENCES or start < variable.location.offset
            if not is_type and self.source[:start].rstrip()[-1:] not in (b"[", b":"):
                self.code(child)

    def code(self, cursor):
        if cursor.kind in VARIABLES:
            self.initialiser(cursor)
            return
        if cursor.kind.is_declaration() and cursor.kind != CursorKind.LAMBDA_EXPR:
            self.declaration(cursor)
            return
        if cursor.kind == CursorKind.INIT_LIST_EXPR and is_place(cursor):
            return
        children = list(cursor.get_children())
        if cursor.kind == CursorKind.CASE_STMT and self.is_name(children[0]):
            children = children[1:]
        self.value(cursor)
        self.name_of_constant(cursor)
        self.table(cursor, children)
        self.call(cursor)
        self.binary(cursor, children)
        self.unary(cursor, children)
        if cursor.kind == CursorKind.COMPOUND_STMT:
            self.statements(children)
        elif cursor.kind in BODY_HOLDERS:
            self.bodies(cursor, children)
        for child in children:
            self.code(child)

    def value(self, cursor):
        start, end, line = cursor.extent.start.offset, cursor.extent.end.offset, cursor.extent.start.line
        text = self.text_of(start, end)
        if cursor.kind in {CursorKind.INTEGER_LITERAL, CursorKind.FLOATING_LITERAL}:
            for other in changed_number(text):
                self.add("constant", start, end, other, line)
        elif cursor.kind == CursorKind.CXX_BOOL_LITERAL_EXPR and text in ("true", "false"):
            self.add("constant", start, end, "false" if text == "true" else "true", line)
        elif cursor.kind == CursorKind.CHARACTER_LITERAL:
            for other in changed_character(text):
                self.add("constant", start, end, other, line)
        elif cursor.kind == CursorKind.STRING_LITERAL and not NAME_OF_CONTROL.search(self.source[:start]):
            for other in changed_text(text):
                self.add("text", start, end, other, line)

    def is_name(self, cursor):
        return re.fullmatch(r"[\w:]+", self.text_of(cursor.extent.start.offset, cursor.extent.end.offset)) is not None

    def name_of_constant(self, cursor):
        """Replaces a constant of an enumeration or of the system with the next of its kind."""
        if cursor.kind != CursorKind.DECL_REF_EXPR or not self.is_name(cursor):
            return
        siblings = siblings_of(cursor.referenced)
        if len(siblings) > 1:
            other = siblings[(siblings.index(cursor.spelling) + 1) % len(siblings)]
            end = cursor.extent.end.offset
            self.add("flag", end - len(cursor.spelling), end, other, cursor.extent.start.line)

    def table(self, cursor, children):
        if cursor.kind != CursorKind.INIT_LIST_EXPR:
            return
        start, end, line = cursor.extent.start.offset, cursor.extent.end.offset, cursor.extent.start.line
        turned = turned_range(self.text_of(start, end))
        if turned:
            self.add("range", start, end, turned, line)
        if is_table(cursor, self.source, children):
            entries = [(child.extent.start.offset, child.extent.end.offset) for child in children]
            for operator, first, last, text in entry_changes(self.source, entries):
                self.add(operator, first, last, text, self.source[:first].count(b"\n") + 1)

    def call(self, cursor):
        """Leaves out a call inside an expression: its argument replaces it, or a value if it has none."""
        called = cursor.referenced
        if cursor.kind != CursorKind.CALL_EXPR or called is None or called.kind in CONSTRUCTED:
            return
        start, end = cursor.extent.start.offset, cursor.extent.end.offset
        if called.spelling.startswith("operator") or (start, end) in self.whole:
            return
        line = cursor.extent.start.line
        arguments = list(cursor.get_arguments())
        if len(arguments) == 1 and plain_type(arguments[0].type) == plain_type(cursor.type):
            inner = self.text_of(arguments[0].extent.start.offset, arguments[0].extent.end.offset)
            self.add("call left out", start, end, f"({inner})", line)
        result = cursor.type.get_canonical()
        changes_something = called.kind == CursorKind.CXX_METHOD and not called.is_const_method()
        if changes_something and (result.kind in SCALARS or result.spelling == STATUS):
            self.add("call left out", start, end, f"decltype({self.text_of(start, end)}){{}}", line)

    def binary(self, cursor, children):
        """Replaces an operator between two operands. An operator that a class defines appears as a call with three
        parts."""
        if cursor.kind in BINARY and len(children) == 2:
            left, right = children
        elif cursor.kind == CursorKind.CALL_EXPR and len(children) == 3 and children[1].spelling.startswith("operator"):
            left, right = children[0], children[2]
        else:
            return
        between_start, between_end = left.extent.end.offset, right.extent.start.offset
        between = self.text_of(between_start, between_end)
        match = re.fullmatch(r"[\s)]*([-+*/%<>=!&|^]+)[\s(]*", between)
        if not match:
            return
        start = between_start + match.start(1)
        line = self.source[:start].count(b"\n") + 1
        if match[1] == "|":
            for side in (left, right):
                text = self.text_of(side.extent.start.offset, side.extent.end.offset)
                self.add("flag left out", left.extent.start.offset, right.extent.end.offset, text, line)
        for operator, table in REPLACEMENTS.items():
            for other in table.get(match[1], ()):
                self.add(operator, start, start + len(match[1]), other, line)

    def unary(self, cursor, children):
        if cursor.kind != CursorKind.UNARY_OPERATOR or len(children) != 1:
            return
        start, end = cursor.extent.start.offset, cursor.extent.end.offset
        line = cursor.extent.start.line
        text = self.text_of(start, end)
        for step, other in STEPS.items():
            if text.startswith(step):
                self.add("arithmetic", start, start + 2, other, line)
                return
            if text.endswith(step):
                self.add("arithmetic", end - 2, end, other, line)
                return
        if text.startswith("!"):
            self.add("logic", start, start + 1, "", line)
        elif text.startswith("-"):
            self.add("arithmetic", start, start + 1, "", line)

    def bounds(self, statement):
        """Returns the range from the first byte of a statement to just after its semicolon."""
        start, end = statement.extent.start.offset, statement.extent.end.offset
        behind = re.match(rb"\s*;", self.source[end:])
        return start, end + (behind.end() if behind else 0)

    def is_movable(self, statement):
        return statement.kind.is_expression() or statement.kind in MOVABLE

    def leave_out(self, statement):
        self.whole.add((statement.extent.start.offset, statement.extent.end.offset))
        is_bare_return = statement.kind == CursorKind.RETURN_STMT and not list(statement.get_children())
        if self.is_movable(statement) or statement.kind in JUMPS or is_bare_return:
            start, end = self.bounds(statement)
            self.add("statement left out", start, end, ";", statement.extent.start.line)

    def statements(self, children):
        for statement in children:
            self.leave_out(statement)
        for first, second in zip(children, children[1:]):
            if not self.is_movable(first) or not self.is_movable(second):
                continue
            (start, first_end), (second_start, end) = self.bounds(first), self.bounds(second)
            one, other = self.text_of(start, first_end), self.text_of(second_start, end)
            if one != other and order_matters(one, other):
                swapped = other + self.text_of(first_end, second_start) + one
                self.add("order", start, end, swapped, first.extent.start.line)

    def bodies(self, holder, children):
        """Finds bodies without braces: they are also statements, and the condition before them is not."""
        for child in children[1:]:
            is_body = re.match(rb"\s*;", self.source[child.extent.end.offset:]) is not None
            before = self.source[holder.extent.start.offset:child.extent.start.offset].rstrip()
            if is_body and (before.endswith(b")") or before.endswith(b"else")):
                self.leave_out(child)


def mutants_of(path, name, arguments):
    """Returns all mutants of the file at `path`, sorted; `name` is the file name that they report."""
    return Finder(path, name).find(arguments)
