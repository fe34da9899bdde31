"""scripts/real-modules and scripts/real-answers on a small folder of repositories."""
import os
import pathlib
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
SOURCES = {
    "Alone.bas": "Function Twice(n As Long) As Long\n  Twice = 2 * n\nEnd Function\n",
    "Needy.bas": "Option Explicit\nSub Use()\n  Debug.Print Twice(total)\nEnd Sub\n",
    "Data.bas": "Public total As Long\n",
    "Wrong.bas": "Sub Broken()\n  End If\nEnd Sub\n",
}
PROJECT = 'Type=Exe\nModule=Alone; ALONE.BAS\nModule=Needy; Needy.bas\nModule=Data; Data.bas\nName="P"\n'
ANSWERS = """=== Right
' source: arithmetic
' file: me/repo/Alone.bas
Debug.Print Twice(4)
---
 8

=== Not right
' source: arithmetic
' file: me/repo/Alone.bas
Debug.Print Twice(4)
---
 9
"""


class RealModules(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.repository = self.folder / "me/repo"
        self.repository.mkdir(parents=True)
        for name, code in SOURCES.items():
            attribute = f'Attribute VB_Name = "{name.partition(".")[0]}"\n'
            (self.repository / name).write_text(attribute + code, encoding="ascii")
        (self.repository / "p.vbp").write_text(PROJECT, encoding="ascii")
        (self.folder / "invalid.tsv").write_text("", encoding="ascii")

    def script(self, name, program, *arguments):
        done = subprocess.run([ROOT / "scripts" / name, "--program", program, *arguments, self.folder],
                              capture_output=True, text=True, check=False)
        self.assertEqual(done.stderr, "")
        return done.returncode, done.stdout

    def modules(self, *names):
        listed = self.folder / "modules.tsv"
        listed.write_text("".join(f"me/repo\t{name}\n" for name in names), encoding="ascii")
        return self.script("real-modules", os.environ["FERNWICK_COMPILE_MODULES"], "--list", listed)

    def test_a_module_is_compiled_alone_or_with_its_project(self):
        status, printed = self.modules("Alone.bas", "Needy.bas")
        self.assertEqual(status, 0)
        self.assertIn("me/repo/Alone.bas\talone\t\t\n", printed)
        self.assertIn("me/repo/Needy.bas\twith its project\tme/repo/p.vbp\t\n", printed)

    def test_a_failure_without_a_reason_is_an_error(self):
        status, printed = self.modules("Wrong.bas")
        self.assertEqual(status, 1)
        self.assertIn("me/repo/Wrong.bas\tnone\tme/repo/Wrong.bas\tWrong.bas:3: ", printed)

    def test_files_that_are_not_valid_are_listed_with_the_reason(self):
        (self.folder / "invalid.tsv").write_text("me/repo\tWrong.bas\t3: no If\n", encoding="ascii")
        status, printed = self.modules("Wrong.bas")
        self.assertEqual(status, 0)
        self.assertIn("me/repo/Wrong.bas\tnot valid\t\t3: no If\n", printed)

    def test_a_module_is_compiled_with_what_its_project_has(self):
        (self.repository / "Data.bas").unlink()
        status, printed = self.modules("Needy.bas")
        self.assertEqual(status, 0)
        self.assertIn("me/repo/Needy.bas\twith a part of its project\tme/repo/p.vbp\t\n", printed)

    def test_answers_are_compared(self):
        answers = self.folder / "answers.txt"
        answers.write_text(ANSWERS, encoding="ascii")
        status, printed = self.script("real-answers", os.environ["FERNWICK_PROGRAM"], "--answers", answers)
        self.assertEqual(status, 1)
        self.assertIn("passed\tRight\nFAILED\tNot right\n", printed)
        self.assertIn("- 9\n+ 8\n1 failed\n", printed)


if __name__ == "__main__":
    unittest.main()
