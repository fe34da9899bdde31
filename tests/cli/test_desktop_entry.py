"""The desktop entry and the metadata for software centres."""
import pathlib
import re
import subprocess
import unittest
import xml.etree.ElementTree as ElementTree

from support import ROOT, VERSION

PACKAGING = ROOT / "packaging"


def valid(*command):
    done = subprocess.run(command, capture_output=True, text=True, check=False)
    return "" if done.returncode == 0 else done.stdout + done.stderr


class DesktopEntry(unittest.TestCase):
    def test_the_entry_is_valid(self):
        self.assertEqual(valid("desktop-file-validate", PACKAGING / "fernwick-workbench.desktop"), "")

    def test_the_description_is_valid_and_of_this_version(self):
        description = PACKAGING / "fernwick-workbench.metainfo.xml"
        self.assertEqual(valid("appstreamcli", "validate", "--no-net", description), "")
        tree = ElementTree.parse(description)
        self.assertEqual(tree.find("releases/release").get("version"), VERSION)
        self.assertEqual(tree.findtext("launchable"), "fernwick-workbench.desktop")

    def test_all_name_the_same_file_type(self):
        entry = (PACKAGING / "fernwick-workbench.desktop").read_text(encoding="utf-8")
        offered = re.search(r"^MimeType=(.*);$", entry, re.M)[1]
        namespace = "{http://www.freedesktop.org/standards/shared-mime-info}"
        known = ElementTree.parse(PACKAGING / "fernwick-workbench.xml").find(namespace + "mime-type").get("type")
        described = ElementTree.parse(PACKAGING / "fernwick-workbench.metainfo.xml").findtext("provides/mediatype")
        self.assertEqual({offered, known, described}, {"application/x-visual-basic-project"})

    def test_all_files_are_installed(self):
        rules = (ROOT / "cmake/Install.cmake").read_text(encoding="utf-8")
        for file in sorted(pathlib.Path(PACKAGING).iterdir()):
            self.assertIn(f"packaging/{file.name}", rules)


if __name__ == "__main__":
    unittest.main()
