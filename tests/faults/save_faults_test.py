#!/usr/bin/env python3
"""A save that dies, or is refused, at any system call leaves the old file or the new one, and says so."""
import os
import pathlib
import re
import shutil
import stat
import subprocess
import sys
import tempfile
import unittest

PROGRAM = None  # path of fernwick, the first argument
REVISION = None  # path of increment_revision, the second one
ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tests" / "cli"))
from support import under_strace  # noqa: E402

SAMPLE = ROOT / "samples" / "HelloWorld"

# The calls through which a save can end early.
CALLS = ["openat", "write", "fsync", "rename,renameat,renameat2", "fchmod", "fchown", "unlink,unlinkat", "ftruncate"]
SET = ["settings", "set", "HelloWorld.vbp", "DefaultFontName", "Swiss"]
BUILD = ["build", "HelloWorld.vbp", "--yes"]
CONVERT = ["convert", "HelloWorld.vbp", "--to", "PocketPC-SH3", "--in-place"]
COPY = ["convert", "HelloWorld.vbp", "--to", "PocketPC-SH3", "--output", "../new/Copy.vbp", "--yes"]
UPGRADE = ["upgrade", "HelloWorld.vbp"]
INIT = ["init", "HelloWorld.vbp", "--device", "PalmOS-DragonBall", "--yes"]
REFUSALS = [("openat", "EACCES"), ("write", "ENOSPC"), ("fsync", "EIO"), ("mkdir", "EACCES"),
            ("rename,renameat,renameat2", "EACCES"), ("rename,renameat,renameat2", "EIO")]


class Project:
    """A copy of the sample in a separate folder, with private stores."""

    def __init__(self, program=None):
        self.program = program or PROGRAM
        self.base = pathlib.Path(tempfile.mkdtemp(prefix="fernwick-faults-"))
        self.tried = self.failed = 0
        self.folder = self.base / "project"
        shutil.copytree(SAMPLE, self.folder)
        self.vbp = self.folder / "HelloWorld.vbp"
        self.old = self.files()
        self.environment = dict(os.environ, XDG_CONFIG_HOME=str(self.base / "config"),
                                XDG_DATA_HOME=str(self.base / "data"), FERNWICK_MACHINE_STORE=str(self.base / "machine"))

    def files(self):
        return {p.name: p.read_bytes() for p in self.folder.iterdir() if p.is_file()}

    def restore(self):
        shutil.rmtree(self.base / "new", ignore_errors=True)
        for path in self.folder.iterdir():
            path.unlink()
        for name, content in self.old.items():
            (self.folder / name).write_bytes(content)

    def run(self, arguments, inject=None):
        command = [self.program, *arguments]
        if inject:
            command = [*under_strace(self.base / "trace", *inject.split(":", 1)), *command]
        done = subprocess.run(command, cwd=self.folder, env=self.environment, stdin=subprocess.DEVNULL,
                              capture_output=True, text=True, timeout=60)
        if inject:
            self.tried += 1
            self.failed += any(sign in (self.base / "trace").read_text(errors="replace") for sign in ("INJECTED", "killed by"))
        return done

    def calls_of(self, arguments, calls):
        """How often each call set is made by a good run."""
        trace = self.base / "count"
        subprocess.run([*under_strace(trace, calls), self.program, *arguments],
                       cwd=self.folder, env=self.environment, stdin=subprocess.DEVNULL, capture_output=True, timeout=60)
        names = calls.replace(",", "|")
        return len(re.findall(rf"\b(?:{names})\(", trace.read_text(errors="replace")))

    def remove(self):
        shutil.rmtree(self.base, ignore_errors=True)
        assert self.failed == self.tried, f"only {self.failed} of {self.tried} failures came about"


