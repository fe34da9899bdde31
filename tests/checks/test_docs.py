"""The documents name files and folders that exist."""
import pathlib
import re
import subprocess
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
TOP = ("Add-in", "Apps", "Basic", "Components", "Host", "bench", "cmake", "docs", "fuzz", "installation", "packaging",
       "samples", "scripts", "tests")


def documents():
    names = subprocess.run(["git", "ls-files", "-co", "--exclude-standard", "*.md"], cwd=ROOT, text=True,
                           capture_output=True, check=True).stdout.split("\n")
    return [ROOT / n for n in names if n and (ROOT / n).is_file()]


def links(text):
    """The targets of links to files, without anchors."""
    return [t.split("#")[0] for t in re.findall(r"\]\(([^)\s]+)\)", text) if "://" not in t and not t.startswith("#")]


def paths(text):
    """What is written as `folder/file` from the top folder of the sources."""
    found = re.findall(r"`([A-Za-z-]+/[^`\s<>{}]*)`", re.sub(r"(?ms)^```.*?^```", "", text))
    return [p for p in found if p.split("/")[0] in TOP]


class Documents(unittest.TestCase):
    def test_link_to_files_that_exist(self):
        for document in documents():
            for link in links(document.read_text(encoding="utf-8")):
                self.assertTrue((document.parent / link).exists(), f"{document.relative_to(ROOT)}: {link}")

    def test_name_files_that_exist(self):
        for document in documents():
            if document.name == "CHANGELOG.md":
                continue
            for path in paths(document.read_text(encoding="utf-8")):
                self.assertTrue(list(ROOT.glob(path.rstrip("/"))), f"{document.relative_to(ROOT)}: {path}")

    def test_find_what_they_look_for(self):
        self.assertEqual(links("[a](b.md#c) [d](https://e.org) [f](#g)"), ["b.md"])
        self.assertEqual(paths("`docs/names.md` `build/debug` `Add-in/*.h` `a b/c`"), ["docs/names.md", "Add-in/*.h"])


if __name__ == "__main__":
    unittest.main()
