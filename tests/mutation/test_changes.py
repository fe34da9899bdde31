"""The changes that the mutation run makes, and the tests that it runs first."""
import pathlib
import unittest

from changes import changes
from nearest import NEAREST, nearest

ROOT = pathlib.Path(__file__).resolve().parents[2]


def results(text):
    return {change.applied(text) for change in changes("a.cpp", text)}


class Changes(unittest.TestCase):
    def test_comparisons_conditions_and_numbers(self):
        self.assertEqual(results("bool f(int a) { return a == 1; }\n"),
                         {"bool f(int a) { return a != 1; }\n", "bool f(int a) { return a == 2; }\n",
                          "bool f(int a) { return {}; }\n"})
        self.assertEqual(results("    if (a && !b) go = true;\n"),
                         {"    if (a || !b) go = true;\n", "    if (a && b) go = true;\n",
                          "    if (a && !b) go = false;\n", "    if (false && a && !b) go = true;\n"})

    def test_calls_are_removed(self):
        self.assertIn("{\n    ;\n}\n", results("{\n    store.remove(key);\n}\n"))
        self.assertEqual(results("{\n    return;\n}\n"), set())

    def test_a_return_of_nothing_stays(self):
        self.assertEqual(results("bool f() { return false; }\n"), {"bool f() { return true; }\n"})
        self.assertEqual(results("int* f() { return nullptr; }\n"), set())

    def test_texts_get_another_ending(self):
        self.assertEqual(results('show("Refer to it")'), {'show("Refer to it~")'})

    def test_comments_and_literals_are_not_code(self):
        self.assertEqual(results("// a == 1\n/* b && c */\nauto c = 'x';\n#include <a>\n"), set())
        self.assertEqual(results('x = "a == 1";\n'), {'x = "a == 1~";\n'})

    def test_initial_values_of_fields_stay(self):
        self.assertEqual(changes("a.h", "    int size = 0;\n"), [])
        self.assertEqual(len(changes("a.h", "inline constexpr int kMost = 1;\n")), 1)

    def test_a_change_names_its_line(self):
        text = "int a;\nbool b = a == c;\n"
        self.assertEqual([change.describe(text) for change in changes("a.cpp", text)],
                         ["a.cpp:2: '==' -> '!=' in: bool b = a == c;"])


class Nearest(unittest.TestCase):
    def test_each_folder_has_tests(self):
        for room in ("Basic", "Add-in", "Host", "Components", "Apps"):
            for path in (ROOT / room).rglob("*.cpp"):
                self.assertTrue(nearest(path.relative_to(ROOT).as_posix()), path)

    def test_the_tests_exist(self):
        for folder, names in NEAREST.items():
            self.assertTrue((ROOT / folder).is_dir(), folder)
            for name in names:
                self.assertTrue((ROOT / "tests" / name).is_dir(), name)

    def test_an_unknown_folder_is_an_error(self):
        self.assertRaises(KeyError, nearest, "Elsewhere/a.cpp")


if __name__ == "__main__":
    unittest.main()