class Saves(unittest.TestCase):
    def setUp(self):
        self.project = Project()
        good = self.project.run(SET)
        self.assertEqual(good.returncode, 0, good.stderr)
        self.new = self.project.vbp.read_bytes()
        self.assertNotEqual(self.new, self.project.old["HelloWorld.vbp"])
        self.project.restore()

    def tearDown(self):
        self.project.remove()

    def check_old_or_new(self, what):
        now = self.project.vbp.read_bytes()
        self.assertIn(now, (self.project.old["HelloWorld.vbp"], self.new), what)
        return now == self.new

    def test_killed_at_each_call(self):
        for calls in CALLS:
            for when in range(1, self.project.calls_of(SET, calls) + 1):
                self.project.restore()
                self.project.run(SET, f"{calls}:signal=KILL:when={when}")
                self.check_old_or_new(f"killed at {calls} {when}")
        # leftovers of a killed save must not make the next one fail
        again = self.project.run(SET)
        self.assertEqual(again.returncode, 0, again.stderr)
        self.assertTrue(self.check_old_or_new("after the kills"))

    def test_refused_at_each_call(self):
        for calls, error in [("openat", "EACCES"), ("write", "ENOSPC"), ("fsync", "EIO"),
                             ("rename,renameat,renameat2", "EACCES"), ("rename,renameat,renameat2", "EIO")]:
            self.project.restore()
            for when in range(1, self.project.calls_of(SET, calls) + 1):
                self.project.restore()
                before = set(self.project.files())
                result = self.project.run(SET, f"{calls}:error={error}:when={when}")
                what = f"{error} at {calls} {when}: {result.returncode} {result.stderr}"
                saved = self.check_old_or_new(what)
                self.assertEqual(result.returncode == 0, saved, what)
                if not saved:
                    self.assertNotEqual(result.stderr, "", what)
                    self.assertNotIn("terminate", result.stderr, what)
                self.assertEqual(set(self.project.files()), before, "nothing is left beside it: " + what)


class Images(unittest.TestCase):
    def setUp(self):
        self.project = Project()

    def tearDown(self):
        self.project.remove()

    def test_build_killed_at_each_write_leaves_whole_files(self):
        good = self.project.run(BUILD)
        self.assertEqual(good.returncode, 0, good.stderr)
        image = self.project.files()["HelloWorld.0000.qlx"]
        self.project.restore()
        for calls in ["write", "fsync", "rename,renameat,renameat2"]:
            for when in range(1, self.project.calls_of(BUILD, calls) + 1):
                self.project.restore()
                self.project.run(BUILD, f"{calls}:signal=KILL:when={when}")
                now = self.project.files()
                self.assertIn(now.get("HelloWorld.0000.qlx"), (None, image), f"killed at {calls} {when}")
                self.assertEqual(now["frmHello.frm"], self.project.old["frmHello.frm"])
                self.assertTrue(now["HelloWorld.vbp"].startswith(b"Type=Exe\r\n"))
                self.assertTrue(now["HelloWorld.vbp"].endswith(b"\r\n"))

    def test_full_disk_at_the_image_is_an_error_of_its_own(self):
        result = self.project.run(BUILD, "rename,renameat,renameat2:error=ENOSPC")
        self.assertNotEqual(result.returncode, 0)
        self.assertNotIn("HelloWorld.0000.qlx", self.project.files())
        self.assertEqual(set(self.project.files()), set(self.project.old))


class Rewriting(unittest.TestCase):
    """A program that rewrites a project and fails in one of its calls."""

    def each_failure(self, arguments):
        failures = [(calls, "signal=KILL") for calls in [*CALLS, "mkdir"]]
        failures += [(calls, f"error={error}") for calls, error in REFUSALS]
        for calls, failure in failures:
            self.project.restore()
            for when in range(1, self.project.calls_of(arguments, calls) + 1):
                self.project.restore()
                result = self.project.run(arguments, f"{calls}:{failure}:when={when}")
                yield f"{failure} at {calls} {when}: {result.returncode} {result.stderr}", result

    def check_nothing_is_left(self, folder, what):
        left = [p.name for p in folder.glob("*") if p.name.endswith((".converting", ".temp"))]
        self.assertEqual(left, [], what)


