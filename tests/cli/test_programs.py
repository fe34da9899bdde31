"""Programs that `fernwick run` executes can be interrupted, and end when their output is closed."""
import signal
import subprocess
import unittest

from support import Home

ENDLESS = """Attribute VB_Name = "modLoop"
Sub Main()
    Dim i As Long
    Do
        i = (i + 1) Mod 1000
        {body}
    Loop
End Sub
"""


class Programs(unittest.TestCase):
    def setUp(self):
        self.home = Home()
        self.home.__enter__()
        self.addCleanup(self.home.__exit__)

    def program(self, body):
        (self.home.work / "Loop.vbp").write_text('Type=Exe\nModule=modLoop; Loop.bas\nStartup="Sub Main"\n')
        (self.home.work / "Loop.bas").write_text(ENDLESS.format(body=body))

    def start(self, *arguments):
        return subprocess.Popen(["fernwick", "run", "Loop.vbp", *arguments], cwd=self.home.work, env=self.home.env, text=True,
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def test_lines_are_written_at_once(self):
        self.program("If IsEmpty(begun) Then Debug.Print \"begun\": begun = True")
        with self.start() as running:
            self.assertEqual(running.stdout.readline(), "begun\n")
            running.send_signal(signal.SIGINT)
            _, errors = running.communicate(timeout=60)
            self.assertEqual(running.returncode, 130)
            self.assertIn("interrupted", errors)

    def test_a_closed_pipe_ends_the_program_quietly(self):
        self.program("Debug.Print i")
        with self.start() as running:
            running.stdout.readline()
            running.stdout.close()
            self.assertEqual(running.stderr.read(), "")
            self.assertEqual(running.wait(timeout=60), -signal.SIGPIPE)

    def test_a_budget_stops_the_program(self):
        self.program("")
        stopped = self.home.fernwick("run", "Loop.vbp", "--budget", "100000")
        self.assertEqual((stopped.returncode, stopped.stdout), (3, ""))
        self.assertIn("stopped after 100000 instructions", stopped.stderr)

    def test_the_profile_shows_the_line_of_the_loop(self):
        self.program("")
        profile = self.home.fernwick("run", "Loop.vbp", "--budget", "100000", "--profile").stderr
        self.assertRegex(profile, r"(?m)^100\.0 %  .*Loop\.bas:\d  Main$")

    def test_files_are_in_the_folder(self):
        self.program('Open "\\out.txt" For Output As #1: Print #1, "text": Close #1: Exit Do')
        (self.home.work / "own").mkdir()
        done = self.home.fernwick("run", "Loop.vbp", "--files", "own")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertEqual((self.home.work / "own/out.txt").read_bytes(), b"text\r\n")
        self.assertEqual(self.home.fernwick("run", "Loop.vbp", "--files", "none").returncode, 2)

    def test_end_closes_files(self):
        self.program('Open "out.txt" For Output As #1: Print #1, "text": End')
        (self.home.work / "own").mkdir()
        done = self.home.fernwick("run", "Loop.vbp", "--files", "own")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertEqual((self.home.work / "own/out.txt").read_bytes(), b"text\r\n")

    def test_stop_ends_with_its_place(self):
        self.program("Stop")
        stopped = self.home.fernwick("run", "Loop.vbp")
        self.assertEqual((stopped.returncode, stopped.stdout), (1, ""))
        self.assertRegex(stopped.stderr, r"Loop\.bas:6: Stop\n  in Main\n")

    def test_a_seed_chooses_the_random_numbers(self):
        self.program("Debug.Print Int(Rnd * 1000000): Exit Do")
        first, same, other = (self.home.fernwick("run", "Loop.vbp", "--seed", seed).stdout for seed in ("1", "1", "2"))
        self.assertEqual(first, same)
        self.assertNotEqual(first, other)


if __name__ == "__main__":
    unittest.main()
