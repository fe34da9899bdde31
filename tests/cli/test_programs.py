"""Programs that `fernwick run` executes can be interrupted, and end when their output is closed."""
import json
import signal
import struct
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


def identifier(text):
    return struct.pack("<HH", 0xFFFF, int(text[1:])) if text.startswith("#") else text.encode("utf-16-le") + bytes(2)


def resource(kind, name, data):
    """An entry of a resource file. The name is a number, as "#1", or has letters."""
    head = identifier(kind) + identifier(name)
    head += bytes(-len(head) % 4)
    return struct.pack("<II", len(data), 8 + len(head) + 16) + head + bytes(16) + data + bytes(-len(data) % 4)


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
        shown = self.home.fernwick("run", "Loop.vbp", "--budget", "100000", "--profile", "--format", "json").stdout
        row = json.loads(shown)["profile"][0]
        self.assertEqual((row["file"], row["procedure"]), (str(self.home.work / "Loop.bas"), "Main"))
        self.assertGreater(row["line"], 0)
        self.assertGreater(row["samples"], 0)

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

    @staticmethod
    def resources(text):
        """The bytes of a resource file with this text, number 1."""
        texts = struct.pack("<HH", 0, len(text)) + text.encode("utf-16-le") + bytes(28)
        return resource("#0", "#0", b"") + resource("#6", "#1", texts) + resource("CUSTOM", "LOGO", b"abc")

    def program_with_resources(self):
        self.program("Debug.Print LoadResString(1); UBound(LoadResData(\"LOGO\", \"CUSTOM\")): Exit Do")
        with (self.home.work / "Loop.vbp").open("a") as project:
            project.write('ResFile32="loop.RES"\nName="Loop"\n')
        self.home.fernwick("init", "Loop.vbp", "--device", "PalmOS-DragonBall", "--yes")
        return self.home.work / "Loop.res"

    def test_a_resource_file_is_part_of_the_program(self):
        file = self.program_with_resources()
        for text in "Hello", "World":
            file.write_bytes(self.resources(text))
            done = self.home.fernwick("run", "Loop.vbp")
            self.assertEqual((done.returncode, done.stdout, done.stderr), (0, text + " 2 \n", ""))
        self.assertRegex(self.home.fernwick("check", "Loop.vbp").stdout, "^1 file, .* 0 errors")

    def test_a_resource_file_is_part_of_the_image(self):
        file = self.program_with_resources()
        file.write_bytes(self.resources("Hello"))
        built = self.home.fernwick("build", "Loop.vbp", "--depfile", "Loop.d")
        self.assertEqual(built.returncode, 0, built.stderr)
        image = next(self.home.work.glob("*.qlx")).read_bytes()
        self.assertIn("Hello".encode("utf-16-le"), image)
        self.assertIn("LOGO", image.decode("latin-1"))
        self.assertIn("Loop.res", (self.home.work / "Loop.d").read_text())

    def test_a_resource_file_that_cannot_be_read_is_an_error(self):
        file = self.program_with_resources()
        file.write_bytes(b"no resources")
        for verb in "check", "check", "run", "build":
            done = self.home.fernwick(verb, "Loop.vbp")
            self.assertEqual(done.returncode, 1)
            self.assertIn("Loop.res: error 1001: The file cannot be read: the resource file is cut off.", done.stderr)
        file.unlink()
        for verb in "check", "run", "build":
            done = self.home.fernwick(verb, "Loop.vbp")
            self.assertEqual(done.returncode, 1)
            self.assertRegex(done.stderr, r"(?i)loop\.res: error 1000")

    def test_a_program_sees_a_device_and_not_the_desktop(self):
        self.program('Debug.Print Environ("USERNAME"); Environ("HOME"); Environ("PATH"): Exit Do')
        self.assertEqual(self.home.fernwick("run", "Loop.vbp").stdout, "User\n")

    def test_a_sleeping_program_can_be_interrupted(self):
        self.program('Debug.Print "sleeps": Sleep 60000')
        source = self.home.work / "Loop.bas"
        declared = 'Private Declare Sub Sleep Lib "kernel32" (ByVal dwMilliseconds As Long)\nSub Main()'
        source.write_text(source.read_text().replace("Sub Main()", declared))
        with self.start() as running:
            self.assertEqual(running.stdout.readline(), "sleeps\n")
            running.send_signal(signal.SIGINT)
            running.communicate(timeout=50)
            self.assertEqual(running.returncode, 130)


if __name__ == "__main__":
    unittest.main()
