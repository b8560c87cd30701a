#!/usr/bin/env python3
"""The mutation check changes what it claims to change, and leaves comments, types, declarations, names and positions
of controls alone."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools" / "mutation"))
import mutate  # noqa: E402
import operators  # noqa: E402
from carriers import Carriers, plain_name  # noqa: E402


def changes_of(source):
    """Returns the operator and the changed source of each mutant."""
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "a.cpp"
        path.write_text(source, encoding="utf-8")
        return {(mutant.operator, mutant.applied(path.read_bytes()).decode())
                for mutant in operators.mutants_of(path, "src/a.cpp", ["-std=c++20"])}


class Changes(unittest.TestCase):
    def expect(self, source, operator, *changed):
        """Expects exactly these mutants of this operator."""
        self.assertEqual({text for kind, text in changes_of(source) if kind == operator}, set(changed))

    def test_integers_change_by_one_each_way(self):
        self.expect("const int a = 20;\n", "constant", "const int a = 21;\n", "const int a = 19;\n")
        self.expect("const unsigned a = 0U;\n", "constant", "const unsigned a = 1U;\n")
        self.expect("const int a = 0x10;\n", "constant", "const int a = 17;\n", "const int a = 15;\n")

    def test_last_digit_of_a_fraction_changes(self):
        self.expect("const double a = 0.25;\n", "constant", "const double a = 0.26;\n")
        self.expect("const double a = 1.9e3;\n", "constant", "const double a = 1.0e3;\n")

    def test_booleans_and_characters_change(self):
        self.expect("const bool a = true;\n", "constant", "const bool a = false;\n")
        self.expect("const char a = 'k';\n", "constant", "const char a = 'l';\n")

    def test_comparison_moves_its_boundary_and_is_negated(self):
        self.expect("bool F(int a, int b) { return a < b; }\n", "comparison",
                    "bool F(int a, int b) { return a <= b; }\n", "bool F(int a, int b) { return a >= b; }\n")

    def test_overloaded_comparison_is_negated(self):
        self.expect("struct S {}; bool operator==(S, S);\nbool F(S a, S b) { return a == b; }\n", "comparison",
                    "struct S {}; bool operator==(S, S);\nbool F(S a, S b) { return a != b; }\n")

    def test_arithmetic_operators_change(self):
        self.expect("int F(int a, int b) { return (a) - (b); }\n", "arithmetic", "int F(int a, int b) { return (a) + (b); }\n")
        self.expect("void F(int& a) { ++a; }\n", "arithmetic", "void F(int& a) { --a; }\n")
        self.expect("void F(int& a, int b) { a += b; }\n", "arithmetic", "void F(int& a, int b) { a -= b; }\n")
        self.expect("int F(int a) { return -a; }\n", "arithmetic", "int F(int a) { return a; }\n")

    def test_logical_operators_change(self):
        self.expect("bool F(bool a, bool b) { return a && !b; }\n", "logic",
                    "bool F(bool a, bool b) { return a || !b; }\n", "bool F(bool a, bool b) { return a && b; }\n")

    def test_statements_are_left_out(self):
        self.expect("void G(int);\nvoid F(int a) { if (a) G(a); }\n", "statement left out",
                    "void G(int);\nvoid F(int a) { if (a) ; }\n", "void G(int);\nvoid F(int a) { ; }\n")

    def test_returns_and_declarations_are_not_left_out(self):
        self.expect("int F(int a) { int b = a; return b; }\n", "statement left out")

    def test_neighbouring_statements_are_swapped(self):
        self.expect("void G(int);\nvoid F(int a, int b) { G(a); G(b); }\n", "order",
                    "void G(int);\nvoid F(int a, int b) { G(b); G(a); }\n")

    def test_handler_bindings_are_not_swapped(self):
        binding = "struct Handler { template <int N> static int To(int); };\nvoid F(int& a, int& b) {"
        self.expect(binding + " a = Handler::To<1>(b); b = Handler::To<2>(a); }\n", "order")
        self.assertTrue(changes_of(binding + " a = Handler::To<1>(b); b = a; }\n") & {
            ("order", binding + " b = a; a = Handler::To<1>(b); }\n")})

    def test_assignments_are_swapped_only_if_one_affects_the_other(self):
        for one, other in (("a = 1;", "b = c;"), ("s.a = 1;", "s.b = c;"), ("a = c + 2;", "b = c - 1;")):
            self.assertFalse(operators.order_matters(one, other), one + other)
        for one, other in (("a = 1;", "b = a;"), ("a = b;", "b = 1;"), ("a = 1;", "a = 2;"), ("a = F();", "b = 1;"),
                           ("s = t;", "s.a = 1;"), ("s.a = s.b;", "s.b = 1;"),
                           ("a = *p;", "b = 1;"), ("s.a = t;", "t.b = 1;"), ("a = c++;", "b = c;")):
            self.assertTrue(operators.order_matters(one, other), one + other)


    def test_string_literals_change(self):
        self.expect("const char* const a = \"It's  two\\r\\n\"\n    \"zz\";\n", "text",
                    'const char* const a = "";\n',
                    "const char* const a = \"It's  txo\\r\\n\"\n    \"zz\";\n",
                    "const char* const a = \"It's two\\r\\n\"\n    \"zz\";\n")
        self.expect('const char* const a = "";\n', "text")
        self.expect('const char* const a = "\\r\\x41\\0";\n', "text", 'const char* const a = "";\n')

    def test_table_entries_are_left_out_and_swapped(self):
        for table in ("const int a[] = {};\n", "#include <array>\nconstexpr std::array<int, 3> a{};\n"):
            self.expect(table.replace("{}", "{x, 12, y}").replace("const", "const int x = 1, y = 1; const", 1),
                        "entry left out",
                        *(table.replace("{}", "{" + entries + "}").replace("const", "const int x = 1, y = 1; const", 1)
                          for entries in ("12, y", "x, y", "x, 12")))
        self.expect("struct P { int b; };\nconst P a[] = {{1}, {2}, {2}};\n", "order of entries",
                    "struct P { int b; };\nconst P a[] = {{2}, {1}, {2}};\n")

    def test_struct_members_are_not_table_entries(self):
        for operator in ("entry left out", "order of entries"):
            self.expect("struct P { int b; int c; };\nconst P a{1, 2};\nconst P d{.b = 3, .c = 4};\n", operator)

    def test_ends_of_a_range_are_swapped(self):
        record = "struct R { int minimum; int maximum; int step; };\n"
        self.expect(record + "const R a{.minimum = 32, .maximum = 1, .step = 1};\n", "range",
                    record + "const R a{.minimum = 1, .maximum = 32, .step = 1};\n")

    def test_enumerators_change_and_flags_are_left_out(self):
        self.expect("enum E { kA, kB, kC };\nE F() { return kC; }\n", "flag",
                    "enum E { kA, kB, kC };\nE F() { return kA; }\n")
        self.expect("int F(int a, int b) { return a | b; }\n", "flag left out",
                    "int F(int a, int b) { return a; }\n", "int F(int a, int b) { return b; }\n")

    def test_case_labels_stay(self):
        self.expect("enum E { kA, kB };\nvoid F(E e) { switch (e) { case kA: break; default: break; } }\n", "flag")

    def test_system_constants_change_to_others_with_the_same_prefix(self):
        with tempfile.TemporaryDirectory() as folder:
            header = pathlib.Path(folder) / "src" / "os" / "box.h"
            header.parent.mkdir(parents=True)
            header.write_text("namespace os {\ninline constexpr int kMbOk = 0;\ninline constexpr int kMbYesNo = 4;\n"
                              "inline constexpr int kWmClose = 16;\n}\n", encoding="utf-8")
            path = header.with_name("a.cpp")
            path.write_text('#include "box.h"\nint F() { return os::kMbYesNo; }\nint G() { return os::kWmClose; }\n',
                            encoding="utf-8")
            found = [mutant for mutant in operators.mutants_of(path, "a.cpp", ["-std=c++20"])]
            self.assertEqual([(mutant.operator, mutant.text, mutant.line) for mutant in found], [("flag", "kMbOk", 2)])

    def test_calls_are_left_out(self):
        code = "int T(int); struct S { int Do(); int Look() const; void Go(); };\n"
        self.expect(code + "int F(int a) { return T(a + 1); }\n", "call left out",
                    code + "int F(int a) { return (a + 1); }\n")
        self.expect(code + "int F(S s) { return s.Do() + s.Look(); }\n", "call left out",
                    code + "int F(S s) { return decltype(s.Do()){} + s.Look(); }\n")
        self.expect(code + "void F(S s) { s.Do(); s.Go(); }\n", "call left out")


class LeftAlone(unittest.TestCase):
    def expect_none(self, source):
        self.assertEqual(changes_of(source), set())

    def test_comments_are_left_alone(self):
        self.expect_none("// 1 < 2 && a; b;\n/* 3 + 4 */\nint F(int a) { return a /* 5 - 6 */; }\n")

    def test_directives_are_left_alone(self):
        self.expect_none("#include <stddef.h>\n#define LIMIT 12\n")

    def test_control_names_and_positions_are_left_alone(self):
        self.expect_none('struct D { const char* name; };\nconst D a{.name = "lblCPU"};\n')
        self.expect_none("namespace ui { struct Place { int left, top; }; }\nconst ui::Place a{.left = 1, .top = 2};\n"
                         "struct S { ui::Place b{3, 4}; };\n")

    def test_declarations_and_types_are_left_alone(self):
        self.expect_none("int F(int a = 3);\nextern int b[4];\nstatic_assert(1 < 2);\nenum class E { kOne = 1 };\n"
                         "struct S { int bits : 3; virtual void G() = 0; };\n")

    def test_template_arguments_and_array_sizes_are_left_alone(self):
        self.expect_none("template <class T, int N> struct Row {};\nconst Row<int, 9> a{};\nint b[4];\n")

    def test_included_files_are_left_alone(self):
        with tempfile.TemporaryDirectory() as folder:
            (pathlib.Path(folder) / "b.h").write_text("inline int G() { return 4; }\n", encoding="utf-8")
            path = pathlib.Path(folder) / "a.cpp"
            path.write_text('#include "b.h"\n', encoding="utf-8")
            self.assertEqual(operators.mutants_of(path, "src/a.cpp", []), [])

    def test_source_that_does_not_compile_is_rejected(self):
        with self.assertRaises(ValueError):
            changes_of("int F( { return 1; }\n")


class Report(unittest.TestCase):
    def test_percentage_ignores_mutants_that_did_not_compile(self):
        lines = list(mutate.report([("caught", "a")] * 3 + [("survived", "src/b.cpp:2: logic: ! -> nothing"),
                                                            ("did not compile", "c")], 50))
        self.assertEqual(lines, ["survived: src/b.cpp:2: logic: ! -> nothing",
                                 "mutation: 5 of 50: 3 caught, 1 survived, 1 did not compile",
                                 "mutation: 75.0 percent caught"])

    def test_selection_by_folder_file_and_line(self):
        mutant = operators.Mutant("src/base/a.cpp", 0, 1, "", "logic", 12)
        for place in ("src", "src/base/", "src/base/a.cpp", "src/base/a.cpp:12"):
            self.assertTrue(mutate.is_asked_for(mutant, [place]) and mutate.may_hold(mutant.file, [place]), place)
        for place in ("src/bas", "src/base/a.cpp:1", "companions"):
            self.assertFalse(mutate.is_asked_for(mutant, [place]), place)
        self.assertFalse(mutate.may_hold(mutant.file, ["src/bas"]))


class ObjectsOfHeaders(unittest.TestCase):
    """Compiles four small objects that use the classes and the constant of one header. One of them is a test."""

    SOURCES = {
        "page.h": "inline constexpr int kMaxUnits = 4;\ninline constexpr int kTable[] = {1, 2};\nstruct Page {\n"
                  "  Page() {}\n  int first{kMaxUnits};\n  int second = 3;\n  int Twice() { return 2 * first; }\n};\n"
                  "struct Box {\n  Box() {}\n  int side = 5;\n};\n",
        "window.cpp": '#include "page.h"\nint Window() { Page page; return page.Twice(); }\n',
        "other.cpp": '#include "page.h"\nint Other() { Page page; return page.first + Other(); }\nint Pad[9] = {1};\n',
        "number.cpp": '#include "page.h"\nint Number() { return kMaxUnits; }\n',
        "box_test.cpp": '#include "page.h"\nint Test() { Page page; Box box; return box.side + page.first; }\n',
    }

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)
        for name, code in cls.SOURCES.items():
            (cls.folder / name).write_text(code, encoding="utf-8")
        objects = {}
        for path in sorted(cls.folder.glob("*.cpp")):
            objects[path] = path.with_suffix(".o")
            subprocess.run(["g++", "-std=c++20", "-O0", "-c", path, "-o", objects[path]], check=True)
        tests = {path: objects.pop(path) for path in list(objects) if path.stem.endswith("_test")}
        cls.carriers = Carriers(objects, tests, [cls.folder / "page.h"])

    def expect(self, owner, *names):
        self.assertEqual([path.name for path in self.carriers.of(owner)], list(names))

    def test_function_is_carried_by_one_object(self):
        self.expect(("Page", "Twice"), "window.cpp")
        self.assertEqual(len(self.carriers.of(("Page", "Page"))), 1)

    def test_class_used_only_in_a_test_is_carried_by_that_test(self):
        self.expect(("Box", "Box"), "box_test.cpp")

    def test_constant_is_carried_by_every_object_that_uses_it(self):
        by_itself = "number.cpp"
        with_the_classes = [self.carriers.of((name, name))[0].name for name in ("Page", "Box")]
        self.expect(("", "kMaxUnits"), *sorted([by_itself, *with_the_classes]))

    def test_unused_name_is_carried_by_no_object(self):
        self.expect(("", "kNothing"))

    def test_mutants_of_a_header_name_their_owner(self):
        found = operators.mutants_of(self.folder / "page.h", "page.h", ["-std=c++20"])
        owners = {(mutant.line, mutant.owner) for mutant in found}
        self.assertEqual(owners, {(1, ("", "kMaxUnits")), (2, ("", "kTable")), (6, ("Page", "Page")), (7, ("Page", "Twice")),
                                  (11, ("Box", "Box"))})

    def test_symbols_are_shortened_to_plain_names(self):
        for symbol, name in (("qdix::ui::Page::Page(qdix::ui::Container&)", "Page::Page"), ("qdix::ui::Find(int)", "Find"),
                             ("qdix::screens::kTabPages", "kTabPages"), ("qdix::ui::Page::Twice() const", "Page::Twice")):
            self.assertEqual(plain_name(symbol), name)


class Sources(unittest.TestCase):
    def test_only_screen_headers_are_mutated(self):
        names = [path.relative_to(mutate.workshop.ROOT).as_posix() for path in mutate.sources() if path.suffix == ".h"]
        self.assertIn("src/screens/automatic_screen.h", names)
        self.assertIn("companions/undo/undo_screen.h", names)
        self.assertFalse([name for name in names if "creen" not in name])

    def test_only_sources_that_unit_tests_reach_are_mutated(self):
        names = [path.relative_to(mutate.workshop.ROOT).as_posix() for path in mutate.sources()]
        self.assertIn("src/base/decimal.cpp", names)
        self.assertFalse([name for name in names if "/win32/" in name or "/simulated/" in name or "/runtime/" in name])


if __name__ == "__main__":
    unittest.main()
