"""What is typed at the terminal in answer to questions."""
import os
import pty
import select
import signal
import time
import unittest

from support import Home

END_OF_INPUT, CTRL_C = "\4", "\3"


class TypedAnswers(unittest.TestCase):
    def setUp(self):
        self.home = Home()
        self.home.__enter__()
        self.addCleanup(self.home.__exit__)
        self.project = self.home.sample()

    def typed(self, arguments, *answers, question="Return for"):
        """Types each answer once its question appears; returns exit code and output."""
        child, terminal = pty.fork()
        if child == 0:
            try:
                os.chdir(self.home.work)
                os.execvpe("fernwick", ["fernwick", *arguments], self.home.env)
            finally:
                os._exit(127)
        shown, left, asked, deadline = "", list(answers), 0, time.monotonic() + 60
        while True:
            ready, _, _ = select.select([terminal], [], [], max(0, deadline - time.monotonic()))
            if not ready:
                os.kill(child, signal.SIGKILL)
                self.fail(f"no output for a minute after: {shown}")
            try:
                piece = os.read(terminal, 65536)
            except OSError:
                break
            if not piece:
                break
            shown += piece.decode()
            if left and shown.count(question) > asked:
                asked += 1
                os.write(terminal, left.pop(0).encode())
        os.close(terminal)
        return os.waitstatus_to_exitcode(os.waitpid(child, 0)[1]), shown

    def build(self, *answers):
        return self.typed(["build", str(self.project)], *answers)

    def test_first_letters_are_enough(self):
        before = self.project.read_bytes()
        status, shown = self.build("N\n")
        self.assertEqual(status, 1, shown)
        self.assertEqual(self.project.read_bytes(), before)
        status, shown = self.build("ye\n")
        self.assertEqual(status, 0, shown)

    def test_anything_else_asks_again(self):
        before = self.project.read_bytes()
        status, shown = self.build("maybe\n", "yesterday\n", "no\n")
        self.assertEqual(status, 1, shown)
        self.assertEqual(shown.count("Return for Yes"), 3)
        self.assertEqual(self.project.read_bytes(), before)

    def test_a_question_is_printed_once(self):
        _, shown = self.build("\n")
        self.assertEqual(shown.count("must be saved before compiling"), 1, shown)

    def test_the_end_of_input_is_the_harmless_answer(self):
        before = self.project.read_bytes()
        status, shown = self.build(END_OF_INPUT)
        self.assertEqual(status, 1, shown)
        self.assertEqual(self.project.read_bytes(), before)

    def test_ctrl_c_ends_the_run(self):
        before = self.project.read_bytes()
        status, shown = self.build(CTRL_C)
        self.assertEqual(status, 130, shown)
        self.assertIn("interrupted; no file was left incomplete", shown)
        self.assertEqual(self.project.read_bytes(), before)

    def test_ctrl_c_at_the_question_of_trust(self):
        self.home.fernwick("settings", "set", str(self.project), "PreCompileSteps", "touch ran", check=True)
        status, shown = self.build("y\n", CTRL_C)
        self.assertEqual(status, 130, shown)
        self.assertFalse((self.project.parent / "ran").exists())


class DeviceChoice(TypedAnswers):
    def setUp(self):
        super().setUp()
        lines = self.project.read_bytes().split(b"\r\n")
        kept = [l for l in lines if not l.lower().startswith((b"targetdevice", b"numcompile", b"compiletarget"))]
        self.project.write_bytes(b"\r\n".join(kept))

    def build(self, *answers):
        return self.typed(["build", "--yes", str(self.project)], *answers)

    def test_by_number_by_key_or_not_at_all(self):
        status, shown = self.build("\n")
        self.assertEqual(status, 2, shown)
        status, shown = self.build("99\n", "PocketPC-ARM\n")
        self.assertEqual(status, 0, shown)
        self.assertIn(b"TargetDevice=PocketPC-ARM\r\n", self.project.read_bytes())

    def test_the_first_row(self):
        status, shown = self.build("1\n")
        self.assertEqual(status, 0, shown)
        self.assertRegex(shown, r"1  \S+ ")

    # The questions of a project with a device are tested above.
    test_first_letters_are_enough = test_anything_else_asks_again = test_a_question_is_printed_once = None
    test_the_end_of_input_is_the_harmless_answer = test_ctrl_c_at_the_question_of_trust = None


if __name__ == "__main__":
    unittest.main()
