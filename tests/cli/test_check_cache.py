"""An unchanged project is not checked or compiled again, and nothing that can happen to the stored results changes what is
found."""
import os
import re
import shutil
import subprocess
import time
import unittest

from support import Home, under_strace

KILLED_AT = ["openat", "write", "rename,renameat,renameat2", "unlink,unlinkat", "mkdir"]


class CheckCache(unittest.TestCase):
    def setUp(self):
        self.home = Home()
        self.home.__enter__()
        self.addCleanup(self.home.__exit__)
        self.project = self.home.sample("TipCalculator")
        self.module = next(self.project.parent.glob("*.bas"), None) or next(self.project.parent.glob("*.frm"))
        self.folder = self.home.folder / ".cache/fernwick/checks"

    def check(self, *options):
        done = self.home.fernwick("check", str(self.project), *options)
        return re.sub(r"in \d+\.\d+ s", "", done.stdout), re.sub(r"\[\d+\.\d+ s\]", "", done.stderr), done.returncode

    def stored(self):
        """The stored files; another inode is another result."""
        return {p.name: p.stat().st_ino for p in self.folder.iterdir()}

    def append(self, text):
        self.module.write_bytes(self.module.read_bytes() + text.encode("cp1252"))

    def test_touched_files_are_unchanged_and_edited_ones_are_not(self):
        clean = self.check()
        self.assertEqual(clean[2], 0, clean)
        stored = self.stored()
        self.assertEqual(len(stored), 1)
        for path in self.project.parent.iterdir():
            os.utime(path, (1, 1))
        self.assertEqual(self.check(), clean)
        self.assertEqual(self.stored(), stored)

        before = self.module.read_bytes()
        self.append("Sub Broken()\r\n  Mispelt = 1\r\nEnd Sub\r\n")
        broken = self.check()
        self.assertIn("Mispelt", broken[1])
        self.assertEqual(broken[2], 1)
        stored = self.stored()
        self.assertEqual(self.check(), broken)
        self.assertEqual(self.check("--json"), self.check("--json"))
        self.assertEqual(self.stored(), stored)
        self.module.write_bytes(before)
        self.assertEqual(self.check(), clean)

    @unittest.skipIf("ASAN_OPTIONS" in os.environ, "the leak checker does not run under strace")
    def test_a_clean_project_is_not_read_again_until_a_file_changes(self):
        time.sleep(3.1)  # files that changed a moment before are not trusted
        clean = self.check()
        trace = self.home.folder / "trace"
        self.home.run(*under_strace(trace, "openat"), "fernwick", "check", str(self.project))
        self.assertIn("/clean/", trace.read_text())
        self.assertNotIn(self.project.parent.name, trace.read_text())
        for options in ((), ("-v",), ("--format", "json")):
            found = self.check(*options)
            shutil.rmtree(self.folder.parent / "clean")
            self.assertEqual(self.check(*options), found)
        self.check()

        text, times = self.module.read_bytes(), self.module.stat()
        self.module.write_bytes(text.replace(b"End Sub", b"End Sbu", 1))
        os.utime(self.module, ns=(times.st_atime_ns, times.st_mtime_ns))
        broken = self.check()
        self.assertEqual(broken[2], 1, broken)
        self.assertEqual(self.check(), broken)
        self.module.write_bytes(text)
        self.assertEqual(self.check(), clean)

    def test_what_the_results_depend_on_is_part_of_the_key(self):
        self.append("#If Extra Then\r\nSub Broken()\r\n  Mispelt = 1\r\nEnd Sub\r\n#End If\r\n"
                    "Sub Unused()\r\n  Dim never As Long\r\nEnd Sub\r\n")
        clean = self.check()
        self.assertEqual(clean[2], 0, clean)
        self.assertIn("2901", self.check("--warn")[1])
        self.assertEqual(self.check(), clean)
        self.assertEqual(len(self.stored()), 2)

        text = self.project.read_bytes()
        self.project.write_bytes(text.replace(b"Name=", b'CondComp="Extra = 1"\r\nName=', 1))
        self.assertIn("Mispelt", self.check()[1])
        self.project.write_bytes(text)
        self.assertEqual(self.check(), clean)

        hidden = self.module.with_suffix(".away")
        self.module.rename(hidden)
        self.assertNotEqual(self.check(), clean)
        hidden.rename(self.module)
        self.assertEqual(self.check(), clean)

    def test_damage_and_a_folder_that_cannot_be_written_change_nothing(self):
        clean = self.check()
        for damage in (b"", b"fernwick check 1 ", b"\0" * 500):
            for path in self.folder.iterdir():
                path.write_bytes(damage)
            self.assertEqual(self.check(), clean)
            self.assertGreater(next(self.folder.iterdir()).stat().st_size, 40)
        self.home.env["XDG_CACHE_HOME"] = "/dev/null"
        self.assertEqual(self.check(), clean)
        del self.home.env["HOME"], self.home.env["XDG_CACHE_HOME"]
        self.assertEqual(self.check(), clean)

    @unittest.skipIf("ASAN_OPTIONS" in os.environ, "the leak checker does not run under strace")
    def test_a_run_that_is_killed_leaves_a_result_that_is_right(self):
        self.append("Sub Broken()\r\n  Mispelt = 1\r\nEnd Sub\r\n")
        expected = self.check()
        trace = self.home.folder / "trace"
        for calls in KILLED_AT:
            # the calls that concern the stored results are the last ones
            self.home.run(*under_strace(trace, calls), "fernwick", "check", str(self.project), "--warn", env=self.fresh())
            count = len(trace.read_text().splitlines())
            for number in range(max(1, count - 6), count + 1):
                self.home.run(*under_strace(trace, calls, f"signal=KILL:when={number}"), "fernwick", "check",
                              str(self.project), env=self.fresh())
                self.assertEqual(self.check(), expected, f"{calls} {number}")
                self.assertEqual(self.check(), expected, f"{calls} {number}")

    def fresh(self):
        """The environment, without stored results."""
        for path in self.folder.iterdir():
            path.unlink()
        return self.home.env

    def test_runs_at_the_same_time_find_the_same(self):
        expected = self.check()
        self.fresh()
        runs = [subprocess.Popen(["fernwick", "check", str(self.project)], cwd=self.home.work, env=self.home.env,
                                 stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
                for _ in range(6)]
        for run in runs:
            out, err = run.communicate(timeout=120)
            self.assertEqual((re.sub(r"in \d+\.\d+ s", "", out), err, run.returncode), expected)
        self.assertEqual(len(self.stored()), 1)


class ProgramCache(unittest.TestCase):
    def setUp(self):
        self.home = Home()
        self.home.__enter__()
        self.addCleanup(self.home.__exit__)
        self.module = self.home.work / "TestProgram.bas"
        self.project = self.home.work / "Program.vbp"
        self.project.write_bytes(b'Type=Exe\r\nModule=TestProgram; TestProgram.bas\r\nStartup="Sub Main"\r\nName="Program"\r\n')
        self.write("Hello")
        self.folder = self.home.folder / ".cache/fernwick/checks"

    def write(self, text):
        self.module.write_bytes(f'Attribute VB_Name = "TestProgram"\r\nSub Main()\r\n  Dim never As Long\r\n'
                                f'  Debug.Print "{text}"\r\nEnd Sub\r\nPublic Sub TestIt()\r\nEnd Sub\r\n'.encode("cp1252"))

    def run_it(self, verb="run"):
        done = self.home.fernwick(verb, str(self.project))
        return done.stdout, done.stderr, done.returncode

    def stored(self):
        return {p.name: p.stat().st_ino for p in self.folder.iterdir()}

    def test_an_unchanged_program_is_not_compiled_again(self):
        self.assertEqual(self.run_it(), ("Hello\n", "", 0))
        stored = self.stored()
        self.assertEqual(len(stored), 1)
        self.assertEqual(self.run_it(), ("Hello\n", "", 0))
        self.assertIn("passed  TestProgram.TestIt", self.run_it("test")[0])
        self.assertEqual(self.stored(), stored)
        self.write("Another")
        self.assertEqual(self.run_it(), ("Another\n", "", 0))
        self.assertNotEqual(self.stored(), stored)

    def test_a_check_and_a_run_keep_their_own_results(self):
        self.run_it()
        self.run_it("check")
        stored = self.stored()
        self.assertEqual(len(stored), 2)
        self.run_it()
        self.run_it("check")
        self.assertEqual(self.stored(), stored)

    def test_a_program_with_errors_is_not_stored(self):
        self.module.write_bytes(self.module.read_bytes() + b"Sub Broken()\r\n  Mispelt = 1, 2\r\nEnd Sub\r\n")
        broken = self.run_it()
        self.assertEqual(broken[2], 1, broken)
        self.assertEqual(self.run_it(), broken)
        self.assertFalse(self.folder.exists())

    def test_warnings_are_printed_each_time(self):
        self.module.write_bytes(self.module.read_bytes() + b"Declare Sub Strange Lib \"strange\" ()\r\n"
                                b"Sub Calls()\r\n  Strange\r\nEnd Sub\r\n")
        self.project.write_bytes(self.project.read_bytes() + b"[Quinloft Global]\r\nIsQuinloftProject=True\r\n")
        first = self.run_it()
        self.assertIn("warning", first[1])
        self.assertEqual(self.run_it(), first)

    def test_damage_changes_nothing(self):
        expected = self.run_it()
        good = next(self.folder.iterdir()).read_bytes()
        for damage in (b"", b"fernwick check 1 ", good[:-1], good[:-20] + b"\0" * 20):
            next(self.folder.iterdir()).write_bytes(damage)
            self.assertEqual(self.run_it(), expected)
            self.assertEqual(next(self.folder.iterdir()).read_bytes(), good)

    @unittest.skipIf("ASAN_OPTIONS" in os.environ, "the leak checker does not run under strace")
    def test_a_run_that_is_killed_leaves_a_program_that_is_right(self):
        expected = self.run_it()
        trace = self.home.folder / "trace"
        for calls in KILLED_AT:
            for path in self.folder.iterdir():
                path.unlink()
            self.home.run(*under_strace(trace, calls), "fernwick", "run", str(self.project))
            count = len(trace.read_text().splitlines())
            for number in range(max(1, count - 4), count + 1):
                for path in self.folder.iterdir():
                    path.unlink()
                self.home.run(*under_strace(trace, calls, f"signal=KILL:when={number}"), "fernwick", "run", str(self.project))
                self.assertEqual(self.run_it(), expected, f"{calls} {number}")


if __name__ == "__main__":
    unittest.main()
