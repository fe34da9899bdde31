"""The program that runs images without a screen. Usage: test_headless.py TAMARIK_HEADLESS LANGUAGE_IMAGES"""
import pathlib
import subprocess
import sys
import tempfile
import unittest

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
        self.assertIn("stopped by its budget", errors)

    def test_refuses_a_damaged_image(self):
        damaged = self.folder / "damaged"
        damaged.write_bytes(self.image("Bounds with To").read_bytes()[:-1] + b"\xff")
        status, output, errors = self.run_program(damaged)
        self.assertEqual((status, output), (MACHINE_TROUBLE, ""))
        self.assertIn(str(damaged), errors)
        damaged.unlink()

    def test_refuses_what_cannot_be_read(self):
        self.assertEqual(self.run_program(self.folder / "missing")[0], WRONG_USE)

    def test_refuses_a_wrong_command_line(self):
        for words in ([], ["--unknown", "x"], ["--budget", "x", "y"], ["--each"]):
            status, output, errors = self.run_program(*words)
            self.assertEqual((status, output), (WRONG_USE, ""), words)
            self.assertIn("Usage:", errors)

    def test_keeps_files_in_a_folder(self):
        files = self.folder / "files"
        files.mkdir()
        self.assertEqual(self.run_program("--files", files, self.image("Print and Line Input"))[0], GOOD)
        self.assertTrue(any(files.iterdir()))
        self.assertEqual(self.run_program("--files", files / "missing", self.image("Bounds with To"))[0], MACHINE_TROUBLE)


PROGRAM, MAKER = sys.argv[1:3]
unittest.main(argv=sys.argv[:1])
