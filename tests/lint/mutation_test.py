#!/usr/bin/env python3
"""The mutation check changes what it says, and neither comments nor texts, types or declarations."""
import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools" / "mutation"))
import mutate  # noqa: E402
import operators  # noqa: E402


def changes_of(source):
    """Each mutant of a source as its operator and the source that it makes."""
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "a.cpp"
        path.write_text(source, encoding="utf-8")
        return {(mutant.operator, mutant.applied(path.read_bytes()).decode())
                for mutant in operators.mutants_of(path, "src/a.cpp", ["-std=c++20"])}


class Changes(unittest.TestCase):
    def expect(self, source, operator, *changed):
        """These and no others of this operator."""
        self.assertEqual({text for kind, text in changes_of(source) if kind == operator}, set(changed))

    def test_whole_numbers_one_up_and_one_down(self):
        self.expect("const int a = 20;\n", "constant", "const int a = 21;\n", "const int a = 19;\n")
        self.expect("const unsigned a = 0U;\n", "constant", "const unsigned a = 1U;\n")
        self.expect("const int a = 0x10;\n", "constant", "const int a = 17;\n", "const int a = 15;\n")

    def test_last_digit_of_a_fraction(self):
        self.expect("const double a = 0.25;\n", "constant", "const double a = 0.26;\n")
        self.expect("const double a = 1.9e3;\n", "constant", "const double a = 1.0e3;\n")

    def test_truth_and_characters(self):
        self.expect("const bool a = true;\n", "constant", "const bool a = false;\n")
        self.expect("const char a = 'k';\n", "constant", "const char a = 'l';\n")

    def test_comparison_at_its_edge_and_turned_round(self):
        self.expect("bool F(int a, int b) { return a < b; }\n", "comparison",
                    "bool F(int a, int b) { return a <= b; }\n", "bool F(int a, int b) { return a >= b; }\n")

    def test_comparison_that_a_class_defines(self):
        self.expect("struct S {}; bool operator==(S, S);\nbool F(S a, S b) { return a == b; }\n", "comparison",
                    "struct S {}; bool operator==(S, S);\nbool F(S a, S b) { return a != b; }\n")

    def test_arithmetic(self):
        self.expect("int F(int a, int b) { return (a) - (b); }\n", "arithmetic", "int F(int a, int b) { return (a) + (b); }\n")
        self.expect("void F(int& a) { ++a; }\n", "arithmetic", "void F(int& a) { --a; }\n")
        self.expect("void F(int& a, int b) { a += b; }\n", "arithmetic", "void F(int& a, int b) { a -= b; }\n")
        self.expect("int F(int a) { return -a; }\n", "arithmetic", "int F(int a) { return a; }\n")

    def test_logic(self):
        self.expect("bool F(bool a, bool b) { return a && !b; }\n", "logic",
                    "bool F(bool a, bool b) { return a || !b; }\n", "bool F(bool a, bool b) { return a && b; }\n")

    def test_statement_left_out(self):
        self.expect("void G(int);\nvoid F(int a) { if (a) G(a); }\n", "statement left out",
                    "void G(int);\nvoid F(int a) { if (a) ; }\n", "void G(int);\nvoid F(int a) { ; }\n")

    def test_results_and_variables_stay(self):
        self.expect("int F(int a) { int b = a; return b; }\n", "statement left out")

    def test_order_of_neighbours(self):
        self.expect("void G(int);\nvoid F(int a, int b) { G(a); G(b); }\n", "order",
                    "void G(int);\nvoid F(int a, int b) { G(b); G(a); }\n")

    def test_order_of_bindings_is_nobodys_business(self):
        binding = "struct Handler { template <int N> static int To(int); };\nvoid F(int& a, int& b) {"
        self.expect(binding + " a = Handler::To<1>(b); b = Handler::To<2>(a); }\n", "order")
        self.assertTrue(changes_of(binding + " a = Handler::To<1>(b); b = a; }\n") & {
            ("order", binding + " b = a; a = Handler::To<1>(b); }\n")})

    def test_order_of_two_assignments_counts_where_one_reads_the_other(self):
        for one, other in (("a = 1;", "b = c;"), ("s.a = 1;", "s.b = c;"), ("a = c + 2;", "b = c - 1;")):
            self.assertFalse(operators.order_matters(one, other), one + other)
        for one, other in (("a = 1;", "b = a;"), ("a = b;", "b = 1;"), ("a = 1;", "a = 2;"), ("a = F();", "b = 1;"),
                           ("s = t;", "s.a = 1;"), ("s.a = s.b;", "s.b = 1;"),
                           ("a = *p;", "b = 1;"), ("s.a = t;", "t.b = 1;"), ("a = c++;", "b = c;")):
            self.assertTrue(operators.order_matters(one, other), one + other)


