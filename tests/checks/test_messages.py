"""Each message of the compiler is expected by a test, by its number or its name."""
import pathlib
import re
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
HEADER = ROOT / "Components/QLToolkit/source/messages.h"
TESTED = ("tests/qltoolkit/*.cpp", "tests/cli/cases/*.golden")


def messages():
    rows = re.findall(r"^    (\w+) = (\d{4}),$", HEADER.read_text(encoding="utf-8"), re.M)
    return {int(number): name for name, number in rows}


def words_of_tests():
    texts = (path.read_text(encoding="utf-8") for pattern in TESTED for path in ROOT.glob(pattern))
    return set(re.findall(r"\b(?:FW)?(\w+)", " ".join(texts)))


class Messages(unittest.TestCase):
    def test_each_one_is_expected_by_a_test(self):
        words = words_of_tests()
        self.assertEqual({number: name for number, name in messages().items() if not {name, str(number)} & words}, {})

    def test_the_header_is_read(self):
        self.assertEqual(messages()[1000], "FileMissing")
        self.assertGreater(len(messages()), 150)


if __name__ == "__main__":
    unittest.main()
