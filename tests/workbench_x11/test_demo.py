"""scripts/demo --window: the README's way to the desktop."""
import os
import pathlib
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent


class Demo(unittest.TestCase):
    def run_demo(self, *arguments, **environment):
        left_out = ("DISPLAY", "WAYLAND_DISPLAY")
        known = {key: value for key, value in os.environ.items() if key not in left_out}
        return subprocess.run([ROOT / "scripts/demo", *arguments], capture_output=True, text=True, timeout=120,
                              stdin=subprocess.DEVNULL, env=known | environment, check=False)

    def test_it_writes_a_picture_of_the_window(self):
        with tempfile.TemporaryDirectory() as folder:
            picture = pathlib.Path(folder) / "window.png"
            done = self.run_demo("--window", "--picture", picture, "HelloWorld", TMPDIR=folder)
            self.assertEqual(done.returncode, 0, done.stderr)
            self.assertEqual(done.stdout, f"{picture}\n")
            self.assertEqual(picture.read_bytes()[:8], b"\x89PNG\r\n\x1a\n")
            self.assertEqual(list(pathlib.Path(folder).iterdir()), [picture])  # nothing else is left

    def test_without_a_display_it_fails(self):
        done = self.run_demo("--window")
        self.assertEqual(done.returncode, 3)
        self.assertIn("no display was found", done.stderr)

    def test_an_unknown_sample_is_reported(self):
        done = self.run_demo("--window", "Nothing")
        self.assertEqual((done.returncode, done.stderr), (2, "no such sample: Nothing\n"))

    def test_wrong_use_is_reported(self):
        self.assertEqual(self.run_demo("--picture", "x.png").returncode, 2)
        self.assertEqual(self.run_demo("--unknown").returncode, 2)


if __name__ == "__main__":
    unittest.main()
