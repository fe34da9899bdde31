"""Text of packages and file names reaches the terminal only escaped."""
import hashlib
import json
import unittest
import zipfile

from support import Home

HOSTILE = "x\033[2J\n\r\0\u009b\u202ey"
ESCAPED = r"x\u001B[2J\n\u000D\u0000\u009B\u202Ey"


class ForeignText(unittest.TestCase):
    def setUp(self):
        self.home = Home()
        self.home.__enter__()
        self.addCleanup(self.home.__exit__)

    def package(self, place="files/a.txt", **members):
        manifest = {"schemaVersion": 1, "kind": "application", "project": "Hello", "displayName": "Hello",
                    "version": "1", "device": "PocketPC-ARM", "references": [],
                    "files": [{"path": place, "kind": "file", "size": 1,
                               "sha256": hashlib.sha256(b"x").hexdigest()}]} | members
        path = self.home.work / "x.qlpkg"
        with zipfile.ZipFile(path, "w") as archive:
            archive.writestr("manifest.json", json.dumps(manifest))
            archive.writestr("files/a.txt", "x")
        return str(path)

    def output(self, *arguments):
        done = self.home.fernwick(*arguments, text=False)
        text = (done.stdout + done.stderr).decode()
        for character in "\033\r\0\u009b\u202e":
            self.assertNotIn(character, text)
        return text

    def test_a_package_is_listed_in_its_own_lines(self):
        path = self.package(displayName=HOSTILE, version=HOSTILE, references=[HOSTILE])
        text = self.output("package", "--list", path)
        self.assertEqual(text.splitlines(), [f"{ESCAPED} {ESCAPED} for PocketPC-ARM", "  files/a.txt           1",
                                             f"  needs {ESCAPED}"])

    def test_json_keeps_every_character(self):
        result = json.loads(self.output("package", "--list", "--format", "json", self.package(displayName=HOSTILE)))
        self.assertEqual(result["displayName"], HOSTILE)

    def test_errors_name_what_they_refuse(self):
        self.assertIn(ESCAPED, self.output("package", "--verify", self.package(place=f"files/{HOSTILE}")))
        self.assertIn(ESCAPED, self.output("deploy", self.package(device=HOSTILE)))
        self.assertIn(ESCAPED, self.output("deploy", self.package(project=HOSTILE)))

    def test_a_file_name_stays_in_its_line(self):
        name = HOSTILE.replace("\0", "")
        text = self.output("info", name)
        self.assertIn(ESCAPED.replace(r"\u0000", ""), text)
        self.assertEqual(len(text.splitlines()), 1)


if __name__ == "__main__":
    unittest.main()
