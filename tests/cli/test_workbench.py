"""`workbench` starts the desktop program with its project."""
import os
import pathlib
import shutil
import stat
import subprocess
import tempfile
import unittest

from support import PROGRAM

BUILD = pathlib.Path(os.environ.get("FERNWICK_BUILD", PROGRAM.parent.parent.parent))
DESKTOP = BUILD / "Apps/workbench/fernwick-workbench"


class Workbench(unittest.TestCase):
    def setUp(self):
        self.home = tempfile.TemporaryDirectory()
        self.addCleanup(self.home.cleanup)
        self.folder = pathlib.Path(self.home.name).resolve()
        shutil.copy(PROGRAM, self.folder / "fernwick")

    def install_desktop(self):
        desktop = self.folder / "fernwick-workbench"
        desktop.write_text('#!/bin/sh\necho "desktop: $*"\n', encoding="utf-8")
        desktop.chmod(desktop.stat().st_mode | stat.S_IXUSR)

    def run_verb(self, *arguments):
        return subprocess.run([self.folder / "fernwick", "workbench", *arguments], capture_output=True, text=True,
                              cwd=self.folder, env=dict(os.environ, PATH="/nowhere:/usr/bin:/bin", HOME=str(self.folder)))

    def test_passes_the_projects_full_path(self):
        self.install_desktop()
        (self.folder / "A.vbp").touch()
        done = self.run_verb("A.vbp")
        self.assertEqual((done.returncode, done.stdout), (0, f"desktop: {self.folder}/A.vbp\n"))

    def test_opens_without_a_project(self):
        self.install_desktop()
        self.assertEqual(self.run_verb().stdout, "desktop: \n")

    def test_reports_a_missing_desktop(self):
        done = self.run_verb()
        self.assertEqual(done.returncode, 3)
        self.assertIn("the desktop program fernwick-workbench is not installed", done.stderr)

    @unittest.skipUnless(DESKTOP.exists(), "the desktop is not built")
    def test_a_missing_display_is_reported(self):
        env = {name: value for name, value in os.environ.items()
               if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR")}
        for display in ({}, {"DISPLAY": ":4711"}):
            done = subprocess.run([PROGRAM, "workbench"], capture_output=True, text=True, cwd=self.folder, timeout=60,
                                  env=env | {"HOME": str(self.folder)} | display)
            self.assertEqual((done.returncode, done.stdout), (3, ""), done.stderr)
            self.assertIn("there is no display or it cannot be reached", done.stderr)

    @unittest.skipUnless(DESKTOP.exists(), "the desktop is not built")
    def test_the_desktop_describes_its_command_line(self):
        def printed(option):
            return subprocess.run([DESKTOP, option], capture_output=True, text=True, timeout=60, check=True,
                                  env=os.environ | {"QT_QPA_PLATFORM": "offscreen", "HOME": str(self.folder)}).stdout
        version = subprocess.run([PROGRAM, "--version"], capture_output=True, text=True, check=True).stdout.split()[1]
        self.assertEqual(printed("--version"), f"workbench {version}\n")
        help_text = printed("--help")
        self.assertTrue(help_text.startswith(f"Usage: {DESKTOP} [options] [PROJECT...]\n"
                                             "Turns Visual Basic 6 projects into applications for handhelds.\n"), help_text)
        self.assertIn("\n  -h, --help ", help_text)
        self.assertTrue(help_text.endswith("\nArguments:\n  PROJECT        the project or group to open\n"), help_text)



if __name__ == "__main__":
    unittest.main()
