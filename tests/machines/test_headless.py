"""The program that runs images without a screen. Usage: test_headless.py TAMARIK_HEADLESS LANGUAGE_IMAGES"""
import pathlib
import subprocess
import sys
import tempfile
import unittest

USE = """\
Usage: tamarik-headless [OPTION ...] IMAGE [ARGUMENT ...]
       tamarik-headless [OPTION ...] --each IMAGE ...
Runs a compiled application. With --each runs several, each between its name and its status.
  --budget N      stop after about N instructions
  --files FOLDER  what the application's files are in; without it, they are lost at the end
  --seed N        the first number of Rnd's sequence
  --switch        use the portable form of the interpreter
"""

GOOD, PROGRAM_ERRORS, WRONG_USE, MACHINE_TROUBLE = range(4)


class Headless(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        temporary = tempfile.TemporaryDirectory()
        cls.addClassCleanup(temporary.cleanup)
        cls.folder = pathlib.Path(temporary.name)
        subprocess.run([MAKER, cls.folder], check=True, stdout=subprocess.DEVNULL)

    def image(self, title):
        return next(path for path in self.folder.iterdir() if title.replace(" ", "_") in path.name)

    def run_program(self, *words):
        ran = subprocess.run([PROGRAM, *map(str, words)], text=True, capture_output=True, stdin=subprocess.DEVNULL)
        return ran.returncode, ran.stdout, ran.stderr

    def test_prints_what_a_program_prints(self):
        self.assertEqual(self.run_program(self.image("Array without arguments"))[0], GOOD)
        self.assertEqual(self.run_program(self.image("Bounds with To")), (GOOD, "-2  2  5 \n", ""))

    def test_reports_an_error_with_its_line(self):
        status, output, errors = self.run_program(self.image("An index above the bound"))
        self.assertEqual((status, output), (PROGRAM_ERRORS, ""))
        self.assertEqual(errors, "Module1.bas:5: run-time error 9: Subscript out of range\n  in Main\n")

    def test_runs_each_image_between_its_name_and_status(self):
        good, bad = self.image("Bounds with To"), self.image("An index above the bound")
        status, output, errors = self.run_program("--switch", "--each", bad, good)
        self.assertEqual((status, errors), (GOOD, ""))
        self.assertEqual(output, f"=== {bad}\nModule1.bas:5: run-time error 9: Subscript out of range\n  in Main\n--- 1\n"
                                 f"=== {good}\n-2  2  5 \n--- 0\n")

    def test_stops_at_the_budget(self):
        status, _, errors = self.run_program("--budget", 10, self.image("Endless recursion"))
        self.assertEqual(status, MACHINE_TROUBLE)
        self.assertEqual(errors, "tamarik-headless: The program was stopped by its budget.\n")

    def test_begins_the_sequence_of_rnd_with_the_seed(self):
        random = self.image("Rnd begins with the documented number")
        self.assertEqual(self.run_program(random)[1], self.run_program("--seed", 0x50000, random)[1])
        self.assertNotEqual(self.run_program(random)[1], self.run_program("--seed", 7, random)[1])

    def refused(self, path, status, reason, *options):
        self.assertEqual(self.run_program(*options, path), (status, "", f"tamarik-headless: {path}: {reason}\n"))

    def test_refuses_a_damaged_image(self):
        damaged = self.folder / "damaged"
        damaged.write_bytes(self.image("Bounds with To").read_bytes()[:-1] + b"\xff")
        self.refused(damaged, MACHINE_TROUBLE, "The compiled file is damaged: its checksum is wrong.")
        damaged.unlink()

    def test_refuses_what_cannot_be_read(self):
        self.refused(self.folder / "missing", WRONG_USE, "The file cannot be read.")
        self.refused(self.folder, WRONG_USE, "The file cannot be read.")

    def test_refuses_a_wrong_command_line(self):
        for words in ([], ["--unknown", "x"], ["--budget", "x", "y"], ["--seed", "7x", "y"], ["--each"], ["--files"]):
            self.assertEqual(self.run_program(*words), (WRONG_USE, "", USE), words)

    def test_keeps_files_in_a_folder(self):
        files = self.folder / "files"
        files.mkdir()
        self.assertEqual(self.run_program("--files", files, self.image("Print and Line Input"))[0], GOOD)
        self.assertTrue(any(files.iterdir()))
        self.refused(self.image("Bounds with To"), MACHINE_TROUBLE,
                     f"The folder {files / 'missing'} cannot hold its files: Path not found.", "--files", files / "missing")

    def test_hands_the_arguments_to_the_program(self):
        self.assertEqual(self.run_program(self.image("Bounds with To"), "--each", "x")[:2], (GOOD, "-2  2  5 \n"))


PROGRAM, MAKER = sys.argv[1:3]
unittest.main(argv=sys.argv[:1])