class LeftAlone(unittest.TestCase):
    def expect_none(self, source):
        self.assertEqual(changes_of(source), set())

    def test_comments(self):
        self.expect_none("// 1 < 2 && a; b;\n/* 3 + 4 */\nint F(int a) { return a /* 5 - 6 */; }\n")

    def test_directives(self):
        self.expect_none("#include <stddef.h>\n#define LIMIT 12\n")

    def test_texts(self):
        self.expect_none('const char* const a = "1 < 2 && true";\n')

    def test_declarations_and_types(self):
        self.expect_none("int F(int a = 3);\nextern int b[4];\nstatic_assert(1 < 2);\nenum class E { kOne = 1 };\n"
                         "struct S { int bits : 3; virtual void G() = 0; };\n")

    def test_sizes_in_front_of_a_value(self):
        self.expect_none("template <class T, int N> struct Row {};\nconst Row<int, 9> a{};\nint b[4];\n")

    def test_what_is_included(self):
        with tempfile.TemporaryDirectory() as folder:
            (pathlib.Path(folder) / "b.h").write_text("inline int G() { return 4; }\n", encoding="utf-8")
            path = pathlib.Path(folder) / "a.cpp"
            path.write_text('#include "b.h"\n', encoding="utf-8")
            self.assertEqual(operators.mutants_of(path, "src/a.cpp", []), [])

    def test_source_that_does_not_compile_is_refused(self):
        with self.assertRaises(ValueError):
            changes_of("int F( { return 1; }\n")


class Report(unittest.TestCase):
    def test_share_leaves_out_what_did_not_compile(self):
        lines = list(mutate.report([("caught", "a")] * 3 + [("survived", "src/b.cpp:2: logic: ! -> nothing"),
                                                            ("did not compile", "c")], 50))
        self.assertEqual(lines, ["survived: src/b.cpp:2: logic: ! -> nothing",
                                 "mutation: 5 of 50: 3 caught, 1 survived, 1 did not compile",
                                 "mutation: 75.0 percent caught"])

    def test_places(self):
        mutant = operators.Mutant("src/base/a.cpp", 0, 1, "", "logic", 12)
        for place in ("src", "src/base/", "src/base/a.cpp", "src/base/a.cpp:12"):
            self.assertTrue(mutate.is_asked_for(mutant, [place]) and mutate.may_hold(mutant.file, [place]), place)
        for place in ("src/bas", "src/base/a.cpp:1", "companions"):
            self.assertFalse(mutate.is_asked_for(mutant, [place]), place)
        self.assertFalse(mutate.may_hold(mutant.file, ["src/bas"]))


class Sources(unittest.TestCase):
    def test_only_what_unit_tests_can_reach(self):
        names = [path.relative_to(mutate.workshop.ROOT).as_posix() for path in mutate.sources()]
        self.assertIn("src/base/decimal.cpp", names)
        self.assertFalse([name for name in names if "/win32/" in name or "/simulated/" in name or "/runtime/" in name])


if __name__ == "__main__":
    unittest.main()
