"""The examples for make and Ninja in the README."""
import re
import unittest

from support import ROOT, Home

README = (ROOT / "README.md").read_text(encoding="utf-8")


class Examples(unittest.TestCase):
    def setUp(self):
        self.home = Home()
        self.home.__enter__()
        self.addCleanup(self.home.__exit__)
        self.folder = self.home.sample().parent

    def write(self, language, name):
        text = re.search(rf"```{language}\n(.*?)```", README, re.S)[1]
        (self.folder / name).write_text(text)

    def builds(self, *tool):
        """Whether the tool runs a build."""
        done = self.home.run(*tool, cwd=self.folder)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        return "SUCCESS" in done.stdout

    def check(self, *tool):
        self.assertTrue(self.builds(*tool))
        self.assertFalse(self.builds(*tool), "nothing has changed")
        form = self.folder / "frmHello.frm"
        form.write_bytes(form.read_bytes() + b"' a comment\r\n")
        self.assertTrue(self.builds(*tool), "a source has changed")
        self.assertFalse(self.builds(*tool))

    def test_make(self):
        self.write("make", "Makefile")
        self.check("make")

    def test_ninja(self):
        self.write("ninja", "build.ninja")
        self.check("ninja", "--verbose")


if __name__ == "__main__":
    unittest.main()
