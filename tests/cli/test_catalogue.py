"""Checks the catalogue of messages against the sources that use its numbers and against the pages generated from it."""
import json
import re
import subprocess
import unittest

from support import PROGRAM, ROOT, Home

# The folders that define messages: their numbers, and the headers that name them.
COMPILER = set(range(1000, 2999))
ADD_IN = {2999, 4097, 4119, *range(8193, 8209), 12289}
PIPES = {*range(20000, 21000), *range(3100, 3900)}
WARNING_OFFSET = 3000  # between a pipe's warning as it is raised and as it is stored
DEFINITIONS = (("Components/QLToolkit", "messages.h", COMPILER), ("Add-in/build", "message_numbers.h", ADD_IN),
          ("Components/QLPipe", "*messages.h", PIPES))

# Where message numbers must not be used as literals without an entry.
SEARCHED = ("Add-in", "Components", "Apps")
RESERVED = ADD_IN | set(range(20000, 21000))
# A run-time error of the common dialogs that happens to be in the range.
DIALOG_ERRORS = {20476}
COMMAND = re.compile(r"\bfernwick ([a-z][a-z-]*)([^\n]*)")
OPTION = re.compile(r"\s(--?[a-z][a-z-]*)")
ANSWER = re.compile(r"--answer ([a-z-]+)=")
LITERAL = re.compile(r"(?<![\w.'])(\d{4,5})(?![\w.'])")


def without_comments(text):
    return re.sub(r"//[^\n]*|/\*.*?\*/", "", text, flags=re.S)


def sources(*folders):
    for folder in folders:
        for path in sorted((ROOT / folder).rglob("*")):
            if path.suffix in (".h", ".cpp"):
                yield path, without_comments(path.read_text(encoding="utf-8"))


def named_in(folder, headers):
    """The numbers that headers define, as users see them."""
    named = set()
    for path in (ROOT / folder).rglob(headers):
        named |= {int(n) for n in re.findall(r"=\s*(\d+)\s*[,;]", without_comments(path.read_text()))}
    return {n + WARNING_OFFSET if n < 1000 else n for n in named - {WARNING_OFFSET}}


class Catalogue(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        done = subprocess.run([PROGRAM, "explain", "--format", "json"], capture_output=True, check=True)
        cls.messages = json.loads(done.stdout)["messages"]
        cls.numbers = {m["number"] for m in cls.messages}

    def test_entries_are_sorted_and_unique(self):
        in_order = [m["number"] for m in self.messages]
        self.assertEqual(in_order, sorted(set(in_order)))

    def test_entries_are_complete(self):
        for message in self.messages:
            with self.subTest(message["number"]):
                for field in ("text", "meaning", "remedy"):
                    self.assertEqual(message[field], message[field].strip())
                    self.assertNotEqual(message[field], "")
                self.assertIn(message["severity"], ("error", "warning"))

    def test_commands_in_texts_exist(self):
        """Every verb, option and answer of a `fernwick` command in the catalogue is one that the program has."""
        answers = self.help_on("answers")
        for message in self.messages:
            for field in ("text", "example", "remedy"):
                for verb, rest in COMMAND.findall(message[field]):
                    with self.subTest(number=message["number"], verb=verb):
                        page = self.help_on(verb)
                        self.assertIsNotNone(page, "no such verb")
                        for option in OPTION.findall(rest):
                            self.assertRegex(page, rf"(?m)^ .*{option}\b")
                        for answer in ANSWER.findall(rest):
                            self.assertRegex(answers, rf"(?m)^  {answer} ")

    def help_on(self, topic):
        done = subprocess.run([PROGRAM, "help", topic], capture_output=True, text=True)
        return done.stdout if done.returncode == 0 else None

    def test_every_defined_number_has_an_entry(self):
        self.assertEqual(self.numbers - COMPILER - ADD_IN - PIPES, set())
        for folder, headers, own_range in DEFINITIONS:
            with self.subTest(folder):
                self.assertEqual(named_in(folder, headers), self.numbers & own_range)

    def test_literal_numbers_have_entries(self):
        for path, text in sources(*SEARCHED):
            used = {int(n) for n in LITERAL.findall(text)} & RESERVED
            self.assertEqual(used - self.numbers - DIALOG_ERRORS, set(), path.relative_to(ROOT))

    def test_pages_match_the_catalogue(self):
        checked = subprocess.run([ROOT / "scripts/make-message-pages", "--check", PROGRAM], capture_output=True,
                                 text=True)
        self.assertEqual((checked.stdout, checked.stderr, checked.returncode), ("", "", 0))

    def test_pages_have_no_scripts_and_no_dead_links(self):
        index = ROOT / "installation/VB Toolkit/doc/Quinloft_Error_Codes.html"
        for page in (index, *index.with_suffix("").glob("*.html")):
            text = page.read_text(encoding="utf-8")
            self.assertNotIn("<script", text)
            for link in re.findall(r'(?:href|src)="([^"]*)"', text):
                self.assertTrue((page.parent / link).is_file(), f"{page.name}: {link}")

    def test_an_outdated_page_is_detected(self):
        with Home() as home:
            for folder in ("scripts", "docs", "installation/VB Toolkit/doc"):
                home.run("mkdir", "-p", home.work / folder, check=True)
                home.run("cp", "-r", f"{ROOT / folder}/.", home.work / folder, check=True)
            doc = home.work / "installation/VB Toolkit/doc/Quinloft_Error_Codes"
            (doc / "1000.html").write_text("other")
            (doc / "1001.html").unlink()
            (doc / "1.html").write_text("")
            script = home.work / "scripts/make-message-pages"
            checked = home.run(script, "--check", PROGRAM)
            self.assertEqual(re.findall(r"/(\d+)\.html", checked.stdout), ["1000", "1001", "1"])
            self.assertEqual(checked.returncode, 1)
            home.run(script, PROGRAM, check=True)
            self.assertEqual(home.run(script, "--check", PROGRAM).stdout, "")


if __name__ == "__main__":
    unittest.main()
