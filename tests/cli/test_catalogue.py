"""The catalogue of messages agrees with the numbers in the sources, and the generated pages are up to date."""
import json
import re
import subprocess
import unittest

from support import PROGRAM, ROOT, Home

# The sources of messages: their numbers, and the headers that name them.
COMPILER = set(range(1000, 2999))
ADD_IN = {2999, 4097, 4119, *range(8193, 8209), 12289}
PIPES = {*range(20000, 21000), *range(3100, 3900)}
WARNING_OFFSET = 3000  # added to a pipe's warning when it is stored
SOURCES = (("Components/QLToolkit", "messages.h", COMPILER), ("Add-in/build", "message_numbers.h", ADD_IN),
          ("Components/QLPipe", "*messages.h", PIPES))

# Where reserved numbers are looked for as literals.
FOLDERS = ("Add-in", "Components", "Apps")
RESERVED = ADD_IN | set(range(20000, 21000))
# A run-time error of the common dialogs, not a message.
DIALOG_ERRORS = {20476}
LITERAL = re.compile(r"(?<![\w.'])(\d{4,5})(?![\w.'])")


def without_comments(text):
    return re.sub(r"//[^\n]*|/\*.*?\*/", "", text, flags=re.S)


def sources(*folders):
    for folder in folders:
        for path in sorted((ROOT / folder).rglob("*")):
            if path.suffix in (".h", ".cpp"):
                yield path, without_comments(path.read_text(encoding="utf-8"))


def named_in(folder, headers):
    """The numbers named in headers, as users see them."""
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

    def test_numbers_are_unique_and_sorted(self):
        in_order = [m["number"] for m in self.messages]
        self.assertEqual(in_order, sorted(set(in_order)))

    def test_entries_are_complete(self):
        for message in self.messages:
            with self.subTest(message["number"]):
                for field in ("text", "meaning", "remedy"):
                    self.assertEqual(message[field], message[field].strip())
                    self.assertNotEqual(message[field], "")
                self.assertIn(message["severity"], ("error", "warning"))

    def test_each_named_number_has_an_entry(self):
        self.assertEqual(self.numbers - COMPILER - ADD_IN - PIPES, set())
        for folder, headers, own in SOURCES:
            with self.subTest(folder):
                self.assertEqual(named_in(folder, headers), self.numbers & own)

    def test_each_reserved_number_in_the_sources_has_an_entry(self):
        for path, text in sources(*FOLDERS):
            used = {int(n) for n in LITERAL.findall(text)} & RESERVED
            self.assertEqual(used - self.numbers - DIALOG_ERRORS, set(), path.relative_to(ROOT))

    def test_pages_are_up_to_date(self):
        checked = subprocess.run([ROOT / "scripts/make-message-pages", "--check", PROGRAM], capture_output=True,
                                 text=True)
        self.assertEqual((checked.stdout, checked.stderr, checked.returncode), ("", "", 0))

    def test_pages_have_valid_links_and_no_scripts(self):
        index = ROOT / "installation/VB Toolkit/doc/Quinloft_Error_Codes.html"
        for page in (index, *index.with_suffix("").glob("*.html")):
            text = page.read_text(encoding="utf-8")
            self.assertNotIn("<script", text)
            for link in re.findall(r'(?:href|src)="([^"]*)"', text):
                self.assertTrue((page.parent / link).is_file(), f"{page.name}: {link}")

    def test_the_check_finds_outdated_pages(self):
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
