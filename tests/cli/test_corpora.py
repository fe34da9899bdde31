"""`scripts/corpora` finds every project below a folder and the cause of each error."""
import json
import unittest

from support import PROGRAM, ROOT, Home

SCRIPT = ROOT / "scripts/corpora"
# Prints the messages beside the project; an error is only its number, text and file.
PROGRAM_OF_MESSAGES = """#!/usr/bin/env python3
import json, pathlib, sys
project = pathlib.Path(sys.argv[4])
rows = json.loads((project.parent / "messages.json").read_text())
messages = [{"severity": severity, "number": number, "text": text, "line": 1, "file": str(project.parent / file)}
            for severity, number, text, file in rows]
print(json.dumps({"messages": messages}))
"""


class Corpora(unittest.TestCase):
    def setUp(self):
        self.home = Home()
        self.home.__enter__()
        self.addCleanup(self.home.__exit__)
        self.write("fake", PROGRAM_OF_MESSAGES)
        (self.home.work / "fake").chmod(0o755)

    def write(self, name, text):
        path = self.home.work / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(text.replace("\n", "\r\n" if path.suffix else "\n").encode("latin-1"))

    def corpora(self, *arguments, program=PROGRAM):
        done = self.home.run(SCRIPT, "--program", program, "--jobs", "2", *arguments)
        self.assertEqual(done.stderr, "")
        return done.returncode, done.stdout.splitlines()

    def causes(self, *messages, sources=None, project="Module=A; A.bas\n"):
        """The causes of messages, given as severity, number, text and file, in a project with these sources."""
        self.write("all/P.vbp", project)
        for name, text in ({"A.bas": "x = 1\n"} | (sources or {})).items():
            self.write("all/" + name, text)
        (self.home.work / "all/messages.json").write_text(json.dumps(messages))
        status, lines = self.corpora("all", program=self.home.work / "fake")
        found = [line.split("\t")[4] for line in lines if "\t" in line]
        self.assertEqual(status, 1 if "none" in found else 0)
        return found

    def test_a_real_project_is_checked(self):
        self.write("all/good/P.vbp", "Type=Exe\nModule=A; A.bas\n")
        self.write("all/good/A.bas", 'Attribute VB_Name = "A"\nSub Main()\nEnd Sub\n')
        self.write("all/bad/Q.VBP", "Type=Exe\nModule=B; b.BAS\nModule=C; Lost.bas\n")
        self.write("all/bad/B.bas", 'Attribute VB_Name = "B"\nSub Main()\nx = (\nEnd Sub\n')
        status, lines = self.corpora("all")
        self.assertEqual(lines, [
            "bad/Q.VBP\tbad/B.bas\t3\t1800\tnone\tExpected: an expression, found: end of the statement.",
            "bad/Q.VBP\tbad/Lost.bas\t\t1000\tsource file missing\tThe file does not exist.",
            "      1 1000 source file missing", "      1 1800 none",
            "2 projects, 1 without errors, 2 errors, 1 without a cause"])
        self.assertEqual(status, 1)

    def test_examined_lines_are_damaged(self):
        self.write("all/P.vbp", "Type=Exe\nModule=A; A.bas\n")
        self.write("all/A.bas", 'Attribute VB_Name = "A"\nSub Main()\nx = (\nEnd Sub\n')
        (self.home.work / "damaged").write_text("A.bas\t3\n")
        status, lines = self.corpora("--damaged", "damaged", "all")
        self.assertEqual((status, lines[0].split("\t")[4]), (0, "file damaged"))

    def test_a_folder_without_projects_is_clean(self):
        self.write("all/A.bas", "")
        self.assertEqual(self.corpora("all"), (0, ["0 projects, 0 without errors, 0 errors, 0 without a cause"]))

    def test_each_cause_is_found(self):
        self.assertEqual(self.causes(("error", 1900, "Two modules.", "A.bas")), ["duplicate module"])
        self.assertEqual(self.causes(("error", 1005, "Binary.", "A.bas"), ("error", 1500, "x.", "A.bas")),
                         ["file damaged", "file damaged"])
        self.assertEqual(self.causes(("error", 2100, "Type mismatch.", "B.ctl")), ["module kind"])
        self.assertEqual(self.causes(("error", 2100, "Type mismatch.", "A.bas")), ["none"])
        self.assertEqual(self.causes(("warning", 2900, "Not declared.", "A.bas")), [])

    def test_a_merge_conflict_is_damage(self):
        sources = {"A.bas": "<<<<<<< HEAD\n"}
        self.assertEqual(self.causes(("error", 1500, "x.", "A.bas"), sources=sources), ["file damaged"])

    def test_a_name_may_be_in_a_missing_library_or_file(self):
        name = ("error", 2003, "User-defined type not defined: Grid.", "A.bas")
        self.assertEqual(self.causes(name), ["none"])
        absent = ("warning", 1902, "The library Grids was not found.", "P.vbp")
        self.assertEqual(self.causes(absent, name), ["library absent"])
        self.assertEqual(self.causes(("error", 1000, "The file does not exist.", "Grid.cls"), name),
                         ["source file missing", "source file missing"])

    def test_a_name_may_be_declared_under_a_condition(self):
        sources = {"sub/A.bas": "#If Debugging Then\nPrivate Declare Sub Trace Lib \"x\" ()\n#End If\nSub Other()\n"}
        project = "Class=A; SUB\\a.bas\n"
        for name, cause in (("Trace", "condition not set"), ("Other", "none")):
            error = ("error", 2001, f"Sub or Function not defined: {name}.", "sub/A.bas")
            self.assertEqual(self.causes(error, sources=sources, project=project), [cause])


if __name__ == "__main__":
    unittest.main()