class Conversions(Rewriting):
    """The original keeps its bytes or gets all new ones, whatever fails; a later run puts everything right."""

    def setUp(self):
        self.project = Project()
        good = self.project.run(CONVERT)
        self.assertEqual(good.returncode, 0, good.stderr)
        self.new = self.project.vbp.read_bytes()
        self.project.restore()
        good = self.project.run(COPY)
        self.assertEqual(good.returncode, 0, good.stderr)
        self.copy = self.new_files()
        self.project.restore()

    def tearDown(self):
        self.project.remove()

    def new_files(self):
        return {p.name: p.read_bytes() for p in (self.project.base / "new").glob("*")}

    def test_in_place(self):
        old = self.project.old["HelloWorld.vbp"]
        for what, result in self.each_failure(CONVERT):
            now = self.project.vbp.read_bytes()
            self.assertIn(now, (old, self.new), what)
            if now != old:  # never without the backup
                self.assertEqual((self.project.folder / "HelloWorld.vbp.bak").read_bytes(), old, what)
            if result.returncode == 0:
                self.assertEqual(now, self.new, what)
            again = self.project.run(CONVERT)
            self.assertEqual((again.returncode, self.project.vbp.read_bytes()), (0, self.new), what + again.stderr)
            self.check_nothing_is_left(self.project.folder, what)

    def check_rewriting(self, arguments, old, mark):
        """The file is the old one or the new one with its backup, and a later run makes the new one."""
        self.project.old["HelloWorld.vbp"] = old
        self.project.restore()
        good = self.project.run(arguments)
        self.assertEqual(good.returncode, 0, good.stderr)
        new = self.project.vbp.read_bytes()
        self.assertIn(mark, new)
        for what, result in self.each_failure(arguments):
            now = self.project.vbp.read_bytes()
            self.assertIn(now, (old, new), what)
            if now == new:
                self.assertEqual((self.project.folder / "HelloWorld.vbp.bak").read_bytes(), old, what)
            if result.returncode == 0:
                self.assertEqual(now, new, what)
            again = self.project.run(arguments)
            self.assertEqual((again.returncode, self.project.vbp.read_bytes()), (0, new), what + again.stderr)
            self.check_nothing_is_left(self.project.folder, what)

    def test_upgrade(self):
        old = self.project.old["HelloWorld.vbp"].replace(b"ProjectVersion=3.5\r\n", b"")
        self.check_rewriting(UPGRADE, old, b"ProjectVersion=3.5\r\n")

    def test_init(self):
        old = self.project.old["HelloWorld.vbp"].split(b"[Quinloft Global]")[0]
        self.check_rewriting(INIT, old, b"IsQuinloftProject=True\r\n")

    def test_copy(self):
        for what, result in self.each_failure(COPY):
            self.assertEqual(self.project.files(), self.project.old, what)
            if result.returncode == 0:
                self.assertEqual(self.new_files(), self.copy, what)
            for name, content in self.new_files().items():
                whole = (self.copy.get(name), self.project.old.get(name), self.project.old["HelloWorld.vbp"],
                         self.copy["Copy.vbp"])
                self.assertTrue(name.startswith(".fernwick-") or content in whole, f"{name}: {what}")
            again = self.project.run(COPY)
            now = {name: content for name, content in self.new_files().items() if not name.startswith(".fernwick-")}
            self.assertEqual((again.returncode, now), (0, self.copy), what + again.stderr)
            self.check_nothing_is_left(self.project.base / "new", what)


class Revisions(Rewriting):
    def setUp(self):
        self.project = Project(REVISION)
        sample = self.project.old["HelloWorld.vbp"].replace(b"AutoIncrementVer=0", b"AutoIncrementVer=1")
        self.old, self.new = (sample.replace(b"RevisionVer=0", b"RevisionVer=%d" % revision) for revision in (9, 10))
        self.project.old["HelloWorld.vbp"] = self.old
        self.project.restore()

    def tearDown(self):
        self.project.remove()

    def test_the_project_has_its_old_or_its_new_lines(self):
        failures = 0
        for what, result in self.each_failure(["HelloWorld.vbp"]):
            failures += 1
            now = self.project.vbp.read_bytes()
            self.assertIn(now, (self.old, self.new), what)
            self.assertNotIn("terminate", result.stderr, what)
            self.project.vbp.write_bytes(self.old)  # what a failed run leaves beside it stays
            again = self.project.run(["HelloWorld.vbp"])
            self.assertEqual((again.returncode, self.project.vbp.read_bytes()), (0, self.new), what + again.stderr)
            self.check_nothing_is_left(self.project.folder, what)
        self.assertGreater(failures, 20)

    def test_a_full_disk_keeps_the_old_lines(self):
        for calls in ["write", "fsync", "rename,renameat,renameat2"]:
            self.project.restore()
            self.project.run(["HelloWorld.vbp"], f"{calls}:error=ENOSPC")
            self.assertEqual(self.project.vbp.read_bytes(), self.old, calls)
            self.assertEqual(set(self.project.files()), set(self.project.old), calls)


class ReadOnly(unittest.TestCase):
    def test_read_only_project_stays_as_it_is_for_root_too(self):
        project = Project()
        try:
            project.vbp.chmod(stat.S_IRUSR | stat.S_IRGRP | stat.S_IROTH)
            result = project.run(SET)
            self.assertNotEqual(result.returncode, 0)
            self.assertIn("is read-only", result.stderr)
            self.assertEqual(project.files(), project.old)
        finally:
            project.remove()


if __name__ == "__main__":
    PROGRAM = os.path.abspath(sys.argv.pop(1))
    REVISION = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=1)
